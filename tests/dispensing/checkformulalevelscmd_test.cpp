// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/checkformulalevelscmd.h"

#include "catalogue/protocommandlist.h"
#include "dispensing/checkformulalevelsanswer.h"
#include "dispensing/querytesting.h"

#include <QuvFramework/fw_mixer.h>

#include <memory>
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

TEST(CheckFormulaLevelsCmd, isCarriedOutByTheDriver)
{
    const CheckFormulaLevelsCmd command;
    EXPECT_EQ(command.command(), "CHECK_FORMULA_LEVELS");
    EXPECT_EQ(command.protoType(), 2);
    EXPECT_EQ(command.parameters(), List());
    EXPECT_FALSE(command.machine());
    EXPECT_EQ(ProtoCommandList::row(command.command())->id, 73);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 20000);
}

TEST(CheckFormulaLevelsCmd, takesAFormula)
{
    for (bool isPurge : {false, true}) {
        const CheckFormulaLevelsCmd command(formula(), isPurge);
        EXPECT_EQ(command.parameters(), (List{variantOf(formula()), isPurge}));
        Formula held;
        bool flag = !isPurge;
        EXPECT_TRUE(command.getFormula(held, flag));
        EXPECT_EQ(held, formula());
        EXPECT_EQ(flag, isPurge);
        bool ok = false;
        EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)),
                  std::string("[") + formulaWritten + (isPurge ? ", true]" : ", false]"));
        EXPECT_TRUE(ok);
        PurgeFormula none(7.0, 0, 3);
        EXPECT_TRUE(command.getPurgeFormula(none));
        EXPECT_EQ(none, PurgeFormula()) << "not the other form";
    }
}

TEST(CheckFormulaLevelsCmd, takesAPurge)
{
    const CheckFormulaLevelsCmd command(purge());
    EXPECT_EQ(command.parameters(), List{variantOf(purge())});
    PurgeFormula held;
    EXPECT_TRUE(command.getPurgeFormula(held));
    EXPECT_EQ(held, purge());
    bool ok = false;
    EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), std::string("[") + purgeWritten + ']');
    EXPECT_TRUE(ok);
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
         {arrayOf(purgeStruct()), arrayOf(purgeStruct(), 1), arrayOf(purgeStruct(), "rest", true)})
        EXPECT_EQ(CheckFormulaLevelsCmd(request, nullptr).parameters(), List{variantOf(purge())});

    for (const Value &request : {arrayOf(formulaStruct()), arrayOf(formulaStruct(), 1),
                                 arrayOf(formulaStruct(), "true"), arrayOf(formulaStruct(), 0.0)})
        expectRefusal("DE00438", noFormula, ofValue,
                      [&] { const CheckFormulaLevelsCmd command(request, nullptr); });
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
          arrayOf(structOf({{"purge_quantity", Value(-1.0)}}))})
        expectRefusal("DE00438", noFormula, ofValue,
                      [&] { const CheckFormulaLevelsCmd command(request, nullptr); });
}

TEST(CheckFormulaLevelsCmd, needsAnArrayOfOneElementAtLeast)
{
    constexpr char ofBase[] =
        "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBase,
                  [] { const CheckFormulaLevelsCmd command(Value(), nullptr); });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBase,
                  [] { const CheckFormulaLevelsCmd command(purgeStruct(), nullptr); });
    expectRefusal("DE00312",
                  "CHECK_FORMULA_LEVELS command : expected at least 1 parameters, received 0 instead!",
                  ofBase, [] { const CheckFormulaLevelsCmd command(arrayOf(), nullptr); });
    expectRefusal("DE00313",
                  "CHECK_FORMULA_LEVELS command : expected at least 1 parameters, received 0 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [] { const CheckFormulaLevelsCmd command{List()}; });
    static_assert(!std::is_constructible_v<CheckFormulaLevelsCmd, const Formula &, const FW_Machine *>);
}

// ---------------------------------------------------------------- lists

TEST(CheckFormulaLevelsCmd, takesAList)
{
    EXPECT_EQ(CheckFormulaLevelsCmd(List{variantOf(formula()), true}).parameters(),
              (List{variantOf(formula()), true}));
    EXPECT_EQ(CheckFormulaLevelsCmd(List{variantOf(purge())}).parameters(), List{variantOf(purge())});
    EXPECT_EQ(CheckFormulaLevelsCmd(List{variantOf(withPolicy(2)), true}).parameters(),
              (List{variantOf(withPolicy(2)), true}))
        << "as it is: the driver takes the policy away";
}

