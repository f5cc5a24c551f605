// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulacircuitscmd.h"

#include "catalogue/protocommandlist.h"
#include "dispensing/querytesting.h"

#include <QuvFramework/fw_mixer.h>

#include <memory>
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

TEST(GetFormulaCircuitsCmd, isCarriedOutByTheDriver)
{
    const GetFormulaCircuitsCmd command;
    EXPECT_EQ(command.command(), "GET_FORMULA_CIRCUITS");
    EXPECT_EQ(command.protoType(), 2);
    EXPECT_EQ(command.parameters(), List());
    EXPECT_EQ(ProtoCommandList::row(command.command())->id, 74);
    EXPECT_EQ(command.commandString(), QString());
    EXPECT_EQ(command.actionString(false).m_text, "In progress");
    EXPECT_EQ(GetFormulaCircuitsCmd(formula(), true).actionString(true).m_text, "In progress");
    bool ok = true;
    EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), "[]");
    EXPECT_FALSE(ok);
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

    bool ok = false;
    EXPECT_EQ(dumped(GetFormulaCircuitsCmd(formula(), true).xmlrpc_parameters(&ok)),
              std::string("[") + formulaWritten + ", true]");
    EXPECT_TRUE(ok);
    static_assert(!std::is_constructible_v<GetFormulaCircuitsCmd, const Formula &, const FW_Machine *>);
}

TEST(GetFormulaCircuitsCmd, takesAPurge)
{
    const GetFormulaCircuitsCmd command(purge());
    EXPECT_EQ(command.parameters(), List{variantOf(purge())});
    bool ok = false;
    EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), std::string("[") + purgeWritten + ']');
    EXPECT_TRUE(ok);
}

TEST(GetFormulaCircuitsCmd, readsAFormulaWithOrWithoutAFlag)
{
    for (const Value &request : {arrayOf(formulaStruct()), arrayOf(formulaStruct(), false),
                                 arrayOf(formulaStruct(), 1), arrayOf(formulaStruct(), "true", true)})
        EXPECT_EQ(GetFormulaCircuitsCmd(request, nullptr).parameters(), (List{variantOf(formula()), false}));
    EXPECT_EQ(GetFormulaCircuitsCmd(arrayOf(formulaStruct(), true, 7), nullptr).parameters(),
              (List{variantOf(formula()), true}));
}

TEST(GetFormulaCircuitsCmd, readsAPurgeWithOrWithoutItsArray)
{
    for (const Value &request : {purgeStruct(), arrayOf(purgeStruct()), arrayOf(purgeStruct(), true)})
        EXPECT_EQ(GetFormulaCircuitsCmd(request, nullptr).parameters(), List{variantOf(purge())});
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
         {Value(), Value(7), Value("formula"), arrayOf(), structOf({}), formulaStruct()})
        expectRefusal("DE01254", neitherForm, ofValue,
                      [&] { const GetFormulaCircuitsCmd command(request, nullptr); });
}

TEST(GetFormulaCircuitsCmd, refusesWhatCannotBeRead)
{
    for (const Value &request : {arrayOf(unreadableFormula()), arrayOf(unreadableFormula(), true),
                                 arrayOf(structOf({{"formula_type", Value("1")}}))})
        expectRefusal("DE00235", noFormula, ofValue,
                      [&] { const GetFormulaCircuitsCmd command(request, nullptr); });
    const Value badPurge = structOf({{"purge_quantity", Value(0.0)}});
    for (const Value &request :
         {badPurge, arrayOf(badPurge), arrayOf(7), arrayOf(structOf({})), arrayOf(true, formulaStruct())})
        expectRefusal("DE01253", noPurge, ofValue,
                      [&] { const GetFormulaCircuitsCmd command(request, nullptr); });
}

TEST(GetFormulaCircuitsCmd, takesAList)
{
    const GetFormulaCircuitsCmd ofFormula(List{formulaMap(), true});
    EXPECT_EQ(ofFormula.parameters(), (List{variantOf(formula()), true}));
    EXPECT_EQ(dumped(ofFormula.xmlrpc_parameters()), std::string("[") + formulaWritten + ", true]");
    EXPECT_EQ(GetFormulaCircuitsCmd(ofFormula.parameters()).parameters(), ofFormula.parameters());
    const GetFormulaCircuitsCmd ofPurge(List{purgeMap()});
    EXPECT_EQ(ofPurge.parameters(), List{variantOf(purge())});
    EXPECT_EQ(GetFormulaCircuitsCmd(ofPurge.parameters()).parameters(), ofPurge.parameters());
    expectRefusal("DE00313",
                  "GET_FORMULA_CIRCUITS command : expected at least 1 parameters, received 0 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [] { const GetFormulaCircuitsCmd command{List()}; });
}

TEST(GetFormulaCircuitsCmd, writesNothingOfAListThatIsNeitherForm)
{
    for (const List &list :
         {List{variantOf(formula())}, List{variantOf(purge()), true}, List{unreadableFormulaVariant(), true},
          List{7}, List{variantOf(formula()), true, 1}}) {
        const GetFormulaCircuitsCmd command(list);
        EXPECT_EQ(command.parameters(), list);
        bool ok = true;
        EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), "[]");
        EXPECT_FALSE(ok);
    }
}

TEST(GetFormulaCircuitsCmd, comesBackAsItWasWritten)
{
    const GetFormulaCircuitsCmd ofFormula(formula(), true);
    EXPECT_EQ(GetFormulaCircuitsCmd(ofFormula.xmlrpc_parameters(), nullptr).parameters(),
              ofFormula.parameters());
    const GetFormulaCircuitsCmd ofPurge(purge());
    EXPECT_EQ(GetFormulaCircuitsCmd(ofPurge.xmlrpc_parameters(), nullptr).parameters(), ofPurge.parameters());
}

TEST(GetFormulaCircuitsCmd, isAnsweredByLists)
{
    GetFormulaCircuitsCmd command(formula(), false);
    const List list = {QVariant::fromValue(QList<int>{11, 13}), QVariant::fromValue(QList<int>{1, 3}),
                       QVariant::fromValue(QList<double>{2.5, 0.5})};
    expectAnswers(command, "GetFormulaCircuitsAnswer", answerStruct(), list, answerStruct());
    expectAnswerFailures(command,
                         {"Failed to create GetFormulaCircuitsAnswer", "DE01276", "DE00210", "DE00211"},
                         answerStruct(), list);
    FW_DriverError error;
    EXPECT_FALSE(command.buildProtoAnswer(Value(0), &error));
    EXPECT_EQ(error.code(), "DE00717");
    List none;
    EXPECT_FALSE(command.buildProtoAnswer(none, &error));
    EXPECT_EQ(error.code(), "DE00713");
}

TEST(GetFormulaCircuitsCmd, copiesDeeply)
{
    const FW_Dispenser machine = dispenser();
    GetFormulaCircuitsCmd command(arrayOf(formulaStruct(), true), &machine);
    ASSERT_TRUE(command.buildProtoAnswer(answerStruct(), nullptr));
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    ASSERT_TRUE(dynamic_cast<GetFormulaCircuitsCmd *>(clone.get()));
    EXPECT_EQ(clone->parameters(), command.parameters());
    EXPECT_NE(clone->machine(), command.machine());
    EXPECT_EQ(className(clone->getProtoAnswer()), "GetFormulaCircuitsAnswer");
    EXPECT_NE(clone->getProtoAnswer(), command.getProtoAnswer());
}

} // namespace
