// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/readconfigurationparamcmd.h"

#include "base/commandcontract.h"
#include "configurationtesting.h"

namespace {

using namespace testing_configuration;
using Command = ReadConfigurationParamCmd;

AnswerFacts answers()
{
    constexpr char answerClass[] = "ReadConfigurationParamAnswer";
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens(answerClass, tokens("07 19 01 02 01 02 01 05"),
                       R"({"cmd_code": "@LCK", "cmd_parameters": "2,5", "cmd_value": 25})")
            .failsWith("DE00095", "Failed to create ProtoAnswer")
            .refuses(tokens("05 19 01 02 01 01"), "DE02437", "Manual Unlock Signal field not found in answer",
                     "LCK_cdata::LCK_cdata(QStringList, int)")
            .refuses(tokens("00"), "DE00078", "Command code not found in answer",
                     "ReadConfigurationParamAnswer::ReadConfigurationParamAnswer(QStringList)");
    answers.value.answerClass = answerClass; // which reads nothing of it
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<Command>());
    facts.catalogue = {"READ_CONFIG_ROW", 21, "0066", 0};
    facts.protoType = 1;
    facts.valueFunction = "ReadConfigurationParamCmd::ReadConfigurationParamCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ReadConfigurationParamCmd::ReadConfigurationParamCmd(QList<QVariant>)";
    facts.arguments = {required(Integer, {"DE00084", "DE00084", "Invalid command code found in answer"})
                           .absent({"DE00314", "DE00314", "Command code value expected"}),
                       required(Integer, {"DE00315", "DE00315", "Invalid ID number found in answer"})
                           .absent({"DE00316", "DE00316", "ID number value expected"})};
    facts.getters = {getter(&Command::commandCode), getter(&Command::id)};
    facts.defaults = Request().parameters({0, 1}).written("[0, 1]").sends({0, 1});
    facts.requests = {Request({5, 17}).typed<Command>(5, 17).written("[5, 17]").sends({5, 17})};
    facts.answers = answers();
    return facts;
}

} // namespace

TEST(ReadConfigurationParamCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}
