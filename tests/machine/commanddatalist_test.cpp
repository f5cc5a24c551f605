// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/commanddatalist.h"

#include "base/basetesting.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_version.h>

#include <optional>

namespace {

using Device = SerialDeviceType;
using FwCommands = QList<FW_Command>;

CommandData named(const char *name, const char *code = "")
{
    CommandData data;
    data.name = QString::fromLatin1(name);
    data.m_code = QString::fromLatin1(code);
    return data;
}

CommandDataList listOf(std::initializer_list<CommandData> commands)
{
    CommandDataList list;
    for (const CommandData &command : commands)
        list.appendCommandData(command);
    return list;
}

CommandDataList filled(Device device = Device::Dispenser, int family = FW_Dispenser::CommandFamily1)
{
    CommandDataList list;
    ProtoCommandList::fillCommandDataList(list, device, family);
    return list;
}

/** The firmware has the code, and carries it out unless told otherwise. */
FW_Command known(unsigned code, int status = 0, CmdExecution execution = CmdExecution::Yes)
{
    return FW_Command(code, status, execution);
}

const FwCommands something = {known(1)}; // a table that is not empty

/** The command of this name, updated alone. */
CommandData updated(const CommandData &data, const FwCommands &fwCommands,
                    const FW_Version *version = nullptr, const FW_Machine *machine = nullptr)
{
    CommandDataList list = listOf({data});
    list.updateCommandsList(0, fwCommands, version, machine);
    return list.at(0);
}

// ---------------------------------------------------------------- the list

TEST(CommandDataList, isAList)
{
    CommandDataList list;
    EXPECT_EQ(list.size(), 0);
    list.appendCommandData(named("TINT"));
    list.appendCommandData(named("RESET"));
    EXPECT_EQ(list.size(), 2);
    EXPECT_EQ(list.at(1).name, "RESET");
    for (const int outside : {-1, 2})
        EXPECT_TRUE(list.at(outside).name.isNull());
    const CommandDataList copy = list;
    EXPECT_TRUE(list.setBusyCheckFrequency(100));
    list.clear();
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(copy.size(), 2);
    EXPECT_EQ(copy.at(0).busyCheckFrequency, 500);
}

TEST(CommandDataList, answersByName)
{
    CommandData tint(8, "TINT", "0017", 1, 3, 5, true, true, 7, 9, true, true, 1000, 250, true, 2, false,
                     true, false, 2);
    CommandData second = tint;
    second.minParams = 17; // of the same name: nobody finds it
    const CommandDataList list = listOf({named("RESET"), tint, second});
    EXPECT_TRUE(list.existsCommand("TINT")) << "though it is not available";
    EXPECT_FALSE(list.isCommandAvailable("TINT"));
    EXPECT_TRUE(list.isCommandAvailable("RESET"));
    EXPECT_EQ(list.cmdParamNum("TINT", true), 1);
    EXPECT_EQ(list.cmdParamNum("TINT", false), 3);
    EXPECT_TRUE(list.isMultipleCommand("TINT"));
    EXPECT_FALSE(list.isMultipleCommand("RESET"));
    EXPECT_TRUE(list.useDispenser("TINT"));
    EXPECT_FALSE(list.useDispenser("RESET"));
    EXPECT_TRUE(list.checkBusyFlag("RESET"));
    EXPECT_TRUE(list.trackExecutionTime("TINT"));
    EXPECT_FALSE(list.trackExecutionTime("RESET"));
    EXPECT_EQ(list.getSchedulingPriorityLevel("TINT"), 9);
    EXPECT_EQ(list.getWorkingPriorityLevel("TINT"), 7);
    EXPECT_EQ(list.busyTimeout("TINT"), 1000);
    EXPECT_EQ(list.busyTimeout("RESET"), 40000);
    EXPECT_EQ(list.busyCheckFrequency("TINT"), 250);
}

TEST(CommandDataList, knowsNothingOfOtherNames)
{
    const CommandDataList list = listOf({named("RESET")});
    for (const char *name : {"TINT", "", "reset"}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(list.existsCommand(name));
        EXPECT_FALSE(list.isCommandAvailable(name));
        EXPECT_EQ(list.cmdParamNum(name, true), -1);
        EXPECT_EQ(list.cmdParamNum(name, false), -1);
        EXPECT_FALSE(list.isMultipleCommand(name));
        EXPECT_FALSE(list.useDispenser(name));
        EXPECT_FALSE(list.checkBusyFlag(name));
        EXPECT_FALSE(list.trackExecutionTime(name));
        EXPECT_EQ(list.getSchedulingPriorityLevel(name), 0);
        EXPECT_EQ(list.getWorkingPriorityLevel(name), 0);
        EXPECT_EQ(list.busyTimeout(name), 0);
        EXPECT_EQ(list.busyCheckFrequency(name), 0);
    }
}

TEST(CommandDataList, givesTheFirstPourAloneItsTime)
{
    CommandDataList list = filled();
    EXPECT_TRUE(list.setTintCmdTimeout(123456789012LL));
    EXPECT_EQ(list.busyTimeout("TINT"), 123456789012LL);
    EXPECT_EQ(list.busyTimeout("PRIMING"), 240000);
    EXPECT_EQ(list.busyTimeout("PURGE"), 9999999);
    EXPECT_EQ(list.busyTimeout("RESET"), 360000);

    CommandDataList mixer = filled(Device::Mixer);
    EXPECT_TRUE(mixer.setTintCmdTimeout(17));
    EXPECT_EQ(mixer.busyTimeout("MIX"), 17);

    // the catalogue tells what pours, not the entry
    CommandData flagged = named("RESET");
    flagged.erogationCommand = true;
    CommandDataList none = listOf({flagged});
    EXPECT_FALSE(none.setTintCmdTimeout(17));
    EXPECT_EQ(none.busyTimeout("RESET"), 40000);
    EXPECT_FALSE(CommandDataList().setTintCmdTimeout(17));
}

TEST(CommandDataList, givesAllCommandsOneFrequency)
{
    CommandDataList list = filled();
    EXPECT_TRUE(list.setBusyCheckFrequency(250));
    for (int i = 0; i < list.size(); ++i)
        EXPECT_EQ(list.at(i).busyCheckFrequency, 250);
    EXPECT_TRUE(CommandDataList().setBusyCheckFrequency(250));
}

// ---------------------------------------------------------------- what the firmware has

TEST(UpdatedList, staysAsItWasWithoutATable)
{
    const FW_Version version(63, 99);
    const FW_Dispenser dispenser;
    CommandDataList list = filled();
    list.updateCommandsList(7, {}, &version, &dispenser);
    const CommandDataList before = filled();
    for (int i = 0; i < list.size(); ++i) {
        SCOPED_TRACE(list.at(i).name.toStdString());
        EXPECT_TRUE(list.at(i).available);
        EXPECT_EQ(list.at(i).version, 0);
        EXPECT_EQ(list.at(i).checkBusy, before.at(i).checkBusy);
        EXPECT_EQ(list.at(i).busyTimeout, before.at(i).busyTimeout);
        EXPECT_EQ(list.at(i).trackExecutionTime, before.at(i).trackExecutionTime);
    }
}

TEST(UpdatedList, keepsWhatTheFirmwareHas)
{
    CommandDataList list = filled();
    list.updateCommandsList(0, {known(23), known(6, 0, CmdExecution::No)}, nullptr, nullptr);
    for (const char *name : {"TINT", "PRIMING", "PACK", "PURGE", "CHANNEL_TINT"}) // all of one code
        EXPECT_TRUE(list.isCommandAvailable(name)) << name;
    for (const char *name : {"GET_STATUS", "RESET", "STIRRING", "GET_FW_COMMANDS"})
        EXPECT_FALSE(list.isCommandAvailable(name)) << name;
    for (const char *name : {"LOGIN", "GET_ERRORS", "UPDATE_FW"}) // without a code
        EXPECT_TRUE(list.isCommandAvailable(name)) << name;
    EXPECT_TRUE(list.existsCommand("GET_STATUS"));
}

TEST(UpdatedList, asksForTheFirstRowOfTheCode)
{
    EXPECT_TRUE(
        updated(named("RESET", "0001"), {known(2), known(1), known(1, 2, CmdExecution::No)}).available);
    EXPECT_FALSE(updated(named("RESET", "0001"), {known(1, 2, CmdExecution::No), known(1)}).available);
    FW_Command other = known(1);
    other.cmdExecution = 2;
    EXPECT_FALSE(updated(named("RESET", "0001"), {other}).available);
}

/** A code that is no number counts as one: it is that of the command 0, which no firmware has. */
TEST(UpdatedList, losesWhatHasACodeOfTheSecondFamily)
{
    EXPECT_FALSE(updated(named("GET_STATUS", "I3"), something).available);
    EXPECT_TRUE(updated(named("GET_STATUS", "I3"), {known(0)}).available);
    CommandDataList list = filled(Device::Dispenser, FW_Dispenser::CommandFamily2);
    list.updateCommandsList(0, something, nullptr, nullptr);
    EXPECT_FALSE(list.isCommandAvailable("GET_STATUS"));
    EXPECT_TRUE(list.isCommandAvailable("TINT"));
}

TEST(UpdatedList, takesOverWhatKeepsTheMachineBusy)
{
    for (const bool before : {false, true}) {
        CommandData tint = named("TINT", "0017");
        tint.checkBusy = before;
        EXPECT_TRUE(updated(tint, {known(23, 2)}).checkBusy);
        for (const int status : {0, 1, 3})
            EXPECT_FALSE(updated(tint, {known(23, status)}).checkBusy) << status;
        EXPECT_EQ(updated(tint, something).checkBusy, before) << "a code that the firmware does not have";
        for (const auto &[name, code] : {std::pair("RESET_FW", "3F78"), std::pair("STIRRING", "0004"),
                                         std::pair("RECIRCULATION", "0005")}) {
            SCOPED_TRACE(name);
            CommandData kept = named(name, code);
            kept.checkBusy = before;
            for (const int status : {0, 1, 2})
                EXPECT_EQ(updated(kept, {known(kept.code(), status)}).checkBusy, before) << status;
        }
    }
}

TEST(UpdatedList, givesATimeToWhatKeepsTheMachineBusyWithoutOne)
{
    CommandData status = named("GET_STATUS", "0006");
    status.busyTimeout = 0;
    EXPECT_EQ(updated(status, {known(6, 2)}).busyTimeout, 40000);
    EXPECT_EQ(updated(status, {known(6, 1)}).busyTimeout, 0);
    EXPECT_EQ(updated(status, something).busyTimeout, 0);
    status.name = "STIRRING";
    EXPECT_EQ(updated(status, {known(6, 2)}).busyTimeout, 40000);
    status.busyTimeout = 17;
    EXPECT_EQ(updated(status, {known(6, 2)}).busyTimeout, 17);
}

TEST(UpdatedList, leavesACommandWithoutACodeAlone)
{
    CommandData plain = named("LOGIN");
    plain.checkBusy = true;
    plain.busyTimeout = 0;
    plain.available = false;
    const CommandData after = updated(plain, {known(0, 2)});
    EXPECT_TRUE(after.checkBusy);
    EXPECT_EQ(after.busyTimeout, 0);
    EXPECT_FALSE(after.available);
}

TEST(UpdatedList, worksOnWhatTheLastRunHasLeft)
{
    CommandDataList list = listOf({named("RESET", "0001"), named("TINT", "0017")});
    list.updateCommandsList(0, {known(23, 2)}, nullptr, nullptr);
    list.updateCommandsList(0, {known(1)}, nullptr, nullptr);
    EXPECT_TRUE(list.isCommandAvailable("RESET"));
    EXPECT_FALSE(list.isCommandAvailable("TINT"));
    EXPECT_TRUE(list.checkBusyFlag("TINT")) << "of the first run, since the second does not tell of it";
}

// ---------------------------------------------------------------- by name and version

/** Version and availability of a command that has no code, before: 7 and \a before. */
std::pair<int, bool> byVersion(const char *name, const FW_Version *version, bool before = true)
{
    CommandData data = named(name);
    data.version = 7;
    data.available = before;
    const CommandData after = updated(data, something, version);
    return {after.version, after.available};
}

TEST(UpdatedList, givesSomeCommandsOneVersionAlways)
{
    const FW_Version old(63, 0);
    const std::pair<const char *, int> rows[] = {
        {"TINT", 2},           {"SET_GRAV_SETTINGS", 2},       {"SET_DISP_OUTPUT", 2},
        {"SET_LEVELS", 1},     {"GET_CANISTER_LIST", 1},       {"SET_DRIVER_SETTINGS", 1},
        {"TURNTABLE_MOVE", 1}, {"TURNTABLE_MOVE_TO_REFILL", 1}};
    for (const auto &[name, version] : rows) {
        SCOPED_TRACE(name);
        for (const FW_Version *given : {static_cast<const FW_Version *>(nullptr), &old}) {
            for (const bool before : {false, true})
                EXPECT_EQ(byVersion(name, given, before), std::pair(version, before));
        }
    }
}

TEST(UpdatedList, leavesOtherCommandsAlone)
{
    const FW_Version version(63, 99);
    for (const char *name :
         {"RESET", "PACK", "TINT2", "GET_DISP_INFO", "TURNTABLE_MOVE_STEPS", "NO_SUCH_COMMAND", ""}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(byVersion(name, &version), std::pair(7, true));
        EXPECT_EQ(byVersion(name, nullptr), std::pair(7, true));
    }
}

/** A command's version, or 7 for the one that it had, and whether it is available, on a firmware or without one. */
struct VersionRow
{
    const char *name;
    std::optional<FW_Version> firmware;
    int version;
    bool available = true;
};

TEST(UpdatedList, asksTheGatesOfTheFirmware)
{
    const VersionRow rows[] = {
        {"GET_KEY_CODE", FW_Version(63, 0), 7},
        {"GET_KEY_CODE", FW_Version(), 7, false},
        {"GET_KEY_CODE", {}, 7, false},
        {"GET_ACTIVE_CIRCUITS", {}, 1, false},
        {"GET_ACTIVE_CIRCUITS", FW_Version(), 1, false},
        {"GET_ACTIVE_CIRCUITS", FW_Version(63, 38), 1, false},
        {"GET_ACTIVE_CIRCUITS", FW_Version(63, 39), 1},
        {"GET_ACTIVE_CIRCUITS", FW_Version(63, 40), 2},
        {"GET_ACTIVE_CIRCUITS", FW_Version(72, 99), 1},
        {"ADD_USS_W_EVENT", {}, 7, false},
        {"ADD_USS_W_EVENT", FW_Version(63, 38), 7, false},
        {"ADD_USS_W_EVENT", FW_Version(63, 39), 7},
        {"ADD_USS_W_EVENT", FW_Version(70, 1), 7, false},
        {"ADD_USS_W_EVENT", FW_Version(70, 2), 7},
        {"ADD_USS_W_EVENT", FW_Version(72, 99), 7, false},
        {"GET_USS_W_STATUS", {}, 7, false},
        {"GET_USS_W_STATUS", FW_Version(63, 38), 7, false},
        {"GET_USS_W_STATUS", FW_Version(63, 39), 7},
        {"STOP", {}, 7},
        {"STOP", FW_Version(63, 99), 7}, // none is known that stops softly
        {"STOP", FW_Version(72, 99), 7},
        {"GET_FW_COMMANDS", {}, 7},
        {"GET_FW_COMMANDS", FW_Version(63, 38), 7},
        {"GET_FW_COMMANDS", FW_Version(63, 39), 1},
        {"GET_FW_COMMANDS", FW_Version(78, 0), 1},
        {"CLEANING", {}, 7},
        {"CLEANING", FW_Version(63, 99), 7},
        {"CLEANING", FW_Version(70, 0), 1},
        {"STIRRING", {}, 0},
        {"STIRRING", FW_Version(63, 37), 0},
        {"STIRRING", FW_Version(67, 0), 1},
        {"STIRRING", FW_Version(63, 38), 2},
        {"RECIRCULATION", {}, 0},
        {"RECIRCULATION", FW_Version(63, 37), 0},
        {"RECIRCULATION", FW_Version(69, 2), 0},
        {"RECIRCULATION", FW_Version(68, 4), 1},
        {"RECIRCULATION", FW_Version(63, 38), 2},
        {"AUTOCAP_MOVE", {}, 0},
        {"AUTOCAP_MOVE", FW_Version(63, 38), 1},
        {"AUTOCAP_MOVE", FW_Version(63, 39), 2},
    };
    for (const VersionRow &row : rows) {
        SCOPED_TRACE(std::string(row.name) + ' ' +
                     (row.firmware ? row.firmware->toString().toStdString() : "none"));
        for (const bool before : {false, true}) {
            const bool decides = QString(row.name).startsWith("GET_KEY") ||
                                 QString(row.name).contains("USS_W") ||
                                 row.name == std::string("GET_ACTIVE_CIRCUITS");
            EXPECT_EQ(byVersion(row.name, row.firmware ? &*row.firmware : nullptr, before),
                      std::pair(row.version, decides ? row.available : before));
        }
    }
}

TEST(UpdatedList, letsTheVersionDecideOverTheTable)
{
    const FW_Version version(63, 39);
    const FW_Version old(63, 0);
    EXPECT_TRUE(updated(named("GET_USS_W_STATUS", "0078"), something, &version).available);
    EXPECT_FALSE(updated(named("GET_USS_W_STATUS", "0078"), {known(120)}, &old).available);
}

// ---------------------------------------------------------------- times of pours

FW_Dispenser dosedByScale()
{
    FW_DosingMotor motor;
    motor.setGravimetricSw(true);
    FW_Circuit circuit(1, 1);
    circuit.setDosingMotor(motor);
    FW_Canister canister(1);
    canister.addCircuit(circuit);
    FW_Dispenser dispenser;
    dispenser.addCanister(canister);
    return dispenser;
}

TEST(UpdatedList, tracksNoPourWhoseTimeNobodyKnows)
{
    const FW_Dispenser usual;
    const FW_Dispenser byScale = dosedByScale();
    const FW_Mixer mixer;
    EXPECT_TRUE(usual.canEstimateDosingCmdExecution());
    EXPECT_FALSE(byScale.canEstimateDosingCmdExecution());

    CommandData pour = named("TINT", "0017");
    pour.trackExecutionTime = true;
    pour.erogationCommand = true;
    CommandData other = pour; // what the entry tells, not its name
    other.erogationCommand = false;
    for (const FW_Machine *machine :
         {static_cast<const FW_Machine *>(nullptr), static_cast<const FW_Machine *>(&mixer),
          static_cast<const FW_Machine *>(&usual)})
        EXPECT_TRUE(updated(pour, something, nullptr, machine).trackExecutionTime);
    EXPECT_FALSE(updated(pour, something, nullptr, &byScale).trackExecutionTime);
    EXPECT_TRUE(updated(other, something, nullptr, &byScale).trackExecutionTime);

    CommandDataList list = filled();
    list.updateCommandsList(0, something, nullptr, &byScale);
    EXPECT_FALSE(list.trackExecutionTime("PURGE"));
    EXPECT_TRUE(list.trackExecutionTime("RESET"));
}

} // namespace
