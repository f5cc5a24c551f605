// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/checkformulalevelscmd.h"

#include "dispensing/querytesting.h"

#include <QuvFramework/fw_mixer.h>

#include <type_traits>

namespace {

using namespace testing_dispensing;

constexpr char ofValue[] =
    "CheckFormulaLevelsCmd::CheckFormulaLevelsCmd(const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char noFormula[] = "CheckFormulaLevelsCmd failed: expected Formula type for first parameter";

Formula withPolicy(int policy)
{
    Formula made = formula();
    made.setLevelsManagementPolicy(policy);
    return made;
}

Value answerStruct()
{
    return structOf(
        {{"canisters_below_critical", arrayOf(101)}, {"canisters_below_warning", arrayOf(101, 103)}});
}

AnswerFacts answers()
{
    constexpr char answerClass[] = "CheckFormulaLevelsAnswer";
    constexpr char notMade[] = "Failed to create CheckFormulaLevelsAnswer";
    constexpr char written[] =
        R"({"canisters_below_critical": [101], "canisters_below_warning": [101, 103]})";
    const List list = {QVariant::fromValue(QList<int>{101}), QVariant::fromValue(QList<int>{101, 103})};
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue(answerClass, answerStruct(), written)
            .failsWith("DE01274", notMade)
            .refuses(Value(0), "DE00460",
                     "CheckFormulaLevelsAnswer: Errors during Canister below critical list creation",
                     "CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList(answerClass, list, written)
            .failsWith("DE00464", notMade)
            .refuses({}, "DE00456",
                     "CheckFormulaLevelsAnswer decoding failed: invalid QVariant value (expected list of "
                     "canister below critical)",
                     "CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(QList<QVariant>&)");
    answers.envelope = {"DE00463", notMade};
    return answers;
}

Words checking(const Phrase &detailed)
{
    return {"Check formula levels", "Checking levels for formula", detailed};
}

/** A formula that is a purge or not. */
Request requestOfFormula(bool isPurge)
{
    const Phrase ofPurge("Checking levels for purge formula: 1 2.500", "QuvProtocol",
                         translation("Checking levels for " + translation("purge ") + "formula: 1 2.500"));
    return Request({variantOf(formula()), isPurge})
        .value(arrayOf(formulaStruct(), isPurge))
        .typed<CheckFormulaLevelsCmd>(formula(), isPurge)
        .written(std::string("[") + formulaWritten + (isPurge ? ", true]" : ", false]"))
        .says(checking(isPurge ? ofPurge : Phrase("Checking levels for formula: 1 2.500")));
}

CommandFacts facts(const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<CheckFormulaLevelsCmd>(machine));
    facts.catalogue = {"CHECK_FORMULA_LEVELS", 73, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true; // two forms of a request
    facts.defaults = Request().notWritten().says(checking("Checking levels for formula"));
    const Request purging =
        Request({variantOf(purge())})
            .value(arrayOf(purgeStruct()))
            .typed<CheckFormulaLevelsCmd>(purge())
            .written(std::string("[") + purgeWritten + ']')
            .says(checking("Checking levels for purge formula: 2 strokes of each circuit"));
    facts.requests = {
        requestOfFormula(true),
        requestOfFormula(false),
        requestOfFormula(true).alsoFromList({formulaMap(), true}),
        purging,
        purging.alsoFromList({purgeMap()}),
    };
    facts.answers = answers();
    return facts;
}

TEST(CheckFormulaLevelsCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine = dispenser();
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

TEST(CheckFormulaLevelsCmd, keepsThePolicyOfAFormulaInAList)
{
    EXPECT_EQ(CheckFormulaLevelsCmd(List{variantOf(withPolicy(2)), true}).parameters(),
              (List{variantOf(withPolicy(2)), true}))
        << "as it is: the driver takes the policy away";
}

TEST(CheckFormulaLevelsCmd, takesAFormula)
{
    for (bool isPurge : {false, true}) {
        const CheckFormulaLevelsCmd command(formula(), isPurge);
        Formula held;
        bool flag = !isPurge;
        EXPECT_TRUE(command.getFormula(held, flag));
        EXPECT_EQ(held, formula());
        EXPECT_EQ(flag, isPurge);
        PurgeFormula none(7.0, 0, 3);
        EXPECT_TRUE(command.getPurgeFormula(none));
        EXPECT_EQ(none, PurgeFormula()) << "not the other form";
    }
}

TEST(CheckFormulaLevelsCmd, takesAPurge)
{
    const CheckFormulaLevelsCmd command(purge());
    PurgeFormula held;
    EXPECT_TRUE(command.getPurgeFormula(held));
    EXPECT_EQ(held, purge());
    Formula none = formula();
    bool flag = true;
    EXPECT_FALSE(command.getFormula(none, flag));
    EXPECT_EQ(none, formula());
    EXPECT_TRUE(flag);
}

TEST(CheckFormulaLevelsCmd, carriesACopyWithoutALevelsPolicy)
{
    const Formula checking = withPolicy(2);
    EXPECT_EQ(CheckFormulaLevelsCmd(checking, false).parameters(), (List{variantOf(formula()), false}));
    EXPECT_EQ(checking.levelsManagementPolicy(), 2);
    Value value = formulaStruct();
    value["levels_policy"] = 3;
    EXPECT_EQ(CheckFormulaLevelsCmd(arrayOf(value, true), nullptr).parameters(),
              (List{variantOf(formula()), true}));
}

// ---------------------------------------------------------------- the two forms of a request

TEST(CheckFormulaLevelsCmd, readsAFormulaWithAFlag)
{
    const FW_Dispenser machine = dispenser();
    for (const FW_Machine *given :
         {static_cast<const FW_Machine *>(nullptr), static_cast<const FW_Machine *>(&machine)}) {
        for (bool isPurge : {false, true}) {
            const CheckFormulaLevelsCmd command(arrayOf(formulaStruct(), isPurge), given);
            EXPECT_EQ(command.parameters(), (List{variantOf(formula()), isPurge}));
            EXPECT_EQ(command.machine() != nullptr, given != nullptr);
            EXPECT_TRUE(!given || command.machine() != given) << "a copy of its own";
        }
    }
}

TEST(CheckFormulaLevelsCmd, takesARequestWithoutAFlagForAPurge)
{
    for (const Value &request :
         {arrayOf(purgeStruct()), arrayOf(purgeStruct(), 1), arrayOf(purgeStruct(), "rest", true)}) {
        SCOPED_TRACE(dumped(request));
        EXPECT_EQ(CheckFormulaLevelsCmd(request, nullptr).parameters(), List{variantOf(purge())});
    }

    for (const Value &request : {arrayOf(formulaStruct()), arrayOf(formulaStruct(), 1),
                                 arrayOf(formulaStruct(), "true"), arrayOf(formulaStruct(), 0.0)}) {
        SCOPED_TRACE(dumped(request));
        expectRefusal("DE00438", noFormula, ofValue,
                      [&] { const CheckFormulaLevelsCmd command(request, nullptr); });
    }
}

TEST(CheckFormulaLevelsCmd, checksNoPurge)
{
    const FW_Mixer mixer;
    EXPECT_EQ(CheckFormulaLevelsCmd(arrayOf(purgeStruct()), &mixer).parameters(), List{variantOf(purge())});
}

TEST(CheckFormulaLevelsCmd, checksAFormulaOnlyByAMachine)
{
    const FW_Dispenser machine = dispenser();
    const FW_Mixer mixer;
    const Value negative = arrayOf(negativeFormulaStruct(), false);
    const CheckFormulaLevelsCmd unchecked(negative, nullptr);
    EXPECT_EQ(unchecked.parameters(), (List{variantOf(grams({{"1", -2.5}})), false}));
    expectRefusal("DE00552", notPositive, ofValue,
                  [&] { const CheckFormulaLevelsCmd command(negative, &machine); });
    expectRefusal("DE01337", "Invalid dispenser data", ofValue,
                  [&] { const CheckFormulaLevelsCmd command(arrayOf(formulaStruct(), false), &mixer); });
    expectRefusal("DE01337", "Invalid dispenser data", ofValue,
                  [&] { const CheckFormulaLevelsCmd command(negative, &mixer); });
}

TEST(CheckFormulaLevelsCmd, refusesWhatIsNoFormula)
{
    for (const Value &request :
         {arrayOf(unreadableFormula(), true), arrayOf(purgeStruct(), true), arrayOf(7, true), arrayOf(7),
          arrayOf(structOf({{"purge_quantity", Value(-1.0)}}))}) {
        SCOPED_TRACE(dumped(request));
        expectRefusal("DE00438", noFormula, ofValue,
                      [&] { const CheckFormulaLevelsCmd command(request, nullptr); });
    }
}

TEST(CheckFormulaLevelsCmd, doesNotMistakeAMachineForAFlag)
{
    static_assert(!std::is_constructible_v<CheckFormulaLevelsCmd, const Formula &, const FW_Machine *>);
}

// ---------------------------------------------------------------- lists

TEST(CheckFormulaLevelsCmd, writesNothingOfAListThatIsNeitherForm)
{
    const std::vector<List> lists = {{variantOf(formula()), true, 1}, // one too many
                                     {variantOf(purge()), true},
                                     {variantOf(formula())},
                                     {unreadableFormulaVariant(), true},
                                     {QVariantMap{{"purge_quantity", -1.0}}},
                                     {QVariant(), true},
                                     {QVariant()},
                                     {7, true},
                                     {QStringLiteral("formula"), true},
                                     {variantOf(formula()), QVariant(List())}};
    for (const List &list : lists) {
        const CheckFormulaLevelsCmd command(list);
        EXPECT_EQ(command.parameters(), list) << "kept as it is";
        bool ok = true;
        EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), "[]");
        EXPECT_FALSE(ok);
        EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[]");
    }
    bool ok = true;
    EXPECT_EQ(dumped(CheckFormulaLevelsCmd().xmlrpc_parameters(&ok)), "[]");
    EXPECT_FALSE(ok);
}

TEST(CheckFormulaLevelsCmd, givesAnEmptyFormulaForWhatIsNone)
{
    Formula held = formula();
    bool flag = false;
    EXPECT_TRUE(CheckFormulaLevelsCmd(List{unreadableFormulaVariant(), true}).getFormula(held, flag));
    EXPECT_EQ(held, Formula());
    EXPECT_TRUE(flag);
    held = formula();
    EXPECT_TRUE(CheckFormulaLevelsCmd(List{7, false}).getFormula(held, flag));
    EXPECT_EQ(held, Formula());
    EXPECT_FALSE(flag);
    EXPECT_FALSE(CheckFormulaLevelsCmd().getFormula(held, flag));
}

TEST(CheckFormulaLevelsCmd, givesADefaultPurgeForWhatIsNone)
{
    for (const QVariant &first : {QVariant(7), QVariant(), QVariant(QVariantMap{{"purge_quantity", -1.0}})}) {
        SCOPED_TRACE(shown({first}));
        PurgeFormula held = purge();
        EXPECT_TRUE(CheckFormulaLevelsCmd(List{first}).getPurgeFormula(held));
        EXPECT_EQ(held, PurgeFormula());
    }
    PurgeFormula untouched = purge();
    EXPECT_FALSE(CheckFormulaLevelsCmd().getPurgeFormula(untouched));
    EXPECT_EQ(untouched, purge());
}

// ---------------------------------------------------------------- texts

TEST(CheckFormulaLevelsCmd, saysWhatItDoes)
{
    const Formula two = grams({{"1", 2.5}, {"3", 0.125}});
    EXPECT_EQ(CheckFormulaLevelsCmd(two, true).actionString(false).m_text, "Checking levels for formula");
    EXPECT_EQ(CheckFormulaLevelsCmd(purge()).actionString(false).m_text, "Checking levels for formula");
    EXPECT_EQ(CheckFormulaLevelsCmd(two, false).actionString(true).m_text,
              "Checking levels for formula: 1 2.500, 3 0.125");
    EXPECT_EQ(CheckFormulaLevelsCmd(two, true).actionString(true).m_text,
              "Checking levels for purge formula: 1 2.500, 3 0.125");
    EXPECT_EQ(CheckFormulaLevelsCmd(purge()).actionString(true).m_text,
              "Checking levels for purge formula: 2 strokes of each circuit");
    EXPECT_EQ(CheckFormulaLevelsCmd(List{7}).actionString(true).m_text,
              "Checking levels for purge formula: 1 strokes of each circuit");
    EXPECT_EQ(CheckFormulaLevelsCmd(List{7, false}).actionString(true).m_text,
              "Checking levels for formula: ");
    EXPECT_EQ(CheckFormulaLevelsCmd(List{variantOf(formula()), true, 1}).actionString(true).m_text,
              "Checking levels for formula");
    EXPECT_EQ(CheckFormulaLevelsCmd().actionString(true).m_text, "Checking levels for formula");
}

} // namespace
