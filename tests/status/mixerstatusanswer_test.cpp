// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/mixerstatusanswer.h"

#include "status/mixertesting.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_mixer.h>

#include <limits>
#include <memory>
#include <type_traits>

namespace {

using namespace testing_status;

constexpr char ofTokens[] = "MixerStatusAnswer::MixerStatusAnswer(QStringList)";
constexpr char ofValue[] = "MixerStatusAnswer::MixerStatusAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char badLength[] = "Error during command answer decoding: bad length";

using Names = std::set<std::string>;
using Number = int MixerStatusAnswer::*;

constexpr Number numbers[] = {&MixerStatusAnswer::cycle_id, &MixerStatusAnswer::m_timeleft,
                              &MixerStatusAnswer::mixing_speed, &MixerStatusAnswer::clamping_force,
                              &MixerStatusAnswer::clamping_height};
constexpr const char *numberNames[] = {"cycle_id", "timeleft", "mixing_speed", "clamping_force",
                                       "clamping_height"};

/** The names of the flags that are true, the machine's and the mixer's. */
Names setFlags(const MixerStatusAnswer &answer)
{
    Names names = setMachineFlags(answer);
    for (const auto &flag : mixerFlags) {
        if (answer.*flag.field)
            names.insert(flag.name);
    }
    return names;
}

bool &flagNamed(MixerStatusAnswer &answer, const std::string &name)
{
    for (const auto &flag : mixerFlags) {
        if (name == flag.name)
            return answer.*flag.field;
    }
    return machineFlagNamed(answer, name);
}

/** The names of all 42 flags. */
Names allFlags()
{
    Names names;
    for (const auto &flag : machineFlags)
        names.insert(flag.name);
    for (const auto &flag : mixerFlags)
        names.insert(flag.name);
    return names;
}

std::vector<int> numbersOf(const MixerStatusAnswer &answer)
{
    std::vector<int> values;
    for (const Number number : numbers)
        values.push_back(answer.*number);
    return values;
}

MixerStatusAnswer withFlag(const std::string &name)
{
    MixerStatusAnswer answer;
    answer.normal_wm = false; // so that a test sees one flag at a time
    flagNamed(answer, name) = true;
    return answer;
}

/** The answer in which every flag is on, and the numbers are told apart. */
MixerStatusAnswer fullAnswer()
{
    MixerStatusAnswer answer;
    answer.setStatus(2);
    for (const std::string &name : allFlags())
        flagNamed(answer, name) = true;
    answer.cycle_id = 3;
    answer.m_timeleft = 119;
    answer.mixing_speed = 40;
    answer.clamping_force = 7;
    answer.clamping_height = 300;
    return answer;
}

QStringList tokensWith(int index, const QString &token)
{
    QStringList tokens = idleMixerTokens();
    tokens[index] = token;
    return tokens;
}

/** The first tokens, with the length that fits them. */
QStringList firstTokens(int count)
{
    QStringList tokens = idleMixerTokens().mid(0, count);
    if (count > 0)
        tokens[0] = QString::number(count - 1, 16);
    return tokens;
}

// ---------------------------------------------------------------- construction

TEST(MixerStatusAnswer, startsCleared)
{
    const MixerStatusAnswer answer;
    EXPECT_EQ(answer.disp_status, 0);
    EXPECT_EQ(setFlags(answer), Names{"normal_wm"});
    EXPECT_EQ(numbersOf(answer), std::vector<int>(5, 0));
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(answer.serialParameters(), QStringList());
    EXPECT_EQ(allFlags().size(), 42U);
}

TEST(MixerStatusAnswer, readsNothingOfAList)
{
    const MixerStatusAnswer answer(List{2, true, QStringLiteral("mixing")});
    EXPECT_EQ(answer, MixerStatusAnswer());
    EXPECT_EQ(answer.protoType(), 1);
}

TEST(MixerStatusAnswer, isAMachineStatusFirstAndASerialAnswerNext)
{
    const MixerStatusAnswer answer;
    EXPECT_EQ(static_cast<const void *>(static_cast<const MachineStatusAnswer *>(&answer)), &answer);
    EXPECT_NE(static_cast<const void *>(static_cast<const SerialProtoAnswer *>(&answer)), &answer);
}

TEST(MixerStatusAnswer, hasItsFieldsInOrder)
{
    const MixerStatusAnswer answer;
    const auto *previous = reinterpret_cast<const char *>(static_cast<const SerialProtoAnswer *>(&answer));
    for (const auto &flag : mixerFlags) {
        const auto *field = reinterpret_cast<const char *>(&(answer.*flag.field));
        EXPECT_LT(previous, field) << flag.name;
        previous = field;
    }
    EXPECT_EQ(mixerFlags.size(), 20U);
    for (const Number number : numbers) {
        const auto *field = reinterpret_cast<const char *>(&(answer.*number));
        EXPECT_LT(previous, field);
        previous = field;
    }
}

TEST(MixerStatusAnswer, clearsItsOwnFieldsOrAll)
{
    MixerStatusAnswer own = fullAnswer();
    own.clear(false);
    Names machines;
    for (const auto &flag : machineFlags)
        machines.insert(flag.name);
    EXPECT_EQ(setFlags(own), machines);
    EXPECT_EQ(own.disp_status, 2);
    EXPECT_EQ(numbersOf(own), std::vector<int>(5, 0));

    MixerStatusAnswer all = fullAnswer();
    all.normal_wm = false;
    all.clear(true);
    EXPECT_EQ(all, MixerStatusAnswer());
    EXPECT_TRUE(all.normal_wm);
    EXPECT_EQ(all.disp_status, 0);
}

TEST(MixerStatusAnswer, copiesThroughBothBases)
{
    const MixerStatusAnswer answer = fullAnswer();
    const MachineStatusAnswer &machine = answer;
    const ProtoAnswer &proto = answer;
    const std::unique_ptr<MachineStatusAnswer> ofMachine(machine.clone());
    const std::unique_ptr<ProtoAnswer> ofProto(proto.clone());
    const MixerStatusAnswer copy(answer);
    int form = 0;
    for (const MixerStatusAnswer *same : {dynamic_cast<const MixerStatusAnswer *>(ofMachine.get()),
                                          dynamic_cast<const MixerStatusAnswer *>(ofProto.get()), &copy}) {
        SCOPED_TRACE(++form);
        ASSERT_TRUE(same);
        EXPECT_NE(same, &answer);
        EXPECT_EQ(setFlags(*same), allFlags());
        EXPECT_EQ(numbersOf(*same), (std::vector<int>{3, 119, 40, 7, 300}));
        EXPECT_EQ(same->disp_status, 2);
    }
}

// ---------------------------------------------------------------- tokens

struct BitRow
{
    int token;
    const char *mask;
    const char *flag;
};

constexpr BitRow bitRows[] = {
    {3, "1", "offline_pressed"},
    {3, "2", "board_not_initialized"},
    {3, "4", "cycle_active"},
    {3, "8", "clamping"},
    {3, "10", "mixing"},
    {3, "20", "startup"},
    {3, "40", "repositioning"},
    {4, "1", "plates_part_opened"},
    {4, "2", "not_locked_ver"},
    {4, "4", "BL_active"},
    {4, "8", "BL_memory_resetting"},
    {4, "10", "BL_fw_update"},
    {4, "20", "conf_writing"},
    {4, "40", "hw_error"},
    {5, "1", "conf_error"},
    {5, "4", "process_error"},
    {5, "8", "stop_process"},
    {5, "10", "dispenser_not_ready"},
    {5, "20", "new_buffered_error"},
    {5, "40", "emergency_pressed"},
    {6, "2", "intput_power_abs"},
    {6, "4", "lower_plate_extracted"},
    {6, "8", "can_present"},
    {6, "10", "door_partially_opened"},
    {6, "20", "shelf_down"},
    {6, "40", "shelf_up"},
    {7, "1", "can_in_plates"},
    {7, "2", "door_opening"},
    {7, "4", "door_closing"},
    {7, "8", "door_reset"},
    {7, "10", "cycle_interrupted"},
    {7, "20", "door_locked"},
    {7, "40", "door_open"},
    {8, "1", "config_changed"},
    {8, "2", "ready_next_cycle"},
    {8, "4", "cycle_on_hold"},
    {8, "8", "need_repositioning"},
    {8, "10", "door_unlocked"},
};

TEST(MixerStatusTokens, setOneFlagForEachBit)
{
    Names seen = {"normal_wm", "resetting", "machine_turned_off",
                  "machine_unlocked"}; // have no bit to set them
    for (const BitRow &row : bitRows) {
        SCOPED_TRACE(row.flag);
        const MixerStatusAnswer answer(tokensWith(row.token, QString::fromLatin1(row.mask)));
        EXPECT_EQ(setFlags(answer), (Names{"normal_wm", row.flag}));
        EXPECT_EQ(answer.disp_status, 1);
        EXPECT_EQ(numbersOf(answer), std::vector<int>(5, 0));
        EXPECT_TRUE(seen.insert(row.flag).second);
    }
    EXPECT_EQ(seen, allFlags()) << "each flag has its bit";
}

TEST(MixerStatusTokens, tellTheReservedModeByASetBit)
{
    EXPECT_EQ(setFlags(MixerStatusAnswer(tokensWith(6, "1"))), Names{});
    EXPECT_EQ(setFlags(MixerStatusAnswer(tokensWith(6, "0"))), Names{"normal_wm"});
    EXPECT_EQ(setFlags(MixerStatusAnswer(tokensWith(6, "3"))), Names{"intput_power_abs"});
}

TEST(MixerStatusTokens, setAllFlagsTogether)
{
    Names expected = allFlags();
    for (const char *never : {"normal_wm", "resetting", "machine_turned_off", "machine_unlocked"})
        expected.erase(never);
    for (const char *mask : {"7F", "7f", "FF", "FFFFFFFF", "0x7F"}) {
        const QString token = QString::fromLatin1(mask);
        const QStringList tokens = {"f",   "0", "2", token, token, token, token, token,
                                    token, "0", "0", "0",   "0",   "0",   "0",   "0"};
        const MixerStatusAnswer answer(tokens);
        EXPECT_EQ(setFlags(answer), expected) << mask;
        EXPECT_EQ(answer.disp_status, 2);
    }
}

TEST(MixerStatusTokens, leaveBitsAloneThatMeanNothing)
{
    for (int token : {3, 4, 5, 6, 7, 8}) {
        for (const char *mask : {"80", "FF80", "FFFFFF80"})
            EXPECT_EQ(setFlags(MixerStatusAnswer(tokensWith(token, mask))), Names{"normal_wm"}) << token;
    }
    EXPECT_EQ(setFlags(MixerStatusAnswer(tokensWith(5, "2"))), Names{"normal_wm"});
    EXPECT_EQ(setFlags(MixerStatusAnswer(tokensWith(8, "60"))), Names{"normal_wm"});
}

TEST(MixerStatusTokens, moveThePlateWhereADispenserMovesItsShelfTheOtherWay)
{
    const QStringList tokens = tokensWith(6, "20");
    EXPECT_TRUE(MixerStatusAnswer(tokens).shelf_down);
    EXPECT_FALSE(MixerStatusAnswer(tokens).shelf_up);
    EXPECT_TRUE(DispenserStatusAnswer(tokens).shelf_up);
    EXPECT_FALSE(DispenserStatusAnswer(tokens).shelf_down);
}

TEST(MixerStatusTokens, tellOfRepositioningWhereADispenserResets)
{
    const MixerStatusAnswer answer(tokensWith(3, "40"));
    EXPECT_TRUE(answer.repositioning);
    EXPECT_FALSE(answer.resetting);
}

TEST(MixerStatusTokens, tellTheNumbers)
{
    const MixerStatusAnswer answer(
        QStringList{"F", "0", "1", "0", "0", "0", "0", "0", "0", "3", "1", "2", "28", "A", "36", "1"});
    EXPECT_EQ(answer.cycle_id, 3);
    EXPECT_EQ(answer.m_timeleft, 1 + 2 * 246);
    EXPECT_EQ(answer.mixing_speed, 40);
    EXPECT_EQ(answer.clamping_force, 10);
    EXPECT_EQ(answer.clamping_height, 300);
    EXPECT_EQ(setFlags(answer), Names{"normal_wm"});
}

TEST(MixerStatusTokens, tellASingleNumberWhateverStandsThere)
{
    struct Row
    {
        const char *token;
        int number;
    };
    constexpr Row rows[] = {{"0", 0},        {"1", 1},        {"11", 17},       {"F5", 245},
                            {"f5", 245},     {"00F5", 245},   {"F5F", 3935},    {"7FFFFFFF", 2147483647},
                            {"80000000", 0}, {"FFFFFFFF", 0}, {"100000000", 0}, {"XY", 0},
                            {"", 0},         {"-", 0}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.token);
        EXPECT_EQ(numbersOf(MixerStatusAnswer(tokensWith(9, row.token))),
                  (std::vector<int>{row.number, 0, 0, 0, 0}));
        EXPECT_EQ(numbersOf(MixerStatusAnswer(tokensWith(12, row.token))),
                  (std::vector<int>{0, 0, row.number, 0, 0}));
        EXPECT_EQ(numbersOf(MixerStatusAnswer(tokensWith(13, row.token))),
                  (std::vector<int>{0, 0, 0, row.number, 0}));
    }
}

