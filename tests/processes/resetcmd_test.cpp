// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/resetcmd.h"

#include "processes/processtesting.h"

#include <QuvFramework/fw_mixer.h>

#include <type_traits>

namespace {

using namespace testing_processes;

Words resetting(const char *detailed)
{
    return {"Reset in progress", "Reset in progress", detailed};
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<ResetCmd>());
    facts.catalogue = {"RESET", 6, "0001", 0};
    facts.protoType = 1;
    facts.valueFunction = "ResetCmd::ResetCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ResetCmd::ResetCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Integer, {"DE01025", "DE01026", "Position ID: expected INT parameter"}).takes({-1, 245})};
    facts.getters = {getter(&ResetCmd::moduleID)};
    facts.defaults =
        Request().parameters({0}).written("[0]").says(resetting("Resetting all dispenser modules"));
    facts.requests = {
        Request({3}).typed<ResetCmd>(3).written("[3]").module(3).takes(250).says(
            resetting("Resetting module 3")),
        Request({0}).typed<ResetCmd>(0).written("[0]").says(resetting("Resetting all dispenser modules")),
        Request(List{}).parameters({0}).written("[0]").says(resetting("Resetting all dispenser modules")),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(ResetCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(ResetCmd, doesNotMistakeOtherArgumentsForAPosition)
{
    static_assert(!std::is_constructible_v<ResetCmd, bool>);
    static_assert(!std::is_constructible_v<ResetCmd, double>);
    static_assert(!std::is_constructible_v<ResetCmd, const char *>);
    static_assert(!std::is_convertible_v<int, ResetCmd>);
}

TEST(ResetCmd, takesTimeForEachEnabledCircuit)
{
    FW_Dispenser machine = dispenserWith({1, 2, 3});
    EXPECT_EQ(ResetCmd().getCmdEstimatedExecutionTime(&machine), 750);
    EXPECT_EQ(ResetCmd(2).getCmdEstimatedExecutionTime(&machine), 250);
    machine.getCircuitByPosition(2)->setEnabled(false);
    EXPECT_EQ(ResetCmd().getCmdEstimatedExecutionTime(&machine), 500);
    const FW_Mixer mixer;
    EXPECT_EQ(ResetCmd().getCmdEstimatedExecutionTime(&mixer), 0);
    EXPECT_EQ(ResetCmd(2).getCmdEstimatedExecutionTime(&mixer), 250);
    EXPECT_EQ(ResetCmd().getCmdEstimatedExecutionTime(nullptr), 0);
}

} // namespace
