// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/sensorsstatusanswer.h"

#include "base/answercontract.h"
#include "base/serialprotocommand.h"
#include "catalogue/protocommandlist.h"
#include "status/statustesting.h"

#include <QuvFramework/fw_exception.h>

#include <memory>
#include <set>
#include <type_traits>

namespace {

using namespace testing_status;

using Answer = SensorsStatusAnswer;
using Names = std::set<std::string>;

constexpr char ofTokens[] = "SensorsStatusAnswer::SensorsStatusAnswer(QStringList)";
constexpr char ofValue[] = "SensorsStatusAnswer::SensorsStatusAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char badLength[] = "Error during command answer decoding: bad length";

/** A sensor, and where the firmware tells it. */
struct Sensor
{
    int mask;
    int bit;
    const char *name;
    bool Answer::*field;
};

constexpr Sensor sensors[] = {
    {1, 0, "offline_pressed", &Answer::offline_pressed},
    {1, 1, "can_present", &Answer::can_present},
    {1, 2, "heater_on", &Answer::heater_on},
    {1, 3, "hum_pump_active", &Answer::hum_pump_active},
    {1, 4, "emergency_btn_pressed", &Answer::emergency_btn_pressed},
    {1, 5, "cap_open", &Answer::cap_open},
    {1, 6, "cap_close", &Answer::cap_close},
    {2, 0, "cap_free", &Answer::cap_free},
    {2, 1, "shelf_security_pressed", &Answer::shelf_security_pressed},
    {2, 2, "shelf_high", &Answer::shelf_high},
    {2, 3, "shelf_low", &Answer::shelf_low},
    {2, 4, "shelf_puncher", &Answer::shelf_puncher},
    {2, 5, "SHELF_cap_free", &Answer::SHELF_cap_free},
    {2, 6, "SHELF_cap_close", &Answer::SHELF_cap_close},
    {3, 0, "SHELF_can_present", &Answer::SHELF_can_present},
    {3, 1, "SHELF_stuck_controls", &Answer::SHELF_stuck_controls},
    {3, 2, "SHELF_up_button", &Answer::SHELF_up_button},
    {3, 3, "SHELF_down_button", &Answer::SHELF_down_button},
    {3, 4, "SHELF_security_button", &Answer::SHELF_security_button},
    {3, 5, "MASTER_48V", &Answer::MASTER_48V},
    {3, 6, "MASTER_48V_SW", &Answer::MASTER_48V_SW},
    {4, 0, "MASTER_24V", &Answer::MASTER_24V},
    {4, 1, "BHL_active", &Answer::BHL_active},
    {4, 2, "LIT_active", &Answer::LIT_active},
    {4, 3, "PC_relay_active", &Answer::PC_relay_active},
    {4, 4, "autocap_active", &Answer::autocap_active},
    {4, 5, "brush_motor_active", &Answer::brush_motor_active},
    {4, 6, "brake_active", &Answer::brake_active},
    {5, 0, "heater_active", &Answer::heater_active},
    {5, 1, "bluetooth_active", &Answer::bluetooth_active},
    {5, 2, "rollbar_unlocked", &Answer::rollbar_unlocked},
    {5, 3, "brush2_motor_active", &Answer::brush2_motor_active},
    {5, 6, "m_capCleaningSensorActive", &Answer::m_capCleaningSensorActive},
    {6, 0, "m_mixer_noEmergency", &Answer::m_mixer_noEmergency},
    {6, 1, "m_mixer_doorClosed", &Answer::m_mixer_doorClosed},
    {6, 2, "m_mixer_inverterSignal", &Answer::m_mixer_inverterSignal},
    {6, 3, "m_mixer_maxOpenPlates", &Answer::m_mixer_maxOpenPlates},
    {6, 4, "m_mixer_studDown", &Answer::m_mixer_studDown},
    {6, 5, "m_mixer_verticalPosition", &Answer::m_mixer_verticalPosition},
    {6, 6, "m_mixer_studUp", &Answer::m_mixer_studUp},
    {7, 0, "m_mixer_clampEncoder", &Answer::m_mixer_clampEncoder},
    {7, 1, "m_mixer_doorEncoder_puncherSensor", &Answer::m_mixer_doorEncoder_puncherSensor},
    {7, 2, "m_mixer_trimmerNpnInput_canPresence", &Answer::m_mixer_trimmerNpnInput_canPresence},
    {7, 3, "m_zandor_puncherCleanerUp", &Answer::m_zandor_puncherCleanerUp},
    {7, 4, "m_zandor_puncherCleanerDown", &Answer::m_zandor_puncherCleanerDown},
    {7, 5, "m_zandor_dropCatcherOut", &Answer::m_zandor_dropCatcherOut},
    {7, 6, "m_zandor_dropCatcherIn", &Answer::m_zandor_dropCatcherIn},
    {8, 0, "m_zandor_clampOpen", &Answer::m_zandor_clampOpen},
    {8, 1, "m_zandor_clampClosed", &Answer::m_zandor_clampClosed},
    {8, 2, "m_zandor_clampUp", &Answer::m_zandor_clampUp},
    {8, 3, "m_zandor_clampDown", &Answer::m_zandor_clampDown},
    {8, 4, "m_zandor_clampWithdrawalPlug", &Answer::m_zandor_clampWithdrawalPlug},
    {8, 5, "m_zandor_clampLoadingPlug", &Answer::m_zandor_clampLoadingPlug},
    {8, 6, "m_zandor_plugStockPhotocell", &Answer::m_zandor_plugStockPhotocell},
    {9, 0, "m_zandor_plugPresenceIntoPlugger", &Answer::m_zandor_plugPresenceIntoPlugger},
    {9, 1, "m_zandor_plateExtractorOutside", &Answer::m_zandor_plateExtractorOutside},
    {9, 2, "m_zandor_plateExtractorInside", &Answer::m_zandor_plateExtractorInside},
    {9, 3, "m_zandor_zeroVerticalSfrido", &Answer::m_zandor_zeroVerticalSfrido},
    {9, 4, "m_zandor_doorOpen", &Answer::m_zandor_doorOpen},
    {9, 5, "m_zandor_doorClose", &Answer::m_zandor_doorClose},
    {9, 6, "m_zandor_plateNotchesSensor", &Answer::m_zandor_plateNotchesSensor},
    {10, 0, "m_rotan_v2_mainStirring", &Answer::m_rotan_v2_mainStirring},
    {10, 1, "m_rotan_v2_mainStirringSensor", &Answer::m_rotan_v2_mainStirringSensor},
    {10, 2, "m_rotan_v2_secondaryStirring", &Answer::m_rotan_v2_secondaryStirring},
    {10, 3, "m_rotan_v2_secondaryStirringSensor", &Answer::m_rotan_v2_secondaryStirringSensor},
};

/** The sensors of later machines, which an older driver does not tell. */
bool isLater(const Sensor &sensor)
{
    return std::string(sensor.name).rfind("m_", 0) == 0;
}

Names setSensors(const Answer &answer)
{
    Names names;
    for (const Sensor &sensor : sensors) {
        if (answer.*sensor.field)
            names.insert(sensor.name);
    }
    return names;
}

Names allSensors()
{
    Names names;
    for (const Sensor &sensor : sensors)
        names.insert(sensor.name);
    return names;
}

Answer fullAnswer()
{
    Answer answer;
    for (const Sensor &sensor : sensors)
        answer.*sensor.field = true;
    return answer;
}

/** Nothing is on: the length, 65 bits, ten masks. */
QStringList idle()
{
    return {"B", "41", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"};
}

QStringList with(int mask, const QString &token)
{
    QStringList tokens = idle();
    tokens[mask + 1] = token;
    return tokens;
}

/** The first tokens, with the length that fits them. */
QStringList first(int count)
{
    QStringList tokens = idle().mid(0, count);
    tokens[0] = QString::number(count - 1, 16);
    return tokens;
}

Value idleSensors()
{
    Value value;
    for (const Sensor &sensor : sensors)
        value[sensor.name] = false;
    return value;
}

// ---------------------------------------------------------------- construction

TEST(SensorsStatusAnswer, startsCleared)
{
    EXPECT_EQ(setSensors(Answer()), Names());
    EXPECT_EQ(Answer().protoType(), 1);
    EXPECT_EQ(Answer().serialParameters(), QStringList());
    EXPECT_EQ(allSensors().size(), 65U);
}

TEST(SensorsStatusAnswer, readsNothingOfAList)
{
    List list = {1, true, QStringLiteral("heater_on")};
    const Answer answer(list);
    EXPECT_EQ(answer, Answer());
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(list.size(), 3);
}

TEST(SensorsStatusAnswer, hasItsFieldsInOrder)
{
    const Answer answer;
    const auto *previous = reinterpret_cast<const char *>(&answer);
    for (const Sensor &sensor : sensors) {
        const auto *field = reinterpret_cast<const char *>(&(answer.*sensor.field));
        EXPECT_LT(previous, field) << sensor.name;
        previous = field;
    }
}

TEST(SensorsStatusAnswer, isClearedAndCopied)
{
    Answer answer = fullAnswer();
    EXPECT_EQ(setSensors(answer), allSensors());
    Answer copy;
    copy.copy(answer);
    EXPECT_EQ(setSensors(copy), allSensors());
    answer.clear();
    EXPECT_EQ(setSensors(answer), Names());
    Answer assigned;
    assigned = copy;
    EXPECT_EQ(setSensors(assigned), allSensors());
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(copy).clone());
    ASSERT_EQ(className(clone.get()), "SensorsStatusAnswer");
    EXPECT_TRUE(copy.equalTo(clone.get()));
}

TEST(SensorsStatusAnswer, isNotMadeOfOtherThings)
{
    static_assert(!std::is_convertible_v<QStringList, Answer>);
    static_assert(!std::is_convertible_v<Value, Answer>);
}

// ---------------------------------------------------------------- tokens

TEST(SensorsStatusTokens, tellEachSensorByItsBit)
{
    EXPECT_EQ(setSensors(Answer(idle())), Names());
    for (const Sensor &sensor : sensors) {
        SCOPED_TRACE(sensor.name);
        EXPECT_EQ(setSensors(Answer(with(sensor.mask, QString::number(1 << sensor.bit, 16)))),
                  Names{sensor.name});
    }
}

TEST(SensorsStatusTokens, areReadAsTheMachineSendsThem)
{
    // emergency button pressed; shelf low; 48 V there; heater and cap cleaning sensor; clamp down; second stirring sensor
    const Answer answer(QStringList{"B", "41", "10", "8", "20", "0", "41", "0", "0", "8", "0", "8"});
    EXPECT_EQ(setSensors(answer), (Names{"emergency_btn_pressed", "shelf_low", "MASTER_48V", "heater_active",
                                         "m_capCleaningSensorActive", "m_zandor_clampDown",
                                         "m_rotan_v2_secondaryStirringSensor"}));
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(answer.serialParameters().size(), 11);
}

TEST(SensorsStatusTokens, tellTheLastSensors)
{
    EXPECT_TRUE(Answer(with(10, "8")).m_rotan_v2_secondaryStirringSensor); // mask of value 8
    EXPECT_TRUE(Answer(with(5, "40")).m_capCleaningSensorActive);          // mask of value 64
}

TEST(SensorsStatusTokens, passOverBitsThatNoSensorHas)
{
    EXPECT_EQ(setSensors(Answer(with(5, "30"))), Names()) << "bits 4 and 5";
    EXPECT_EQ(setSensors(Answer(with(10, "70"))), Names()) << "bits 4 to 6";
    for (int mask = 1; mask <= 10; ++mask)
        EXPECT_EQ(setSensors(Answer(with(mask, "FFFFFF80"))), Names()) << mask;
    EXPECT_EQ(setSensors(
                  Answer(QStringList{"B", "41", "FF", "FF", "FF", "FF", "FF", "FF", "FF", "FF", "FF", "FF"})),
              allSensors());
}

TEST(SensorsStatusTokens, endBehindTheFourthMaskOrAnyLaterOne)
{
    for (int count : {1, 2, 3, 4, 5}) {
        SCOPED_TRACE(count);
        expectRefusal("DE00776", badLength, ofTokens, [&] { const Answer answer(first(count)); });
    }
    for (int masks = 4; masks <= 10; ++masks) {
        SCOPED_TRACE(masks);
        QStringList tokens = first(masks + 2);
        for (int i = 2; i < tokens.size(); ++i)
            tokens[i] = "7F";
        Names told;
        for (const Sensor &sensor : sensors) {
            if (sensor.mask <= masks)
                told.insert(sensor.name);
        }
        EXPECT_EQ(setSensors(Answer(tokens)), told);
    }
    EXPECT_EQ(setSensors(Answer(idle() + QStringList{"7F", "zz"})), Names()) << "more masks than sensors";
}

TEST(SensorsStatusTokens, areRefusedOneByOne)
{
    const char *codes[] = {"DE01482", "DE00778", "DE00779", "DE00780", "DE00781"};
    const char *texts[] = {"Error during bit count decoding", "Error during command answer decoding: mask 1",
                           "Error during command answer decoding: mask 2",
                           "Error during command answer decoding: mask 3",
                           "Error during command answer decoding: mask 4"};
    for (const char *bad : {"zz", "", "-1", "100000000"}) {
        SCOPED_TRACE(bad);
        QStringList tokens = idle();
        for (int i = 4; i >= 0; --i) { // of several the first is told
            tokens[i + 1] = bad;
            expectRefusal(codes[i], texts[i], ofTokens, [&] { const Answer answer(tokens); });
        }
    }
}

TEST(SensorsStatusTokens, haveLaterMasksThatAreNeverRefused)
{
    for (int mask = 5; mask <= 10; ++mask) {
        SCOPED_TRACE(mask);
        QStringList tokens = {"B", "41", "7F", "7F", "7F", "7F", "7F", "7F", "7F", "7F", "7F", "7F"};
        tokens[mask + 1] = "zz";
        Names told;
        for (const Sensor &sensor : sensors) {
            if (sensor.mask != mask)
                told.insert(sensor.name);
        }
        EXPECT_EQ(setSensors(Answer(tokens)), told);
    }
}

TEST(SensorsStatusTokens, areRefusedByTheBaseFirst)
{
    constexpr char ofBase[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", ofBase, [] { const Answer answer((QStringList())); });
    expectRefusal("DE00070", "Invalid parameter length type found in answer", ofBase, [] {
        const Answer answer(QStringList{"zz", "41", "0", "0", "0", "0"});
    });
    expectRefusal("DE00077", badLength, ofBase, [] {
        const Answer answer(QStringList{"6", "41", "0", "0", "0", "0"});
    });
}

// ---------------------------------------------------------------- XML-RPC

TEST(SensorsStatusXmlRpc, isAFlatStructOfAllSensors)
{
    const Value value = fullAnswer().toXmlRpcValue();
    Names names;
    for (const auto &[name, member] : value) {
        EXPECT_EQ(dumped(member), "true") << name;
        names.insert(name);
    }
    EXPECT_EQ(names, allSensors());
    for (const auto &[name, member] : Answer().toXmlRpcValue())
        EXPECT_EQ(dumped(member), "false") << name;
}

TEST(SensorsStatusXmlRpc, carriesEachSensorThereAndBack)
{
    for (const Sensor &sensor : sensors) {
        SCOPED_TRACE(sensor.name);
        Answer answer;
        answer.*sensor.field = true;
        const Value value = answer.toXmlRpcValue();
        EXPECT_EQ(value.size(), 65);
        EXPECT_EQ(dumped(value[sensor.name]), "true");
        EXPECT_EQ(setSensors(Answer(value)), Names{sensor.name});
        Value read = idleSensors();
        read[sensor.name] = true;
        EXPECT_EQ(setSensors(Answer(read)), Names{sensor.name});
    }
}

TEST(SensorsStatusXmlRpc, refusesAMissingOrMistypedSensorThatEveryDriverTells)
{
    for (const Sensor &sensor : sensors) {
        SCOPED_TRACE(sensor.name);
        std::vector<Value> bad = {without(idleSensors(), sensor.name)};
        for (const Value &other : {Value(1), Value(1.0), Value("true"), arrayOf(true), structOf({})}) {
            bad.push_back(idleSensors());
            bad.back()[sensor.name] = other;
        }
        for (const Value &value : bad) {
            SCOPED_TRACE(dumped(value));
            if (isLater(sensor))
                EXPECT_EQ(setSensors(Answer(value)), Names());
            else
                expectRefusal(
                    "DE00026",
                    ("SensorsStatusAnswer: expected " + std::string(sensor.name) + " value").c_str(), ofValue,
                    [&] { const Answer answer(value); });
        }
    }
}

TEST(SensorsStatusXmlRpc, tellsTheFirstSensorThatIsMissing)
{
    Value value = structOf({{"m_mixer_studUp", Value(true)}});
    int required = 0;
    for (const Sensor &sensor : sensors) {
        if (isLater(sensor))
            continue;
        SCOPED_TRACE(sensor.name);
        expectRefusal("DE00026",
                      ("SensorsStatusAnswer: expected " + std::string(sensor.name) + " value").c_str(),
                      ofValue, [&] { const Answer answer(value); });
        value[sensor.name] = false;
        ++required;
    }
    EXPECT_EQ(required, 32);
    EXPECT_EQ(setSensors(Answer(value)), Names{"m_mixer_studUp"});
    EXPECT_EQ(value.size(), 33) << "reading inserts nothing";
}

TEST(SensorsStatusXmlRpc, refusesWhatIsNoStruct)
{
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { const Answer answer((Value())); });
    for (const Value &value : {Value(0), Value(true), Value("text"), arrayOf(true), structOf({})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00026", "SensorsStatusAnswer: expected offline_pressed value", ofValue,
                      [&] { const Answer answer(value); });
    }
}

TEST(SensorsStatusXmlRpc, ignoresMembersThatItDoesNotKnow)
{
    Value value = idleSensors();
    value["zz_later"] = true;
    value["AA_later"] = "text";
    EXPECT_EQ(setSensors(Answer(value)), Names());
}

// ---------------------------------------------------------------- equality

TEST(SensorsStatusAnswer, comparesEachSensor)
{
    const Answer cleared;
    for (const Sensor &sensor : sensors) {
        SCOPED_TRACE(sensor.name);
        Answer changed;
        changed.*sensor.field = true;
        EXPECT_FALSE(cleared == changed);
        EXPECT_TRUE(cleared != changed);
        EXPECT_FALSE(cleared.equalTo(&changed));
        EXPECT_FALSE(changed.equalTo(&cleared));
    }
    EXPECT_TRUE(fullAnswer() == fullAnswer());
    EXPECT_FALSE(fullAnswer() != fullAnswer());
    EXPECT_EQ(Answer(first(6)), Answer(idle())) << "what it says, and not its tokens";
}

TEST(SensorsStatusAnswer, equalsOnlyItsLike)
{
    const Answer answer;
    const Answer same;
    const SerialProtoAnswer serial;
    const DispenserStatusAnswer status;
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(nullptr));
    EXPECT_FALSE(answer.equalTo(&serial));
    EXPECT_FALSE(answer.equalTo(&status));
}