TEST(MixerStatusTokens, tellTwoDigitsLowFirst)
{
    struct Row
    {
        const char *low;
        const char *high;
        int number;
    };
    constexpr Row rows[] = {{"0", "0", 0},        {"1", "2", 493},
                            {"F5", "F5", 60515},  {"F5", "0", 245},
                            {"0", "1", 246},      {"FF", "1", 501},
                            {"x", "1", 0},        {"1", "x", 0},
                            {"", "", 0},          {"7FFFFFFF", "0", 2147483647},
                            {"7FFFFFFF", "1", 0}, {"0", "FFFFFFFF", 0}};
    for (const Row &row : rows) {
        SCOPED_TRACE(std::string(row.low) + ' ' + row.high);
        QStringList tokens = idleMixerTokens();
        tokens[10] = row.low;
        tokens[11] = row.high;
        EXPECT_EQ(numbersOf(MixerStatusAnswer(tokens)), (std::vector<int>{0, row.number, 0, 0, 0}));
        tokens = idleMixerTokens();
        tokens[14] = row.low;
        tokens[15] = row.high;
        EXPECT_EQ(numbersOf(MixerStatusAnswer(tokens)), (std::vector<int>{0, 0, 0, 0, row.number}));
    }
}

TEST(MixerStatusTokens, mayLackTheHighDigitOfTheHeight)
{
    QStringList tokens = firstTokens(15);
    tokens[14] = "36";
    EXPECT_EQ(MixerStatusAnswer(tokens).clamping_height, 54);
    tokens[14] = "x";
    EXPECT_EQ(MixerStatusAnswer(tokens).clamping_height, 0);
}

