// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/certifysessioncmd.h"

#include "base/commandcontract.h"

namespace {

using namespace testing_base;

constexpr char notMade[] = "Failed to create CertifySessionAnswer";

AnswerFacts answers()
{
    constexpr char invalid[] = "CertifySessionAnswer decoding failed: invalid QVariant value";
    constexpr char dump[] = R"({"key_verify_result": true})";
    AnswerFacts answers = confAnswers();
    answers.value = AnswerOfValue("CertifySessionAnswer", structOf({{"key_verify_result", true}}), dump)
                        .failsWith("DE00983", notMade)
                        .refuses(Value(0), "DE01028", invalid,
                                 "CertifySessionAnswer::CertifySessionAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("CertifySessionAnswer", {true}, dump)
            .failsWith("DE01037", notMade)
            .refuses({}, "DE01028", invalid, "CertifySessionAnswer::CertifySessionAnswer(QList<QVariant>&)");
    return answers;
}

CommandFacts facts()
{
    constexpr char noKey[] = "Shared key decoding failed: expected String containing an Int value";
    CommandFacts facts(formsOf<CertifySessionCmd>());
    facts.catalogue = {"CERTIFY_SESSION", 62, "", 2};
    facts.protoType = 2;
    facts.valueFunction = "CertifySessionCmd::CertifySessionCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "CertifySessionCmd::CertifySessionCmd(QList<QVariant>)";
    facts.arguments = {
        required(Text, {"DE01031", "DE01031", "Session ID decoding failed: expected String type"})
            .outOfRange({""}, {"DE01030", "DE01030", "Session ID decoding failed: empty String received"})
            .takes({"7", " "}),
        required(Text, {"DE01035", "DE01035", "Shared key decoding failed: expected String type"})
            .outOfRange({""}, {"DE01034", "DE01034", "Shared key decoding failed: empty String received"})
            .outOfRange({"key", "7x", "2.5", "2147483648"}, {"DE01032", "DE01032", noKey})
            .takes({"0", "58", "-5"}),
    };
    facts.getters = {getter(&CertifySessionCmd::sessionID), getter(&CertifySessionCmd::sharedKey)};
    facts.words = silence();
    facts.defaults = Request().parameters({"", ""}).written(R"(["", ""])");
    facts.requests = {
        Request({"S-7", "28"})
            .typed<CertifySessionCmd>(QString("S-7"), QString("28"))
            .written(R"(["S-7", "28"])"),
    };
    facts.answers = answers();
    return facts;
}

TEST(CertifySessionCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

} // namespace
