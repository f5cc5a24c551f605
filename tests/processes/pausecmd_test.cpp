// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/pausecmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

TEST(PauseCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<PauseCmd>());
    facts.catalogue = {"PAUSE", 166, "", 1};
    facts.protoType = 1;
    facts.valueFunction = "PauseCmd::PauseCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "PauseCmd::PauseCmd(QList<QVariant>)";
    facts.arguments = {required(Integer, {"DE02945", "DE02946", "PauseCmd: invalid PAUSE value (ms)"})
                           .takes({-1, 2147483647})};
    facts.getters = {getter(&PauseCmd::milliseconds)};
    facts.defaults = Request().parameters({0}).written("[0]");
    facts.requests = {Request({30000}).typed<PauseCmd>(30000).written("[30000]").takes(30000),
                      Request({0}).typed<PauseCmd>(0).written("[0]")};
    facts.answers = serialAnswers();
    expectCommandContract(facts);
}

TEST(PauseCmd, doesNotMistakeOtherArgumentsForATime)
{
    static_assert(!std::is_constructible_v<PauseCmd, bool>);
    static_assert(!std::is_constructible_v<PauseCmd, double>);
    static_assert(!std::is_constructible_v<PauseCmd, const char *>);
    static_assert(!std::is_convertible_v<int, PauseCmd>);
}

} // namespace
