// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stirringcmd.h"

#include "processes/processtesting.h"

#include <QuvFramework/fw_mixer.h>

#include <type_traits>

namespace {

using namespace testing_processes;

constexpr char badDuration[] = "Stirring duration: invalid parameter";

Words stirring(const QString &before, const char *word)
{
    return {"Stirring", "Stirring", withWord(before + " (", word, " execution)")};
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<StirringCmd>());
    facts.catalogue = {"STIRRING", 9, "0004", 2};
    facts.protoType = 1;
    facts.valueFunction = "StirringCmd::StirringCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "StirringCmd::StirringCmd(QList<QVariant>)";
    constexpr char noDuration[] = "Stirring duration: expected INT or LONG parameter";
    facts.arguments = {
        required(Integer, {"DE00646", "DE00650", "Position ID: expected INT parameter"}),
        required(Whole, {"DE00648", "DE00652", "Stirring duration: expected INT parameter", noDuration})
            .outOfRange({-1, 60516, 100000}, {"DE01893", "DE00652", badDuration, noDuration})
            .refuses({}, {-9223372036854775807LL, 4294967299LL}, {"", "DE00652", noDuration})
            .takes({0, 1, 60514, 60515}),
        optional(Flag, {"DE02607", "DE02608", "Stirring execution type: expected BOOL parameter"}),
    };
    facts.getters = {getter(&StirringCmd::moduleID), getter(&StirringCmd::duration),
                     getter(&StirringCmd::isBusyExecution)};
    facts.defaults = Request()
                         .parameters({0, 30LL, false})
                         .written("[0, 30, false]")
                         .sends({30, 0, 0})
                         .says(stirring("Stirring circuit position 0 for 30 seconds", "wait"));
    facts.requests = {
        Request({4, 300, true})
            .parameters({4, 300LL, true})
            .typed<StirringCmd>(4, 300, true)
            .written("[4, 300, true]")
            .sends({54, 1, 1})
            .module(4)
            .says(stirring("Stirring circuit position 4 for 300 seconds", "busy")),
        Request({0, 40})
            .parameters({0, 40LL, false})
            .typed<StirringCmd>(40)
            .written("[0, 40, false]")
            .sends({40, 0, 0})
            .says(stirring("Stirring circuit position 0 for 40 seconds", "wait")),
        Request({1, 60515})
            .parameters({1, 60515LL, false})
            .typed<StirringCmd>(1, 60515, false)
            .written("[1, 60515, false]")
            .sends({245, 245, 0})
            .module(1)
            .says(stirring("Stirring circuit position 1 for 60515 seconds", "wait")),
        Request({1, 0, false})
            .parameters({1, 0LL, false})
            .typed<StirringCmd>(1, 0, false)
            .written("[1, 0, false]")
            .sends({0, 0, 0})
            .module(1)
            .says(stirring("Stirring circuit position 1 for 0 seconds", "wait")),
    };
    for (const qlonglong duration : {-1LL, 60516LL, 4294967299LL}) {
        facts.typedRefusals.push_back(
            {made<StirringCmd>(duration), {"DE01891", badDuration}, "StirringCmd::StirringCmd(qlonglong)"});
        facts.typedRefusals.push_back({made<StirringCmd>(1, duration, true),
                                       {"DE01892", badDuration},
                                       "StirringCmd::StirringCmd(int, qlonglong, bool)"});
    }
    facts.timeNeedsAMachine = true;
    facts.answers = serialAnswers();
    return facts;
}

