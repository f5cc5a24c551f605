// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaconfcmd.h"

#include "catalogue/protocommandlist.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/querytesting.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_dispensing;

Value answerStruct()
{
    return structOf({{"dispensed_formula", formulaStruct()},
                     {"remaining_formula", formulaStruct()},
                     {"total_formula", formulaStruct()}});
}

TEST(GetDispensedFormulaConfCmd, asksByPositionInTheMachinesUnit)
{
    for (const GetDispensedFormulaConfCmd &command :
         {GetDispensedFormulaConfCmd(), GetDispensedFormulaConfCmd(arrayOf()),
          GetDispensedFormulaConfCmd(List())}) {
        EXPECT_EQ(command.command(), "GET_DISPENSED_FORMULA");
        EXPECT_EQ(command.protoType(), 2);
        EXPECT_EQ(command.parameters(), (List{1, 0}));
        EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[1, 0]");
        EXPECT_FALSE(command.machine());
    }
    const CMD_STRUCT *row = ProtoCommandList::row(GetDispensedFormulaConfCmd().command());
    ASSERT_TRUE(row);
    EXPECT_EQ(row->id, 93);
    EXPECT_EQ(row->code, "0074");
}

TEST(GetDispensedFormulaConfCmd, takesATypeAndAUnit)
{
    for (const GetDispensedFormulaConfCmd &command :
         {GetDispensedFormulaConfCmd(arrayOf(3, 2)), GetDispensedFormulaConfCmd(List{3, 2}),
          GetDispensedFormulaConfCmd(3, 2)}) {
        EXPECT_EQ(command.formulaType(), 3);
        EXPECT_EQ(command.quantityUnit(), 2);
        const ProtoCommand &base = command;
        EXPECT_EQ(base.parameters(), (List{3, 2}));
        bool ok = false;
        EXPECT_EQ(dumped(base.xmlrpc_parameters(&ok)), "[3, 2]");
        EXPECT_TRUE(ok);
        EXPECT_EQ(dumped(base.toXmlRpcValue("user", &ok)), R"(["user", "GET_DISPENSED_FORMULA", 3, 2])");
        EXPECT_TRUE(ok);
    }
    EXPECT_EQ(GetDispensedFormulaConfCmd(arrayOf(4)).parameters(), (List{4, 0}));
    EXPECT_EQ(GetDispensedFormulaConfCmd(List{4}).parameters(), (List{4, 0}));
}

TEST(GetDispensedFormulaConfCmd, refusesWhatThereIsNot)
{
    expectRefusal("DE01911", "Formula type: expected INT parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(const XmlRpc::XmlRpcValue&)",
                  [] { const GetDispensedFormulaConfCmd command(arrayOf("3", 2)); });
    expectRefusal("DE01722", "Quantity unit: expected INT parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(QList<QVariant>)", [] {
                      const GetDispensedFormulaConfCmd command(List{3, "2"});
                  });
    expectRefusal("DE01908", "Formula type: invalid parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(int, int)",
                  [] { const GetDispensedFormulaConfCmd command(5, 2); });
    constexpr char ofBase[] =
        "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBase,
                  [] { const GetDispensedFormulaConfCmd command{Value()}; });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBase,
                  [] { const GetDispensedFormulaConfCmd command{Value(structOf({}))}; });
}

TEST(GetDispensedFormulaConfCmd, goesBackToItsDefaults)
{
    GetDispensedFormulaConfCmd command(List{3, 2});
    command.setDefaults();
    EXPECT_EQ(command.parameters(), (List{1, 0}));
    EXPECT_EQ(command.command(), "GET_DISPENSED_FORMULA");
    EXPECT_EQ(command.protoType(), 2);
}

TEST(GetDispensedFormulaConfCmd, saysNothingOfItself)
{
    EXPECT_EQ(GetDispensedFormulaConfCmd().commandString(), QString());
    EXPECT_EQ(GetDispensedFormulaConfCmd().actionString(true).m_text, "In progress");
}

TEST(GetDispensedFormulaConfCmd, isAnsweredByFormulas)
{
    GetDispensedFormulaConfCmd command;
    const GetDispensedFormulaAnswer answer(formula(), formula(), formula());
    const List list = {variantOf(formula()), variantOf(formula()), variantOf(formula())};
    expectAnswers(command, "GetDispensedFormulaAnswer", answerStruct(), list, answer.toXmlRpcValue());
    const Value value = answerStruct();
    FW_DriverError error;
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(value, &error); }));
    expectError(error, "DE01723", "Failed to create GetDispensedFormulaAnswer");
    List same = list;
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(same, &error); }));
    expectError(error, "DE01724", "Failed to create GetDispensedFormulaAnswer");
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(same, nullptr); }));
    EXPECT_FALSE(command.getProtoAnswer());

    EXPECT_FALSE(command.buildProtoAnswer(Value(0), &error));
    EXPECT_EQ(error.code(), "DE01711");
    List none;
    EXPECT_FALSE(command.buildProtoAnswer(none, &error));
    EXPECT_EQ(error.code(), "DE01719");
}

TEST(GetDispensedFormulaConfCmd, copiesDeeply)
{
    GetDispensedFormulaConfCmd command(List{3, 2});
    const GetDispensedFormulaAnswer answer(formula(), formula(), formula());
    const std::unique_ptr<ProtoAnswer> given(answer.clone());
    command.setProtoAnswer(given.get());
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    ASSERT_TRUE(dynamic_cast<GetDispensedFormulaConfCmd *>(clone.get()));
    EXPECT_EQ(clone->parameters(), (List{3, 2}));
    EXPECT_EQ(className(clone->getProtoAnswer()), "GetDispensedFormulaAnswer");
    EXPECT_NE(clone->getProtoAnswer(), command.getProtoAnswer());
}

} // namespace
