// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserdriverstatusanswer.h"

#include "base/factlines.h"
#include "base/outofmemory.h"
#include "status/driverstatustesting.h"
#include "status/mixerstatusanswer.h"
#include "status/statustesting.h"

#include <memory>

namespace {

using namespace testing_status;
using Answer = DispenserDriverStatusAnswer;

constexpr char ofValue[] =
    "DispenserDriverStatusAnswer::DispenserDriverStatusAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "DispenserDriverStatusAnswer::DispenserDriverStatusAnswer(QList<QVariant>&)";
constexpr char noStatus[] = "DispenserDriverStatusAnswer: Errors during DispenserStatus creation";
constexpr char noAnswer[] = "DispenserDriverStatusAnswer: Errors during DispenserStatusAnswer creation";

DispenserStatusAnswer tinting()
{
    DispenserStatusAnswer answer;
    answer.setStatus(2);
    answer.tinting = true;
    return answer;
}

Value tintingStruct()
{
    Value value = idleStruct();
    value["disp_status"] = 2;
    value["tinting"] = true;
    return value;
}

Answer filled()
{
    const DispenserStatus status = filledDispenserStatus();
    const DispenserStatusAnswer machine = tinting();
    return {&status, &machine};
}

Value filledStruct()
{
    return structOf({{"driver_status", dispenserStatusStruct()}, {"disp_status", tintingStruct()}});
}

Answer withStatuses(const MachineStatus *status, const MachineStatusAnswer *machine)
{
    Answer answer;
    answer.setMachineStatus(status);
    answer.setMachineStatusAnswer(machine);
    return answer;
}

std::string written(const std::string &status, const std::string &machine, bool available, bool ready)
{
    const auto word = [](bool flag) { return std::string(flag ? "true" : "false"); };
    return "{\"disp_status\": " + machine + ", \"driver_status\": " + status +
           ", \"pos_available\": " + word(available) + ", \"pos_ready\": " + word(ready) + "}";
}

TEST(DispenserDriverStatusAnswer, travelsAsAStructOfBoth)
{
    EXPECT_EQ(dumped(filled().toXmlRpcValue()),
              written(dispenserStatusDump(), dumped(asWritten(tintingStruct())), false, false));
    EXPECT_TRUE(filled().equalTo(std::make_unique<Answer>(filledStruct()).get()));
    EXPECT_TRUE(filled().equalTo(std::make_unique<Answer>(filled().toXmlRpcValue()).get()));
    EXPECT_EQ(Answer(filledStruct()).protoType(), 2);
}

TEST(DispenserDriverStatusAnswer, writesTheNumberZeroForWhatIsAbsent)
{
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), written("0", "0", false, false));
    const DispenserStatus status = activeDispenser();
    EXPECT_EQ(dumped(Answer(&status, nullptr).toXmlRpcValue()),
              written(dumped(status.toXmlRpcValue()), "0", false, false));
    EXPECT_TRUE(Answer(&status, nullptr).acceptPOScommands()); // which does without the firmware's word
    const DispenserStatusAnswer machine = tinting();
    EXPECT_EQ(dumped(Answer(nullptr, &machine).toXmlRpcValue()),
              written("0", dumped(asWritten(tintingStruct())), false, false));
    for (const Answer &answer : {Answer(), Answer(&status, nullptr), Answer(nullptr, &machine)})
        EXPECT_TRUE(answer.equalTo(std::make_unique<Answer>(answer.toXmlRpcValue()).get()));
}

TEST(DispenserDriverStatusAnswer, tellsWhetherTheMachineIsReady)
{
    const DispenserStatus status = activeDispenser();
    DispenserStatusAnswer machine;
    machine.setStatus(1);
    EXPECT_EQ(dumped(Answer(&status, &machine).toXmlRpcValue()),
              written(dumped(status.toXmlRpcValue()), dumped(asWritten(idleStruct())), true, true));
    const Value value =
        structOf({{"driver_status", 0}, {"disp_status", 0}, {"pos_available", true}, {"pos_ready", 1}});
    EXPECT_FALSE(Answer(value).acceptPOScommands()); // worked out anew
}

TEST(DispenserDriverStatusAnswer, doesNotTellStatusesOfOtherMachines)
{
    Answer answer = filled();
    const MixerStatus status = filledMixerStatus();
    const MachineStatus plain;
    for (const MachineStatus *other : {static_cast<const MachineStatus *>(&status), &plain}) {
        answer.setMachineStatus(other);
        EXPECT_EQ(static_cast<int>(answer.toXmlRpcValue()["driver_status"]), 0);
    }
}

TEST(DispenserDriverStatusAnswer, tellsReadinessOfWhatItWrites)
{
    const DispenserStatus dispenser = activeDispenser();
    const DispenserStatusAnswer ofDispenser;
    const MixerStatus mixer(filledMixerInfo(), true, false, false, false);
    const MixerStatusAnswer ofMixer;
    for (const Answer &answer : {withStatuses(&mixer, &ofDispenser), withStatuses(&dispenser, &ofMixer)}) {
        EXPECT_TRUE(answer.acceptPOScommands());
        Value value = answer.toXmlRpcValue();
        EXPECT_FALSE(static_cast<bool>(value["pos_available"]));
        EXPECT_FALSE(static_cast<bool>(value["pos_ready"]));
    }
}

