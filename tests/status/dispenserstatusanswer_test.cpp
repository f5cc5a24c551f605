// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatusanswer.h"

#include "status/statustesting.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_version.h>

#include <limits>
#include <memory>
#include <type_traits>

namespace {

using namespace testing_status;

constexpr char ofTokens[] = "DispenserStatusAnswer::DispenserStatusAnswer(QStringList)";
constexpr char ofValue[] = "DispenserStatusAnswer::DispenserStatusAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char badMask10[] = "Error during command answer decoding: mask 10";

using Names = std::set<std::string>;

/** The names of all 61 flags. */
Names allFlags()
{
    Names names;
    for (const auto &flag : machineFlags)
        names.insert(flag.name);
    for (const auto &flag : dispenserFlags)
        names.insert(flag.name);
    return names;
}

DispenserStatusAnswer withFlag(const std::string &name, bool on = true)
{
    DispenserStatusAnswer answer;
    answer.normal_wm = false; // so that a test sees one flag at a time
    flagNamed(answer, name) = on;
    return answer;
}

/** The answer in which every flag is on, and the positions are told apart. */
DispenserStatusAnswer fullAnswer()
{
    DispenserStatusAnswer answer;
    answer.setStatus(2);
    for (const std::string &name : allFlags())
        flagNamed(answer, name) = true;
    answer.current_position_id = 17;
    answer.current_position_id_zone = 3;
    return answer;
}

QStringList tokensWith(int index, const QString &token)
{
    QStringList tokens = idleTokens();
    tokens[index] = token;
    return tokens;
}

/** The first tokens, with the length that fits them. */
QStringList firstTokens(int count)
{
    QStringList tokens = idleTokens().mid(0, count);
    if (count > 0)
        tokens[0] = QString::number(count - 1, 16);
    return tokens;
}

// ---------------------------------------------------------------- construction

TEST(DispenserStatusAnswer, startsCleared)
{
    const DispenserStatusAnswer answer;
    EXPECT_EQ(answer.disp_status, 0);
    EXPECT_EQ(setFlags(answer), Names{"normal_wm"});
    EXPECT_EQ(answer.current_position_id, 0);
    EXPECT_EQ(answer.current_position_id_zone, 0);
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(answer.serialParameters(), QStringList());
    EXPECT_EQ(allFlags().size(), 61U);
}

TEST(DispenserStatusAnswer, readsNothingOfAList)
{
    const DispenserStatusAnswer answer(List{2, true, QStringLiteral("tinting")});
    EXPECT_EQ(answer, DispenserStatusAnswer());
    EXPECT_EQ(answer.protoType(), 1);
}

TEST(DispenserStatusAnswer, isAMachineStatusFirstAndASerialAnswerNext)
{
    static_assert(std::is_base_of_v<MachineStatusAnswer, DispenserStatusAnswer>);
    static_assert(std::is_base_of_v<SerialProtoAnswer, DispenserStatusAnswer>);
    const DispenserStatusAnswer answer;
    EXPECT_EQ(static_cast<const void *>(static_cast<const MachineStatusAnswer *>(&answer)), &answer);
    EXPECT_NE(static_cast<const void *>(static_cast<const SerialProtoAnswer *>(&answer)), &answer);
}

TEST(DispenserStatusAnswer, hasItsFieldsInOrder)
{
    const DispenserStatusAnswer answer;
    const auto *previous = reinterpret_cast<const char *>(static_cast<const SerialProtoAnswer *>(&answer));
    for (const auto &flag : dispenserFlags) {
        const auto *field = reinterpret_cast<const char *>(&(answer.*flag.field));
        EXPECT_LT(previous, field) << flag.name;
        previous = field;
    }
    EXPECT_EQ(dispenserFlags.size(), 39U);
    EXPECT_LT(previous, reinterpret_cast<const char *>(&answer.current_position_id));
    EXPECT_LT(&answer.current_position_id, &answer.current_position_id_zone);
}

TEST(DispenserStatusAnswer, clearsItsOwnFieldsOrAll)
{
    DispenserStatusAnswer own = fullAnswer();
    own.clear(false);
    Names machines;
    for (const auto &flag : machineFlags)
        machines.insert(flag.name);
    EXPECT_EQ(setFlags(own), machines);
    EXPECT_EQ(own.disp_status, 2);
    EXPECT_EQ(own.current_position_id, 0);
    EXPECT_EQ(own.current_position_id_zone, 0);

    DispenserStatusAnswer all = fullAnswer();
    all.normal_wm = false;
    all.clear(true);
    EXPECT_EQ(all, DispenserStatusAnswer());
    EXPECT_FALSE(all.pumping);
    EXPECT_TRUE(all.normal_wm);
}

TEST(DispenserStatusAnswer, copiesThroughBothBases)
{
    const DispenserStatusAnswer answer = fullAnswer();
    const MachineStatusAnswer &machine = answer;
    const ProtoAnswer &proto = answer;
    const std::unique_ptr<MachineStatusAnswer> ofMachine(machine.clone());
    const std::unique_ptr<ProtoAnswer> ofProto(proto.clone());
    const DispenserStatusAnswer copy(answer);
    int form = 0;
    for (const DispenserStatusAnswer *same :
         {dynamic_cast<const DispenserStatusAnswer *>(ofMachine.get()),
          dynamic_cast<const DispenserStatusAnswer *>(ofProto.get()), &copy}) {
        SCOPED_TRACE(++form);
        ASSERT_TRUE(same);
        EXPECT_NE(same, &answer);
        EXPECT_EQ(*same, answer);
        EXPECT_EQ(setFlags(*same), allFlags());
        EXPECT_EQ(same->current_position_id, 17);
        EXPECT_EQ(same->current_position_id_zone, 3);
        EXPECT_EQ(same->protoType(), 1);
    }
}

TEST(DispenserStatusAnswer, keepsItsTokensInACopy)
{
    const DispenserStatusAnswer answer(firstTokens(7));
    const std::unique_ptr<DispenserStatusAnswer> copy(answer.clone());
    EXPECT_EQ(copy->serialParameters(), QStringList({"0", "1", "0", "0", "0", "0"}));
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
    {3, "4", "tinting"},
    {3, "8", "recirculating"},
    {3, "10", "stirring"},
    {3, "20", "startup"},
    {3, "40", "resetting"},
    {4, "1", "valve_on"},
    {4, "2", "cap_open"},
    {4, "4", "BL_active"},
    {4, "8", "BL_memory_resetting"},
    {4, "10", "BL_fw_update"},
    {4, "20", "conf_writing"},
    {4, "40", "hw_error"},
    {5, "1", "conf_error"},
    {5, "2", "bellow_up"},
    {5, "4", "process_error"},
    {5, "8", "stop_process"},
    {5, "10", "dispenser_not_ready"},
    {5, "20", "new_buffered_error"},
    {5, "40", "emergency_pressed"},
    {6, "2", "no_24_voltage"},
    {6, "4", "no_48_voltage"},
    {6, "8", "can_present"},
    {6, "10", "punching"},
    {6, "20", "shelf_up"},
    {6, "40", "shelf_down"},
    {7, "1", "slave_scan"},
    {7, "2", "post_erogation"},
    {7, "4", "turntable_moving"},
    {7, "8", "cleaning"},
    {7, "10", "formula_interrupted"},
    {7, "20", "nozzle_valve_working_pos"},
    {7, "40", "door_open"},
    {10, "1", "circuit_fin_presence"},
    {10, "2", "airpurge"},
    {10, "4", "head1_can_dose"},
    {10, "8", "head2_can_dose"},
    {11, "1", "predispensing"},
    {11, "2", "pumping"},
    {11, "4", "nozzle_moving"},
    {11, "8", "machine_turned_off"},
    {11, "10", "machine_unlocked"},
    {11, "20", "nozzle_valve_open_accurate"},
    {11, "40", "canister_lvl_critical"},
    {12, "1", "new_cleaning_stats"},
    {12, "2", "stall_low"},
    {12, "4", "stall_high"},
    {12, "8", "check_level_in_progress"},
    {12, "10", "speed_red_in_recirc"},
    {12, "20", "plc_start_activated"},
    {12, "40", "plc_stop_activated"},
    {13, "4", "m_zdr_mixingInProgress"},
    {13, "8", "m_zdr_openingPlatesInProgress"},
    {13, "10", "m_zdr_closingPlatesInProgress"},
    {13, "20", "m_zdr_pluggingInProgress"},
    {13, "40", "m_zdr_canCentered"},
    {14, "2", "m_zdr_plasticPlugReserve"},
    {14, "4", "m_zdr_plasticPlugNotMounted"},
    {14, "8", "m_zdr_homePosition"},
};

TEST(DispenserStatusTokens, setOneFlagForEachBit)
{
    Names seen = {"normal_wm"};
    for (const BitRow &row : bitRows) {
        SCOPED_TRACE(row.flag);
        const DispenserStatusAnswer answer(tokensWith(row.token, QString::fromLatin1(row.mask)));
        EXPECT_EQ(setFlags(answer), (Names{"normal_wm", row.flag}));
        EXPECT_EQ(answer.disp_status, 1);
        EXPECT_EQ(answer.current_position_id, 0);
        EXPECT_EQ(answer.current_position_id_zone, 0);
        EXPECT_TRUE(seen.insert(row.flag).second);
    }
    EXPECT_EQ(seen, allFlags()) << "each flag has its bit";
}

TEST(DispenserStatusTokens, tellTheReservedModeByASetBit)
{
    EXPECT_EQ(setFlags(DispenserStatusAnswer(tokensWith(6, "1"))), Names{});
    EXPECT_EQ(setFlags(DispenserStatusAnswer(tokensWith(6, "0"))), Names{"normal_wm"});
    EXPECT_EQ(setFlags(DispenserStatusAnswer(tokensWith(6, "3"))), Names{"no_24_voltage"});
}

TEST(DispenserStatusTokens, setAllFlagsTogether)
{
    Names expected = allFlags();
    expected.erase("normal_wm");
    for (const char *mask : {"7F", "7f", "FF", "FFFFFFFF", "0x7F"}) {
        const QString token = QString::fromLatin1(mask);
        const QStringList tokens = {"e", "0", "2",   token, token, token, token, token,
                                    "0", "0", token, token, token, token, token};
        const DispenserStatusAnswer answer(tokens);
        EXPECT_EQ(setFlags(answer), expected) << mask;
        EXPECT_EQ(answer.disp_status, 2);
    }
}

TEST(DispenserStatusTokens, leaveBitsAloneThatMeanNothing)
{
    for (int token : {3, 4, 5, 6, 7, 10, 11, 12, 13, 14}) {
        for (const char *mask : {"80", "FF80", "FFFFFF80"})
            EXPECT_EQ(setFlags(DispenserStatusAnswer(tokensWith(token, mask))), Names{"normal_wm"}) << token;
    }
    EXPECT_EQ(setFlags(DispenserStatusAnswer(tokensWith(10, "70"))), Names{"normal_wm"});
    EXPECT_EQ(setFlags(DispenserStatusAnswer(tokensWith(13, "3"))), Names{"normal_wm"});
    EXPECT_EQ(setFlags(DispenserStatusAnswer(tokensWith(14, "71"))), Names{"normal_wm"});
}

TEST(DispenserStatusTokens, tellThePositionAndItsZone)
{
    struct Row
    {
        const char *token;
        int number;
    };
    constexpr Row rows[] = {
        {"0", 0},        {"1", 1},        {"11", 17},  {"f4", 244}, {"F5", 0},
        {"f5", 0},       {"00F5", 0},     {"F6", 246}, {"FF", 255}, {"7FFFFFFF", 2147483647},
        {"80000000", 0}, {"FFFFFFFF", 0}, {"XY", 0},   {"", 0},     {"-", 0},
        {"F5F", 3935},   {"100000000", 0}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.token);
        const DispenserStatusAnswer position(tokensWith(8, row.token));
        EXPECT_EQ(position.current_position_id, row.number);
        EXPECT_EQ(position.current_position_id_zone, 0);
        const DispenserStatusAnswer zone(tokensWith(9, row.token));
        EXPECT_EQ(zone.current_position_id, 0);
        EXPECT_EQ(zone.current_position_id_zone, row.number);
        EXPECT_EQ(setFlags(zone), Names{"normal_wm"});
    }
}

