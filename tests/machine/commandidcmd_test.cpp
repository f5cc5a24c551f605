// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/commandidcmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

AnswerFacts answers()
{
    constexpr char written[] = R"({"command_ids": [17, 245]})";
    AnswerFacts answers = serialAnswers();
    answers.tokens = AnswerOfTokens("CommandIDAnswer", {"3", "2", "11", "F5"}, written)
                         .failsWith("DE00096", "Failed to create ProtoAnswer")
                         .refuses({"2", "2", "11"}, "DE00124",
                                  "Error during command answer decoding: bad length for serial answer",
                                  "CommandIDAnswer::CommandIDAnswer(QStringList)")
                         .refuses({}, "DE00076", "Empty answer received",
                                  "SerialProtoAnswer::SerialProtoAnswer(QStringList)");
    answers.value = AnswerOfValue("CommandIDAnswer", structOf({{"command_ids", arrayOf(17, 245)}}), written)
                        .failsWith("DE01295", "Failed to create answer")
                        .refuses(structOf({}), "DE03280", "CommandIDAnswer: expected command_ids value",
                                 "CommandIDAnswer::CommandIDAnswer(const XmlRpc::XmlRpcValue&)");
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<CommandIDCmd>());
    facts.catalogue = {"GET_CMD_ID", 23, "0068", 1};
    facts.protoType = 1;
    facts.valueFunction = "CommandIDCmd::CommandIDCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "CommandIDCmd::CommandIDCmd(QList<QVariant>)";
    facts.arguments = {required(Integer, {"DE00294", "DE00296", "Command code: expected INT parameter"})};
    facts.getters = {getter(&CommandIDCmd::commandCode)};
    facts.defaults = Request().parameters({0}).written("[0]").sends({0});
    facts.requests = {
        Request({23}).typed<CommandIDCmd>(23).written("[23]").sends({23}),
        Request({-1}).typed<CommandIDCmd>(-1).written("[-1]").sends({-1}),
    };
    facts.answers = answers();
    return facts;
}

TEST(CommandIDCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(CommandIDCmd, doesNotMistakeOtherArgumentsForACode)
{
    static_assert(!std::is_constructible_v<CommandIDCmd, bool>);
    static_assert(!std::is_constructible_v<CommandIDCmd, double>);
    static_assert(!std::is_constructible_v<CommandIDCmd, const char *>);
    static_assert(!std::is_convertible_v<int, CommandIDCmd>);
}

} // namespace