TEST(CheckFormulaLevelsCmd, readsMapsInAList)
{
    const CheckFormulaLevelsCmd ofFormula(List{formulaMap(), true});
    EXPECT_EQ(ofFormula.parameters(), (List{variantOf(formula()), true}));
    EXPECT_EQ(dumped(ofFormula.xmlrpc_parameters()), std::string("[") + formulaWritten + ", true]");
    const CheckFormulaLevelsCmd ofPurge(List{purgeMap()});
    EXPECT_EQ(ofPurge.parameters(), List{variantOf(purge())});
    EXPECT_EQ(dumped(ofPurge.xmlrpc_parameters()), std::string("[") + purgeWritten + ']');
}

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
        PurgeFormula held = purge();
        EXPECT_TRUE(CheckFormulaLevelsCmd(List{first}).getPurgeFormula(held));
        EXPECT_EQ(held, PurgeFormula());
    }
    PurgeFormula untouched = purge();
    EXPECT_FALSE(CheckFormulaLevelsCmd().getPurgeFormula(untouched));
    EXPECT_EQ(untouched, purge());
}

TEST(CheckFormulaLevelsCmd, comesBackAsItWasWritten)
{
    const CheckFormulaLevelsCmd ofFormula(formula(), true);
    EXPECT_EQ(CheckFormulaLevelsCmd(ofFormula.xmlrpc_parameters(), nullptr).parameters(),
              ofFormula.parameters());
    EXPECT_EQ(CheckFormulaLevelsCmd(ofFormula.parameters()).parameters(), ofFormula.parameters());
    const CheckFormulaLevelsCmd ofPurge(purge());
    EXPECT_EQ(CheckFormulaLevelsCmd(ofPurge.xmlrpc_parameters(), nullptr).parameters(), ofPurge.parameters());
    EXPECT_EQ(dumped(ofPurge.toXmlRpcValue("user")),
              std::string(R"(["user", "CHECK_FORMULA_LEVELS", )") + purgeWritten + ']');
}

// ---------------------------------------------------------------- texts

TEST(CheckFormulaLevelsCmd, saysWhatItDoes)
{
    EXPECT_EQ(CheckFormulaLevelsCmd().commandString(), "Check formula levels");
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

TEST(CheckFormulaLevelsCmd, saysItInTheRunningLanguage)
{
    const TranslatedTexts translated;
    EXPECT_EQ(CheckFormulaLevelsCmd(purge()).actionString(false).m_translated,
              translation("Checking levels for formula"));
    EXPECT_EQ(CheckFormulaLevelsCmd(formula(), false).actionString(true).m_translated,
              translation("Checking levels for formula: 1 2.500"));
    EXPECT_EQ(CheckFormulaLevelsCmd(formula(), true).actionString(true).m_translated,
              translation("Checking levels for " + translation("purge ") + "formula: 1 2.500"));
    EXPECT_EQ(CheckFormulaLevelsCmd(purge()).actionString(true).m_translated,
              translation("Checking levels for purge formula: 2 strokes of each circuit"));
    EXPECT_EQ(CheckFormulaLevelsCmd(formula(), true).actionString(true).m_text,
              "Checking levels for purge formula: 1 2.500");
}

// ---------------------------------------------------------------- answers and copies

TEST(CheckFormulaLevelsCmd, isAnsweredByLists)
{
    CheckFormulaLevelsCmd command(formula(), false);
    const List list = {QVariant::fromValue(QList<int>{101}), QVariant::fromValue(QList<int>{101, 103})};
    expectAnswers(command, "CheckFormulaLevelsAnswer", answerStruct(), list, answerStruct());
    expectAnswerFailures(command,
                         {"Failed to create CheckFormulaLevelsAnswer", "DE01274", "DE00464", "DE00463"},
                         answerStruct(), list);
}

TEST(CheckFormulaLevelsCmd, passesTheAnswersRefusalOn)
{
    CheckFormulaLevelsCmd command;
    FW_DriverError error;
    EXPECT_FALSE(command.buildProtoAnswer(Value(0), &error));
    EXPECT_EQ(error.code(), "DE00460");
    List none;
    EXPECT_FALSE(command.setAnswer(none, &error));
    EXPECT_EQ(error.code(), "DE00456");
    EXPECT_FALSE(command.setAnswer(envelope(0, Value(0)), false, &error));
    EXPECT_EQ(error.code(), "DE00460");
    EXPECT_FALSE(command.buildProtoAnswer(Value(0), nullptr));
}

TEST(CheckFormulaLevelsCmd, copiesDeeply)
{
    const FW_Dispenser machine = dispenser();
    CheckFormulaLevelsCmd command(arrayOf(formulaStruct(), true), &machine);
    ASSERT_TRUE(command.buildProtoAnswer(answerStruct(), nullptr));
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    ASSERT_TRUE(dynamic_cast<CheckFormulaLevelsCmd *>(clone.get()));
    EXPECT_EQ(clone->parameters(), command.parameters());
    EXPECT_NE(clone->machine(), command.machine());
    EXPECT_TRUE(clone->machine());
    EXPECT_NE(clone->getProtoAnswer(), command.getProtoAnswer());
    EXPECT_EQ(className(clone->getProtoAnswer()), "CheckFormulaLevelsAnswer");
}

} // namespace