// ---------------------------------------------------------------- the command, which has no class of its own

TEST(SensorsStatusAnswer, answersTheCommandInAllForms)
{
    Value none = arrayOf();
    const std::unique_ptr<ProtoCommand> made(
        ProtoCommandList::getProtoCommand("GET_SENSORS_STATUS", none, nullptr));
    auto &command = dynamic_cast<SerialProtoCommand &>(*made);
    EXPECT_TRUE(command.setSerialAnswer(with(7, "10"), nullptr));
    ASSERT_EQ(className(command.getProtoAnswer()), "SensorsStatusAnswer");
    EXPECT_EQ(setSensors(dynamic_cast<const Answer &>(*command.getProtoAnswer())),
              Names{"m_zandor_puncherCleanerDown"});

    Value value = idleSensors();
    value["brake_active"] = true;
    EXPECT_TRUE(command.setAnswer(envelope(0, value), false, nullptr));
    ASSERT_EQ(className(command.getProtoAnswer()), "SensorsStatusAnswer");
    EXPECT_EQ(setSensors(dynamic_cast<const Answer &>(*command.getProtoAnswer())), Names{"brake_active"});

    List list = {1};
    EXPECT_TRUE(command.setAnswer(list, nullptr));
    ASSERT_EQ(className(command.getProtoAnswer()), "SensorsStatusAnswer");
    EXPECT_EQ(setSensors(dynamic_cast<const Answer &>(*command.getProtoAnswer())), Names());

    FW_DriverError error;
    EXPECT_FALSE(command.setSerialAnswer(first(5), &error));
    expectError(error, "DE00776", badLength);
    EXPECT_EQ(error.function(), ofTokens);
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
}

} // namespace
