// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/getconfigcmdscmd.h"

#include "base/commandcontract.h"
#include "configurationtesting.h"

namespace {

using namespace testing_configuration;

AnswerFacts answers()
{
    constexpr char answerClass[] = "GetConfigCmdsAnswer";
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens(answerClass, tokens("05 02 0A 01 07 04"),
                       R"({"command_codes": [{"cmd_code": 7, "field_count": 4}], )"
                       R"("minor_version": 10, "version": 2})")
            .failsWith("DE01648", "Failed to create ProtoAnswer")
            .refuses(tokens("02 02 0A"), "DE01642", "Invalid answer length",
                     "GetConfigCmdsAnswer::GetConfigCmdsAnswer(QStringList)")
            .refuses(tokens("05 02"), "DE00077", "Error during command answer decoding: bad length",
                     "SerialProtoAnswer::SerialProtoAnswer(QStringList)");
    answers.value.answerClass = answerClass; // whose struct is not read
    answers.value.right = structOf({{"version", Value(3)}});
    answers.value.written = R"({"minor_version": 0, "version": 0})";
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<GetConfigCmdsCmd>());
    facts.catalogue = {"GET_CONFIG_CMDS", 91, "0066", 0};
    facts.protoType = 1;
    facts.keepsTheList = true;
    facts.defaults = Request().written("[]").sends({0});
    facts.requests = {
        Request().written("[]").sends({0}),
        Request({5}).onlyFromList().notReadBack().written("[]").sends({0}),
        Request({5}).onlyFromValue().parameters({}).written("[]").sends({0}),
    };
    facts.answers = answers();
    return facts;
}

} // namespace

TEST(GetConfigCmdsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}
