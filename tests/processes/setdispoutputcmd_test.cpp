// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/setdispoutputcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"

#include <limits>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace testing_base;
using Action = SetDispOutputCmd::DispOutputAction;

constexpr char ofValue[] = "SetDispOutputCmd::SetDispOutputCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "SetDispOutputCmd::SetDispOutputCmd(QList<QVariant>)";

// ---------------------------------------------------------------- what a command is called

struct WordsRow
{
    int type;
    int status;
    std::vector<int> modes;
    const char *command;
    const char *action;
};

const std::vector<int> everyMode = {0, 1, 2, 3, 4, 5, 6, 7};

const WordsRow wordsRows[] = {
    {1, 2, everyMode, "Electrovalve open", "Opening electrovalve"},
    {1, 1, everyMode, "Electrovalve close", "Closing electrovalve"},
    {2, 2, everyMode, "Turn Bung Hole Locator ON", "Turning Bung Hole Locator ON"},
    {2, 1, everyMode, "Turn Bung Hole Locator OFF", "Turning Bung Hole Locator OFF"},
    {3, 2, everyMode, "Turn LIT ON", "Turning Nozzle Light ON"},
    {3, 1, everyMode, "Turn LIT OFF", "Turning Nozzle Light OFF"},
    {4, 2, everyMode, "Turntable brake ON", "Turning turntable brake ON"},
    {4, 1, everyMode, "Turntable brake OFF", "Turning turntable brake OFF"},
    {5, 2, everyMode, "Turntable brush ON", "Turning turntable brush ON"},
    {5, 1, everyMode, "Turntable brush OFF", "Turning turntable brush OFF"},
    {6, 2, everyMode, "Heater ON", "Turning heater ON"},
    {6, 1, everyMode, "Heater OFF", "Turning heater OFF"},
    {7, 2, {4}, "Nozzle valve open", "Opening nozzle valve"},
    {7, 2, {5}, "Nozzle valve close", "Closing nozzle valve"},
    {7, 2, {0, 1, 2, 3, 6, 7}, "", nullptr},
    {7, 1, everyMode, "", nullptr},
    {8, 2, everyMode, "Bluetooth ON", "Turning VELTO Connect ON"},
    {8, 1, everyMode, "Bluetooth OFF", "Turning VELTO Connect OFF"},
    {9, 2, everyMode, "Humidifier pump ON", "Turning humidifier pump ON"},
    {9, 1, everyMode, "Humidifier pump OFF", "Turning humidifier pump OFF"},
    {10, 2, everyMode, "Humidifier resistance ON", "Turning humidifier resistance ON"},
    {10, 1, everyMode, "Humidifier resistance OFF", "Turning humidifier resistance OFF"},
    {11, 2, everyMode, "Rollbar lock", "Locking rollbar"},
    {11, 1, everyMode, "Rollbar unlock", "Unlocking rollbar"},
    {12, 2, {4}, "Cap open", "Opening cap"},
    {12, 2, {5}, "Cap close", "Closing cap"},
    {12, 2, {6}, "Cap to home position", "Moving cap to home position"},
    {12, 2, {0, 1, 2, 3, 7}, "", nullptr},
    {12, 1, everyMode, "", nullptr},
    {13, 2, everyMode, "Turntable brush 2 ON", "Turning turntable brush 2 ON"},
    {13, 1, everyMode, "Turntable brush 2 OFF", "Turning turntable brush 2 OFF"},
    {14, 2, everyMode, "", nullptr},
    {14, 1, everyMode, "", nullptr},
    {15, 2, everyMode, "Main door open", "Opening main door"},
    {15, 1, everyMode, "Main door close", "Closing main door"},
    {16, 2, everyMode, "", nullptr},
    {16, 1, everyMode, "", nullptr},
    {17, 2, everyMode, "Main stirring motor on", "Turning main stirring motor ON"},
    {17, 1, everyMode, "Main stirring motor off", "Turning main stirring motor OFF"},
    {18, 2, everyMode, "Secondary stirring motor on", "Turning secondary stirring motor ON"},
    {18, 1, everyMode, "Secondary stirring motor off", "Turning secondary stirring motor OFF"},
    {1, 0, everyMode, "", nullptr},
    {18, 0, everyMode, "", nullptr},
    {0, 2, everyMode, "", nullptr},
    {19, 2, everyMode, "", nullptr},
};

