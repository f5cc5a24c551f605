// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/readconfigurationparamcmd.h"

#include "base/outofmemory.h"
#include "configuration/readconfigurationparamanswer.h"
#include "configurationtesting.h"

#include <memory>

namespace {

using namespace testing_configuration;

constexpr char ofValue[] = "ReadConfigurationParamCmd::ReadConfigurationParamCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "ReadConfigurationParamCmd::ReadConfigurationParamCmd(QList<QVariant>)";

const ReadConfigurationParamAnswer *answerOf(const ProtoCommand &command)
{
    return dynamic_cast<const ReadConfigurationParamAnswer *>(command.getProtoAnswer());
}

} // namespace

TEST(ReadConfigurationParamCmd, asksForNoStructureByDefault)
{
    const ReadConfigurationParamCmd command;
    EXPECT_EQ(command.command(), "READ_CONFIG_ROW");
    EXPECT_EQ(command.protoType(), 1);
    EXPECT_EQ(command.parameters(), (List{0, 1}));
    EXPECT_EQ(command.serialParameters(1), (QList<int>{0, 1}));
}

TEST(ReadConfigurationParamCmd, takesCodeAndId)
{
    for (const ReadConfigurationParamCmd &command :
         {ReadConfigurationParamCmd(5, 17), ReadConfigurationParamCmd(List{5, 17}),
          ReadConfigurationParamCmd(List{5, 17, 9}), ReadConfigurationParamCmd(arrayOf(5, 17))}) {
        EXPECT_EQ(command.commandCode(), 5);
        EXPECT_EQ(command.id(), 17);
        EXPECT_EQ(command.parameters(), (List{5, 17}));
        EXPECT_EQ(command.serialParameters(1), (QList<int>{5, 17}));
        EXPECT_EQ(command.serialParameters(2), (QList<int>{5, 17}));
        bool ok = false;
        EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), "[5, 17]");
        EXPECT_TRUE(ok);
        const std::unique_ptr<ProtoCommand> copy(command.clone());
        EXPECT_EQ(copy->parameters(), (List{5, 17}));
    }
}

TEST(ReadConfigurationParamCmd, goesBackToItsDefaults)
{
    ReadConfigurationParamCmd command(5, 17);
    command.setDefaults();
    EXPECT_EQ(command.parameters(), (List{0, 1}));
}

TEST(ReadConfigurationParamCmd, refusesOtherArguments)
{
    expectRefusal("DE00314", "Command code value expected", ofValue,
                  [] { ReadConfigurationParamCmd{arrayOf()}; });
    expectRefusal("DE00084", "Invalid command code found in answer", ofValue,
                  [] { ReadConfigurationParamCmd{arrayOf("5", 17)}; });
    expectRefusal("DE00316", "ID number value expected", ofValue,
                  [] { ReadConfigurationParamCmd{arrayOf(5)}; });
    expectRefusal("DE00315", "Invalid ID number found in answer", ofValue,
                  [] { ReadConfigurationParamCmd{arrayOf(5, 17.0)}; });
    expectRefusal("DE00314", "Command code value expected", ofList,
                  [] { ReadConfigurationParamCmd{List()}; });
    expectRefusal("DE00084", "Invalid command code found in answer", ofList, [] {
        ReadConfigurationParamCmd(List{QStringLiteral("5"), 17});
    });
    expectRefusal("DE00316", "ID number value expected", ofList, [] { ReadConfigurationParamCmd(List{5}); });
    expectRefusal("DE00315", "Invalid ID number found in answer", ofList, [] {
        ReadConfigurationParamCmd(List{5, true});
    });
}

TEST(ReadConfigurationParamCmd, takesTheFirmwaresAnswer)
{
    ReadConfigurationParamCmd command(25, 1);
    FW_DriverError error;
    EXPECT_TRUE(command.setSerialAnswer(tokens("07 19 01 02 01 01 01 06"), &error));
    expectError(error, "", "");
    ASSERT_TRUE(answerOf(command));
    EXPECT_EQ(answerOf(command)->configurationDataStr(), QStringLiteral("@LCK 1,6"));
    EXPECT_TRUE(command.buildProtoAnswer(tokens("07 19 01 02 01 02 01 05"), nullptr));
    EXPECT_EQ(answerOf(command)->configurationDataStr(), QStringLiteral("@LCK 2,5"));
}

TEST(ReadConfigurationParamCmd, saysWhyAnAnswerWasRefused)
{
    ReadConfigurationParamCmd command(25, 1);
    FW_DriverError error;
    EXPECT_TRUE(command.setSerialAnswer(tokens("07 19 01 02 01 01 01 06"), nullptr));
    EXPECT_FALSE(command.setSerialAnswer(tokens("05 19 01 02 01 01"), &error));
    expectError(error, "DE02437", "Manual Unlock Signal field not found in answer");
    EXPECT_FALSE(command.getProtoAnswer());
    EXPECT_FALSE(command.setSerialAnswer(tokens("00"), nullptr));
}

TEST(ReadConfigurationParamCmd, saysThatAnAnswerCouldNotBeMade)
{
    ReadConfigurationParamCmd command(25, 1);
    FW_DriverError error;
    const QStringList row = tokens("07 19 01 02 01 01 01 06");
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.setSerialAnswer(row, &error); }));
    expectError(error, "DE00095", "Failed to create ProtoAnswer");
}