TEST(StirringCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(StirringCmd, doesNotMistakeOtherArgumentsForADuration)
{
    static_assert(!std::is_constructible_v<StirringCmd, bool>);
    static_assert(!std::is_constructible_v<StirringCmd, double>);
    static_assert(!std::is_constructible_v<StirringCmd, const char *>);
    static_assert(!std::is_convertible_v<qlonglong, StirringCmd>);
}

TEST(StirringCmd, takesTimeWhenItLastsAsLongAsTheStirring)
{
    const FW_Dispenser dispenser;
    EXPECT_EQ(StirringCmd(40).getCmdEstimatedExecutionTime(&dispenser), 40000);
    EXPECT_EQ(StirringCmd(3, 40, true).getCmdEstimatedExecutionTime(&dispenser), 40000);
    EXPECT_EQ(StirringCmd(3, 40, false).getCmdEstimatedExecutionTime(&dispenser), 0);
    EXPECT_EQ(StirringCmd(0, 0, true).getCmdEstimatedExecutionTime(&dispenser), 0);

    FW_Dispenser slow;
    slow.setModelName("SOLA100 compact");
    EXPECT_EQ(StirringCmd(40).getCmdEstimatedExecutionTime(&slow), 90000);
    EXPECT_EQ(StirringCmd(3, 40, true).getCmdEstimatedExecutionTime(&slow), 90000);
    EXPECT_EQ(StirringCmd(3, 40, false).getCmdEstimatedExecutionTime(&slow), 0);

    const FW_Mixer mixer;
    EXPECT_EQ(StirringCmd(40).getCmdEstimatedExecutionTime(&mixer), 0);
    EXPECT_EQ(StirringCmd(40).getCmdEstimatedExecutionTime(nullptr), 0);
}

TEST(StirringCmd, knowsDurations)
{
    EXPECT_EQ(StirringCmd::infiniteDuration(), 60515);
    EXPECT_EQ(StirringCmd::maxDuration(), 60514);
    for (const long long duration : {0LL, 1LL, 60514LL, 60515LL})
        EXPECT_TRUE(StirringCmd::checkDuration(duration)) << duration;
    for (const long long duration : {-1LL, 60516LL, 4294967297LL})
        EXPECT_FALSE(StirringCmd::checkDuration(duration)) << duration;
}

TEST(StirringCmd, findsTheGreatestDuration)
{
    EXPECT_EQ(StirringCmd::maxDuration({StirringCmd(5), StirringCmd(2, 60515, true), StirringCmd(9)}), 60515);
    EXPECT_EQ(StirringCmd::maxDuration({StirringCmd(0)}), 0);
    EXPECT_EQ(StirringCmd::maxDuration({}), 0);
}

TEST(StirringCmd, isAssignedDeep)
{
    StirringCmd from(4, 300, true);
    ASSERT_TRUE(from.buildProtoAnswer(QStringList{"1", "0"}, nullptr));
    StirringCmd to(9);
    to = from;
    EXPECT_EQ(to.parameters(), (List{4, 300LL, true}));
    EXPECT_EQ(to.moduleID(), 4);
    ASSERT_NE(to.getProtoAnswer(), nullptr);
    EXPECT_NE(to.getProtoAnswer(), from.getProtoAnswer());
    from.clearProtoAnswer();
    EXPECT_NE(to.getProtoAnswer(), nullptr);

    StirringCmd &self = to;
    to = self;
    EXPECT_EQ(to.parameters(), (List{4, 300LL, true}));
    EXPECT_NE(to.getProtoAnswer(), nullptr);
}

TEST(StirringCmd, knowsWhichFirmwareStirsAllCircuits)
{
    expectGates({{63, 37, false},
                 {63, 38, true},
                 {67, 0, true},
                 {68, 3, false},
                 {68, 4, true},
                 {69, 99, false},
                 {70, 1, false},
                 {70, 2, true},
                 {72, 0, true},
                 {71, 99, false}},
                StirringCmd::isStirAllSupported);
}

TEST(StirringCmd, knowsWhichFirmwareRunsBusy)
{
    expectGates({{63, 37, false},
                 {63, 38, true},
                 {67, 99, false},
                 {68, 99, false},
                 {69, 99, false},
                 {70, 1, false},
                 {70, 2, true},
                 {72, 0, true},
                 {71, 99, false}},
                [](const FW_Version &version) { return StirringCmd::isBusyExecutionSupported(version); });
}

TEST(StirringCmd, tellsItsVersion)
{
    expectVersions({{FW_Version(63, 37), 0},
                    {FW_Version(63, 38), 2},
                    {FW_Version(67, 0), 1},
                    {FW_Version(68, 4), 1},
                    {FW_Version(69, 99), 0},
                    {FW_Version(70, 2), 2},
                    {FW_Version(72, 0), 2},
                    {FW_Version(), 0}},
                   StirringCmd::commandVersion);
}

} // namespace
