// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/factlines.h"

// What the commands of this family tell of themselves to those who explain them.

namespace {

using namespace testing_base;

TEST(DispensingFacts, tellWhatIsPoured)
{
    EXPECT_EQ(argumentsOf("TINT"), (Lines{"formula (formula)", "  XML-RPC, another type: DE00437",
                                          "  list, another type: DE00439", "  list, unreadable: DE00775"}));
    EXPECT_EQ(argumentsOf("CHANNEL_TINT"),
              (Lines{"channel (int): 1 or 2", "  XML-RPC, another type: DE01424",
                     "  list, another type: DE01426", "formula (formula)", "  XML-RPC, another type: DE01425",
                     "  list, another type: DE01428", "  list, unreadable: DE01427"}));
    EXPECT_EQ(
        argumentsOf("PURGE"),
        (Lines{"formula (formula): or a purge formula", "  XML-RPC, missing: DE01255",
               "  list, another type: DE01256", "  XML-RPC, an unreadable formula: DE01196",
               "  list, an unreadable formula: DE01204", "  XML-RPC, an unreadable purge formula: DE01238",
               "  list, an unreadable purge formula: DE01237"}));
}

TEST(DispensingFacts, tellWhatMovesPumps)
{
    EXPECT_EQ(argumentsOf("PRIMING"),
              (Lines{"formula (formula): in strokes", "  XML-RPC, another type: DE00497",
                     "  list, another type: DE00494", "  list, unreadable: DE00493"}));
    EXPECT_EQ(argumentsOf("PACK"),
              (Lines{"movement_type (int): 0 pack, 1 unpack", "  XML-RPC, another type: DE00988",
                     "  list, another type: DE00863", "  XML-RPC, out of range: DE00987",
                     "  list, out of range: DE00992", "formula (formula): quantities are not sent",
                     "  XML-RPC, another type: DE00989", "  list, another type: DE00994",
                     "  list, unreadable: DE00993"}));
    EXPECT_EQ(
        argumentsOf("PRIMING2"),
        (Lines{"circuits (circuit list)", "  list, another type: DE02165", "  XML-RPC, another type: DE02318",
               "  XML-RPC, without exec_criterion: DE02319", "  XML-RPC, with a bad circuit: DE02317"}));
    for (const char *command : {"PACK2", "AIRPURGE"})
        EXPECT_EQ(argumentsOf(command),
                  (Lines{"circuits (circuit list)", "  list, another type: DE02324",
                         "  XML-RPC, another type: DE02318", "  XML-RPC, without exec_criterion: DE02319",
                         "  XML-RPC, with a bad circuit: DE02317"}));
}

TEST(DispensingFacts, tellWhatIsAskedAboutFormulas)
{
    EXPECT_EQ(
        argumentsOf("SET_LEVELS"),
        (Lines{"delta (bool): true: the quantities are changes; false: they are new levels",
               "  XML-RPC, another type: DE00435", "  list, another type: DE01322", "formula (formula)",
               "  XML-RPC, another type: DE00436", "  list, another type: DE01323",
               "  list, unreadable: DE01323",
               "refill (bool) = true: whether somebody refilled; always sent as true, and never read"}));
    EXPECT_EQ(argumentsOf("CHECK_FORMULA_LEVELS"),
              (Lines{"formula (formula): or a purge formula", "  XML-RPC, unreadable: DE00438",
                     "is_purge (bool): whether the formula is a purge; a purge formula stands alone"}));
    EXPECT_EQ(
        argumentsOf("GET_FORMULA_CIRCUITS"),
        (Lines{"formula (formula): or a purge formula", "  XML-RPC, missing: DE01254",
               "  XML-RPC, an unreadable formula: DE00235", "  XML-RPC, an unreadable purge formula: DE01253",
               "is_purge (bool) = false: whether the formula is a purge"}));
    for (const char *command : {"GET_LOW_LEVEL_FORMULA", "GET_FORMULA_EXECUTION"})
        EXPECT_EQ(argumentsOf(command), (Lines{"formula (formula)", "  XML-RPC, another type: DE00898"}));
    EXPECT_EQ(argumentsOf("GET_DISPENSED_FORMULA"),
              (Lines{"formula_type (int) = 1: 1 circuit positions, 2 circuits, 3 canisters, 4 colorants",
                     "  XML-RPC, another type: DE01911", "  list, another type: DE01912",
                     "quantity_unit (int) = 0: 0 the machine's own, 1 steps, 2 strokes, 3 weight or volume",
                     "  XML-RPC, another type: DE01721", "  list, another type: DE01722"}));
}

TEST(DispensingFacts, tellTheAnswers)
{
    EXPECT_EQ(
        membersOf("CHECK_FORMULA_LEVELS"),
        (Lines{"CheckFormulaLevelsAnswer", "canisters_below_critical (array of ints): canister IDs",
               "  XML-RPC, missing or another type: DE00460",
               "  XML-RPC, an element of another type: DE00459", "  list, missing or another type: DE00456",
               "canisters_below_warning (array of ints): canister IDs",
               "  XML-RPC, missing or another type: DE00462",
               "  XML-RPC, an element of another type: DE00461", "  list, missing or another type: DE00457",
               "  XML-RPC, : DE01274", "  list, : DE00464", "  envelope, : DE00463"}));
    EXPECT_EQ(
        membersOf("GET_FORMULA_CIRCUITS"),
        (Lines{"GetFormulaCircuitsAnswer", "circuits (array of ints): circuit IDs",
               "  XML-RPC, missing or another type: DE00717",
               "  XML-RPC, an element of another type: DE00716", "  list, missing or another type: DE00713",
               "positions (array of ints): the position of each circuit",
               "  XML-RPC, missing or another type: DE00719",
               "  XML-RPC, an element of another type: DE00718", "  list, missing or another type: DE00714",
               "quantities (array of doubles): what each circuit pours, in the formula's own unit",
               "  XML-RPC, missing or another type: DE01234",
               "  XML-RPC, an element of another type: DE01233", "  list, missing or another type: DE01232",
               "  XML-RPC, : DE01276", "  list, : DE00210", "  envelope, : DE00211"}));
    EXPECT_EQ(
        membersOf("GET_LOW_LEVEL_FORMULA"),
        (Lines{"GetLowLevelFormulaAnswer", "low_level_formula (formula): in the machine's own terms",
               "  XML-RPC, missing or another type: DE00904", "  list, missing or another type: DE00902",
               "  XML-RPC, : DE01278", "  list, : DE00901", "  envelope, : DE00899"}));
    EXPECT_EQ(
        membersOf("GET_FORMULA_EXECUTION"),
        (Lines{"GetFormulaExecutionAnswer", "frm_progress (formula progress): how far each channel is",
               "  XML-RPC, missing or another type: DE02936", "  list, missing or another type: DE02935",
               "  XML-RPC, : DE01278", "  list, : DE00901", "  envelope, : DE00899"}));
    // the firmware's answer is made of tokens only
    EXPECT_EQ(membersOf("GET_DISPENSED_FORMULA"),
              (Lines{"GetDispensedFormulaAnswer", "dispensed_formula (formula): what has left the nozzles",
                     "remaining_formula (formula): what has not; a firmware does not tell it",
                     "total_formula (formula): the whole", "  tokens, : DE01726"}));
}

} // namespace
