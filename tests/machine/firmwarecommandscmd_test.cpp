// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/firmwarecommandscmd.h"

#include "base/commandcontract.h"

#include <QuvFramework/fw_version.h>

#include <type_traits>

namespace {

using namespace testing_base;

AnswerFacts answers()
{
    constexpr char answerClass[] = "FirmwareCommandsAnswer";
    constexpr char failed[] = "Failed to create FirmwareCommandsAnswer";
    constexpr char written[] = R"({"fw_commands": [{"cmd_code": 35, "cmd_exec": 0, "cmd_status": 2}]})";
    const Value row = structOf({{"cmd_code", 35}, {"cmd_status", 2}, {"cmd_exec", 0}});
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens(answerClass, {"5", "1", "23", "0", "2", "0"}, written)
            .failsWith("DE02601", failed)
            .refuses({"3", "1", "23", "0"}, "DE00670", "Error during command answer decoding: bad length",
                     "FirmwareCommandsAnswer::FirmwareCommandsAnswer(QStringList)")
            .refuses({}, "DE00076", "Empty answer received",
                     "SerialProtoAnswer::SerialProtoAnswer(QStringList)");
    answers.value =
        AnswerOfValue(answerClass, structOf({{"fw_commands", arrayOf(row)}}), written)
            .failsWith("DE02598", failed)
            .refuses(structOf({}), "DE00677",
                     "FirmwareCommandsAnswer: Errors during FW_Command list creation",
                     "FirmwareCommandsAnswer::FirmwareCommandsAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList(answerClass, {QVariantMap{{"cmd_code", 35}, {"cmd_status", 2}, {"cmd_exec", 0}}},
                     written)
            .failsWith("DE02598", failed)
            .refuses({7}, "DE00676", "FirmwareCommandsAnswer failed: expected FW_Command type parameter",
                     "FirmwareCommandsAnswer::FirmwareCommandsAnswer(QList<QVariant>&)");
    answers.envelope = {"DE02602", failed};
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<FirmwareCommandsCmd>());
    facts.catalogue = {"GET_FW_COMMANDS", 36, "0014", 0};
    facts.protoType = 1;
    facts.valueFunction = "FirmwareCommandsCmd::FirmwareCommandsCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "FirmwareCommandsCmd::FirmwareCommandsCmd(QList<QVariant>)";
    facts.arguments = {optional(Integer, {"DE02596", "DE02596", "FirmwareCommandsCmd: invalid parameter"})
                           .takes({0, 1, 2, -1})};
    facts.getters = {getter(&FirmwareCommandsCmd::execution)};
    facts.words = {"Read protocol commands", "Reading protocol commands"};
    facts.defaults = Request().parameters({0}).written("[0]").sends({0});
    facts.requests = {
        Request({1}).typed<FirmwareCommandsCmd>(CmdExecution::Yes).written("[1]").sends({1}),
        Request({0}).typed<FirmwareCommandsCmd>(CmdExecution::No).written("[0]").sends({0}),
        Request(List{}).parameters({0}).written("[0]").sends({0}),
    };
    facts.answers = answers();
    return facts;
}

TEST(FirmwareCommandsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(FirmwareCommandsCmd, knowsWhichFirmwareReadsTheExecution)
{
    const auto isRead = FirmwareCommandsCmd::isCommandsExecParamSupported;
    for (const FW_Version &version :
         {FW_Version(63, 39), FW_Version(63, 99), FW_Version(70, 2), FW_Version(70, 3), FW_Version(72, 0),
          FW_Version(72, 99), FW_Version(78, 0)})
        EXPECT_TRUE(isRead(version)) << version.toString().toStdString();
    for (const FW_Version &version :
         {FW_Version(63, 38), FW_Version(63, 0), FW_Version(70, 1), FW_Version(70, 0), FW_Version(71, 99),
          FW_Version(77, 99), FW_Version(62, 99), FW_Version()})
        EXPECT_FALSE(isRead(version)) << version.toString().toStdString();
}

TEST(FirmwareCommandsCmd, takesNoPlainValues)
{
    static_assert(!std::is_constructible_v<FirmwareCommandsCmd, int>);
    static_assert(!std::is_constructible_v<FirmwareCommandsCmd, bool>);
    static_assert(!std::is_constructible_v<FirmwareCommandsCmd, double>);
    static_assert(!std::is_constructible_v<FirmwareCommandsCmd, const char *>);
}

} // namespace
