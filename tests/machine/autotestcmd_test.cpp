// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/autotestcmd.h"

#include "base/commandcontract.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_serial.h>
#include <QuvFramework/fw_shelf.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace testing_base;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

constexpr char badCycles[] = "AutotestCmd: invalid autotest cycles value";

TEST(AutotestCmd, keepsTheCommandContract)
{
    const ArgumentRefusal refusal = {"DE01865", "DE01866", badCycles};
    CommandFacts facts(formsOf<AutotestCmd>());
    facts.catalogue = {"AUTOTEST", 99, "", 0};
    facts.protoType = 1;
    facts.valueFunction = "AutotestCmd::AutotestCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "AutotestCmd::AutotestCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Integer, refusal).outOfRange({-1, 501, 2147483647}, refusal).takes({0, 1, 500})};
    facts.getters = {getter(&AutotestCmd::autotestCycles)};
    facts.words = Words("Autotest", "Running autotest");
    facts.defaults = Request().parameters({0}).written("[0]");
    facts.requests = {Request({7}).typed<AutotestCmd>(7).written("[7]"),
                      Request(List()).parameters({0}).written("[0]")};
    facts.typedRefusals = {{made<AutotestCmd>(-1), {"DE03302", badCycles}, "AutotestCmd::AutotestCmd(int)"},
                           {made<AutotestCmd>(501), {"DE03302", badCycles}, "AutotestCmd::AutotestCmd(int)"}};
    facts.answers = serialAnswers();
    expectCommandContract(facts);
}

TEST(AutotestCmd, doesNotMistakeOtherArgumentsForANumber)
{
    static_assert(!std::is_constructible_v<AutotestCmd, bool>);
    static_assert(!std::is_constructible_v<AutotestCmd, double>);
    static_assert(!std::is_constructible_v<AutotestCmd, const char *>);
    static_assert(!std::is_convertible_v<int, AutotestCmd>);
}

TEST(AutotestCmd, knowsHowManyCyclesAreUsual)
{
    EXPECT_EQ(AutotestCmd::defaultAutotestCycles(MachineModel(6)), 25);
    EXPECT_EQ(AutotestCmd::defaultAutotestCycles(MachineModel(10)), 10);
    EXPECT_EQ(AutotestCmd::defaultAutotestCycles(MachineModel(19)), 10);
    for (const int model : {-1, 0, 5, 7, 9, 11, 18, 20, 30, 100})
        EXPECT_EQ(AutotestCmd::defaultAutotestCycles(MachineModel(model)), 50) << model;
}

// ---------------------------------------------------------------- the series of a machine

/** A command as its name, its serial address and what it tells: the firmware's integers, or else its arguments. */
std::string lineOf(const SerialProtoCommand &command)
{
    std::string line = command.command().toStdString() + "@" + std::to_string(command.moduleID()) + " ";
    const QList<int> integers = command.serialParameters(1);
    if (integers.isEmpty())
        return line + dumped(command.xmlrpc_parameters());
    for (const int integer : integers)
        line += std::to_string(integer) + " ";
    line.pop_back();
    return line;
}

Lines linesOf(const AutotestCmd &command, const FW_Dispenser &machine)
{
    Lines lines;
    for (const auto &single : command.buildCommandList(machine))
        lines.push_back(lineOf(*single));
    return lines;
}