TEST(MixerStatusTokens, mayHoldAnythingInTheSecondPlaceAndBehindTheLast)
{
    for (const char *token : {"", "x", "FF", "1", "F5"})
        EXPECT_EQ(MixerStatusAnswer(tokensWith(1, token)), MixerStatusAnswer(idleMixerTokens())) << token;
    EXPECT_EQ(MixerStatusAnswer(idleMixerTokens() + QStringList{"7F", "rubbish"}),
              MixerStatusAnswer(idleMixerTokens()));
}

TEST(MixerStatusTokens, areKeptFromTheSecondOn)
{
    QStringList tokens = tokensWith(1, "any");
    const MixerStatusAnswer answer(tokens);
    tokens.removeFirst();
    EXPECT_EQ(answer.serialParameters(), tokens);
}

TEST(MixerStatusTokens, areRefusedWhenTooFew)
{
    for (int count = 0; count < 6; ++count) {
        SCOPED_TRACE(count);
        expectRefusal("DE00066", badLength, "MachineStatusAnswer::MachineStatusAnswer(QStringList)",
                      [&] { const MixerStatusAnswer answer(firstTokens(count)); });
    }
    for (int count = 6; count < 15; ++count) {
        SCOPED_TRACE(count);
        expectRefusal("DE02673", badLength, ofTokens,
                      [&] { const MixerStatusAnswer answer(firstTokens(count)); });
    }
    for (int count : {15, 16})
        EXPECT_EQ(MixerStatusAnswer(firstTokens(count)).disp_status, 1) << count;
}

