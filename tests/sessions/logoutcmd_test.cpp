// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/logoutcmd.h"

#include "base/commandcontract.h"

namespace {

using namespace testing_base;

CommandFacts facts()
{
    CommandFacts facts(formsOf<LogoutCmd>());
    facts.catalogue = {"LOGOUT", 60, "", 1};
    facts.protoType = 2;
    facts.valueFunction = "LogoutCmd::LogoutCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "LogoutCmd::LogoutCmd(QList<QVariant>)";
    facts.arguments = {
        required(Text, {"DE00162", "DE00162", "Login failed: expected Int type for first parameter"})
            .takes({"", "7"})};
    facts.getters = {getter(&LogoutCmd::sessionID)};
    facts.words = silence();
    facts.defaults = Request().parameters({""}).written(R"([""])");
    facts.requests = {
        Request({"S-7"}).typed<LogoutCmd>(QString("S-7")).written(R"(["S-7"])"),
        Request({QString::fromUtf8("S\xC3\xBC")}).written("[\"S\xC3\xBC\"]"),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(LogoutCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

} // namespace
