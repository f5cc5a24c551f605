// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/serialprotocommand.h"

#include "base/answercontract.h"
#include "base/answerrows.h"
#include "base/basetesting.h"
#include "base/serialprotoanswer.h"
#include "status/sensorsstatusanswer.h"

#include <memory>

using namespace testing_base;

TEST(SerialProtoCommand, isMadeInFourForms)
{
    const CountedMachine machine;
    const SerialProtoCommand empty;
    EXPECT_TRUE(empty.command().isNull());
    EXPECT_EQ(empty.protoType(), 1);
    EXPECT_EQ(empty.machine(), nullptr);
    const SerialProtoCommand named("RESET", &machine);
    EXPECT_EQ(named.command(), "RESET");
    EXPECT_EQ(named.protoType(), 1);
    EXPECT_NE(named.machine(), nullptr);
    EXPECT_NE(named.machine(), &machine);
    const SerialProtoCommand ofValue("STIRRING", arrayOf(1, 2), &machine);
    EXPECT_EQ(ofValue.command(), "STIRRING");
    EXPECT_EQ(ofValue.protoType(), 1);
    EXPECT_NE(ofValue.machine(), nullptr);
    EXPECT_EQ(ofValue.parameters(), List());
    const SerialProtoCommand ofList("STIRRING", List{1, 2}, &machine);
    EXPECT_EQ(ofList.parameters(), (List{1, 2}));
    EXPECT_EQ(ofList.protoType(), 1);
    EXPECT_NE(ofList.machine(), nullptr);
    int form = 0;
    for (const SerialProtoCommand *command : {&empty, &named, &ofValue, &ofList}) {
        SCOPED_TRACE(++form);
        EXPECT_EQ(command->moduleID(), 0);
    }
    EXPECT_EQ(CountedMachine::alive, 4);
}

TEST(SerialProtoCommand, checksTheNumberOfArguments)
{
    expectRefusal("DE00312", "STIRRING command : expected at least 2 parameters, received 1 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] { SerialProtoCommand("STIRRING", arrayOf(1), nullptr); });
    expectRefusal("DE00313", "STIRRING command : expected at least 2 parameters, received 1 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [] { SerialProtoCommand("STIRRING", List{1}, nullptr); });
}

TEST(SerialProtoCommand, hasAModuleThatCopiesKeep)
{
    SerialProtoCommand command("RESET", nullptr);
    EXPECT_TRUE(command.setModuleID(17));
    EXPECT_EQ(command.moduleID(), 17);
    EXPECT_TRUE(command.setModuleID(-1));
    EXPECT_EQ(command.moduleID(), -1);
    const std::unique_ptr<SerialProtoCommand> copy(command.clone());
    EXPECT_EQ(copy->moduleID(), -1);
    EXPECT_EQ(copy->command(), "RESET");
    EXPECT_EQ(copy->protoType(), 1);
}

TEST(SerialProtoCommand, sendsNoIntegersOfItsOwn)
{
    const SerialProtoCommand command("STIRRING", List{1, 2}, nullptr);
    EXPECT_EQ(command.serialParameters(1), QList<int>());
    EXPECT_EQ(command.serialParameters(2), QList<int>());
}

TEST(SerialProtoCommand, estimatesNothing)
{
    EXPECT_EQ(SerialProtoCommand("RESET", nullptr).getCmdEstimatedExecutionTime(nullptr), 0);
}

TEST(SerialProtoCommand, keepsTheAnswerContract)
{
    SerialProtoCommand command("RESET", nullptr);
    expectAnswerContract(command, serialAnswers());
}

TEST(SerialProtoCommand, takesTokens)
{
    SerialProtoCommand command("RESET", nullptr);
    FW_DriverError error;
    ASSERT_TRUE(command.setSerialAnswer({"2", "A", "b"}, &error));
    EXPECT_EQ(className(command.getProtoAnswer()), "SerialProtoAnswer");
    EXPECT_EQ(static_cast<SerialProtoAnswer *>(command.getProtoAnswer())->serialParameters(),
              (QStringList{"A", "b"}));
    ASSERT_TRUE(command.buildProtoAnswer(QStringList{"0"}, nullptr));
    EXPECT_EQ(static_cast<SerialProtoAnswer *>(command.getProtoAnswer())->serialParameters(), QStringList());
    EXPECT_EQ(error.code(), QString());
    EXPECT_EQ(command.getXmlRpcAnswer(), nullptr);
}

TEST(SerialProtoCommand, leavesTheCallersTokensAlone)
{
    const QStringList tokens = {"1", "A"};
    SerialProtoCommand command("RESET", nullptr);
    ASSERT_TRUE(command.setSerialAnswer(tokens, nullptr));
    EXPECT_EQ(tokens, (QStringList{"1", "A"}));
}

TEST(SerialProtoCommand, choosesTheAnswerClassByTheName)
{
    const AnswerRow rows[] = {
        {"GET_ERRORS", "GetErrorsAnswer", structOf({{"fw_errors", arrayOf()}})},
        {"GET_SENSORS_STATUS",
         "SensorsStatusAnswer",
         SensorsStatusAnswer().toXmlRpcValue(),
         {},
         {"5", "0", "0", "0", "0", "0"}},
        {"GET_TURNTABLE_POSITIONS",
         "GetTurntablePositionsAnswer",
         structOf({{"turntable_circuits", arrayOf()}}),
         {},
         {"1", "0"}},
        {"GET_KEY_CODE", "GetKeyCodeAnswer", structOf({{"key_code", "K"}}), {"K"}},
        {"ZDR_GET_COMMANDS", "GetZandorCommandsAnswer", structOf({{"cmd_list", arrayOf()}}), {}, {"1", "0"}},
        {"GET_STATUS", "SerialProtoAnswer"},
        {"RESET", "SerialProtoAnswer"},
        {"GET_CALIB_PROFILES", "SerialProtoAnswer"},
        {"NO_SUCH_COMMAND", "SerialProtoAnswer"},
        {"", "SerialProtoAnswer"},
    };
    for (const AnswerRow &row : rows) {
        SCOPED_TRACE(row.command);
        SerialProtoCommand command(row.command, nullptr);
        List list = row.list;
        const std::string expected = row.answerClass;
        ASSERT_TRUE(command.buildProtoAnswer(row.value, nullptr));
        EXPECT_EQ(className(command.getProtoAnswer()), expected);
        ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
        EXPECT_EQ(className(command.getProtoAnswer()), expected);
        EXPECT_EQ(command.getProtoAnswer()->protoType(), 1);

        // a key code is asked of the driver: the firmware's tokens never become one
        ASSERT_TRUE(command.buildProtoAnswer(row.tokens, nullptr));
        EXPECT_EQ(className(command.getProtoAnswer()),
                  row.command == std::string("GET_KEY_CODE") ? "SerialProtoAnswer" : expected);
    }
}