TEST(DispenserDriverStatusAnswer, isRefusedWithoutAMember)
{
    for (const Value &value :
         {Value(), Value(0), arrayOf(0, 0), structOf({}), structOf({{"disp_status", 0}})})
        expectRefusal("DE00735", noStatus, ofValue, [&] { Answer{value}; });
    expectRefusal("DE00736", noAnswer, ofValue, [] { Answer{structOf({{"driver_status", 0}})}; });
}

TEST(DispenserDriverStatusAnswer, passesOnWhatTheStatusesRefuse)
{
    for (const Value &bad : {Value(1), Value("0"), structOf({})}) {
        expectRefusal("DE00724", "DispenserStatus: expected active dispenser value",
                      "DispenserStatus::DispenserStatus(const XmlRpc::XmlRpcValue&, int)",
                      [&] { Answer{infoWith(filledStruct(), "driver_status", bad)}; });
        expectRefusal("DE00443", "MachineStatusAnswer: expected disp_status value",
                      "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { Answer{infoWith(filledStruct(), "disp_status", bad)}; });
    }
}

TEST(DispenserDriverStatusAnswer, refusesStatusesThatCannotBeMade)
{
    const Value status = structOf({{"driver_status", DispenserStatus().toXmlRpcValue()}, {"disp_status", 0}});
    const Value machine = structOf({{"driver_status", 0}, {"disp_status", idleStruct()}});
    for (const Value &value : {status, machine})
        EXPECT_NO_THROW(Answer{value});
    expectRefusal("DE00735", noStatus, ofValue, [&] { outOfMemoryOnce([&] { Answer{status}; }); });
    expectRefusal("DE00736", noAnswer, ofValue, [&] { outOfMemoryOnce([&] { Answer{machine}; }); });
}

TEST(DispenserDriverStatusAnswer, isMadeOfAList)
{
    List list = {QVariant::fromValue(filledDispenserStatus()), QVariant::fromValue(tinting())};
    EXPECT_TRUE(filled().equalTo(std::make_unique<Answer>(list).get()));
    List maps = {list[0].toMap(), list[1].toMap()};
    EXPECT_TRUE(filled().equalTo(std::make_unique<Answer>(maps).get()));
    List none = {0, QVariant()};
    EXPECT_TRUE(Answer().equalTo(std::make_unique<Answer>(none).get()));
    EXPECT_EQ(Answer(list).protoType(), 2);
}

TEST(DispenserDriverStatusAnswer, refusesAListOfOtherThings)
{
    const QVariant status = QVariant::fromValue(filledDispenserStatus());
    for (List list : {List{}, List{1, 0}, List{"x", 0}, List{QVariantMap(), 0}, List{true, 0},
                      List{QVariant::fromValue(tinting()), 0}})
        expectRefusal("DE00735", noStatus, ofList, [&] { Answer{list}; });
    for (List list : {List{0}, List{0, 1}, List{status, status}, List{0, QVariantMap()}, List{0, List{}}})
        expectRefusal("DE00737", noAnswer, ofList, [&] { Answer{list}; });
    List list = {QVariantMap{{"dispenser_info", 0}}, 0};
    expectRefusal("DE00724", "DispenserStatus: expected active dispenser value",
                  "DispenserStatus::DispenserStatus(const XmlRpc::XmlRpcValue&, int)", [&] { Answer{list}; });
}

TEST(DispenserDriverStatusAnswer, comparesAndClonesBoth)
{
    const Answer answer = filled();
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_EQ(className(copy.get()), "DispenserDriverStatusAnswer");
    Answer other = answer;
    other.setActiveMachine(false);
    EXPECT_FALSE(answer.equalTo(&other));
    other = answer;
    other.setMachineStatusAnswer(nullptr);
    EXPECT_FALSE(answer.equalTo(&other));
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(DispenserDriverStatusAnswer, tellsItsMembers)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_DISP_STATUS");
    ASSERT_EQ(facts.members.size(), 4);
    EXPECT_EQ(facts.members.at(0).key, "driver_status");
    EXPECT_TRUE(facts.members.at(0).required);
    EXPECT_EQ(facts.members.at(1).key, "disp_status");
    EXPECT_EQ(facts.members.at(1).type, "struct");
    EXPECT_EQ(facts.members.at(2).key, "pos_available");
    EXPECT_FALSE(facts.members.at(2).required);
    EXPECT_EQ(facts.members.at(3).key, "pos_ready");
    EXPECT_EQ(facts.members.at(3).type, "bool");
    EXPECT_EQ(facts.members.at(2).meaning,
              "active, with a last status, and the driver has nothing else under way on it");
    testing_base::Lines lines;
    appendRefusals(lines, facts.members.at(0).refusals);
    appendRefusals(lines, facts.members.at(1).refusals);
    EXPECT_EQ(
        lines,
        (testing_base::Lines{
            "  XML-RPC, missing: DE00735", "  XML-RPC, without a good active: DE00724",
            "  XML-RPC, without a good conf_mng: DE00723", "  XML-RPC, without a good fw_update: DE00725",
            "  XML-RPC, without dispenser_info: DE00761", "  list, missing or another type: DE00735",
            "  XML-RPC, missing: DE00736", "  list, missing or another type: DE00737",
            "  XML-RPC, without a good disp_status: DE00443", "  XML-RPC, without a good member: DE00026",
            "  XML-RPC, without a good member: DE00026"}));
    EXPECT_EQ(facts.members.at(1).refusals.at(3).text, "MachineStatusAnswer: expected … value");
    EXPECT_EQ(facts.members.at(1).refusals.at(4).text, "DispenserStatusAnswer: expected … value");
}

} // namespace
