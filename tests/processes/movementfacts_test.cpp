// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/factlines.h"

// What movements and the capping station tell of themselves to those who explain them.

namespace {

using namespace testing_base;

TEST(MovementFacts, tellTheShelf)
{
    EXPECT_EQ(argumentsOf("SHELF_MOVE"),
              (Lines{"command_type (int): 0 to the can position, 1 to the low position",
                     "  XML-RPC, another type: DE00811", "  list, another type: DE00815",
                     "height (int) = 0: millimetres; only a command type above 1 may do without",
                     "  XML-RPC, missing: DE00813", "  list, missing: DE00817",
                     "  XML-RPC, another type: DE00812", "  list, another type: DE00816"}));
    EXPECT_EQ(argumentsOf("GET_SHELF_POS"),
              (Lines{"position_type (int) = 3: 3 is the only one", "  XML-RPC, another type: DE01439",
                     "  list, another type: DE01440", "  XML-RPC, out of range: DE01438",
                     "  list, out of range: DE01441"}));
    EXPECT_EQ(
        membersOf("GET_SHELF_POS"),
        (Lines{"GetShelfPosAnswer",
               "shelf_position (int): millimetres; -1 when the firmware does not know it",
               "  XML-RPC, missing or another type: DE01450", "  list, missing or another type: DE01450",
               "  tokens, : DE01445", "  XML-RPC, : DE01442", "  list, : DE01443", "  envelope, : DE01446"}));
    EXPECT_EQ(
        membersOf("GET_SHELF_PARAMS"),
        (Lines{"GetShelfParamsAnswer", "shelf_ref_plane (bool): whether the shelf has a reference plane",
               "  XML-RPC, missing or another type: DE02941", "  list, missing or another type: DE02941",
               "shelf_ref_height (int): millimetres", "  XML-RPC, missing or another type: DE02942",
               "  list, missing or another type: DE02942"}));
}

TEST(MovementFacts, tellTheTurntable)
{
    EXPECT_EQ(argumentsOf("TURNTABLE_MOVE"),
              (Lines{"position (int): a circuit's position",
                     "  XML-RPC, another type: DE01659",
                     "  list, another type: DE01660",
                     "movement_type (int): 0 search of the reference position, 1 to the circuit, 2 to the "
                     "circuit with the rollbar locked",
                     "  XML-RPC, another type: DE01649",
                     "  list, another type: DE01654",
                     "direction (int): 0 clockwise, 1 counter-clockwise, 2 the shortest way",
                     "  XML-RPC, another type: DE01650",
                     "  list, another type: DE01655",
                     "refill_angle (int): degrees by which the table turns on",
                     "  XML-RPC, another type: DE01651",
                     "  list, another type: DE01656",
                     "refill_direction (int): 0 clockwise, 1 counter-clockwise",
                     "  XML-RPC, missing: DE01652",
                     "  list, missing: DE01657",
                     "  XML-RPC, another type: DE01652",
                     "  list, another type: DE01657",
                     "speed (int) = 245: 1 to 100; 245 is the machine's own",
                     "  XML-RPC, another type: DE01653",
                     "  list, another type: DE01658"}));
    EXPECT_EQ(argumentsOf("TURNTABLE_MOVE_STEPS"),
              (Lines{"direction (int): 0 clockwise, 1 counter-clockwise, 2 the shortest way",
                     "  XML-RPC, another type: DE01759", "  list, another type: DE01762",
                     "speed (int): 1 to 100; 245 is the machine's own", "  XML-RPC, another type: DE01760",
                     "  list, another type: DE01763", "steps (int)", "  XML-RPC, another type: DE01761",
                     "  list, another type: DE01764"}));
    EXPECT_EQ(argumentsOf("TURNTABLE_MOVE_TO_REFILL"),
              (Lines{"position (int): a circuit's position", "  XML-RPC, another type: DE01914",
                     "  list, another type: DE01915"}));
    EXPECT_EQ(membersOf("GET_TURNTABLE_POSITIONS"),
              (Lines{"GetTurntablePositionsAnswer",
                     "turntable_circuits (array of structs): of each circuit position_id, steps_pos and "
                     "fin_size, in steps",
                     "  XML-RPC, missing or another type: DE01757",
                     "  XML-RPC, an element without a good position_id: DE01746",
                     "  XML-RPC, an element without a good steps_pos: DE01747",
                     "  XML-RPC, an element without a good fin_size: DE01748",
                     "  XML-RPC, an element that cannot be made: DE01756",
                     "  list, missing or another type: DE01758"}));
}

TEST(MovementFacts, tellTheCappingStation)
{
    EXPECT_EQ(
        argumentsOf("ZDR_CYCLE_OPERATION"),
        (Lines{"cycle_type (int) = 2", "  XML-RPC, another type: DE02879", "  list, another type: DE02879",
               "parameter_1 (int) = 0", "  XML-RPC, another type: DE02880", "  list, another type: DE02880",
               "parameter_2 (int) = 0", "  XML-RPC, another type: DE02881",
               "  list, another type: DE02881"}));
    EXPECT_EQ(
        argumentsOf("ZDR_ACTUATOR_MOVE"),
        (Lines{"actuator_type (int) = 1", "  XML-RPC, another type: DE02882", "  list, another type: DE02882",
               "operation (int) = 245: 245 for none", "  XML-RPC, another type: DE02883",
               "  list, another type: DE02883", "parameter_1 (int) = 0", "  XML-RPC, another type: DE02884",
               "  list, another type: DE02884", "parameter_2 (int) = 64", "  XML-RPC, another type: DE02885",
               "  list, another type: DE02885", "parameter_3 (int) = 245", "  XML-RPC, another type: DE02886",
               "  list, another type: DE02886", "value (int) = 0: not sent when 0 or below",
               "  XML-RPC, another type: DE02887", "  list, another type: DE02887"}));
    EXPECT_EQ(argumentsOf("ZDR_SLAVE_PROCEDURE"),
              (Lines{"procedure (int): 100 calibration of the gearmotor", "  XML-RPC, another type: DE02889",
                     "  list, another type: DE02889", "parameters (array of ints) = []: of the procedure",
                     "  XML-RPC, another type: DE02890", "  list, another type: DE02890"}));
    EXPECT_EQ(
        membersOf("ZDR_GET_COMMANDS"),
        (Lines{"GetZandorCommandsAnswer",
               "cmd_list (array of structs): of each command its code, and fields about it",
               "  XML-RPC, missing or another type: DE02895", "  list, missing or another type: DE02895"}));
}

} // namespace
