// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/swprocesstogglecmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

TEST(SwProcessToggleCmd, keepsTheCommandContract)
{
    constexpr char invalid[] = "SwProcessToggleCmd: invalid parameter";
    CommandFacts facts(formsOf<SwProcessToggleCmd>());
    facts.catalogue = {"SW_PROCESS_TOGGLE", 142, "002E", 2};
    facts.protoType = 1;
    facts.valueFunction = "SwProcessToggleCmd::SwProcessToggleCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SwProcessToggleCmd::SwProcessToggleCmd(QList<QVariant>)";
    facts.arguments = {required(Integer, {"DE02572", "DE02905", invalid}).takes({-1, 2147483647}),
                       required(Integer, {"DE02573", "DE02906", invalid}).takes({-1, 0}),
                       optional(Integer, {"DE02574", "DE02907", invalid}).takes({-1, 245}),
                       optional(Integer, {"DE02575", "DE02908", invalid}).takes({-1, 245})};
    facts.getters = {getter(&SwProcessToggleCmd::first), getter(&SwProcessToggleCmd::second),
                     getter(&SwProcessToggleCmd::third), getter(&SwProcessToggleCmd::fourth)};
    facts.defaults = Request().parameters({1, 1, 0, 0}).written("[1, 1, 0, 0]").sends({1, 1, 0, 0});
    facts.requests = {
        Request({2, 3, 4, 5})
            .typed<SwProcessToggleCmd>(2, 3, 4, 5)
            .written("[2, 3, 4, 5]")
            .sends({2, 3, 4, 5}),
        Request({7, 8, 300}).parameters({7, 8, 300, 0}).written("[7, 8, 300, 0]").sends({7, 8, 300, 0}),
        Request({0, -1}).parameters({0, -1, 0, 0}).written("[0, -1, 0, 0]").sends({0, -1, 0, 0}),
    };
    facts.firmware = {{FW_Version(63, 37), false}, {FW_Version(63, 38), true},  {FW_Version(63, 99), true},
                      {FW_Version(69, 2), false},  {FW_Version(69, 3), true},   {FW_Version(70, 1), false},
                      {FW_Version(70, 2), true},   {FW_Version(68, 99), false}, {FW_Version(72, 99), false},
                      {FW_Version(), false}};
    facts.answers = serialAnswers();
    expectCommandContract(facts);
}

TEST(SwProcessToggleCmd, doesNotMistakeOneArgumentForAToggle)
{
    static_assert(!std::is_constructible_v<SwProcessToggleCmd, int>);
    static_assert(!std::is_constructible_v<SwProcessToggleCmd, bool>);
    static_assert(!std::is_constructible_v<SwProcessToggleCmd, double>);
    static_assert(!std::is_constructible_v<SwProcessToggleCmd, const char *>);
}

} // namespace