TEST(DispenserStatusTokens, mayHoldAnythingInTheSecondPlace)
{
    for (const char *token : {"", "x", "FF", "1", "F5"})
        EXPECT_EQ(DispenserStatusAnswer(tokensWith(1, token)), DispenserStatusAnswer(idleTokens())) << token;
}

TEST(DispenserStatusTokens, areKeptFromTheSecondOn)
{
    const DispenserStatusAnswer answer(QStringList{"6", "any", "2", "7f", "0", "0", "0"});
    EXPECT_EQ(answer.serialParameters(), QStringList({"any", "2", "7f", "0", "0", "0"}));
}

TEST(DispenserStatusTokens, mayEndAfterAnyWordFromTheFourthMaskOn)
{
    const QStringList all = {"E", "0", "2", "4", "1", "2", "2", "4", "11", "3", "2", "1", "2", "8", "8"};
    // what each token adds to what the seven that must be there tell
    const std::vector<Names> flags = {{"turntable_moving"},
                                      {},
                                      {},
                                      {"airpurge"},
                                      {"predispensing"},
                                      {"stall_low"},
                                      {"m_zdr_openingPlatesInProgress"},
                                      {"m_zdr_homePosition"}};
    Names expected = {"normal_wm", "tinting", "valve_on", "bellow_up", "no_24_voltage"};
    for (int count = 7; count <= 15; ++count) {
        SCOPED_TRACE(count);
        QStringList tokens = all.mid(0, count);
        tokens[0] = QString::number(count - 1, 16);
        const DispenserStatusAnswer answer(tokens);
        if (count > 7)
            expected.insert(flags[static_cast<std::size_t>(count - 8)].begin(),
                            flags[static_cast<std::size_t>(count - 8)].end());
        EXPECT_EQ(setFlags(answer), expected);
        EXPECT_EQ(answer.disp_status, 2);
        EXPECT_EQ(answer.current_position_id, count > 8 ? 17 : 0);
        EXPECT_EQ(answer.current_position_id_zone, count > 9 ? 3 : 0);
    }
}

