// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/workingmodecmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

AnswerFacts answers()
{
    constexpr char failed[] = "Failed to create WorkingModeAnswer";
    constexpr char noMode[] = "WorkingModeAnswer: expected working_mode value";
    const std::string written = R"({"working_mode": 7})";
    AnswerFacts answers = serialAnswers();
    answers.tokens = AnswerOfTokens("WorkingModeAnswer", {"1", "7"}, written)
                         .failsWith("DE00103", failed)
                         .refuses({"0"}, "DE00093", "Error during command answer decoding: bad length",
                                  "WorkingModeAnswer::WorkingModeAnswer(QStringList)");
    answers.value = AnswerOfValue("WorkingModeAnswer", structOf({{"working_mode", 7}}), written)
                        .failsWith("DE01302", failed)
                        .refuses(structOf({}), "DE03169", noMode,
                                 "WorkingModeAnswer::WorkingModeAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("WorkingModeAnswer", {7}, written)
            .failsWith("DE01303", failed)
            .refuses({}, "DE03170", noMode, "WorkingModeAnswer::WorkingModeAnswer(QList<QVariant>&)");
    answers.envelope = {"DE01231", failed};
    return answers;
}

CommandFacts facts()
{
    constexpr char invalid[] = "Invalid working mode value";
    CommandFacts facts(formsOf<WorkingModeCmd>());
    facts.catalogue = {"WORKING_MODE", 18, "0020", 0};
    facts.protoType = 1;
    facts.valueFunction = "WorkingModeCmd::WorkingModeCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "WorkingModeCmd::WorkingModeCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Integer, {"DE00317", "DE00318", "Working mode value type: expected INT parameter"})
            .outOfRange({-1, 9, 245}, {"DE01004", "DE01005", invalid})
            .takes({0, 8})};
    facts.getters = {getter(&WorkingModeCmd::workingMode)};
    facts.words = silence();
    facts.defaults = Request().parameters({245}).written("[245]").sends({245, 0, 0}, {}).notReadBack();
    facts.requests = {
        Request({3}).typed<WorkingModeCmd>(3).written("[3]").sends({3, 0, 0}, {}),
        Request({5}).typed<WorkingModeCmd>(5).written("[5]").sends({5, 0, 120}, {}),
        Request({0}).typed<WorkingModeCmd>(0).written("[0]").sends({0, 0, 0}, {}),
        Request(List()).parameters({245}).written("[245]").sends({245, 0, 0}, {}).notReadBack(),
    };
    for (const int unknown : {-1, 9, 245})
        facts.typedRefusals.push_back(
            {made<WorkingModeCmd>(unknown), {"DE01003", invalid}, "WorkingModeCmd::WorkingModeCmd(int)"});
    facts.answers = answers();
    return facts;
}

TEST(WorkingModeCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(WorkingModeCmd, sendsParametersToTheFirstFamilyOnly)
{
    for (const int family : {0, 2, 3})
        EXPECT_EQ(WorkingModeCmd(5).serialParameters(family), QList<int>()) << family;
}

TEST(WorkingModeCmd, doesNotMistakeOtherArgumentsForAMode)
{
    static_assert(!std::is_constructible_v<WorkingModeCmd, bool>);
    static_assert(!std::is_constructible_v<WorkingModeCmd, double>);
    static_assert(!std::is_constructible_v<WorkingModeCmd, const char *>);
    static_assert(!std::is_convertible_v<int, WorkingModeCmd>);
}

} // namespace