TEST(SetDispOutputCmd, isCalledByTypeStatusAndMode)
{
    for (const WordsRow &row : wordsRows)
        for (const int mode : row.modes) {
            SCOPED_TRACE(std::to_string(row.type) + ", " + std::to_string(row.status) + ", " +
                         std::to_string(mode));
            const SetDispOutputCmd command(3, row.type, row.status, mode);
            EXPECT_EQ(command.commandString(), row.command);
            for (const bool detailed : {false, true}) {
                const TString action = command.actionString(detailed);
                EXPECT_EQ(action.m_text, row.action ? row.action : "In progress");
                EXPECT_STREQ(action.m_context, row.action ? "QuvProtocol" : "");
            }
        }
}

// ---------------------------------------------------------------- the contract

CommandFacts facts()
{
    constexpr char noNumber[] = "SetDispOutputCmd: expected INT parameter";
    CommandFacts facts(formsOf<SetDispOutputCmd>());
    facts.catalogue = {"SET_DISP_OUTPUT", 29, "0013", 2};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    // the position may be left out, and then there are no more than two
    facts.arguments = {
        required(Integer, {"DE03160", "DE03164", noNumber}).takes({-1, 0, 300}),
        required(Integer, {"DE03160", "DE03164", noNumber})
            .outOfRange({-1, 0, 19}, {"DE03161", "DE03165", "SetDispOutputCmd: invalid output type"})
            .takes({1, 18}),
        optional(Integer, {"DE03160", "DE03164", noNumber})
            .outOfRange({-1, 3}, {"DE03162", "DE03166", "SetDispOutputCmd: invalid output status"})
            .takes({0, 2}),
        optional(Integer, {"DE03160", "DE03164", noNumber})
            .outOfRange({-1, 8}, {"DE03163", "DE03167", "SetDispOutputCmd: invalid output mode"})
            .takes({0, 7}),
    };
    facts.getters = {getter(&SetDispOutputCmd::moduleID), getter(&SetDispOutputCmd::outputType),
                     getter(&SetDispOutputCmd::outputStatus), getter(&SetDispOutputCmd::outputMode)};
    facts.defaults =
        Request().parameters({0, 0, -1, 0}).written("[0, 0, -1, 0]").sends({0, -1, 0}).notReadBack();
    facts.requests = {
        Request({7, 12, 2, 6})
            .typed<SetDispOutputCmd>(7, 12, 2, 6)
            .written("[7, 12, 2, 6]")
            .sends({12, 2, 6})
            .module(7)
            .says({"Cap to home position", "Moving cap to home position"}),
        Request({3, 1, 2})
            .parameters({3, 1, 2, 0})
            .typed<SetDispOutputCmd>(3, 1, 2)
            .written("[3, 1, 2, 0]")
            .sends({1, 2, 0})
            .module(3)
            .says({"Electrovalve open", "Opening electrovalve"}),
        Request({6, 1})
            .parameters({0, 6, 1, 0})
            .typed<SetDispOutputCmd>(6, 1)
            .written("[0, 6, 1, 0]")
            .sends({6, 1, 0})
            .says({"Heater OFF", "Turning heater OFF"}),
        Request({2, 16, 2, 0})
            .typed<SetDispOutputCmd>(Action(33), 2)
            .written("[2, 16, 2, 0]")
            .sends({16, 2, 0})
            .module(2),
        Request({0, 19, 3, -1}) // believed in the typed form alone
            .onlyTyped()
            .typed<SetDispOutputCmd>(0, 19, 3, -1)
            .written("[0, 19, 3, -1]")
            .sends({19, 3, -1})
            .notReadBack(),
    };
    const std::string ofAction = "SetDispOutputCmd::SetDispOutputCmd(DispOutputAction, int)";
    for (const int unknown : {-1, 40, 245})
        facts.typedRefusals.push_back({made<SetDispOutputCmd>(Action(unknown), 1),
                                       {"DE03168", "SetDispOutputCmd: unknown action"},
                                       ofAction});
    facts.answers = serialAnswers();
    return facts;
}

