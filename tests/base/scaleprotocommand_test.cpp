// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/scaleprotocommand.h"

#include "base/answercontract.h"
#include "base/basetesting.h"
#include "base/scaleprotoanswer.h"

#include <memory>

using namespace testing_base;

TEST(ScaleProtoCommand, isMadeInFourFormsWithoutAMachine)
{
    const ScaleProtoCommand empty;
    EXPECT_TRUE(empty.command().isNull());
    const ScaleProtoCommand named(QStringLiteral("WEIGHT"));
    EXPECT_EQ(named.command(), "WEIGHT");
    const ScaleProtoCommand ofValue("TARE", arrayOf(1));
    EXPECT_EQ(ofValue.command(), "TARE");
    EXPECT_EQ(ofValue.parameters(), List());
    const ScaleProtoCommand ofList("TARE", List{1});
    EXPECT_EQ(ofList.parameters(), List{1});
    int form = 0;
    for (const ScaleProtoCommand *command : {&empty, &named, &ofValue, &ofList}) {
        SCOPED_TRACE(++form);
        EXPECT_EQ(command->protoType(), 3);
        EXPECT_EQ(command->machine(), nullptr);
        EXPECT_EQ(command->getCmdEstimatedExecutionTime(nullptr), 0);
    }
}

TEST(ScaleProtoCommand, checksTheNumberOfArguments)
{
    expectRefusal("DE00312", "LOGIN command : expected at least 2 parameters, received 1 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] { ScaleProtoCommand("LOGIN", arrayOf("me")); });
    expectRefusal("DE00313", "LOGIN command : expected at least 2 parameters, received 1 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [] { ScaleProtoCommand("LOGIN", List{"me"}); });
}

TEST(ScaleProtoCommand, clonesToItsOwnClass)
{
    const ScaleProtoCommand command("TARE", List{1});
    const std::unique_ptr<ProtoCommand> copy(static_cast<const ProtoCommand &>(command).clone());
    EXPECT_NE(dynamic_cast<ScaleProtoCommand *>(copy.get()), nullptr);
    EXPECT_EQ(copy->parameters(), List{1});
    EXPECT_EQ(copy->protoType(), 3);
}

TEST(ScaleProtoCommand, keepsTheAnswerContract)
{
    ScaleProtoCommand command(QStringLiteral("WEIGHT"));
    expectAnswerContract(command, scaleAnswers());
}

TEST(ScaleProtoCommand, givesPlainAnswersUnderAnyName)
{
    for (const char *name : {"WEIGHT", "GET_CURRENT_WEIGHT", "GET_SCALE_STATUS", "NO_SUCH_COMMAND"}) {
        ScaleProtoCommand command{QString(name)};
        List list;
        ASSERT_TRUE(command.buildProtoAnswer(arrayOf(), nullptr));
        EXPECT_EQ(className(command.getProtoAnswer()), "ScaleProtoAnswer") << name;
        ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
        EXPECT_EQ(className(command.getProtoAnswer()), "ScaleProtoAnswer") << name;
        EXPECT_EQ(command.getProtoAnswer()->protoType(), 3);
    }
}

TEST(ScaleProtoCommand, storesACloneOfTheScalesAnswer)
{
    using Counted = CountedAnswer<ScaleProtoAnswer>;
    ScaleProtoCommand command(QStringLiteral("WEIGHT"));
    FW_DriverError error;
    {
        Counted answer(5);
        EXPECT_TRUE(command.setScaleAnswer(&answer, &error));
        answer.m_number = 6;
    }
    EXPECT_EQ(Counted::alive, 1);
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), "5");
    EXPECT_TRUE(command.setScaleAnswer(static_cast<Counted *>(command.getProtoAnswer()), nullptr)); // its own
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), "5");
    EXPECT_EQ(Counted::alive, 1);
    EXPECT_EQ(error.code(), QString());

    EXPECT_FALSE(command.setScaleAnswer(nullptr, &error));
    expectError(error, "DE02078", "Failed to create answer");
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
    EXPECT_EQ(Counted::alive, 0);
    EXPECT_FALSE(command.setScaleAnswer(nullptr, nullptr));
}

TEST(ScaleProtoCommand, holdsNoAnswerThatCannotBeCloned)
{
    ScaleProtoCommand command(QStringLiteral("WEIGHT"));
    ScaleProtoAnswer good;
    FW_DriverError error;
    for (const Failure failure : {Failure::OfStandard, Failure::OfNoClass}) {
        SCOPED_TRACE(static_cast<int>(failure));
        UncopyableAnswer<ScaleProtoAnswer> bad(failure);
        EXPECT_TRUE(command.setScaleAnswer(&good, nullptr));
        EXPECT_FALSE(command.setScaleAnswer(&bad, &error));
        expectError(error, "DE02079", "Failed to create answer");
        EXPECT_EQ(command.getProtoAnswer(), nullptr);
        EXPECT_FALSE(command.setScaleAnswer(&bad, nullptr));
    }
    UncopyableAnswer<ScaleProtoAnswer> bad(Failure::OfFramework);
    EXPECT_FALSE(command.setScaleAnswer(&bad, &error));
    expectError(error, "DE09999", "Not to be copied");
}
