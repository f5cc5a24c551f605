// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/errornumcmd.h"

#include "base/commandcontract.h"

namespace {

using namespace testing_base;

AnswerFacts answers()
{
    constexpr char notCreated[] = "Failed to create ErrorNumAnswer";
    constexpr char written[] = R"({"num_errors": 300, "packets_count": 17})";
    AnswerFacts answers = serialAnswers();
    answers.tokens = AnswerOfTokens("ErrorNumAnswer", {"3", "36", "1", "11"}, written)
                         .failsWith("DE00100", "Failed to create ProtoAnswer")
                         .refuses({"3", "36", "x", "11"}, "DE00132",
                                  "Error during command answer decoding: error number high",
                                  "ErrorNumAnswer::ErrorNumAnswer(QStringList)")
                         .refuses({}, "DE00076", "Empty answer received",
                                  "SerialProtoAnswer::SerialProtoAnswer(QStringList)");
    answers.value =
        AnswerOfValue("ErrorNumAnswer", structOf({{"num_errors", 300}, {"packets_count", 17}}), written)
            .failsWith("DE00444", notCreated)
            .refuses(structOf({{"num_errors", 300}}), "DE00446",
                     "ErrorNumAnswer: expected packets_count value",
                     "ErrorNumAnswer::ErrorNumAnswer(const XmlRpc::XmlRpcValue&)");
    answers.envelope = {"DE00444", notCreated};
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<ErrorNumCmd>());
    facts.catalogue = {"ERRORS_NUM", 14, "000C", 0};
    facts.protoType = 1;
    facts.takesNothing = true;
    facts.defaults = Request().written("[]").sends({245});
    facts.requests = {
        Request().onlyTyped().notReadBack().typed<ErrorNumCmd>().written("[]").sends({245}),
    };
    facts.answers = answers();
    return facts;
}

TEST(ErrorNumCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

} // namespace
