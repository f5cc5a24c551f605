// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/mixerdriverstatusanswer.h"

#include "base/confprotocommand.h"
#include "base/factlines.h"
#include "status/driverstatustesting.h"
#include "status/mixertesting.h"

#include <memory>

namespace {

using namespace testing_status;
using Answer = MixerDriverStatusAnswer;

constexpr char ofValue[] = "MixerDriverStatusAnswer::MixerDriverStatusAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "MixerDriverStatusAnswer::MixerDriverStatusAnswer(QList<QVariant>&)";
constexpr char noStatus[] = "MixerDriverStatusAnswer: Errors during MixerStatus creation";
constexpr char noAnswer[] = "MixerDriverStatusAnswer: Errors during MixerStatusAnswer creation";

MixerStatusAnswer mixing()
{
    MixerStatusAnswer answer;
    answer.setStatus(2);
    answer.mixing = true;
    return answer;
}

Answer filled()
{
    const MixerStatus status = filledMixerStatus();
    const MixerStatusAnswer machine = mixing();
    return {&status, &machine};
}

Value filledStruct()
{
    Value machine = idleMixerStruct();
    machine["disp_status"] = 2;
    machine["mixing"] = true;
    return structOf({{"driver_status", mixerStatusStruct()}, {"disp_status", machine}});
}

TEST(MixerDriverStatusAnswer, travelsAsAStructOfBoth)
{
    Value value = filled().toXmlRpcValue();
    EXPECT_EQ(value.size(), 4);
    EXPECT_EQ(dumped(value["driver_status"]), mixerStatusDump());
    EXPECT_TRUE(static_cast<bool>(value["disp_status"]["mixing"]));
    EXPECT_EQ(static_cast<int>(value["disp_status"]["disp_status"]), 2);
    EXPECT_FALSE(static_cast<bool>(value["pos_available"]));
    EXPECT_FALSE(static_cast<bool>(value["pos_ready"]));
    EXPECT_TRUE(filled().equalTo(std::make_unique<Answer>(value).get()));
    EXPECT_TRUE(filled().equalTo(std::make_unique<Answer>(filledStruct()).get()));
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()),
              R"({"disp_status": 0, "driver_status": 0, "pos_available": false, "pos_ready": false})");
    EXPECT_TRUE(Answer().equalTo(std::make_unique<Answer>(Answer().toXmlRpcValue()).get()));
}

TEST(MixerDriverStatusAnswer, tellsWhetherTheMixerIsReady)
{
    MixerStatus status(filledMixerInfo());
    status.active = true;
    MixerStatusAnswer machine;
    machine.setStatus(1);
    Value value = Answer(&status, &machine).toXmlRpcValue();
    EXPECT_TRUE(static_cast<bool>(value["pos_available"]));
    EXPECT_TRUE(static_cast<bool>(value["pos_ready"]));
}

TEST(MixerDriverStatusAnswer, isNotAvailableWithoutItsStatus)
{
    const MixerStatus status(filledMixerInfo(), true, false, false, false);
    const Answer answer(&status, nullptr);
    EXPECT_TRUE(answer.acceptPOScommands());
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              "{\"disp_status\": 0, \"driver_status\": " + dumped(status.toXmlRpcValue()) +
                  ", \"pos_available\": false, \"pos_ready\": false}");
}

TEST(MixerDriverStatusAnswer, isRefusedWithoutAMember)
{
    for (const Value &value : {Value(), Value(0), structOf({{"disp_status", 0}})})
        expectRefusal("DE03206", noStatus, ofValue, [&] { Answer{value}; });
    expectRefusal("DE03207", noAnswer, ofValue, [] { Answer{structOf({{"driver_status", 0}})}; });
    expectRefusal("DE03201", "MixerStatus: expected active mixer value",
                  "MixerStatus::MixerStatus(const XmlRpc::XmlRpcValue&, int)",
                  [] { Answer{infoWith(filledStruct(), "driver_status", 1)}; });
    expectRefusal("DE00443", "MachineStatusAnswer: expected disp_status value",
                  "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)",
                  [] { Answer{infoWith(filledStruct(), "disp_status", 1)}; });
}

TEST(MixerDriverStatusAnswer, isMadeOfAList)
{
    List list = {QVariant::fromValue(filledMixerStatus()), QVariant::fromValue(mixing())};
    EXPECT_TRUE(filled().equalTo(std::make_unique<Answer>(list).get()));
    List maps = {list[0].toMap(), list[1].toMap()};
    EXPECT_TRUE(filled().equalTo(std::make_unique<Answer>(maps).get()));
    for (List bad : {List{}, List{1, 0}, List{QVariant::fromValue(filledDispenserStatus()), 0}})
        expectRefusal("DE03206", noStatus, ofList, [&] { Answer{bad}; });
    for (List bad : {List{0}, List{0, 1}, List{0, list[0]}})
        expectRefusal("DE03208", noAnswer, ofList, [&] { Answer{bad}; });
}

TEST(MixerDriverStatusAnswer, comparesAndClonesBoth)
{
    const Answer answer = filled();
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_EQ(className(copy.get()), "MixerDriverStatusAnswer");
    Answer other = answer;
    other.setActiveMachine(true);
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(MixerDriverStatusAnswer, tellsWhatRefusesTheStatus)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_MIXER_STATUS");
    ASSERT_EQ(facts.members.size(), 4);
    testing_base::Lines lines;
    appendRefusals(lines, facts.members.at(1).refusals);
    EXPECT_EQ(lines,
              (testing_base::Lines{"  XML-RPC, missing: DE03207", "  list, missing or another type: DE03208",
                                   "  XML-RPC, without a good disp_status: DE00443",
                                   "  XML-RPC, without a good member: DE00026",
                                   "  XML-RPC, without a good can_present: DE00026",
                                   "  XML-RPC, without a good member: DE00026",
                                   "  XML-RPC, without a good member: DE02667"}));
}

TEST(MixerDriverStatusAnswer, isTheAnswerToItsCommand)
{
    ConfProtoCommand command("GET_MIXER_STATUS", nullptr);
    List list = {QVariant::fromValue(filledMixerStatus()), QVariant::fromValue(mixing())};
    ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
    EXPECT_TRUE(filled().equalTo(command.getProtoAnswer()));
    ASSERT_TRUE(command.buildProtoAnswer(filledStruct(), nullptr));
    EXPECT_TRUE(filled().equalTo(command.getProtoAnswer()));
    FW_DriverError error;
    EXPECT_FALSE(command.buildProtoAnswer(Value(0), &error));
    expectError(error, "DE03206", noStatus);
}

} // namespace