TEST(DispenserStatusTokens, mayGoOnAfterTheLastMask)
{
    const QStringList more = idleTokens() + QStringList{"7F", "rubbish"};
    EXPECT_EQ(DispenserStatusAnswer(more), DispenserStatusAnswer(idleTokens()));
}

TEST(DispenserStatusTokens, areRefusedWhenTooFew)
{
    for (int count = 0; count < 6; ++count) {
        SCOPED_TRACE(count);
        expectRefusal("DE00066", "Error during command answer decoding: bad length",
                      "MachineStatusAnswer::MachineStatusAnswer(QStringList)",
                      [&] { const DispenserStatusAnswer answer(firstTokens(count)); });
    }
    expectRefusal("DE02666", "Error during command answer decoding", ofTokens,
                  [] { const DispenserStatusAnswer answer(firstTokens(6)); });
    for (int count = 7; count <= 15; ++count)
        EXPECT_EQ(DispenserStatusAnswer(firstTokens(count)).disp_status, 1) << count;
}

TEST(DispenserStatusTokens, areRefusedWhenOneIsNoNumber)
{
    struct Row
    {
        int token;
        const char *code; ///< empty: it is taken
        const char *text;
        const char *function;
    };
    static constexpr char ofMachine[] = "MachineStatusAnswer::MachineStatusAnswer(QStringList)";
    static constexpr char ofSerial[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    constexpr Row rows[] = {
        {0, "DE00070", "Invalid parameter length type found in answer", ofSerial},
        {1, "", "", ""},
        {2, "DE00068", "Error during command answer decoding: conversion failed", ofMachine},
        {3, "DE00128", "Error during command answer decoding: mask 1", ofTokens},
        {4, "DE00129", "Error during command answer decoding: mask 2", ofTokens},
        {5, "DE00130", "Error during command answer decoding: mask 3", ofTokens},
        {6, "DE00113", "Error during command answer decoding: mask 4", ofTokens},
        {7, "DE01454", "Error during command answer decoding: mask 5", ofTokens},
        {8, "", "", ""},
        {9, "", "", ""},
        {10, "DE02242", "Error during command answer decoding: mask 8", ofTokens},
        {11, "DE02430", "Error during command answer decoding: mask 9", ofTokens},
        {12, "DE02628", badMask10, ofTokens},
        {13, "DE02877", badMask10, ofTokens},
        {14, "DE02878", badMask10, ofTokens},
    };
    for (const Row &row : rows) {
        for (const char *rubbish : {"G", "", "zz", "1 1", "7F7F7F7F7F", "--", "\xC3\xA9"}) {
            SCOPED_TRACE(std::to_string(row.token) + ' ' + rubbish);
            const QStringList tokens = tokensWith(row.token, QString::fromUtf8(rubbish));
            if (*row.code)
                expectRefusal(row.code, row.text, row.function,
                              [&] { const DispenserStatusAnswer answer(tokens); });
            else
                EXPECT_EQ(DispenserStatusAnswer(tokens), DispenserStatusAnswer(idleTokens()));
        }
    }
}

TEST(DispenserStatusTokens, areRefusedForAStatusOtherThanOneAndTwo)
{
    for (const char *status : {"0", "3", "11", "FFFFFFFF"}) {
        SCOPED_TRACE(status);
        expectRefusal("DE00068", "Error during command answer decoding: conversion failed",
                      "MachineStatusAnswer::MachineStatusAnswer(QStringList)",
                      [&] { const DispenserStatusAnswer answer(tokensWith(2, status)); });
    }
    EXPECT_EQ(DispenserStatusAnswer(tokensWith(2, "2")).disp_status, 2);
}

TEST(DispenserStatusTokens, areRefusedWhenFewerThanTheirLengthSays)
{
    expectRefusal("DE00077", "Error during command answer decoding: bad length",
                  "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                  [] { const DispenserStatusAnswer answer(tokensWith(0, "F")); });
    EXPECT_EQ(DispenserStatusAnswer(tokensWith(0, "6")).disp_status, 1) << "more than it says are taken";
}

TEST(DispenserStatusTokens, areRefusedForTheFirstThingThatIsWrong)
{
    QStringList tokens = {"xx", "xx", "xx", "xx", "xx"};
    const auto expectNext = [&tokens](const char *code) {
        try {
            const DispenserStatusAnswer answer(tokens);
            ADD_FAILURE() << "taken instead of " << code;
        } catch (const FW_Exception &refusal) {
            EXPECT_EQ(refusal.code(), code);
        }
    };
    expectNext("DE00066");
    tokens << "xx";
    expectNext("DE00068");
    tokens[2] = "1";
    expectNext("DE00070");
    tokens[0] = "6";
    expectNext("DE00077");
    tokens[0] = "5";
    expectNext("DE02666");
    tokens =
        QStringList{"E", "xx", "1", "xx", "xx", "xx", "xx", "xx", "xx", "xx", "xx", "xx", "xx", "xx", "xx"};
    for (const auto &[token, code] : std::vector<std::pair<int, const char *>>{{3, "DE00128"},
                                                                               {4, "DE00129"},
                                                                               {5, "DE00130"},
                                                                               {6, "DE00113"},
                                                                               {7, "DE01454"},
                                                                               {10, "DE02242"},
                                                                               {11, "DE02430"},
                                                                               {12, "DE02628"},
                                                                               {13, "DE02877"},
                                                                               {14, "DE02878"}}) {
        SCOPED_TRACE(code);
        expectNext(code);
        tokens[token] = "0";
    }
    EXPECT_EQ(DispenserStatusAnswer(tokens).disp_status, 1);
}

// ---------------------------------------------------------------- masks alone

TEST(DispenserStatusMasks, areDecodedFromTheFirstMaskOn)
{
    DispenserStatusAnswer answer;
    FW_DriverError error;
    EXPECT_TRUE(
        answer.decodeSerialStatus({"4", "2", "8", "3", "40", "11", "3", "8", "20", "6", "40", "2"}, &error));
    EXPECT_EQ(setFlags(answer), (Names{"tinting", "cap_open", "stop_process", "no_24_voltage", "door_open",
                                       "head2_can_dose", "nozzle_valve_open_accurate", "stall_low",
                                       "stall_high", "m_zdr_canCentered", "m_zdr_plasticPlugReserve"}));
    EXPECT_EQ(answer.current_position_id, 17);
    EXPECT_EQ(answer.current_position_id_zone, 3);
    EXPECT_EQ(answer.disp_status, 0) << "the status is no mask";
    EXPECT_EQ(error.code(), "");
    EXPECT_TRUE(answer.decodeSerialStatus({"0", "0", "0", "0"}, nullptr));
}

TEST(DispenserStatusMasks, areFourAtLeast)
{
    const QStringList none;
    for (int count = 0; count < 4; ++count) {
        DispenserStatusAnswer answer;
        FW_DriverError error;
        EXPECT_FALSE(answer.decodeSerialStatus(QStringList({"7F", "7F", "7F"}).mid(0, count), &error));
        expectError(error, "DE02666", "Error during command answer decoding");
        EXPECT_EQ(answer, DispenserStatusAnswer()) << "nothing was read";
    }
    EXPECT_FALSE(DispenserStatusAnswer().decodeSerialStatus(none, nullptr));
}

TEST(DispenserStatusMasks, stayAsFarAsTheyWereRead)
{
    DispenserStatusAnswer answer;
    FW_DriverError error;
    EXPECT_FALSE(answer.decodeSerialStatus({"4", "2", "G", "1"}, &error));
    expectError(error, "DE00130", "Error during command answer decoding: mask 3");
    EXPECT_EQ(setFlags(answer), (Names{"normal_wm", "tinting", "cap_open"}));

    answer = DispenserStatusAnswer();
    EXPECT_FALSE(
        answer.decodeSerialStatus({"0", "0", "0", "1", "1", "9", "F5", "1", "1", "1", "4", "?"}, &error));
    expectError(error, "DE02878", badMask10);
    EXPECT_EQ(setFlags(answer), (Names{"slave_scan", "circuit_fin_presence", "predispensing",
                                       "new_cleaning_stats", "m_zdr_mixingInProgress"}));
    EXPECT_EQ(answer.current_position_id, 9);
    EXPECT_EQ(answer.current_position_id_zone, 0);
}

TEST(DispenserStatusMasks, setAWordInFull)
{
    // an answer that is decoded into again loses what a word no longer tells, and keeps what is not told
    DispenserStatusAnswer answer = fullAnswer();
    EXPECT_TRUE(answer.decodeSerialStatus({"0", "0", "0", "1"}, nullptr));
    Names rest;
    for (const BitRow &row : bitRows) {
        if (row.token > 6)
            rest.insert(row.flag);
    }
    EXPECT_EQ(setFlags(answer), rest);
    EXPECT_EQ(answer.current_position_id, 17);
}

TEST(DispenserStatusMasks, refuseWithoutAPlaceForTheError)
{
    DispenserStatusAnswer answer;
    EXPECT_FALSE(answer.decodeSerialStatus({"x", "0", "0", "0"}, nullptr));
    EXPECT_FALSE(answer.decodeSerialStatus({"0", "0", "0", "0", "x"}, nullptr));
}

// ---------------------------------------------------------------- XML-RPC

TEST(DispenserStatusXmlRpc, isAFlatStructOfAllFields)
{
    constexpr char cleared[] =
        R"({"BL_active": false, "BL_fw_update": false, "BL_memory_resetting": false, "WM_set": false, )"
        R"("airpurge": false, "bellow_up": false, "board_not_initialized": false, "can_present": false, )"
        R"("canister_lvl_critical": false, "cap_open": false, "check_level_in_progress": false, )"
        R"("circuit_fin_presence": false, "cleaning": false, "conf_error": false, "conf_writing": false, )"
        R"("current_position_id": 0, "current_position_id_zone": 0, "disp_info_erasing": false, )"
        R"("disp_info_writing": false, "disp_status": 0, "dispenser_not_ready": false, "door_open": false, )"
        R"("emergency_pressed": false, "formula_interrupted": false, "head1_can_dose": false, )"
        R"("head2_can_dose": false, "hw_error": false, "m_zdr_canCentered": false, )"
        R"("m_zdr_closingPlatesInProgress": false, "m_zdr_homePosition": false, )"
        R"("m_zdr_mixingInProgress": false, "m_zdr_openingPlatesInProgress": false, )"
        R"("m_zdr_plasticPlugNotMounted": false, "m_zdr_plasticPlugReserve": false, )"
        R"("m_zdr_pluggingInProgress": false, "machine_turned_off": false, "machine_unlocked": false, )"
        R"("new_buffered_error": false, "new_cleaning_stats": false, "no_24_voltage": false, )"
        R"("no_48_voltage": false, "normal_wm": true, "nozzle_moving": false, )"
        R"("nozzle_valve_open_accurate": false, "nozzle_valve_working_pos": false, "offline_pressed": false, )"
        R"("plc_start_activated": false, "plc_stop_activated": false, "post_erogation": false, )"
        R"("predispensing": false, "process_error": false, "pumping": false, "punching": false, )"
        R"("recirculating": false, "resetting": false, "shelf_down": false, "shelf_up": false, )"
        R"("slave_scan": false, "speed_red_in_recirc": false, "stall_high": false, "stall_low": false, )"
        R"("startup": false, "stirring": false, "stop_process": false, "tinting": false, )"
        R"("turntable_moving": false, "valve_on": false})";
    EXPECT_EQ(dumped(DispenserStatusAnswer().toXmlRpcValue()), cleared);
}

TEST(DispenserStatusXmlRpc, hasAMemberForEachFieldAndThreeThatAreAlwaysFalse)
{
    const DispenserStatusAnswer full = fullAnswer();
    const Value value = full.toXmlRpcValue();
    EXPECT_EQ(value.size(), 61 + 3 + 3);
    for (const auto &[name, member] : value) {
        if (name == "disp_status" || name == "current_position_id" || name == "current_position_id_zone") {
            EXPECT_EQ(member.getType(), Value::TypeInt) << name;
        } else {
            const bool unused =
                name == "WM_set" || name == "disp_info_writing" || name == "disp_info_erasing";
            EXPECT_EQ(dumped(member), unused ? "false" : "true") << name;
        }
    }
    EXPECT_EQ(dumped(value["disp_status"]), "2");
    EXPECT_EQ(dumped(value["current_position_id"]), "17");
    EXPECT_EQ(dumped(value["current_position_id_zone"]), "3");
}

TEST(DispenserStatusXmlRpc, neverReadsTheThreeMembersThatAreAlwaysFalse)
{
    Value value = idleStruct();
    for (const char *key : {"WM_set", "disp_info_writing", "disp_info_erasing"}) {
        SCOPED_TRACE(key);
        for (const Value &other : {Value(true), Value(7), Value("text")}) {
            SCOPED_TRACE(dumped(other));
            value[key] = other;
            const DispenserStatusAnswer answer(value);
            EXPECT_EQ(setFlags(answer), Names{"normal_wm"});
            EXPECT_EQ(dumped(answer.toXmlRpcValue()[key]), "false");
        }
    }
}

TEST(DispenserStatusXmlRpc, carriesEachFieldThereAndBack)
{
    for (const std::string &name : allFlags()) {
        SCOPED_TRACE(name);
        const DispenserStatusAnswer back(withFlag(name).toXmlRpcValue());
        EXPECT_EQ(setFlags(back), Names{name});
        Value value = idleStruct();
        value["normal_wm"] = false;
        value[name] = true;
        const DispenserStatusAnswer read(value);
        EXPECT_EQ(setFlags(read), Names{name});
        EXPECT_EQ(read.disp_status, 1);
    }
    for (int number : {1, 2, 245, -7, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        SCOPED_TRACE(number);
        DispenserStatusAnswer answer;
        answer.setStatus(number);
        answer.current_position_id = ~number;
        answer.current_position_id_zone = 9;
        const DispenserStatusAnswer back(answer.toXmlRpcValue());
        EXPECT_EQ(back.disp_status, number);
        EXPECT_EQ(back.current_position_id, answer.current_position_id);
        EXPECT_EQ(back.current_position_id_zone, 9);
    }
    const DispenserStatusAnswer full(fullAnswer().toXmlRpcValue());
    EXPECT_EQ(full, fullAnswer());
    EXPECT_TRUE(full.pumping);
}

TEST(DispenserStatusXmlRpc, ignoresMembersThatItDoesNotKnow)
{
    Value value = idleStruct();
    value["zz_later"] = true;
    value["AA_later"] = 7;
    value["tinting_"] = "text";
    EXPECT_EQ(setFlags(DispenserStatusAnswer(value)), Names{"normal_wm"});
}

TEST(DispenserStatusXmlRpc, writesWhateverStoodThereBefore)
{
    const DispenserStatusAnswer first(fullAnswer());
    const std::string full = dumped(first.toXmlRpcValue());
    const std::string idle = dumped(DispenserStatusAnswer().toXmlRpcValue());
    EXPECT_NE(full, idle);
    EXPECT_EQ(dumped(first.toXmlRpcValue()), full) << "one answer leaves nothing for the next";
}

/** What a member of the dispenser is for the reader. */
struct Member
{
    const char *key;
    bool required;
};

constexpr Member ownMembers[] = {
    {"tinting", true},
    {"recirculating", true},
    {"stirring", true},
    {"valve_on", true},
    {"cap_open", true},
    {"bellow_up", true},
    {"no_24_voltage", true},
    {"no_48_voltage", true},
    {"punching", true},
    {"slave_scan", false},
    {"post_erogation", false},
    {"turntable_moving", false},
    {"cleaning", false},
    {"formula_interrupted", false},
    {"nozzle_valve_working_pos", false},
    {"circuit_fin_presence", false},
    {"airpurge", false},
    {"head1_can_dose", false},
    {"head2_can_dose", false},
    {"predispensing", false},
    {"pumping", false},
    {"nozzle_moving", false},
    {"nozzle_valve_open_accurate", false},
    {"canister_lvl_critical", false},
    {"new_cleaning_stats", false},
    {"stall_low", false},
    {"stall_high", false},
    {"check_level_in_progress", false},
    {"speed_red_in_recirc", false},
    {"plc_start_activated", false},
    {"plc_stop_activated", false},
    {"current_position_id", false},
    {"current_position_id_zone", false},
    {"m_zdr_mixingInProgress", false},
    {"m_zdr_openingPlatesInProgress", false},
    {"m_zdr_closingPlatesInProgress", false},
    {"m_zdr_pluggingInProgress", false},
    {"m_zdr_canCentered", false},
    {"m_zdr_plasticPlugReserve", false},
    {"m_zdr_plasticPlugNotMounted", false},
    {"m_zdr_homePosition", false},
};

std::string expectedText(const char *key)
{
    return std::string("DispenserStatusAnswer: expected ") + key + " value";
}

TEST(DispenserStatusXmlRpc, refusesAMissingOrMistypedMember)
{
    for (const Member &member : ownMembers) {
        SCOPED_TRACE(member.key);
        const bool isNumber = std::string(member.key).find("current_position") == 0;
        std::vector<Value> bad = {without(idleStruct(), member.key)};
        for (const Value &other :
             {Value(1.0), Value("1"), arrayOf(1), structOf({}), isNumber ? Value(true) : Value(1)}) {
            bad.push_back(idleStruct());
            bad.back()[member.key] = other;
        }
        for (const Value &value : bad) {
            SCOPED_TRACE(dumped(value));
            if (member.required)
                expectRefusal("DE00026", expectedText(member.key).c_str(), ofValue,
                              [&] { const DispenserStatusAnswer answer(value); });
            else
                EXPECT_EQ(dumped(DispenserStatusAnswer(value).toXmlRpcValue()),
                          dumped(DispenserStatusAnswer(idleStruct()).toXmlRpcValue()));
        }
    }
}

TEST(DispenserStatusXmlRpc, tellsTheFirstMemberThatIsMissing)
{
    Value value = idleStruct();
    for (const Member &member : ownMembers)
        value = without(Value(value), member.key);
    for (const Member &member : ownMembers) {
        if (!member.required)
            continue;
        SCOPED_TRACE(member.key);
        expectRefusal("DE00026", expectedText(member.key).c_str(), ofValue,
                      [&] { const DispenserStatusAnswer answer(value); });
        value[member.key] = true;
    }
    EXPECT_EQ(setFlags(DispenserStatusAnswer(value)),
              (Names{"normal_wm", "tinting", "recirculating", "stirring", "valve_on", "cap_open", "bellow_up",
                     "no_24_voltage", "no_48_voltage", "punching"}));
}

TEST(DispenserStatusXmlRpc, tellsTheMachinesMembersFirst)
{
    constexpr char ofMachine[] = "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)";
    Value value = without(idleStruct(), "tinting");
    expectRefusal("DE00026", "MachineStatusAnswer: expected hw_error value", ofMachine,
                  [&] { const DispenserStatusAnswer answer(without(value, "hw_error")); });
    expectRefusal("DE00026", "DispenserStatusAnswer: expected can_present value", ofMachine,
                  [&] { const DispenserStatusAnswer answer(without(value, "can_present")); });
    expectRefusal("DE00443", "MachineStatusAnswer: expected disp_status value", ofMachine,
                  [&] { const DispenserStatusAnswer answer(without(value, "disp_status")); });
    const std::vector<Value> noStructs = {Value(), Value(1), arrayOf(1), Value("text"), structOf({})};
    for (const Value &noStruct : noStructs) {
        SCOPED_TRACE(dumped(noStruct));
        expectRefusal("DE00443", "MachineStatusAnswer: expected disp_status value", ofMachine,
                      [&] { const DispenserStatusAnswer answer(noStruct); });
    }
}

TEST(DispenserStatusXmlRpc, readsAnOldDriversStruct)
{
    Value value = structOf({{"disp_status", Value(2)}});
    for (const char *key : {"offline_pressed",   "board_not_initialized",
                            "startup",           "resetting",
                            "BL_active",         "BL_memory_resetting",
                            "BL_fw_update",      "conf_writing",
                            "hw_error",          "conf_error",
                            "process_error",     "stop_process",
                            "emergency_pressed", "can_present",
                            "shelf_up",          "shelf_down",
                            "tinting",           "recirculating",
                            "stirring",          "valve_on",
                            "cap_open",          "bellow_up",
                            "no_24_voltage",     "no_48_voltage",
                            "punching"})
        value[key] = false;
    const DispenserStatusAnswer answer(value);
    EXPECT_EQ(answer.disp_status, 2);
    EXPECT_EQ(setFlags(answer), Names{"normal_wm"});
    EXPECT_EQ(value.size(), 26) << "reading inserts nothing";
}

// ---------------------------------------------------------------- equality

TEST(DispenserStatusAnswer, comparesEachFieldButPumping)
{
    const DispenserStatusAnswer cleared;
    for (const std::string &name : allFlags()) {
        SCOPED_TRACE(name);
        DispenserStatusAnswer changed;
        flagNamed(changed, name) = !flagNamed(changed, name);
        const bool equal = name == "pumping";
        EXPECT_EQ(cleared == changed, equal);
        EXPECT_EQ(cleared != changed, !equal);
        EXPECT_EQ(cleared.equalTo(&changed), equal);
        EXPECT_EQ(changed.equalTo(&cleared), equal);
    }
    int form = 0;
    for (int DispenserStatusAnswer::*number :
         {&DispenserStatusAnswer::current_position_id, &DispenserStatusAnswer::current_position_id_zone,
          static_cast<int DispenserStatusAnswer::*>(&MachineStatusAnswer::disp_status)}) {
        SCOPED_TRACE(++form);
        DispenserStatusAnswer changed;
        changed.*number = 1;
        EXPECT_FALSE(cleared == changed);
        EXPECT_TRUE(cleared != changed);
        EXPECT_FALSE(cleared.equalTo(&changed));
    }
    EXPECT_TRUE(fullAnswer() == fullAnswer());
    EXPECT_FALSE(fullAnswer() != fullAnswer());
}

TEST(DispenserStatusAnswer, comparesWhatItSaysAndNotItsTokens)
{
    EXPECT_EQ(DispenserStatusAnswer(firstTokens(7)), DispenserStatusAnswer(firstTokens(15)));
}

TEST(DispenserStatusAnswer, equalsOnlyItsLike)
{
    const DispenserStatusAnswer answer;
    const ProtoAnswer plain(1);
    const SerialProtoAnswer serial;
    EXPECT_FALSE(answer.equalTo(nullptr));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(&serial));
    const DispenserStatusAnswer other;
    const ProtoAnswer *asProto = &other;
    EXPECT_TRUE(answer.equalTo(asProto));
    const MachineStatusAnswer &machine = answer;
    EXPECT_TRUE(machine.equalTo(&other));
    EXPECT_TRUE(static_cast<const ProtoAnswer &>(answer).equalTo(&other)) << "through the base as well";
}

// ---------------------------------------------------------------- what follows from the flags

TEST(DispenserStatusAnswer, tellsTheStallLevel)
{
    DispenserStatusAnswer answer;
    EXPECT_EQ(answer.getStallLevel(), 0);
    answer.stall_low = true;
    EXPECT_EQ(answer.getStallLevel(), 1);
    answer.stall_high = true;
    EXPECT_EQ(answer.getStallLevel(), 3);
    answer.stall_low = false;
    EXPECT_EQ(answer.getStallLevel(), 2);
}

TEST(DispenserStatusAnswer, acceptsCommandsUnlessOneOfFourFlagsIsSet)
{
    const Names refusing = {"board_not_initialized", "dispenser_not_ready", "emergency_pressed",
                            "offline_pressed"};
    EXPECT_TRUE(DispenserStatusAnswer().acceptCommands());
    for (const std::string &name : allFlags())
        EXPECT_EQ(withFlag(name).acceptCommands(), refusing.count(name) == 0) << name;
    EXPECT_FALSE(fullAnswer().acceptCommands());
}

const std::vector<std::pair<const char *, Line>> conditions = {
    {"emergency_pressed", {"Emergency button pressed", true}},
    {"offline_pressed", {"Offline button pressed", true}},
    {"board_not_initialized", {"Board not initialized", true}},
    {"startup", {"Startup in progress", true}},
    {"resetting", {"Reset in progress", false}},
    {"BL_active", {"Boot loader is active", false}},
    {"BL_memory_resetting", {"Boot loader memory reset", false}},
    {"BL_fw_update", {"Boot loader firmware update", false}},
    {"conf_writing", {"Configuration writing", false}},
    {"hw_error", {"Hardware error present", true}},
    {"conf_error", {"Configuration error present", true}},
    {"can_present", {"Can is present", false}},
    {"shelf_up", {"Shelf moving up", false}},
    {"shelf_down", {"Shelf moving down", false}},
    {"door_open", {"Door open", false}},
    {"machine_turned_off", {"Machine turned off while working", true}},
    {"machine_unlocked", {"Machine unlocked", false}},
    {"tinting", {"Tinting in progress", false}},
    {"recirculating", {"Recirculation in progress", false}},
    {"stirring", {"Stirring in progress", false}},
    {"valve_on", {"At least one valve ON", false}},
    {"cap_open", {"Autocap opened", false}},
    {"bellow_up", {"Bellows up", false}},
    {"punching", {"Punching in progress", false}},
    {"slave_scan", {"Slave scan in progress", false}},
    {"post_erogation", {"Post dispensing in progress", false}},
    {"turntable_moving", {"Turntable moving", false}},
    {"cleaning", {"Cleaning in progress", false}},
    {"formula_interrupted", {"Formula interrupted present", false}},
    {"nozzle_valve_working_pos", {"Nozzle valve in working position", false}},
    {"airpurge", {"Air purge in progress", false}},
    {"head1_can_dose", {"Head 1 ready to dispense", false}},
    {"head2_can_dose", {"Head 2 ready to dispense", false}},
    {"canister_lvl_critical", {"One or more canister under critical level", true}},
    {"stall_low", {"Stall low", false}},
    {"stall_high", {"Stall high", false}},
    {"check_level_in_progress", {"Check level in progress", false}},
    {"speed_red_in_recirc", {"Speed reduced in recirculation", false}},
};

TEST(DispenserStatusTexts, describeEachConditionByItself)
{
    for (const std::string &name : allFlags()) {
        SCOPED_TRACE(name);
        StatusLines expected;
        for (const auto &[flag, line] : conditions) {
            SCOPED_TRACE(line.text);
            if (name == flag)
                expected = linesOf({line});
        }
        EXPECT_EQ(withFlag(name).getStatusDescriptions(nullptr), expected);
    }
    EXPECT_EQ(DispenserStatusAnswer().getStatusDescriptions(nullptr), StatusLines());
}

TEST(DispenserStatusTexts, describeAllConditionsInTheirOrder)
{
    std::vector<Line> lines;
    lines.reserve(conditions.size());
    for (const auto &[flag, line] : conditions)
        lines.push_back(line);
    EXPECT_EQ(lines.size(), 38U);
    EXPECT_EQ(fullAnswer().getStatusDescriptions(nullptr), linesOf(lines));
}

TEST(DispenserStatusTexts, tellHeadsApartOnlyWhereThereMayBeTwo)
{
    FW_Dispenser oneHead;
    FW_Dispenser twoHeads;
    oneHead.setHeadArrangement(FW_Dispenser::HeadArrangement::Single);
    twoHeads.setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    const FW_Mixer mixer;
    const DispenserStatusAnswer first = withFlag("head1_can_dose");
    const DispenserStatusAnswer second = withFlag("head2_can_dose");
    DispenserStatusAnswer both = first;
    both.head2_can_dose = true;

    const StatusLines ready = linesOf({{"Ready to dispense", false}});
    EXPECT_EQ(first.getStatusDescriptions(&oneHead), ready);
    EXPECT_EQ(second.getStatusDescriptions(&oneHead), StatusLines());
    EXPECT_EQ(both.getStatusDescriptions(&oneHead), ready);

    const StatusLines head1 = linesOf({{"Head 1 ready to dispense", false}});
    const StatusLines head2 = linesOf({{"Head 2 ready to dispense", false}});
    for (const FW_Machine *machine :
         {static_cast<const FW_Machine *>(nullptr), static_cast<const FW_Machine *>(&twoHeads),
          static_cast<const FW_Machine *>(&mixer)}) {
        SCOPED_TRACE(machine ? "with a machine" : "without a machine");
        EXPECT_EQ(first.getStatusDescriptions(machine), head1);
        EXPECT_EQ(second.getStatusDescriptions(machine), head2);
        EXPECT_EQ(both.getStatusDescriptions(machine), head1 + head2);
    }
}

TEST(DispenserStatusTexts, speakOfADispenserWhateverTheMachine)
{
    const FW_Mixer mixer;
    EXPECT_EQ(withFlag("offline_pressed").getStatusDescriptions(&mixer),
              linesOf({{"Offline button pressed", true}}));
}

TEST(DispenserStatusTexts, tellTheFirstBadCondition)
{
    const DispenserStatusAnswer idle;
    EXPECT_FALSE(idle.hasBadWorkingState());
    EXPECT_EQ(idle.getFirstBadWorkingState(), QString());
    for (const std::string &name : allFlags()) {
        SCOPED_TRACE(name);
        QString bad;
        for (const auto &[flag, line] : conditions) {
            SCOPED_TRACE(line.text);
            if (name == flag && line.bad)
                bad = QString::fromLatin1(line.text);
        }
        const DispenserStatusAnswer answer = withFlag(name);
        EXPECT_EQ(answer.hasBadWorkingState(), !bad.isEmpty());
        EXPECT_EQ(answer.getFirstBadWorkingState().isEmpty(), bad.isEmpty());
        if (!bad.isEmpty()) {
            EXPECT_EQ(answer.getFirstBadWorkingState(), bad);
        }
        const MachineStatusAnswer &machine = answer;
        EXPECT_EQ(machine.hasBadWorkingState(), !bad.isEmpty());
    }

    DispenserStatusAnswer answer = fullAnswer();
    for (const auto &[flag, text] : std::vector<std::pair<const char *, const char *>>{
             {"emergency_pressed", "Emergency button pressed"},
             {"offline_pressed", "Offline button pressed"},
             {"board_not_initialized", "Board not initialized"},
             {"startup", "Startup in progress"},
             {"hw_error", "Hardware error present"},
             {"conf_error", "Configuration error present"},
             {"machine_turned_off", "Machine turned off while working"},
             {"canister_lvl_critical", "One or more canister under critical level"}}) {
        SCOPED_TRACE(flag);
        EXPECT_TRUE(answer.hasBadWorkingState());
        EXPECT_EQ(answer.getFirstBadWorkingState(), text);
        flagNamed(answer, flag) = false;
    }
    EXPECT_FALSE(answer.hasBadWorkingState());
}

/** A flag with the lines for its change; no text, no line. */
struct ChangeLine
{
    const char *flag;
    const char *on;
    const char *off;
};

constexpr ChangeLine changes[] = {
    {"offline_pressed", "Offline button pressed", "Offline button released"},
    {"board_not_initialized", "Board not initialized", "Board initialized"},
    {"resetting", "Reset in progress", "Reset not in progress"},
    {"BL_active", "Boot loader is active", "Application firmware is active"},
    {"BL_memory_resetting", "Boot loader memory reset", "Boot loader memory not resetting"},
    {"BL_fw_update", "Boot loader firmware update", "Boot loader firmware update not in progress"},
    {"conf_writing", "Configuration writing", "No configuration writing in progress"},
    {"hw_error", "Hardware error present", "No hardware error present"},
    {"conf_error", "Configuration error present", "No configuration error present"},
    {"process_error", "Process error", "No process error"},
    {"stop_process", "Process interrupted", "No process interrupted"},
    {"new_buffered_error", "New error present", "No more errors on buffer"},
    {"dispenser_not_ready", "Dispenser not available", "Dispenser available"},
    {"emergency_pressed", "Emergency button pressed", "Emergency button released"},
    {"normal_wm", "Running normal mode", "Running reserved mode"},
    {"can_present", "Can is present", "Can is not present"},
    {"shelf_up", "Shelf moving up", "Shelf staying idle"},
    {"shelf_down", "Shelf moving down", "Shelf staying idle"},
    {"door_open", "Door open", "Door closed"},
    {"machine_turned_off", "Machine turned off while working", ""},
    {"machine_unlocked", "Machine unlocked", "Machine locked"},
    {"tinting", "Tinting in progress", "Tinting not in progress"},
    {"recirculating", "Recirculation in progress", "Recirculation not in progress"},
    {"stirring", "Stirring in progress", "Stirring not in progress"},
    {"valve_on", "At least one valve ON", "No valve open"},
    {"cap_open", "Autocap opened", "Autocap closed"},
    {"bellow_up", "Bellows up", "No bellows up"},
    {"no_24_voltage", "24V absent", "24V power ON"},
    {"no_48_voltage", "48V absent", "48V power ON"},
    {"punching", "Punching in progress", "Punching not in progress"},
    {"slave_scan", "Slave scan in progress", "Slave scan not in progress"},
    {"post_erogation", "Post dispensing in progress", "Post dispensing not in progress"},
    {"turntable_moving", "Turntable moving", "Turntable idle"},
    {"cleaning", "Cleaning in progress", "Cleaning not in progress"},
    {"formula_interrupted", "Formula interrupted present", "No formula interrupted present"},
    {"nozzle_valve_working_pos", "Nozzle valve in working position", "Nozzle valve in rest position"},
    {"nozzle_valve_open_accurate", "Nozzle valve open (precise)", "Nozzle valve open (swift)"},
    {"canister_lvl_critical", "One or more canister under critical level", "Canister levels ok"},
    {"new_cleaning_stats", "New cleaning stats available", "No cleaning stats available"},
};

QList<QString> oneLine(const char *text)
{
    return *text ? QList<QString>{QString::fromLatin1(text)} : QList<QString>();
}

TEST(DispenserStatusTexts, describeEachChangeByItself)
{
    for (const std::string &name : allFlags()) {
        SCOPED_TRACE(name);
        ChangeLine expected = {"", "", ""};
        for (const ChangeLine &change : changes) {
            if (name == change.flag)
                expected = change;
        }
        const DispenserStatusAnswer off = withFlag(name, false);
        const DispenserStatusAnswer on = withFlag(name, true);
        EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&off, &on), oneLine(expected.on));
        EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&on, &off), oneLine(expected.off));
        EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&on, &on), QList<QString>());
    }
}

