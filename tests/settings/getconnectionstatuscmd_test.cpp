// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getconnectionstatuscmd.h"

#include "base/commandcontract.h"

namespace {

using namespace testing_base;

AnswerFacts answers()
{
    constexpr char invalid[] = "GetConnectionStatusAnswer decoding failed: invalid QVariant value";
    constexpr char dump[] =
        R"({"BT_connection_status": 0, "scale_connection_status": -1, "serial_connection_status": 1})";
    AnswerFacts answers = confAnswers();
    AnswerOfValue value(
        "GetConnectionStatusAnswer",
        structOf(
            {{"serial_connection_status", 1}, {"BT_connection_status", 0}, {"scale_connection_status", -1}}),
        dump);
    value.failure = answers.value.failure;
    answers.value =
        value.refuses(Value(0), "DE01670", invalid,
                      "GetConnectionStatusAnswer::GetConnectionStatusAnswer(const XmlRpc::XmlRpcValue&)");
    AnswerOfList list("GetConnectionStatusAnswer", {1, 0, -1}, dump);
    list.failure = answers.list.failure;
    answers.list = list.refuses({1}, "DE01671", invalid,
                                "GetConnectionStatusAnswer::GetConnectionStatusAnswer(QList<QVariant>&)");
    return answers;
}

TEST(GetConnectionStatusCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<GetConnectionStatusCmd>());
    facts.catalogue = {"GET_CONN_STATUS", 92, "", 0};
    facts.protoType = 2;
    facts.keepsTheList = true;
    facts.words = silence();
    facts.words.command = "Connection status read";
    facts.defaults = Request().written("[]");
    facts.requests = {
        Request().typed<GetConnectionStatusCmd>().written("[]"),
        Request({5}).onlyFromList().notReadBack().written("[]"),
        Request({5}).onlyFromValue().parameters({}).written("[]"),
    };
    facts.answers = answers();
    expectCommandContract(facts);
}

} // namespace
