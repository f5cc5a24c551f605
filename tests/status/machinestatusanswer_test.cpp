// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/machinestatusanswer.h"

#include "status/statustesting.h"

#include <QuvFramework/fw_exception.h>

#include <limits>
#include <type_traits>

namespace {

using namespace testing_status;

constexpr char ofTokens[] = "MachineStatusAnswer::MachineStatusAnswer(QStringList)";
constexpr char ofValue[] = "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)";

/** A machine's status with nothing of its own. */
class PlainStatus : public MachineStatusAnswer
{
public:
    PlainStatus() = default;
    using MachineStatusAnswer::MachineStatusAnswer;

    PlainStatus *clone() const override { return new PlainStatus(*this); }
    bool decodeSerialStatus(QStringList, FW_DriverError *) override { return true; }
    bool acceptCommands() const override { return true; }
    StatusLines getStatusDescriptions(const FW_Machine *) const override
    {
        return {{QStringLiteral("Everything is bad"), true}};
    }
};

PlainStatus withFlag(const char *name, bool on)
{
    PlainStatus status;
    machineFlagNamed(status, name) = on;
    return status;
}

TEST(MachineStatusAnswer, startsCleared)
{
    const PlainStatus status;
    EXPECT_EQ(status.disp_status, 0);
    EXPECT_EQ(status.status(), 0);
    EXPECT_EQ(setMachineFlags(status), std::set<std::string>{"normal_wm"});
}

TEST(MachineStatusAnswer, readsNothingOfAList)
{
    const PlainStatus status(List{2, true, QStringLiteral("hw_error")});
    EXPECT_EQ(status, PlainStatus());
}

// the order of its operations and fields is tested with that of all classes, in base/layout_test.cpp
TEST(MachineStatusAnswer, isTheRootOfStatuses)
{
    static_assert(std::has_virtual_destructor_v<MachineStatusAnswer>);
    static_assert(std::is_abstract_v<MachineStatusAnswer>);
    EXPECT_EQ(machineFlags.size(), 22U);
}

TEST(MachineStatusAnswer, isNeverBadByItself)
{
    PlainStatus status;
    status.hw_error = true;
    status.emergency_pressed = true;
    EXPECT_FALSE(status.hasBadWorkingState());
    EXPECT_EQ(status.getFirstBadWorkingState(), QString());
}

TEST(MachineStatusAnswer, clearsAllOfIt)
{
    PlainStatus status;
    status.setStatus(2);
    for (const auto &flag : machineFlags)
        status.*flag.field = true;
    status.normal_wm = false;
    status.clearMachineStatus();
    EXPECT_EQ(status.disp_status, 0);
    EXPECT_EQ(setMachineFlags(status), std::set<std::string>{"normal_wm"});
}

TEST(MachineStatusAnswer, knowsAStatusOfOneAndTwo)
{
    const PlainStatus status;
    EXPECT_TRUE(status.checkStatus(1));
    EXPECT_TRUE(status.checkStatus(2));
    for (int other :
         {-2, -1, 0, 3, 4, 17, 257, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_FALSE(status.checkStatus(other)) << other;
}

TEST(MachineStatusAnswer, storesAnyStatus)
{
    PlainStatus status;
    status.setStatus(77);
    EXPECT_EQ(status.disp_status, 77);
    EXPECT_EQ(status.status(), 77);
}

TEST(MachineStatusAnswer, comparesTheStatusAndEachFlag)
{
    const PlainStatus cleared;
    EXPECT_TRUE(cleared == PlainStatus());
    EXPECT_FALSE(cleared != PlainStatus());
    PlainStatus other;
    other.disp_status = 1;
    EXPECT_FALSE(cleared == other);
    EXPECT_TRUE(cleared != other);
    EXPECT_FALSE(cleared.equalTo(&other));
    for (const auto &flag : machineFlags) {
        PlainStatus changed;
        changed.*flag.field = !(changed.*flag.field);
        EXPECT_FALSE(cleared == changed) << flag.name;
        EXPECT_TRUE(cleared != changed) << flag.name;
        EXPECT_FALSE(cleared.equalTo(&changed)) << flag.name;
        EXPECT_TRUE(changed.equalTo(&changed)) << flag.name;
        const PlainStatus copy(changed);
        EXPECT_TRUE(copy == changed) << flag.name;
    }
    EXPECT_FALSE(cleared.equalTo(nullptr));
}

// ---------------------------------------------------------------- tokens

TEST(MachineStatusAnswer, readsTheStatusTokenAlone)
{
    const PlainStatus one(QStringList{"5", "rubbish", "1", "FF", "rubbish", "rubbish"});
    EXPECT_EQ(one.disp_status, 1);
    EXPECT_EQ(setMachineFlags(one), std::set<std::string>{"normal_wm"});
    EXPECT_EQ(PlainStatus(QStringList{"", "", "2", "", "", ""}).disp_status, 2);
    EXPECT_EQ(PlainStatus(QStringList{"", "", "02", "", "", ""}).disp_status, 2);
}

TEST(MachineStatusAnswer, refusesFewerThanSixTokens)
{
    QStringList tokens;
    for (int count = 0; count < 6; ++count) {
        expectRefusal("DE00066", "Error during command answer decoding: bad length", ofTokens,
                      [&] { const PlainStatus status(tokens); });
        tokens << "1";
    }
    EXPECT_EQ(PlainStatus(tokens).disp_status, 1);
}

TEST(MachineStatusAnswer, refusesAStatusOtherThanOneAndTwo)
{
    for (const char *token : {"0", "3", "10", "FF", "101", "FFFFFFFF", "100000001", "-1", "", " ", "G", "1G",
                              "x", "1.0", "one"}) {
        SCOPED_TRACE(token);
        expectRefusal("DE00068", "Error during command answer decoding: conversion failed", ofTokens, [&] {
            const PlainStatus status(QStringList{"5", "0", token, "0", "0", "0"});
        });
    }
}

// ---------------------------------------------------------------- XML-RPC

/** What a member is for the reader. */
struct Member
{
    const char *key;
    const char *code; ///< empty: it may be left out
    const char *text;
};

const std::vector<Member> members = {
    {"disp_status", "DE00443", "MachineStatusAnswer: expected disp_status value"},
    {"offline_pressed", "DE00026", "MachineStatusAnswer: expected offline_pressed value"},
    {"board_not_initialized", "DE00026", "MachineStatusAnswer: expected board_not_initialized value"},
    {"startup", "DE00026", "MachineStatusAnswer: expected startup value"},
    {"resetting", "DE00026", "MachineStatusAnswer: expected resetting value"},
    {"BL_active", "DE00026", "MachineStatusAnswer: expected BL_active value"},
    {"BL_memory_resetting", "DE00026", "MachineStatusAnswer: expected BL_memory_resetting value"},
    {"BL_fw_update", "DE00026", "MachineStatusAnswer: expected BL_fw_update value"},
    {"conf_writing", "DE00026", "MachineStatusAnswer: expected conf_writing value"},
    {"hw_error", "DE00026", "MachineStatusAnswer: expected hw_error value"},
    {"conf_error", "DE00026", "MachineStatusAnswer: expected conf_error value"},
    {"process_error", "DE00026", "MachineStatusAnswer: expected process_error value"},
    {"stop_process", "DE00026", "MachineStatusAnswer: expected stop_process value"},
    {"new_buffered_error", "", ""},
    {"dispenser_not_ready", "", ""},
    {"emergency_pressed", "DE00026", "MachineStatusAnswer: expected emergency_pressed value"},
    {"normal_wm", "", ""},
    {"can_present", "DE00026", "DispenserStatusAnswer: expected can_present value"},
    {"shelf_up", "DE00026", "MachineStatusAnswer: expected shelf_up value"},
    {"shelf_down", "DE00026", "MachineStatusAnswer: expected shelf_down value"},
    {"door_open", "", ""},
    {"machine_turned_off", "", ""},
    {"machine_unlocked", "", ""},
};

Value machineStruct()
{
    Value value;
    value["disp_status"] = 2;
    for (const auto &flag : machineFlags)
        value[flag.name] = false;
    return value;
}

/** Values of every other type than the member's. */
std::vector<Value> otherTypes(const char *key)
{
    std::vector<Value> values = {Value(1.0), Value("true"), Value("1"),
                                 arrayOf(),  arrayOf(true), structOf({})};
    values.push_back(std::string(key) == "disp_status" ? Value(true) : Value(1));
    return values;
}

TEST(MachineStatusAnswer, readsEachMemberOfAStruct)
{
    for (const auto &flag : machineFlags) {
        SCOPED_TRACE(flag.name);
        Value value = machineStruct();
        value[flag.name] = true;
        const PlainStatus status(value);
        EXPECT_EQ(status.disp_status, 2);
        EXPECT_EQ(setMachineFlags(status), std::set<std::string>{flag.name});
    }
    Value value = machineStruct();
    value["disp_status"] = -9; // only tokens are checked
    EXPECT_EQ(PlainStatus(value).disp_status, -9);
}

TEST(MachineStatusAnswer, refusesAMissingOrMistypedMember)
{
    for (const Member &member : members) {
        SCOPED_TRACE(member.key);
        std::vector<Value> bad = {without(machineStruct(), member.key)};
        for (const Value &other : otherTypes(member.key)) {
            bad.push_back(machineStruct());
            bad.back()[member.key] = other;
        }
        for (const Value &value : bad) {
            SCOPED_TRACE(dumped(value));
            if (*member.code) {
                expectRefusal(member.code, member.text, ofValue, [&] { const PlainStatus status(value); });
            } else {
                const PlainStatus status(value);
                const bool normal = std::string(member.key) == "normal_wm";
                EXPECT_EQ(setMachineFlags(status),
                          normal ? std::set<std::string>{"normal_wm"} : std::set<std::string>{});
            }
        }
    }
}

TEST(MachineStatusAnswer, tellsTheFirstMemberThatIsMissing)
{
    // fill the members in one by one, in the order of reading: each time the next one that must be there is told
    Value value = structOf({});
    for (const Member &member : members) {
        SCOPED_TRACE(member.key);
        if (*member.code)
            expectRefusal(member.code, member.text, ofValue, [&] { const PlainStatus status(value); });
        if (std::string(member.key) == "disp_status")
            value[member.key] = 1;
        else
            value[member.key] = false;
    }
    EXPECT_EQ(PlainStatus(value).disp_status, 1);
}

TEST(MachineStatusAnswer, refusesWhatIsNoStruct)
{
    const std::vector<Value> values = {Value(),       Value(1),  Value(true),
                                       Value("text"), arrayOf(), arrayOf(1, true)};
    for (const Value &value : values) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00443", "MachineStatusAnswer: expected disp_status value", ofValue,
                      [&] { const PlainStatus status(value); });
    }
}

TEST(MachineStatusAnswer, leavesTheStructAloneThatItReads)
{
    const Value value = machineStruct();
    const std::string before = dumped(value);
    const PlainStatus status(value);
    EXPECT_EQ(dumped(value), before);
}

TEST(MachineStatusAnswer, writesItsMembersInAStruct)
{
    PlainStatus status;
    status.setStatus(2);
    constexpr char cleared[] =
        R"({"BL_active": false, "BL_fw_update": false, "BL_memory_resetting": false, )"
        R"("WM_set": false, "board_not_initialized": false, "can_present": false, )"
        R"("conf_error": false, "conf_writing": false, "disp_info_erasing": false, )"
        R"("disp_info_writing": false, "disp_status": 2, "dispenser_not_ready": false, )"
        R"("door_open": false, "emergency_pressed": false, "hw_error": false, )"
        R"("new_buffered_error": false, "normal_wm": true, "offline_pressed": false, )"
        R"("process_error": false, "resetting": false, "shelf_down": false, )"
        R"("shelf_up": false, "startup": false, "stop_process": false})";
    Value empty;
    status.udpateXmlRpcValue(empty);
    EXPECT_EQ(dumped(empty), cleared);
    Value noStruct = arrayOf(1, 2);
    status.udpateXmlRpcValue(noStruct);
    EXPECT_EQ(dumped(noStruct), cleared);

    for (const auto &flag : machineFlags)
        status.*flag.field = true;
    status.normal_wm = false;
    constexpr char full[] = R"({"BL_active": true, "BL_fw_update": true, "BL_memory_resetting": true, )"
                            R"("WM_set": false, "board_not_initialized": true, "can_present": true, )"
                            R"("conf_error": true, "conf_writing": true, "disp_info_erasing": false, )"
                            R"("disp_info_writing": false, "disp_status": 2, "dispenser_not_ready": true, )"
                            R"("door_open": true, "emergency_pressed": true, "hw_error": true, )"
                            R"("new_buffered_error": true, "normal_wm": false, "offline_pressed": true, )"
                            R"("process_error": true, "resetting": true, "shelf_down": true, )"
                            R"("shelf_up": true, "startup": true, "stop_process": true})";
    status.udpateXmlRpcValue(empty);
    EXPECT_EQ(dumped(empty), full);
}

TEST(MachineStatusAnswer, keepsWhatElseIsInTheStruct)
{
    Value value;
    value["tinting"] = true;
    value["machine_turned_off"] = true;
    value["machine_unlocked"] = "not mine";
    value["hw_error"] = "mistyped";
    value["WM_set"] = true;
    value["disp_status"] = 2.5;
    PlainStatus status;
    status.setStatus(1);
    status.udpateXmlRpcValue(value);
    EXPECT_EQ(value.size(), 24 + 3);
    EXPECT_EQ(dumped(value["tinting"]), "true");
    EXPECT_EQ(dumped(value["machine_turned_off"]), "true");
    EXPECT_EQ(dumped(value["machine_unlocked"]), "\"not mine\"");
    EXPECT_EQ(dumped(value["hw_error"]), "false");
    EXPECT_EQ(dumped(value["WM_set"]), "false");
    EXPECT_EQ(dumped(value["disp_status"]), "1");
}

TEST(MachineStatusAnswer, decodesASingleMember)
{
    const Value value = structOf({{"flag", Value(true)}, {"number", Value(9)}, {"text", Value("x")}});
    PlainStatus status;
    bool flag = false;
    int number = 3;
    FW_DriverError error;
    EXPECT_TRUE(status.setXmlRpcProperty(value, &flag, "flag", "AnyClass", &error));
    EXPECT_TRUE(flag);
    EXPECT_TRUE(status.setXmlRpcProperty(value, &number, "number", "AnyClass", &error));
    EXPECT_EQ(number, 9);
    EXPECT_EQ(error.code(), "");
}

TEST(MachineStatusAnswer, tellsASingleMemberThatItCannotDecode)
{
    const Value value = structOf({{"flag", Value(true)}, {"number", Value(9)}});
    PlainStatus status;
    bool flag = true;
    int number = 3;
    for (const char *key : {"absent", "number"}) {
        SCOPED_TRACE(key);
        FW_DriverError error;
        EXPECT_FALSE(status.setXmlRpcProperty(value, &flag, key, "AnyClass", &error));
        expectError(error, "DE00026", (std::string("AnyClass: expected ") + key + " value").c_str());
        EXPECT_FALSE(status.setXmlRpcProperty(value, &flag, key, "AnyClass", nullptr));
    }
    for (const char *key : {"absent", "flag"}) {
        SCOPED_TRACE(key);
        FW_DriverError error;
        EXPECT_FALSE(status.setXmlRpcProperty(value, &number, key, "%1 %2", &error));
        expectError(error, "DE02667", (std::string("%1 %2: expected ") + key + " value").c_str());
        EXPECT_FALSE(status.setXmlRpcProperty(value, &number, key, "AnyClass", nullptr));
    }
    EXPECT_TRUE(flag);
    EXPECT_EQ(number, 3);
    EXPECT_FALSE(value.hasMember("absent")) << "asking leaves no trace";

    FW_DriverError error;
    EXPECT_FALSE(status.setXmlRpcProperty(Value(7), &number, "flag", "AnyClass", &error));
    expectError(error, "DE02667", "AnyClass: expected flag value");
}

TEST(MachineStatusAnswer, hasNothingToDecodeInto)
{
    const Value value = structOf({{"flag", Value(true)}, {"number", Value(9)}});
    PlainStatus status;
    FW_DriverError error;
    EXPECT_FALSE(status.setXmlRpcProperty(value, static_cast<bool *>(nullptr), "flag", "AnyClass", &error));
    EXPECT_FALSE(status.setXmlRpcProperty(value, static_cast<int *>(nullptr), "number", "AnyClass", &error));
    EXPECT_FALSE(status.setXmlRpcProperty(value, static_cast<int *>(nullptr), "absent", "AnyClass", nullptr));
}

// ---------------------------------------------------------------- texts

/** A flag with its line on a dispenser and on a mixer. */
struct ConditionLine
{
    const char *flag;
    const char *dispenser;
    const char *mixer;
    bool bad;
};

const std::vector<ConditionLine> conditions = {
    {"emergency_pressed", "Emergency button pressed", "Emergency button pressed", true},
    {"offline_pressed", "Offline button pressed", "Mixer offline", true},
    {"board_not_initialized", "Board not initialized", "Board not initialized", true},
    {"startup", "Startup in progress", "Startup in progress", true},
    {"resetting", "Reset in progress", "Reset in progress", false},
    {"BL_active", "Boot loader is active", "Boot loader is active", false},
    {"BL_memory_resetting", "Boot loader memory reset", "Boot loader memory reset", false},
    {"BL_fw_update", "Boot loader firmware update", "Boot loader firmware update", false},
    {"conf_writing", "Configuration writing", "Configuration writing", false},
    {"hw_error", "Hardware error present", "Hardware error present", true},
    {"conf_error", "Configuration error present", "Configuration error present", true},
    {"can_present", "Can is present", "Can is present", false},
    {"shelf_up", "Shelf moving up", "Upper plate moving up", false},
    {"shelf_down", "Shelf moving down", "Upper plate moving down", false},
    {"door_open", "Door open", "Door open", false},
    {"machine_turned_off", "Machine turned off while working", "Machine turned off while working", true},
    {"machine_unlocked", "Machine unlocked", "Machine unlocked", false},
};

TEST(MachineStatusAnswer, describesEachConditionByItself)
{
    for (const auto &flag : machineFlags) {
        SCOPED_TRACE(flag.name);
        StatusLines onDispenser;
        StatusLines onMixer;
        for (const ConditionLine &condition : conditions) {
            if (std::string(condition.flag) == flag.name) {
                onDispenser.append({QString::fromLatin1(condition.dispenser), condition.bad});
                onMixer.append({QString::fromLatin1(condition.mixer), condition.bad});
            }
        }
        PlainStatus status;
        status.*flag.field = true;
        EXPECT_EQ(status.getMachineStatusDescriptions(SerialDeviceType::Dispenser), onDispenser);
        EXPECT_EQ(status.getMachineStatusDescriptions(SerialDeviceType::Mixer), onMixer);
        EXPECT_EQ(status.getMachineStatusDescriptions(SerialDeviceType::Scale), onMixer);
    }
    EXPECT_EQ(PlainStatus().getMachineStatusDescriptions(SerialDeviceType::Dispenser), StatusLines());
    EXPECT_EQ(withFlag("normal_wm", false).getMachineStatusDescriptions(SerialDeviceType::Mixer),
              StatusLines());
}

TEST(MachineStatusAnswer, describesAllConditionsInTheirOrder)
{
    PlainStatus status;
    for (const auto &flag : machineFlags)
        status.*flag.field = true;
    StatusLines onDispenser;
    StatusLines onMixer;
    for (const ConditionLine &condition : conditions) {
        onDispenser.append({QString::fromLatin1(condition.dispenser), condition.bad});
        onMixer.append({QString::fromLatin1(condition.mixer), condition.bad});
    }
    EXPECT_EQ(onDispenser.size(), 17);
    EXPECT_EQ(status.getMachineStatusDescriptions(SerialDeviceType::Dispenser), onDispenser);
    EXPECT_EQ(status.getMachineStatusDescriptions(SerialDeviceType::Mixer), onMixer);
}

/** A flag with the lines for its change, on and off, of a dispenser and of a mixer; no text, no line. */
struct ChangeLine
{
    const char *flag;
    const char *on;
    const char *off;
    const char *mixerOn;
    const char *mixerOff;
};

const std::vector<ChangeLine> changes = {
    {"offline_pressed", "Offline button pressed", "Offline button released", "Mixer offline", "Mixer online"},
    {"board_not_initialized", "Board not initialized", "Board initialized", "Board not initialized",
     "Board initialized"},
    {"resetting", "Reset in progress", "Reset not in progress", "Reset in progress", "Reset not in progress"},
    {"BL_active", "Boot loader is active", "Application firmware is active", "Boot loader is active",
     "Application firmware is active"},
    {"BL_memory_resetting", "Boot loader memory reset", "Boot loader memory not resetting",
     "Boot loader memory reset", "Boot loader memory not resetting"},
    {"BL_fw_update", "Boot loader firmware update", "Boot loader firmware update not in progress",
     "Boot loader firmware update", "Boot loader firmware update not in progress"},
    {"conf_writing", "Configuration writing", "No configuration writing in progress", "Configuration writing",
     "No configuration writing in progress"},
    {"hw_error", "Hardware error present", "No hardware error present", "Hardware error present",
     "No hardware error present"},
    {"conf_error", "Configuration error present", "No configuration error present",
     "Configuration error present", "No configuration error present"},
    {"process_error", "Process error", "No process error", "Process error", "No process error"},
    {"stop_process", "Process interrupted", "No process interrupted", "Process interrupted",
     "No process interrupted"},
    {"new_buffered_error", "New error present", "No more errors on buffer", "New error present",
     "No more errors on buffer"},
    {"dispenser_not_ready", "Dispenser not available", "Dispenser available", "Mixer not available",
     "Mixer available"},
    {"emergency_pressed", "Emergency button pressed", "Emergency button released", "Emergency button pressed",
     "Emergency button released"},
    {"normal_wm", "Running normal mode", "Running reserved mode", "Running normal mode",
     "Running reserved mode"},
    {"can_present", "Can is present", "Can is not present", "Can is present", "Can is not present"},
    {"shelf_up", "Shelf moving up", "Shelf staying idle", "Upper plate moving up",
     "Upper plate staying idle"},
    {"shelf_down", "Shelf moving down", "Shelf staying idle", "Upper plate moving down",
     "Upper plate staying idle"},
    {"door_open", "Door open", "Door closed", "Door open", "Door closed"},
    {"machine_turned_off", "Machine turned off while working", "", "Machine turned off while working", ""},
    {"machine_unlocked", "Machine unlocked", "Machine locked", "Machine unlocked", "Machine locked"},
};

QList<QString> oneLine(const char *text)
{
    return *text ? QList<QString>{QString::fromLatin1(text)} : QList<QString>();
}

QList<QString> changeOf(SerialDeviceType device, const PlainStatus &before, const PlainStatus &after)
{
    return MachineStatusAnswer::getNewMachineStatesDescriptions(device, &before, &after);
}

TEST(MachineStatusAnswer, describesEachChangeByItself)
{
    for (const ChangeLine &change : changes) {
        SCOPED_TRACE(change.flag);
        const PlainStatus off = withFlag(change.flag, false);
        const PlainStatus on = withFlag(change.flag, true);
        EXPECT_EQ(changeOf(SerialDeviceType::Dispenser, off, on), oneLine(change.on));
        EXPECT_EQ(changeOf(SerialDeviceType::Dispenser, on, off), oneLine(change.off));
        EXPECT_EQ(changeOf(SerialDeviceType::Mixer, off, on), oneLine(change.mixerOn));
        EXPECT_EQ(changeOf(SerialDeviceType::Mixer, on, off), oneLine(change.mixerOff));
        EXPECT_EQ(changeOf(SerialDeviceType::Scale, on, off), oneLine(change.mixerOff));
        EXPECT_EQ(changeOf(SerialDeviceType::Dispenser, on, on), QList<QString>());
        EXPECT_EQ(changeOf(SerialDeviceType::Mixer, off, off), QList<QString>());
    }
}

TEST(MachineStatusAnswer, describesAllChangesInTheirOrder)
{
    PlainStatus off;
    PlainStatus on;
    for (const auto &flag : machineFlags) {
        off.*flag.field = false;
        on.*flag.field = true;
    }
    QList<QString> goneOn;
    QList<QString> goneOff;
    QList<QString> mixerOn;
    QList<QString> mixerOff;
    for (const ChangeLine &change : changes) {
        goneOn += oneLine(change.on);
        goneOff += oneLine(change.off);
        mixerOn += oneLine(change.mixerOn);
        mixerOff += oneLine(change.mixerOff);
    }
    EXPECT_EQ(goneOn.size(), 21);
    EXPECT_EQ(goneOff.size(), 20);
    EXPECT_EQ(changeOf(SerialDeviceType::Dispenser, off, on), goneOn);
    EXPECT_EQ(changeOf(SerialDeviceType::Dispenser, on, off), goneOff);
    EXPECT_EQ(changeOf(SerialDeviceType::Mixer, off, on), mixerOn);
    EXPECT_EQ(changeOf(SerialDeviceType::Mixer, on, off), mixerOff);
}

TEST(MachineStatusAnswer, neverTellsOfAStartUpNorOfTheStatus)
{
    PlainStatus before;
    PlainStatus after = withFlag("startup", true);
    after.setStatus(2);
    EXPECT_NE(before, after);
    EXPECT_EQ(changeOf(SerialDeviceType::Dispenser, before, after), QList<QString>());
    EXPECT_EQ(changeOf(SerialDeviceType::Mixer, after, before), QList<QString>());
}

TEST(MachineStatusAnswer, hasNoChangesWithoutTwoStatuses)
{
    const PlainStatus on = withFlag("hw_error", true);
    for (SerialDeviceType device : {SerialDeviceType::Dispenser, SerialDeviceType::Mixer}) {
        SCOPED_TRACE(static_cast<int>(device));
        EXPECT_EQ(MachineStatusAnswer::getNewMachineStatesDescriptions(device, nullptr, &on),
                  QList<QString>());
        EXPECT_EQ(MachineStatusAnswer::getNewMachineStatesDescriptions(device, &on, nullptr),
                  QList<QString>());
        EXPECT_EQ(MachineStatusAnswer::getNewMachineStatesDescriptions(device, nullptr, nullptr),
                  QList<QString>());
    }
}

TEST(MachineStatusAnswer, translatesConditions)
{
    const TranslatedTexts translated;
    for (const ConditionLine &condition : conditions) {
        SCOPED_TRACE(condition.dispenser);
        const PlainStatus status = withFlag(condition.flag, true);
        EXPECT_EQ(status.getMachineStatusDescriptions(SerialDeviceType::Dispenser),
                  (StatusLines{{translation(condition.dispenser), condition.bad}}));
        EXPECT_EQ(status.getMachineStatusDescriptions(SerialDeviceType::Mixer),
                  (StatusLines{{translation(condition.mixer), condition.bad}}));
    }
}

TEST(MachineStatusAnswer, translatesWhatGoesOnAndLeavesWhatGoesOffAsWritten)
{
    const TranslatedTexts translated;
    for (const ChangeLine &change : changes) {
        SCOPED_TRACE(change.on);
        const PlainStatus off = withFlag(change.flag, false);
        const PlainStatus on = withFlag(change.flag, true);
        EXPECT_EQ(changeOf(SerialDeviceType::Dispenser, off, on), QList<QString>{translation(change.on)});
        EXPECT_EQ(changeOf(SerialDeviceType::Dispenser, on, off), oneLine(change.off));
        EXPECT_EQ(changeOf(SerialDeviceType::Mixer, off, on), QList<QString>{translation(change.mixerOn)});
        EXPECT_EQ(changeOf(SerialDeviceType::Mixer, on, off), oneLine(change.mixerOff));
    }
}

} // namespace
