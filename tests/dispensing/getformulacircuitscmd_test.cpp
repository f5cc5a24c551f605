// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulacircuitscmd.h"

#include "dispensing/querytesting.h"

#include <QuvFramework/fw_mixer.h>

#include <type_traits>

namespace {

using namespace testing_dispensing;

constexpr char ofValue[] =
    "GetFormulaCircuitsCmd::GetFormulaCircuitsCmd(const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char neitherForm[] = "GetFormulaCircuitsCmd failed: incorrect Formula type parameter";
constexpr char noFormula[] = "GetFormulaCircuitsCmd failed: expected Formula type for first parameter";
constexpr char noPurge[] = "GetFormulaCircuitsCmd failed: expected PurgeFormula type for first parameter";

Value answerStruct()
{
    return structOf(
        {{"circuits", arrayOf(11, 13)}, {"positions", arrayOf(1, 3)}, {"quantities", arrayOf(2.5, 0.5)}});
}

AnswerFacts answers()
{
    constexpr char answerClass[] = "GetFormulaCircuitsAnswer";
    constexpr char notMade[] = "Failed to create GetFormulaCircuitsAnswer";
    constexpr char written[] =
        R"({"circuits": [11, 13], "positions": [1, 3], "quantities": [2.50000, 0.500000]})";
    const List list = {QVariant::fromValue(QList<int>{11, 13}), QVariant::fromValue(QList<int>{1, 3}),
                       QVariant::fromValue(QList<double>{2.5, 0.5})};
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue(answerClass, answerStruct(), written)
            .failsWith("DE01276", notMade)
            .refuses(Value(0), "DE00717", "GetFormulaCircuitsAnswer: Errors during Circuits ID list creation",
                     "GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList(answerClass, list, written)
                       .failsWith("DE00210", notMade)
                       .refuses({}, "DE00713",
                                "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected "
                                "list of circuit IDs)",
                                "GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(QList<QVariant>&)");
    answers.envelope = {"DE00211", notMade};
    return answers;
}

CommandFacts facts(const FW_Dispenser *machine)
{
    using Command = GetFormulaCircuitsCmd;
    CommandFacts facts(formsOf<Command>(machine));
    facts.catalogue = {"GET_FORMULA_CIRCUITS", 74, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;           // two forms of a request
    facts.valueIsCheckedByBase = false; // a struct is one of them
    facts.defaults = Request().notWritten();
    const Request pouring = Request({variantOf(formula()), true})
                                .value(arrayOf(formulaStruct(), true))
                                .typed<Command>(formula(), true)
                                .written(std::string("[") + formulaWritten + ", true]");
    const Request purging = Request({variantOf(purge())})
                                .value(arrayOf(purgeStruct()))
                                .typed<Command>(purge())
                                .written(std::string("[") + purgeWritten + ']');
    facts.requests = {
        pouring,
        pouring.alsoFromList({formulaMap(), true}),
        pouring.alsoFromValue(arrayOf(formulaStruct(), true, 7)),
        purging,
        purging.alsoFromList({purgeMap()}),
        purging.alsoFromValue(purgeStruct()),
        purging.alsoFromValue(arrayOf(purgeStruct(), true)),
    };
    for (const Value &withoutFlag : {arrayOf(formulaStruct()), arrayOf(formulaStruct(), false),
                                     arrayOf(formulaStruct(), 1), arrayOf(formulaStruct(), "true", true)})
        facts.requests.push_back(Request({variantOf(formula()), false})
                                     .value(withoutFlag)
                                     .typed<Command>(formula(), false)
                                     .written(std::string("[") + formulaWritten + ", false]"));
    facts.answers = answers();
    return facts;
}

TEST(GetFormulaCircuitsCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine = dispenser();
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

TEST(GetFormulaCircuitsCmd, takesAFormulaAsItIs)
{
    Formula checking = formula();
    checking.setLevelsManagementPolicy(2);
    EXPECT_EQ(GetFormulaCircuitsCmd(checking, false).parameters(), (List{variantOf(checking), false}));
    Value value = formulaStruct();
    value["levels_policy"] = 2;
    EXPECT_EQ(GetFormulaCircuitsCmd(arrayOf(value), nullptr).parameters(),
              (List{variantOf(checking), false}));

    static_assert(!std::is_constructible_v<GetFormulaCircuitsCmd, const Formula &, const FW_Machine *>);
}

TEST(GetFormulaCircuitsCmd, checksNeitherSignNorMachine)
{
    const FW_Mixer mixer;
    const GetFormulaCircuitsCmd command(arrayOf(negativeFormulaStruct()), &mixer);
    EXPECT_EQ(command.parameters(), (List{variantOf(grams({{"1", -2.5}})), false}));
    ASSERT_TRUE(command.machine());
    EXPECT_NE(command.machine(), &mixer);
}

TEST(GetFormulaCircuitsCmd, refusesWhatIsNeitherForm)
{
    for (const Value &request :
         {Value(), Value(7), Value("formula"), arrayOf(), structOf({}), formulaStruct()}) {
        SCOPED_TRACE(dumped(request));
        expectRefusal("DE01254", neitherForm, ofValue,
                      [&] { const GetFormulaCircuitsCmd command(request, nullptr); });
    }
}

TEST(GetFormulaCircuitsCmd, refusesWhatCannotBeRead)
{
    for (const Value &request : {arrayOf(unreadableFormula()), arrayOf(unreadableFormula(), true),
                                 arrayOf(structOf({{"formula_type", Value("1")}}))}) {
        SCOPED_TRACE(dumped(request));
        expectRefusal("DE00235", noFormula, ofValue,
                      [&] { const GetFormulaCircuitsCmd command(request, nullptr); });
    }
    const Value badPurge = structOf({{"purge_quantity", Value(0.0)}});
    for (const Value &request :
         {badPurge, arrayOf(badPurge), arrayOf(7), arrayOf(structOf({})), arrayOf(true, formulaStruct())}) {
        SCOPED_TRACE(dumped(request));
        expectRefusal("DE01253", noPurge, ofValue,
                      [&] { const GetFormulaCircuitsCmd command(request, nullptr); });
    }
}

TEST(GetFormulaCircuitsCmd, writesNothingOfAListThatIsNeitherForm)
{
    for (const List &list :
         {List{variantOf(formula())}, List{variantOf(purge()), true}, List{unreadableFormulaVariant(), true},
          List{7}, List{variantOf(formula()), true, 1}}) {
        SCOPED_TRACE(shown(list));
        const GetFormulaCircuitsCmd command(list);
        EXPECT_EQ(command.parameters(), list);
        bool ok = true;
        EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), "[]");
        EXPECT_FALSE(ok);
    }
}

} // namespace