TEST(DispenserStatusTexts, describeAllChangesInTheirOrder)
{
    const DispenserStatusAnswer on = fullAnswer();
    DispenserStatusAnswer off;
    off.normal_wm = false;
    QList<QString> goneOn;
    QList<QString> goneOff;
    for (const ChangeLine &change : changes) {
        goneOn += oneLine(change.on);
        goneOff += oneLine(change.off);
    }
    EXPECT_EQ(goneOn.size(), 39);
    EXPECT_EQ(goneOff.size(), 38);
    EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&off, &on), goneOn);
    EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&on, &off), goneOff);
}

TEST(DispenserStatusTexts, neverTellOfAStartUp)
{
    const DispenserStatusAnswer idle;
    DispenserStatusAnswer starting;
    starting.startup = true;
    EXPECT_NE(idle, starting);
    EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&idle, &starting), QList<QString>());
    EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&starting, &idle), QList<QString>());
}

TEST(DispenserStatusTexts, haveNoChangesWithoutTwoAnswers)
{
    const DispenserStatusAnswer full = fullAnswer();
    EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(nullptr, &full), QList<QString>());
    EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&full, nullptr), QList<QString>());
    EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(nullptr, nullptr), QList<QString>());
}

TEST(DispenserStatusTexts, areTranslated)
{
    FW_Dispenser oneHead;
    const TranslatedTexts translated;
    for (const auto &[flag, line] : conditions) {
        SCOPED_TRACE(line.text);
        EXPECT_EQ(withFlag(flag).getStatusDescriptions(nullptr),
                  (StatusLines{{translation(line.text), line.bad}}));
        if (line.bad) {
            EXPECT_EQ(withFlag(flag).getFirstBadWorkingState(), translation(line.text));
        }
    }
    EXPECT_EQ(withFlag("head1_can_dose").getStatusDescriptions(&oneHead),
              (StatusLines{{translation("Ready to dispense"), false}}));
    for (const ChangeLine &change : changes) {
        const DispenserStatusAnswer off = withFlag(change.flag, false);
        const DispenserStatusAnswer on = withFlag(change.flag, true);
        EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&off, &on),
                  QList<QString>{translation(change.on)});
        EXPECT_EQ(DispenserStatusAnswer::getNewStatesDescriptions(&on, &off), oneLine(change.off))
            << "stands as written";
    }
}