Lines operator+(Lines left, const Lines &right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

FW_Circuit circuitAt(int position, int stepsPerStroke, const FW_Calibration &calibration)
{
    FW_DosingMotor motor;
    motor.setMaxSpeed(80);
    motor.setStepsPerStroke(stepsPerStroke);
    FW_StirringMotor stirring;
    FW_Circuit circuit(10 * position, position);
    circuit.setDosingMotor(motor);
    circuit.setStirringMotor(stirring);
    circuit.setCalibration(calibration);
    return circuit;
}

void addCanister(FW_Dispenser &machine, int id, std::initializer_list<FW_Circuit> circuits)
{
    FW_Canister canister(id);
    for (const FW_Circuit &circuit : circuits)
        canister.addCircuit(circuit);
    machine.addCanister(canister);
}

const FW_Calibration steep({{100, 1, 20, 0}, {900, 10, 40, 0}, {8100, 100, 160, 0}});
const FW_Calibration flat({{50, 1, 30, 0}});

/** Circuit 1 has a valve, circuit 3 none. */
FW_Dispenser plainMachine()
{
    FW_Dispenser machine;
    FW_Circuit first = circuitAt(1, 1000, steep);
    FW_Valve valve(1);
    valve.setValveType(6);
    first.setValves({valve});
    addCanister(machine, 1, {circuitAt(3, 500, flat)});
    addCanister(machine, 2, {first});
    return machine;
}

const Lines valves = {"SET_DISP_OUTPUT@1 1 2 0", "PAUSE@0 [500]", "SET_DISP_OUTPUT@1 1 1 0", "PAUSE@0 [500]"};
const Lines processes = {"PAUSE@0 [30000]",
                         R"(STIR_ALL@0 [[{"duration": 30, "item": 0}], 0, true, 500])",
                         "RECIRCULATION@1 20 60 0 0 1",
                         "RECIRCULATION@1 100 30 0 0 1", // which runs no faster
                         "RECIRCULATION@3 30 60 0 0 1",
                         "RECIRCULATION@3 30 30 0 0 1"};
const Lines cap = {"SET_DISP_OUTPUT@0 12 2 4", "PAUSE@0 [1000]",   "SET_DISP_OUTPUT@0 12 2 5",
                   "PAUSE@0 [1000]",           "AUTOCAP_MOVE@0 1", "AUTOCAP_MOVE@0 0"};
const Lines shelf = {"SHELF_MOVE@0 0 0 0", "PAUSE@0 [1000]", "SHELF_MOVE@0 1 0 0", "PAUSE@0 [1000]"};
// 3000, 1000, 1500 and 500 steps
const Lines pours = {
    "PACK@0 3 2 1 0 50 1 1 3 0 50 1 1", "TINT@0 0 1 1 0 20 2 48 12",
    "TINT@0 0 1 1 0 160 2 16 4",        "TINT@0 0 1 3 0 30 2 24 6",
    "TINT@0 0 1 3 0 30 2 8 2",          R"(STIR_ALL@0 [[{"duration": 2, "item": 0}], 0, true, 500])"};
const Lines reset = {"RESET@0 [0]"};

TEST(AutotestSeries, ofMostMachines)
{
    EXPECT_THAT(linesOf(AutotestCmd(1), plainMachine()),
                ElementsAreArray(valves + processes + pours + reset));
    EXPECT_THAT(linesOf(AutotestCmd(3), plainMachine()),
                ElementsAreArray(valves + processes + pours + valves + processes + pours + valves +
                                 processes + pours + reset));
}

TEST(AutotestSeries, movesCapAndShelfWhereThereAre)
{
    FW_Dispenser machine = plainMachine();
    machine.setDevice(FW_Shelf());
    EXPECT_THAT(linesOf(AutotestCmd(1), machine),
                ElementsAreArray(valves + processes + shelf + pours + reset));
    machine.setDevice(FW_Autocap());
    EXPECT_THAT(linesOf(AutotestCmd(2), machine),
                ElementsAreArray(valves + processes + cap + shelf + pours + valves + processes + cap + shelf +
                                 pours + reset));
    machine.getDevice(FW_Device::Shelf)->setEnabled(false);
    EXPECT_THAT(linesOf(AutotestCmd(1), machine), ElementsAreArray(valves + processes + cap + pours + reset));
}

TEST(AutotestSeries, runsAsOftenAsIsUsualForTheModel)
{
    const auto cycles = [](int model) {
        FW_Dispenser machine = plainMachine();
        machine.setModel(MachineModel(model));
        const Lines lines = linesOf(AutotestCmd(), machine);
        return std::count(lines.begin(), lines.end(), "PAUSE@0 [30000]");
    };
    EXPECT_EQ(cycles(19), 10);
    EXPECT_EQ(cycles(20), 50);
}

TEST(AutotestSeries, isNoneWithoutADosingMotor)
{
    EXPECT_THAT(linesOf(AutotestCmd(1), FW_Dispenser()), IsEmpty());
    for (const int model : {6, 10, 20}) {
        FW_Dispenser machine = plainMachine();
        machine.setModel(MachineModel(model));
        EXPECT_FALSE(linesOf(AutotestCmd(1), machine).empty());
        machine.getCircuitByPosition(1)->removeDosingMotor();
        machine.getCircuitByPosition(3)->setEnabled(false);
        EXPECT_THAT(linesOf(AutotestCmd(1), machine), IsEmpty()) << model;
        machine.getCircuitByPosition(3)->setEnabled(true);
        machine.getCanisterById(1)->setEnabled(false);
        EXPECT_THAT(linesOf(AutotestCmd(1), machine), IsEmpty()) << model;
    }
}

TEST(AutotestSeries, leavesOutValvesOfOtherTypes)
{
    FW_Dispenser machine = plainMachine();
    for (const int type : {-1, 7}) {
        FW_Valve valve(1);
        valve.setValveType(type);
        machine.getCircuitByPosition(1)->setValves({valve});
        EXPECT_THAT(linesOf(AutotestCmd(1), machine), ElementsAreArray(processes + pours + reset)) << type;
    }
}

TEST(AutotestSeries, takesTheMotorsSpeedWithoutACalibration)
{
    FW_Dispenser machine;
    addCanister(machine, 1,
                {circuitAt(3, 500, FW_Calibration()), circuitAt(4, 0, flat)}); // 4 knows no strokes
    EXPECT_THAT(linesOf(AutotestCmd(1), machine),
                ElementsAreArray(Lines{
                    "PAUSE@0 [30000]", R"(STIR_ALL@0 [[{"duration": 30, "item": 0}], 0, true, 500])",
                    "RECIRCULATION@3 50 60 0 0 1", "RECIRCULATION@3 50 30 0 0 1",
                    "RECIRCULATION@4 30 60 0 0 1", "RECIRCULATION@4 30 30 0 0 1",
                    "PACK@0 3 2 3 0 50 1 1 4 0 50 1 1", "TINT@0 0 1 3 0 80 2 24 6", "TINT@0 0 1 3 0 80 2 8 2",
                    R"(STIR_ALL@0 [[{"duration": 2, "item": 0}], 0, true, 500])", "RESET@0 [0]"}));
    FW_DosingMotor still;
    still.setStepsPerStroke(500);
    still.setMaxSpeed(0);
    machine.getCircuitByPosition(3)->setDosingMotor(still);
    expectRefusal("DE00529", "Formula stopped because of errors in speed calculus due to bad calibration",
                  "TintCmd::TintCmd(const Formula&, const FW_Dispenser*)",
                  [&] { AutotestCmd(1).buildCommandList(machine); });
}

TEST(AutotestSeries, namesANozzleValveWhereAPourHasTo)
{
    FW_Dispenser machine;
    FW_Circuit circuit = circuitAt(3, 500, flat);
    circuit.setNozzleValvesID({7, 8});
    addCanister(machine, 1, {circuit});
    machine.setNozzleBasedDosing(true);
    int tints = 0;
    for (const int model : {6, 10, 20}) {
        machine.setModel(MachineModel(model));
        for (const auto &command : AutotestCmd(1).buildCommandList(machine)) {
            if (command->command() != "TINT")
                continue;
            ++tints;
            EXPECT_EQ(dumped(command->xmlrpc_parameters()[0]["nozzle_valves"]), "[7]") << model;
        }
    }
    EXPECT_EQ(tints, 4);
}

// ---------------------------------------------------------------- machines whose table turns

/** Canister 7 has position 1, canister 2 positions 4 and 2. */
FW_Dispenser rotatingMachine(int model)
{
    FW_Dispenser machine;
    machine.setModel(MachineModel(model));
    addCanister(machine, 7, {circuitAt(1, 1000, steep)});
    addCanister(machine, 2, {circuitAt(4, 500, flat), circuitAt(2, 1000, steep)});
    return machine;
}

/** What a tint pours of one circuit. */
struct Pour
{
    int position = 0;
    int speed = 0;
    long long steps = 0;
};

/** The pours in the firmware's integers of a TINT. */
std::vector<Pour> poursOf(const QList<int> &integers)
{
    std::vector<Pour> found;
    EXPECT_EQ(integers.value(0), 0);
    int index = 2;
    for (int i = 0; i < integers.value(1); ++i) {
        const int digits = integers.value(index + 3);
        found.push_back({integers.value(index), integers.value(index + 2),
                         joinValues(integers.mid(index + 4, digits), 246)});
        EXPECT_EQ(integers.value(index + 1), 0);
        index += 4 + digits;
    }
    EXPECT_EQ(index, integers.size());
    return found;
}

/** The lines of a series, with "TINT" alone for a pour, and the pours. */
struct Series
{
    Series(const AutotestCmd &command, const FW_Dispenser &machine)
    {
        for (const auto &single : command.buildCommandList(machine)) {
            const bool isPour = single->command() == "TINT";
            lines.push_back(isPour ? "TINT" : lineOf(*single));
            if (isPour)
                pours.push_back(poursOf(single->serialParameters(1)));
        }
    }

    Lines lines;
    std::vector<std::vector<Pour>> pours;
};

/** How many circuits are poured at once, and all of their pours; each circuit once in a pour. */
std::vector<Pour> allPours(const Series &series, std::set<std::size_t> &counts)
{
    std::vector<Pour> all;
    for (const std::vector<Pour> &pour : series.pours) {
        counts.insert(pour.size());
        std::set<int> positions;
        for (const Pour &item : pour) {
            positions.insert(item.position);
            all.push_back(item);
        }
        EXPECT_EQ(positions.size(), pour.size());
    }
    return all;
}

const Lines turns = {"TURNTABLE_MOVE@2 1 2 0 0", "TURNTABLE_MOVE@4 1 2 0 0", "TURNTABLE_MOVE@4 1 2 0 0",
                     "TURNTABLE_MOVE@1 1 2 0 0", "TURNTABLE_MOVE@1 1 2 0 0", "TURNTABLE_MOVE@2 1 2 0 0",
                     "TURNTABLE_MOVE@2 1 2 0 0", "TURNTABLE_MOVE@4 1 2 0 0", "TURNTABLE_MOVE@4 1 2 0 0",
                     "TURNTABLE_MOVE@1 1 2 0 0"};
const Lines rest = {"TURNTABLE_MOVE@244 1 2 0 0"};

TEST(AutotestSeries, ofALirador)
{
    const Lines expected = reset + turns + Lines(3, "TINT") + turns + rest;
    EXPECT_THAT(Series(AutotestCmd(3), rotatingMachine(10)).lines, ElementsAreArray(expected));
    FW_Dispenser named = rotatingMachine(0);
    named.setModelName("LIRADOR TR");
    EXPECT_THAT(Series(AutotestCmd(3), named).lines, ElementsAreArray(expected));
    EXPECT_EQ(Series(AutotestCmd(), rotatingMachine(10)).pours.size(), 10U);
}

TEST(AutotestSeries, ofALiradorWithOneCircuitDoesNotTurn)
{
    FW_Dispenser machine = rotatingMachine(10);
    machine.getCircuitByPosition(1)->setEnabled(false);
    EXPECT_EQ(Series(AutotestCmd(1), machine).lines.size(), 23U) << "of two circuits it does";
    machine.getCircuitByPosition(4)->setEnabled(false);
    EXPECT_THAT(Series(AutotestCmd(1), machine).lines, ElementsAreArray(reset + Lines{"TINT"} + rest));
}

TEST(AutotestSeries, ofALiradorPoursWhatItsCalibrationsWereMeasuredWith)
{
    std::set<std::size_t> counts;
    std::set<int> speeds;
    const Series series(AutotestCmd(500), rotatingMachine(10));
    ASSERT_EQ(series.pours.size(), 500U);
    for (const Pour &pour : allPours(series, counts)) {
        if (pour.position == 4) {
            EXPECT_EQ(pour.steps, 50);
            EXPECT_EQ(pour.speed, 30);
            continue;
        }
        EXPECT_TRUE(pour.position == 1 || pour.position == 2) << pour.position;
        EXPECT_GE(pour.steps, 100);
        EXPECT_LE(pour.steps, 8100);
        const int speed =
            pour.steps > 900 ? 80 : 40; // 80 is the motor's, and quantities are rounded to steps
        EXPECT_TRUE(pour.speed == speed || (pour.steps == 100 && pour.speed == 20) ||
                    (pour.steps == 900 && pour.speed == 80))
            << pour.speed << " for " << pour.steps;
        speeds.insert(pour.speed);
    }
    EXPECT_EQ(counts, (std::set<std::size_t>{1, 2, 3}));
    EXPECT_TRUE(speeds.count(80) == 1 && speeds.count(40) == 1);
}

TEST(AutotestSeries, ofALiradorLeavesOutCircuitsWithoutCalibration)
{
    FW_Dispenser machine = rotatingMachine(10);
    for (const int position : {1, 2})
        machine.getCircuitByPosition(position)->setCalibration(FW_Calibration());
    const Series series(AutotestCmd(20), machine);
    ASSERT_EQ(series.pours.size(), 20U);
    for (const std::vector<Pour> &pour : series.pours) {
        ASSERT_EQ(pour.size(), 1U);
        EXPECT_EQ(pour.front().position, 4);
    }
    machine.getCircuitByPosition(4)->setCalibration(FW_Calibration());
    EXPECT_THAT(Series(AutotestCmd(20), machine).lines, ElementsAreArray(reset + turns + turns + rest));
}

TEST(AutotestSeries, ofALiradorLeavesOutWhatItsCalibrationTellsNoSpeedFor)
{
    FW_Dispenser machine = rotatingMachine(10);
    for (const int position : {1, 2})
        machine.getCircuitByPosition(position)->setCalibration(
            FW_Calibration({{100, 1, 0, 0}, {8100, 100, 0, 0}}));
    for (const std::vector<Pour> &pour : Series(AutotestCmd(100), machine).pours) {
        ASSERT_EQ(pour.size(), 1U);
        EXPECT_EQ(pour.front().position, 4);
        EXPECT_EQ(pour.front().speed, 30);
    }
    machine.getCircuitByPosition(4)->setCalibration(FW_Calibration({{50, 1, 0, 0}}));
    EXPECT_THAT(Series(AutotestCmd(20), machine).lines, ElementsAreArray(reset + turns + turns + rest));
}

TEST(AutotestSeries, ofALiradorDoesNotTurnToDisabledCanisters)
{
    FW_Dispenser machine = rotatingMachine(10);
    machine.getCanisterById(7)->setEnabled(false);
    const Lines there = {"TURNTABLE_MOVE@2 1 2 0 0", "TURNTABLE_MOVE@4 1 2 0 0"};
    const Lines back = {"TURNTABLE_MOVE@4 1 2 0 0", "TURNTABLE_MOVE@2 1 2 0 0"};
    const Lines fiveTurns = there + back + there + back + there;
    EXPECT_THAT(Series(AutotestCmd(1), machine).lines,
                ElementsAreArray(reset + fiveTurns + Lines{"TINT"} + fiveTurns + rest));
}

TEST(AutotestSeries, ofARotan)
{
    const Lines cycle = {"TINT", "CLEANING@0 245 4 0 1 1",
                         R"(STIR_ALL@0 [[{"duration": 4, "item": 1}, {"duration": 4, "item": 2}, )"
                         R"({"duration": 4, "item": 4}], 0, true, 500])"};
    EXPECT_THAT(Series(AutotestCmd(2), rotatingMachine(6)).lines, ElementsAreArray(reset + cycle + cycle));
    FW_Dispenser named = rotatingMachine(0);
    named.setModelName("Rotan V1");
    EXPECT_THAT(Series(AutotestCmd(2), named).lines, ElementsAreArray(reset + cycle + cycle));
    EXPECT_EQ(Series(AutotestCmd(), rotatingMachine(6)).pours.size(), 25U);
}

TEST(AutotestSeries, ofARotanPoursAStrokeAtSpeedsOfItsCalibrations)
{
    std::set<std::size_t> counts;
    std::set<int> speeds;
    const Series series(AutotestCmd(500), rotatingMachine(6));
    ASSERT_EQ(series.pours.size(), 500U);
    for (const Pour &pour : allPours(series, counts)) {
        if (pour.position == 4) {
            EXPECT_EQ(pour.steps, 500);
            EXPECT_EQ(pour.speed, 30);
            continue;
        }
        EXPECT_TRUE(pour.position == 1 || pour.position == 2) << pour.position;
        EXPECT_EQ(pour.steps, 1000);
        EXPECT_GE(pour.speed, 20);
        EXPECT_LE(pour.speed, 160);
        speeds.insert(pour.speed);
    }
    EXPECT_EQ(counts, (std::set<std::size_t>{1, 2, 3}));
    EXPECT_GT(speeds.size(), 30U);
}

TEST(AutotestSeries, ofARotanTakesNoSpeedOfAPointThatHasNone)
{
    FW_Dispenser machine = rotatingMachine(6);
    for (const int position : {1, 2, 4})
        machine.getCircuitByPosition(position)->setCalibration(
            FW_Calibration({{100, 1, 0, 0}, {900, 10, 40, 0}}));
    std::set<std::size_t> counts;
    for (const Pour &pour : allPours(Series(AutotestCmd(50), machine), counts))
        EXPECT_EQ(pour.speed, 40);
}

TEST(AutotestSeries, ofARotanLeavesOutWhatItHasNot)
{
    FW_Dispenser machine = rotatingMachine(6);
    for (const int position : {1, 2, 4}) {
        machine.getCircuitByPosition(position)->removeStirringMotors();
        FW_DosingMotor motor = machine.getCircuitByPosition(position)->dosingMotor();
        motor.setStepsPerStroke(position == 4 ? 500 : 0);
        machine.getCircuitByPosition(position)->setDosingMotor(motor);
    }
    const Series series(AutotestCmd(5), machine);
    EXPECT_EQ(series.lines.size(), 11U);
    for (const std::vector<Pour> &pour : series.pours) {
        ASSERT_EQ(pour.size(), 1U);
        EXPECT_EQ(pour.front().position, 4);
    }
    FW_DosingMotor motor;
    machine.getCircuitByPosition(4)->setDosingMotor(motor);
    EXPECT_THAT(Series(AutotestCmd(2), machine).lines,
                ElementsAreArray(reset + Lines{"CLEANING@0 245 4 0 1 1", "CLEANING@0 245 4 0 1 1"}));
}

} // namespace
