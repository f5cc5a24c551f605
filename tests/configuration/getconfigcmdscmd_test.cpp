// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/getconfigcmdscmd.h"

#include "base/outofmemory.h"
#include "configuration/getconfigcmdsanswer.h"
#include "configurationtesting.h"

#include <memory>

namespace {

using namespace testing_configuration;

const GetConfigCmdsAnswer *answerOf(const ProtoCommand &command)
{
    return dynamic_cast<const GetConfigCmdsAnswer *>(command.getProtoAnswer());
}

} // namespace

TEST(GetConfigCmdsCmd, asksForTheRowOfNoStructure)
{
    for (const GetConfigCmdsCmd &command :
         {GetConfigCmdsCmd(), GetConfigCmdsCmd(List{5}), GetConfigCmdsCmd(arrayOf(5))}) {
        EXPECT_EQ(command.command(), "GET_CONFIG_CMDS");
        EXPECT_EQ(command.protoType(), 1);
        EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[]");
        EXPECT_EQ(command.serialParameters(1), (QList<int>{0}));
        EXPECT_EQ(command.serialParameters(2), (QList<int>{0}));
        const std::unique_ptr<ProtoCommand> copy(command.clone());
        EXPECT_NE(dynamic_cast<GetConfigCmdsCmd *>(copy.get()), nullptr);
    }
}

TEST(GetConfigCmdsCmd, keepsTheListThatItWasGiven)
{
    EXPECT_EQ(GetConfigCmdsCmd().parameters(), List());
    EXPECT_EQ(GetConfigCmdsCmd(arrayOf(5)).parameters(), List());
    EXPECT_EQ(GetConfigCmdsCmd(List{5}).parameters(), List{5});
}

TEST(GetConfigCmdsCmd, takesTheFirmwaresAnswer)
{
    GetConfigCmdsCmd command;
    FW_DriverError error;
    EXPECT_TRUE(command.setSerialAnswer(tokens("05 02 0A 01 01 04"), &error));
    expectError(error, "", "");
    ASSERT_TRUE(answerOf(command));
    EXPECT_EQ(answerOf(command)->getConfigCommands(), (QList<unsigned>{1}));
    EXPECT_TRUE(command.buildProtoAnswer(tokens("05 02 0A 01 07 04"), nullptr));
    EXPECT_EQ(answerOf(command)->getConfigCommands(), (QList<unsigned>{7}));
}

TEST(GetConfigCmdsCmd, saysWhyAnAnswerWasRefused)
{
    GetConfigCmdsCmd command;
    FW_DriverError error;
    EXPECT_TRUE(command.setSerialAnswer(tokens("05 02 0A 01 01 04"), nullptr));
    EXPECT_FALSE(command.setSerialAnswer(tokens("02 02 0A"), &error));
    expectError(error, "DE01642", "Invalid answer length");
    EXPECT_FALSE(command.getProtoAnswer());
    EXPECT_FALSE(command.setSerialAnswer(tokens("05 02"), nullptr));
}

TEST(GetConfigCmdsCmd, takesAStructForAnEmptyAnswer)
{
    GetConfigCmdsCmd command;
    EXPECT_TRUE(command.buildProtoAnswer(structOf({{"version", Value(3)}}), nullptr));
    ASSERT_TRUE(answerOf(command));
    EXPECT_EQ(answerOf(command)->version(), 0U);
}

TEST(GetConfigCmdsCmd, saysThatAnAnswerCouldNotBeMade)
{
    GetConfigCmdsCmd command;
    FW_DriverError error;
    const QStringList answer = tokens("05 02 0A 01 01 04");
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.setSerialAnswer(answer, &error); }));
    expectError(error, "DE01648", "Failed to create ProtoAnswer");
}