// ---------------------------------------------------------------- gates

struct GateRow
{
    int family;
    int revision;
    bool movements;
    bool heads;
};

TEST(DispenserStatusAnswer, knowsWhichFirmwareTellsMovementsAndHeads)
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    constexpr GateRow rows[] = {
        {63, 0, false, false},    {63, 36, false, false},  {63, 37, false, false},  {63, 38, true, true},
        {63, most, true, true},   {63, -1, false, false},  {69, 0, false, false},   {69, 1, false, false},
        {69, 2, true, false},     {69, 38, true, false},   {69, most, true, false}, {70, 0, false, false},
        {70, 1, false, false},    {70, 2, false, true},    {70, 38, false, true},   {70, most, false, true},
        {72, 0, false, true},     {72, 1, false, true},    {72, 38, false, true},   {72, -1, false, true},
        {72, least, false, true}, {0, 99, false, false},   {1, 99, false, false},   {62, 99, false, false},
        {64, 99, false, false},   {68, 99, false, false},  {71, 99, false, false},  {73, 99, false, false},
        {-1, 99, false, false},   {630, 99, false, false},
    };
    for (const GateRow &row : rows) {
        SCOPED_TRACE(std::to_string(row.family) + '.' + std::to_string(row.revision));
        const FW_Version version(row.family, row.revision);
        EXPECT_EQ(DispenserStatusAnswer::isMachineMovementsMaskSupported(version), row.movements);
        EXPECT_EQ(DispenserStatusAnswer::isHeadCanDoseStatusSupported(version), row.heads);
        // of the six numbers only the first and the last count
        const FW_Version whole(row.family, 99, 99, 99, 99, row.revision);
        EXPECT_EQ(DispenserStatusAnswer::isMachineMovementsMaskSupported(whole), row.movements);
        EXPECT_EQ(DispenserStatusAnswer::isHeadCanDoseStatusSupported(whole), row.heads);
    }
    EXPECT_FALSE(DispenserStatusAnswer::isMachineMovementsMaskSupported(FW_Version()));
    EXPECT_FALSE(DispenserStatusAnswer::isHeadCanDoseStatusSupported(FW_Version()));
}

TEST(DispenserStatusAnswer, decodesWhateverArrivesFromAnyFirmware)
{
    // no gate lies before the words: a machine that tells movements and heads is believed
    const DispenserStatusAnswer answer(tokensWith(10, "F"));
    EXPECT_EQ(setFlags(answer),
              (Names{"normal_wm", "circuit_fin_presence", "airpurge", "head1_can_dose", "head2_can_dose"}));
}

} // namespace