TEST(MixerStatusTokens, areRefusedWhenFewerThanTheirLengthSays)
{
    expectRefusal("DE00077", badLength, "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                  [] { const MixerStatusAnswer answer(tokensWith(0, "10")); });
    EXPECT_EQ(MixerStatusAnswer(tokensWith(0, "6")).disp_status, 1) << "more than it says are taken";
}

TEST(MixerStatusTokens, areRefusedForAStatusOtherThanOneAndTwo)
{
    for (const char *status : {"0", "3", "11", "x", ""}) {
        SCOPED_TRACE(status);
        expectRefusal("DE00068", "Error during command answer decoding: conversion failed",
                      "MachineStatusAnswer::MachineStatusAnswer(QStringList)",
                      [&] { const MixerStatusAnswer answer(tokensWith(2, status)); });
    }
    EXPECT_EQ(MixerStatusAnswer(tokensWith(2, "2")).disp_status, 2);
}

struct MaskRow
{
    int token;
    const char *code;
    const char *text;
};

constexpr MaskRow maskRows[] = {
    {3, "DE02668", "Error during command answer decoding: mask 1"},
    {4, "DE02669", "Error during command answer decoding: mask 2"},
    {5, "DE02670", "Error during command answer decoding: mask 3"},
    {6, "DE02671", "Error during command answer decoding: mask 4"},
    {7, "DE02672", "Error during command answer decoding: mask 5"},
    {8, "DE02823", "Error during command answer decoding: mask 6"},
};

TEST(MixerStatusTokens, areRefusedWhenAMaskIsNoNumber)
{
    for (const MaskRow &row : maskRows) {
        for (const char *rubbish : {"G", "", "zz", "1 1", "7F7F7F7F7F", "--", "\xC3\xA9"}) {
            SCOPED_TRACE(std::string(row.code) + ' ' + rubbish);
            expectRefusal(row.code, row.text, ofTokens, [&] {
                const MixerStatusAnswer answer(tokensWith(row.token, QString::fromUtf8(rubbish)));
            });
        }
    }
}

TEST(MixerStatusTokens, areRefusedForTheFirstThingThatIsWrong)
{
    QStringList tokens = {"xx", "xx", "xx", "xx", "xx", "xx"};
    const auto expectNext = [&tokens](const char *code) {
        try {
            const MixerStatusAnswer answer(tokens);
            ADD_FAILURE() << "taken instead of " << code;
        } catch (const FW_Exception &refusal) {
            EXPECT_EQ(refusal.code(), code);
        }
    };
    expectNext("DE00068");
    tokens[2] = "1";
    expectNext("DE00070");
    tokens[0] = "6";
    expectNext("DE00077");
    tokens[0] = "5";
    expectNext("DE02673");
    while (tokens.size() < 16)
        tokens << "xx";
    for (const MaskRow &row : maskRows) {
        SCOPED_TRACE(row.code);
        expectNext(row.code);
        tokens[row.token] = "0";
    }
    EXPECT_EQ(numbersOf(MixerStatusAnswer(tokens)), std::vector<int>(5, 0));
}

// ---------------------------------------------------------------- masks alone

TEST(MixerStatusMasks, areDecodedFromTheFirstMaskOn)
{
    MixerStatusAnswer answer;
    FW_DriverError error;
    EXPECT_TRUE(answer.decodeSerialStatus(
        {"10", "1", "8", "4", "21", "C", "2", "36", "1", "28", "5", "1", "2"}, &error));
    EXPECT_EQ(setFlags(answer),
              (Names{"mixing", "plates_part_opened", "stop_process", "lower_plate_extracted", "normal_wm",
                     "can_in_plates", "door_locked", "cycle_on_hold", "need_repositioning"}));
    EXPECT_EQ(numbersOf(answer), (std::vector<int>{2, 300, 40, 5, 493}));
    EXPECT_EQ(answer.disp_status, 0) << "the status is no mask";
    EXPECT_EQ(error.code(), "");
}

TEST(MixerStatusMasks, standWithSevenNumbersOrSix)
{
    const QStringList thirteen = {"7F", "7F", "7F", "7F", "7F", "7F", "1", "1", "1", "1", "1", "1", "1"};
    for (int count = 0; count < 12; ++count) {
        MixerStatusAnswer answer;
        FW_DriverError error;
        EXPECT_FALSE(answer.decodeSerialStatus(thirteen.mid(0, count), &error));
        expectError(error, "DE02673", badLength);
        EXPECT_EQ(answer, MixerStatusAnswer()) << "nothing was read";
    }
    MixerStatusAnswer answer;
    EXPECT_TRUE(answer.decodeSerialStatus(thirteen.mid(0, 12), nullptr));
    EXPECT_EQ(numbersOf(answer), (std::vector<int>{1, 247, 1, 1, 1}));
    EXPECT_TRUE(answer.decodeSerialStatus(thirteen, nullptr));
    EXPECT_EQ(numbersOf(answer), (std::vector<int>{1, 247, 1, 1, 247}));
    EXPECT_FALSE(answer.decodeSerialStatus({}, nullptr));
}

TEST(MixerStatusMasks, stayAsFarAsTheyWereRead)
{
    MixerStatusAnswer answer = fullAnswer();
    FW_DriverError error;
    EXPECT_FALSE(
        answer.decodeSerialStatus({"0", "0", "0", "1", "G", "0", "9", "9", "9", "9", "9", "9", "9"}, &error));
    expectError(error, "DE02672", "Error during command answer decoding: mask 5");
    Names rest = {"resetting", "machine_turned_off", "machine_unlocked"};
    for (const BitRow &row : bitRows) {
        if (row.token > 6)
            rest.insert(row.flag);
    }
    EXPECT_EQ(setFlags(answer), rest) << "a word is set in full, and what is not read stays";
    EXPECT_EQ(numbersOf(answer), (std::vector<int>{3, 119, 40, 7, 300}));
    EXPECT_FALSE(
        answer.decodeSerialStatus({"x", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"}, nullptr));
}

// ---------------------------------------------------------------- XML-RPC

TEST(MixerStatusXmlRpc, isAFlatStructOfAllFields)
{
    constexpr char cleared[] =
        R"({"BL_active": false, "BL_fw_update": false, "BL_memory_resetting": false, "WM_set": false, )"
        R"("board_not_initialized": false, "can_in_plates": false, "can_present": false, )"
        R"("clamping": false, "clamping_force": 0, "clamping_height": 0, "conf_error": false, )"
        R"("conf_writing": false, "config_changed": false, "cycle_active": false, "cycle_id": 0, )"
        R"("cycle_interrupted": false, "cycle_on_hold": false, "disp_info_erasing": false, )"
        R"("disp_info_writing": false, "disp_status": 0, "dispenser_not_ready": false, )"
        R"("door_closing": false, "door_locked": false, "door_open": false, "door_opening": false, )"
        R"("door_partially_opened": false, "door_reset": false, "door_unlocked": false, )"
        R"("emergency_pressed": false, "hw_error": false, "intput_power_abs": false, )"
        R"("lower_plate_extracted": false, "mixing": false, "mixing_speed": 0, )"
        R"("need_repositioning": false, "new_buffered_error": false, "normal_wm": true, )"
        R"("not_locked_ver": false, "offline_pressed": false, "plates_part_opened": false, )"
        R"("process_error": false, "ready_next_cycle": false, "repositioning": false, )"
        R"("resetting": false, "shelf_down": false, "shelf_up": false, "startup": false, )"
        R"("stop_process": false, "timeleft": 0})";
    EXPECT_EQ(dumped(MixerStatusAnswer().toXmlRpcValue()), cleared);
}

TEST(MixerStatusXmlRpc, doesNotTellTheTwoFlagsThatNoMixerHas)
{
    const Value value = fullAnswer().toXmlRpcValue();
    EXPECT_FALSE(value.hasMember("machine_turned_off"));
    EXPECT_FALSE(value.hasMember("machine_unlocked"));
    EXPECT_EQ(value.size(), 1 + 20 + 3 + 20 + 5);
    for (const auto &[name, member] : value) {
        if (member.getType() == Value::TypeBoolean) {
            const bool unused =
                name == "WM_set" || name == "disp_info_writing" || name == "disp_info_erasing";
            EXPECT_EQ(dumped(member), unused ? "false" : "true") << name;
        }
    }
    const std::vector<std::string> expected = {"3", "119", "40", "7", "300"};
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(dumped(value[numberNames[i]]), expected[i]) << numberNames[i];
    EXPECT_EQ(dumped(value["disp_status"]), "2");
}

TEST(MixerStatusXmlRpc, carriesEachFieldThereAndBack)
{
    for (const std::string &name : allFlags()) {
        SCOPED_TRACE(name);
        const bool isWritten = name != "machine_turned_off" && name != "machine_unlocked";
        const MixerStatusAnswer back(withFlag(name).toXmlRpcValue());
        EXPECT_EQ(setFlags(back), isWritten ? Names{name} : Names{});
        Value value = idleMixerStruct();
        value["normal_wm"] = false;
        value[name] = true;
        EXPECT_EQ(setFlags(MixerStatusAnswer(value)), Names{name});
    }
    for (std::size_t i = 0; i < std::size(numbers); ++i) {
        SCOPED_TRACE(numberNames[i]);
        for (int number : {1, -7, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            MixerStatusAnswer answer;
            answer.*numbers[i] = number;
            const MixerStatusAnswer back(answer.toXmlRpcValue());
            EXPECT_EQ(back.*numbers[i], number);
            EXPECT_EQ(back, answer);
        }
    }
}

TEST(MixerStatusXmlRpc, needsEachOfItsOwnMembers)
{
    const auto expectNeeded = [](const char *key, const char *code) {
        const std::string text = "MixerStatusAnswer: expected " + std::string(key) + " value";
        expectRefusal(code, text.c_str(), ofValue,
                      [&] { const MixerStatusAnswer answer(without(idleMixerStruct(), key)); });
        for (const Value &other : {Value("true"), Value(7.5), arrayOf(), structOf({})}) {
            SCOPED_TRACE(dumped(other));
            Value value = idleMixerStruct();
            value[key] = other;
            expectRefusal(code, text.c_str(), ofValue, [&] { const MixerStatusAnswer answer(value); });
        }
    };
    Value value = idleMixerStruct();
    for (const auto &flag : mixerFlags) {
        SCOPED_TRACE(flag.name);
        expectNeeded(flag.name, "DE00026");
        value[flag.name] = 1;
    }
    for (const char *name : numberNames) {
        SCOPED_TRACE(name);
        expectNeeded(name, "DE02667");
        value[name] = true;
    }
    // all of another type: the first in the order of the fields is refused
    const auto expectNext = [&value](const std::string &key) {
        try {
            const MixerStatusAnswer answer(value);
            ADD_FAILURE() << "taken instead of " << key;
        } catch (const FW_Exception &refusal) {
            EXPECT_EQ(refusal.text().toStdString(), "MixerStatusAnswer: expected " + key + " value");
        }
    };
    for (const auto &flag : mixerFlags) {
        expectNext(flag.name);
        value[flag.name] = false;
    }
    for (const char *name : numberNames) {
        expectNext(name);
        value[name] = 0;
    }
    EXPECT_EQ(setFlags(MixerStatusAnswer(value)), Names{"normal_wm"});
}

TEST(MixerStatusXmlRpc, needsWhatEveryMachineTells)
{
    constexpr char ofMachine[] = "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)";
    for (const Value &value : {Value(), Value(0), arrayOf(), structOf({})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00443", "MachineStatusAnswer: expected disp_status value", ofMachine,
                      [&] { const MixerStatusAnswer answer(value); });
    }
    expectRefusal("DE00026", "MachineStatusAnswer: expected resetting value", ofMachine,
                  [] { const MixerStatusAnswer answer(without(idleMixerStruct(), "resetting")); });
    expectRefusal("DE00026", "DispenserStatusAnswer: expected can_present value", ofMachine,
                  [] { const MixerStatusAnswer answer(without(idleMixerStruct(), "can_present")); });
    EXPECT_TRUE(MixerStatusAnswer(without(idleMixerStruct(), "normal_wm")).normal_wm);
}

// ---------------------------------------------------------------- comparing

TEST(MixerStatusAnswer, differsInEachField)
{
    const MixerStatusAnswer idle;
    for (const std::string &name : allFlags()) {
        SCOPED_TRACE(name);
        MixerStatusAnswer other;
        flagNamed(other, name) = !flagNamed(other, name);
        EXPECT_TRUE(idle != other);
        EXPECT_FALSE(idle == other);
        EXPECT_FALSE(idle.equalTo(static_cast<const ProtoAnswer *>(&other)));
    }
    for (const Number number : numbers) {
        MixerStatusAnswer other;
        other.*number = 1;
        EXPECT_NE(idle, other);
    }
    MixerStatusAnswer other;
    other.setStatus(1);
    EXPECT_NE(idle, other);
    EXPECT_EQ(fullAnswer(), fullAnswer());
}

TEST(MixerStatusAnswer, isEqualToItsKindOnly)
{
    const MixerStatusAnswer answer;
    const MixerStatusAnswer same;
    const DispenserStatusAnswer dispenser;
    const SerialProtoAnswer plain;
    EXPECT_TRUE(answer.equalTo(static_cast<const ProtoAnswer *>(&same)));
    EXPECT_FALSE(answer.equalTo(static_cast<const ProtoAnswer *>(&dispenser)));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(static_cast<const ProtoAnswer *>(nullptr)));
}

// ---------------------------------------------------------------- what it means

TEST(MixerStatusAnswer, takesCommandsUnlessOneOfFourFlagsIsSet)
{
    for (const std::string &name : allFlags()) {
        const bool refuses = name == "board_not_initialized" || name == "dispenser_not_ready" ||
                             name == "emergency_pressed" || name == "offline_pressed";
        EXPECT_EQ(withFlag(name).acceptCommands(), !refuses) << name;
    }
    EXPECT_TRUE(MixerStatusAnswer().acceptCommands());
    EXPECT_FALSE(fullAnswer().acceptCommands());
}

TEST(MixerStatusAnswer, tellsTheTimeLeftInWholeUnits)
{
    MixerStatusAnswer answer;
    answer.m_timeleft = 119;
    EXPECT_EQ(answer.timeleft(1), 119);
    EXPECT_EQ(answer.timeleft(2), 1);
    EXPECT_EQ(answer.timeleft(3), 0);
    EXPECT_EQ(answer.timeleft(7), 119);
    EXPECT_EQ(answer.timeleft(0), 119);
    EXPECT_EQ(answer.timeleft(-1), 119);
    answer.m_timeleft = 7200;
    EXPECT_EQ(answer.timeleft(2), 120);
    EXPECT_EQ(answer.timeleft(3), 2);
    answer.m_timeleft = 7199;
    EXPECT_EQ(answer.timeleft(3), 1);
}

struct Described
{
    const char *flag;
    const char *text;
    bool bad;
};

constexpr Described described[] = {
    {"emergency_pressed", "Emergency button pressed", true},
    {"offline_pressed", "Mixer offline", true},
    {"board_not_initialized", "Board not initialized", true},
    {"startup", "Startup in progress", true},
    {"resetting", "Reset in progress", false},
    {"BL_active", "Boot loader is active", false},
    {"BL_memory_resetting", "Boot loader memory reset", false},
    {"BL_fw_update", "Boot loader firmware update", false},
    {"conf_writing", "Configuration writing", false},
    {"hw_error", "Hardware error present", true},
    {"conf_error", "Configuration error present", true},
    {"can_present", "Can is present", false},
    {"shelf_up", "Upper plate moving up", false},
    {"shelf_down", "Upper plate moving down", false},
    {"door_open", "Door open", false},
    {"machine_turned_off", "Machine turned off while working", true},
    {"machine_unlocked", "Machine unlocked", false},
    {"repositioning", "Repositioning in progress", false},
    {"clamping", "Plates movement in progress", false},
    {"mixing", "Mixing in progress", false},
    {"cycle_active", "Cycle in progress", false},
    {"plates_part_opened", "Plates partially opened", false},
    {"not_locked_ver", "Plates not locked in vertical position", false},
    {"ready_next_cycle", "Ready for next cycle", false},
    {"cycle_on_hold", "Cycle on hold, waiting start", false},
    {"intput_power_abs", "Input power supply absent", true},
    {"lower_plate_extracted", "Lower plate extracted", true},
    {"can_in_plates", "Can clamped between plates", false},
    {"door_opening", "Door opening", false},
    {"door_closing", "Door closing", false},
    {"door_reset", "Automatic door reset in progress", false},
    {"cycle_interrupted", "Cycle interrupted", true},
    {"door_locked", "Door locked", false},
    {"need_repositioning", "Repositioning needed", true},
    {"door_unlocked", "Door unlocked", false},
};

TEST(MixerStatusDescriptions, tellWhatLastsInOrder)
{
    std::vector<Line> lines;
    for (const Described &row : described) {
        SCOPED_TRACE(row.flag);
        lines.push_back({row.text, row.bad});
        const MixerStatusAnswer answer = withFlag(row.flag);
        EXPECT_EQ(answer.getStatusDescriptions(nullptr), linesOf({{row.text, row.bad}}));
        EXPECT_EQ(answer.hasBadWorkingState(), row.bad);
        EXPECT_EQ(answer.getFirstBadWorkingState(), row.bad ? row.text : "");
    }
    const FW_Dispenser dispenser;
    const FW_Mixer mixer;
    for (const FW_Machine *machine :
         {static_cast<const FW_Machine *>(nullptr), static_cast<const FW_Machine *>(&dispenser),
          static_cast<const FW_Machine *>(&mixer)})
        EXPECT_EQ(fullAnswer().getStatusDescriptions(machine), linesOf(lines));
    EXPECT_EQ(fullAnswer().getFirstBadWorkingState(), "Emergency button pressed");
}

TEST(MixerStatusDescriptions, saveTheirWordsOnOtherFlags)
{
    Names silent = allFlags();
    for (const Described &row : described)
        silent.erase(row.flag);
    EXPECT_EQ(silent, (Names{"process_error", "stop_process", "new_buffered_error", "dispenser_not_ready",
                             "normal_wm", "door_partially_opened", "config_changed"}));
    for (const std::string &name : silent) {
        const MixerStatusAnswer answer = withFlag(name);
        EXPECT_EQ(answer.getStatusDescriptions(nullptr), StatusLines()) << name;
        EXPECT_FALSE(answer.hasBadWorkingState()) << name;
    }
}

TEST(MixerStatusDescriptions, areTranslated)
{
    const TranslatedTexts translated;
    EXPECT_EQ(withFlag("need_repositioning").getFirstBadWorkingState(), translation("Repositioning needed"));
    for (const Described &row : described)
        EXPECT_EQ(withFlag(row.flag).getStatusDescriptions(nullptr).value(0).first, translation(row.text))
            << row.flag;
}

TEST(MixerStatusChanges, tellOfTheMachineInWordsForAMixer)
{
    const auto changes = [](const MixerStatusAnswer &before, const MixerStatusAnswer &after) {
        return MixerStatusAnswer::getNewStatesDescriptions(&before, &after);
    };
    MixerStatusAnswer idle;
    idle.normal_wm = false;
    EXPECT_EQ(changes(idle, withFlag("offline_pressed")), QList<QString>{"Mixer offline"});
    EXPECT_EQ(changes(withFlag("offline_pressed"), idle), QList<QString>{"Mixer online"});
    EXPECT_EQ(changes(idle, withFlag("dispenser_not_ready")), QList<QString>{"Mixer not available"});
    EXPECT_EQ(changes(withFlag("dispenser_not_ready"), idle), QList<QString>{"Mixer available"});
    EXPECT_EQ(changes(idle, withFlag("shelf_up")), QList<QString>{"Upper plate moving up"});
    EXPECT_EQ(changes(withFlag("shelf_down"), withFlag("shelf_up")),
              (QList<QString>{"Upper plate moving up", "Upper plate staying idle"}));
    EXPECT_EQ(changes(idle, MixerStatusAnswer()), QList<QString>{"Running normal mode"});
}

TEST(MixerStatusChanges, areSilentOfTheMixersOwnFields)
{
    for (const auto &flag : mixerFlags) {
        MixerStatusAnswer idle;
        idle.normal_wm = false;
        const MixerStatusAnswer on = withFlag(flag.name);
        EXPECT_NE(idle, on);
        EXPECT_EQ(MixerStatusAnswer::getNewStatesDescriptions(&idle, &on), QList<QString>()) << flag.name;
        EXPECT_EQ(MixerStatusAnswer::getNewStatesDescriptions(&on, &idle), QList<QString>()) << flag.name;
    }
}

TEST(MixerStatusChanges, areNoneWithoutBothStatuses)
{
    const MixerStatusAnswer full = fullAnswer();
    EXPECT_EQ(MixerStatusAnswer::getNewStatesDescriptions(nullptr, &full), QList<QString>());
    EXPECT_EQ(MixerStatusAnswer::getNewStatesDescriptions(&full, nullptr), QList<QString>());
    EXPECT_EQ(MixerStatusAnswer::getNewStatesDescriptions(nullptr, nullptr), QList<QString>());
}

} // namespace
