// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getswversioncmd.h"

#include "base/commandcontract.h"

namespace {

using namespace testing_base;

constexpr char notMade[] = "Failed to create GetSwVersionAnswer";
constexpr char invalid[] = "GetSwVersionAnswer decoding failed: invalid QVariant value";

AnswerFacts answers()
{
    constexpr char dump[] =
        R"({"build_TS": "2026-03-04T05:06:07.000Z", "build_revision": 17, "git_sha": "0a1b2c", )"
        R"("release_type": "beta", "sw_version": "3.14.2"})";
    AnswerFacts answers = confAnswers();
    answers.value = AnswerOfValue("GetSwVersionAnswer",
                                  structOf({{"sw_version", "3.14.2"},
                                            {"build_revision", 17},
                                            {"build_TS", "2026-03-04T05:06:07Z"},
                                            {"release_type", "beta"},
                                            {"git_sha", "0a1b2c"}}),
                                  dump)
                        .failsWith("DE01312", notMade)
                        .refuses(Value(0), "DE01310", invalid,
                                 "GetSwVersionAnswer::GetSwVersionAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("GetSwVersionAnswer",
                     {"3.14.2", 17, QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC), "beta", "0a1b2c"},
                     dump)
            .failsWith("DE01530", notMade)
            .refuses({}, "DE01310", invalid, "GetSwVersionAnswer::GetSwVersionAnswer(QList<QVariant>&)");
    return answers;
}

TEST(GetSwVersionCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<GetSwVersionCmd>());
    facts.catalogue = {"GET_SW_VERSION", 86, "", 0};
    facts.protoType = 2;
    facts.keepsTheList = true;
    facts.defaults = Request().written("[]");
    facts.requests = {
        Request().written("[]"),
        Request({5}).onlyFromList().notReadBack().written("[]"),
        Request({5}).onlyFromValue().parameters({}).written("[]"),
    };
    facts.answers = answers();
    expectCommandContract(facts);
}

} // namespace