TEST(SetDispOutputCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(SetDispOutputCmd, refusesTwoArgumentsAsItRefusesMore)
{
    constexpr char noNumber[] = "SetDispOutputCmd: expected INT parameter";
    expectRefusal("DE03161", "SetDispOutputCmd: invalid output type", ofValue,
                  [] { const SetDispOutputCmd command(arrayOf(19, 2)); });
    expectRefusal("DE03160", noNumber, ofValue, [] { const SetDispOutputCmd command(arrayOf(1, true)); });
    expectRefusal("DE03166", "SetDispOutputCmd: invalid output status", ofList, [] {
        const SetDispOutputCmd command(List{1, 3});
    });
    expectRefusal("DE03164", noNumber, ofList, [] { const SetDispOutputCmd command(List{"1", 2}); });
}

TEST(SetDispOutputCmd, tellsThatThePositionMayBeLeftOut)
{
    Lines arguments;
    for (const std::string &line : argumentsOf("SET_DISP_OUTPUT"))
        if (line.front() != ' ') // refusals stand further in
            arguments.push_back(line);
    EXPECT_EQ(arguments,
              (Lines{"position (int) = 0: a circuit's position; may be left out before the two that follow",
                     "output_type (int): 1 to 18", "output_status (int): 2 on or open, 1 off or close",
                     "output_mode (int) = 0: 0 to 7"}));
}

TEST(SetDispOutputCmd, knowsTypesStatusesAndModes)
{
    struct Row
    {
        bool (*check)(int);
        int first;
        int last;
    };
    for (const Row &row :
         {Row{&SetDispOutputCmd::checkOutputType, 1, 18}, Row{&SetDispOutputCmd::checkOutputStatus, 0, 2},
          Row{&SetDispOutputCmd::checkOutputMode, 0, 7}}) {
        for (int number = row.first; number <= row.last; ++number)
            EXPECT_TRUE(row.check(number)) << number;
        for (const int number :
             {row.first - 1, row.last + 1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
            EXPECT_FALSE(row.check(number)) << number;
    }
}

TEST(SetDispOutputCmd, doesNotMistakeOneArgumentForAnOutput)
{
    static_assert(!std::is_constructible_v<SetDispOutputCmd, int>);
    static_assert(!std::is_constructible_v<SetDispOutputCmd, bool>);
    static_assert(!std::is_constructible_v<SetDispOutputCmd, double>);
    static_assert(!std::is_constructible_v<SetDispOutputCmd, const char *>);
}

// ---------------------------------------------------------------- actions

/** An action, and the first revision of each family that has it; the family 0 stands for all firmware. */
struct ActionRow
{
    Action named;
    int number;
    int type;
    int status;
    int mode;
    std::vector<FW_Version> since;
};

std::vector<ActionRow> actionRows()
{
    using Cmd = SetDispOutputCmd;
    const std::vector<FW_Version> always = {FW_Version(0, 0)};
    const std::vector<FW_Version> never;
    const std::vector<FW_Version> bluetooth = {FW_Version(63, 33), FW_Version(68, 2)};
    const auto since = [](int family, int revision) {
        return std::vector<FW_Version>{FW_Version(family, revision)};
    };
    return {
        {Cmd::OpenElectrovalve, 0, 1, 2, 0, always},
        {Cmd::CloseElectrovalve, 1, 1, 1, 0, always},
        {Cmd::BungHoleLocatorOn, 2, 2, 2, 0, always},
        {Cmd::BungHoleLocatorOff, 3, 2, 1, 0, always},
        {Cmd::NozzleLightOn, 4, 3, 2, 0, always},
        {Cmd::NozzleLightOff, 5, 3, 1, 0, always},
        {Cmd::TurntableBrakeOn, 6, 4, 2, 0, always},
        {Cmd::TurntableBrakeOff, 7, 4, 1, 0, always},
        {Cmd::TurntableBrushOff, 8, 5, 1, 0, always},
        {Cmd::TurntableBrushOnMode4, 9, 5, 2, 4, always},
        {Cmd::TurntableBrushOnMode5, 10, 5, 2, 5, always},
        {Cmd::HeaterOn, 11, 6, 2, 0, always},
        {Cmd::HeaterOff, 12, 6, 1, 0, always},
        {Cmd::Output7On, 13, 7, 2, 0, since(68, 2)},
        {Cmd::Output7Off, 14, 7, 1, 0, since(68, 2)},
        {Cmd::BluetoothOn, 15, 8, 2, 0, bluetooth},
        {Cmd::BluetoothOff, 16, 8, 1, 0, bluetooth},
        {Cmd::HumidifierPumpOn, 17, 9, 2, 0, since(63, 34)},
        {Cmd::HumidifierPumpOff, 18, 9, 1, 0, never},
        {Cmd::HumidifierResistanceOn, 19, 10, 2, 0, since(63, 34)},
        {Cmd::HumidifierResistanceOff, 20, 10, 1, 0, since(63, 34)},
        {Cmd::LockRollbar, 21, 11, 2, 0, never},
        {Cmd::UnlockRollbar, 22, 11, 1, 0, never},
        {Cmd::OpenNozzleValve, 23, 7, 2, 4, since(72, 4)},
        {Cmd::CloseNozzleValve, 24, 7, 2, 5, since(72, 4)},
        {Cmd::OpenCap, 25, 12, 2, 4, since(63, 39)},
        {Cmd::CloseCap, 26, 12, 2, 5, since(63, 39)},
        {Cmd::CapToHomePosition, 27, 12, 2, 6, since(63, 39)},
        {Cmd::TurntableBrush2Off, 28, 13, 1, 0, never},
        {Cmd::TurntableBrush2OnMode4, 29, 13, 2, 4, never},
        {Cmd::TurntableBrush2OnMode5, 30, 13, 2, 5, never},
        {Cmd::Output7OffMode7, 31, 7, 1, 7, since(69, 3)},
        {Cmd::OpenMainDoor, 32, 15, 2, 0, since(63, 39)},
        {Cmd::Output16On, 33, 16, 2, 0, since(72, 5)},
        {Cmd::MainStirringMotorOnMode4, 34, 17, 2, 4, since(70, 3)},
        {Cmd::MainStirringMotorOnMode5, 35, 17, 2, 5, since(70, 3)},
        {Cmd::MainStirringMotorOff, 36, 17, 1, 0, since(70, 3)},
        {Cmd::SecondaryStirringMotorOnMode4, 37, 18, 2, 4, since(70, 3)},
        {Cmd::SecondaryStirringMotorOnMode5, 38, 18, 2, 5, since(70, 3)},
        {Cmd::SecondaryStirringMotorOff, 39, 18, 1, 0, since(70, 3)},
    };
}

TEST(SetDispOutputCmd, isMadeOfAnAction)
{
    int number = 0;
    for (const ActionRow &row : actionRows()) {
        SCOPED_TRACE(row.number);
        EXPECT_EQ(row.number, number++);
        EXPECT_EQ(row.named, row.number);
        const SetDispOutputCmd command(row.named, 5);
        EXPECT_EQ(command.serialParameters(1), (QList<int>{row.type, row.status, row.mode}));
        EXPECT_EQ(command.moduleID(), 5);
    }
    EXPECT_EQ(number, 40);
}

bool hasAction(const ActionRow &row, const FW_Version &version)
{
    for (const FW_Version &since : row.since)
        if (since.m_family == 0 ||
            (since.m_family == version.m_family && version.m_revision >= since.m_revision))
            return true;
    return false;
}

TEST(SetDispOutputCmd, knowsWhichFirmwareHasAnAction)
{
    for (const ActionRow &row : actionRows())
        for (const int family : {-1, 0, 50, 63, 67, 68, 69, 70, 72, 78})
            for (const int revision : {-1, 0, 1, 2, 3, 4, 5, 32, 33, 34, 38, 39, 99}) {
                const FW_Version version(family, revision);
                EXPECT_EQ(SetDispOutputCmd::isSupportedAction(row.named, version), hasAction(row, version))
                    << row.number << " on " << family << '.' << revision;
            }
    for (const int unknown : {-1, 40, 41, 245})
        for (const int family : {63, 68, 69, 70, 72})
            EXPECT_FALSE(SetDispOutputCmd::isSupportedAction(Action(unknown), FW_Version(family, 99)))
                << unknown;
}

TEST(SetDispOutputCmd, keepsSixActionsOutOfAllFirmware)
{
    for (const int action : {18, 21, 22, 28, 29, 30})
        for (const int family : {0, 63, 68, 69, 70, 72}) {
            EXPECT_FALSE(SetDispOutputCmd::isSupportedAction(Action(action), FW_Version(family, 99)))
                << action;
        }
    EXPECT_FALSE(SetDispOutputCmd::isSupportedAction(SetDispOutputCmd::OpenNozzleValve, FW_Version(72, 3)));
    EXPECT_TRUE(SetDispOutputCmd::isSupportedAction(SetDispOutputCmd::OpenNozzleValve, FW_Version(72, 4)));
}

} // namespace
