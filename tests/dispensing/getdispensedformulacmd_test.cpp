// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulacmd.h"

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

TEST(GetDispensedFormulaCmd, asksByPositionInTheMachinesUnit)
{
    for (const GetDispensedFormulaCmd &command :
         {GetDispensedFormulaCmd(), GetDispensedFormulaCmd(arrayOf()), GetDispensedFormulaCmd(List())}) {
        EXPECT_EQ(command.command(), "GET_DISPENSED_FORMULA");
        EXPECT_EQ(command.protoType(), 0);
        EXPECT_EQ(command.parameters(), (List{1, 0}));
        EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[1, 0]");
        EXPECT_FALSE(command.machine());
    }
    const CMD_STRUCT *row = ProtoCommandList::row(GetDispensedFormulaCmd().command());
    ASSERT_TRUE(row);
    EXPECT_EQ(row->id, 93);
    EXPECT_EQ(row->code, "0074");
}

TEST(GetDispensedFormulaCmd, takesATypeAndAUnit)
{
    for (const GetDispensedFormulaCmd &command :
         {GetDispensedFormulaCmd(arrayOf(3, 2)), GetDispensedFormulaCmd(List{3, 2}),
          GetDispensedFormulaCmd(3, 2)}) {
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
    EXPECT_EQ(GetDispensedFormulaCmd(arrayOf(4)).parameters(), (List{4, 0}));
    EXPECT_EQ(GetDispensedFormulaCmd(List{4}).parameters(), (List{4, 0}));
}

TEST(GetDispensedFormulaCmd, refusesWhatThereIsNot)
{
    expectRefusal("DE01911", "Formula type: expected INT parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(const XmlRpc::XmlRpcValue&)",
                  [] { const GetDispensedFormulaCmd command(arrayOf("3", 2)); });
    expectRefusal("DE01722", "Quantity unit: expected INT parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(QList<QVariant>)", [] {
                      const GetDispensedFormulaCmd command(List{3, "2"});
                  });
    expectRefusal("DE01908", "Formula type: invalid parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(int, int)",
                  [] { const GetDispensedFormulaCmd command(5, 2); });
    constexpr char ofBase[] =
        "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBase,
                  [] { const GetDispensedFormulaCmd command{Value()}; });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBase,
                  [] { const GetDispensedFormulaCmd command{Value(structOf({}))}; });
}

TEST(GetDispensedFormulaCmd, goesBackToItsDefaults)
{
    GetDispensedFormulaCmd command(List{3, 2});
    command.setDefaults();
    EXPECT_EQ(command.parameters(), (List{1, 0}));
    EXPECT_EQ(command.command(), "GET_DISPENSED_FORMULA");
    EXPECT_EQ(command.protoType(), 0);
}

TEST(GetDispensedFormulaCmd, saysNothingOfItself)
{
    EXPECT_EQ(GetDispensedFormulaCmd().commandString(), QString());
    EXPECT_EQ(GetDispensedFormulaCmd().actionString(true).m_text, "In progress");
}

TEST(GetDispensedFormulaCmd, isAnsweredByFormulas)
{
    GetDispensedFormulaCmd command;
    FW_DriverError error;
    const Value value = answerStruct();
    EXPECT_TRUE(command.buildProtoAnswer(value, &error));
    ASSERT_EQ(className(command.getProtoAnswer()), "GetDispensedFormulaAnswer");
    EXPECT_EQ(dynamic_cast<const GetDispensedFormulaAnswer &>(*command.getProtoAnswer()),
              GetDispensedFormulaAnswer(formula(), formula(), formula()));
    EXPECT_TRUE(command.setAnswer(envelope(0, value), false, &error));
    EXPECT_EQ(className(command.getProtoAnswer()), "GetDispensedFormulaAnswer");
    EXPECT_EQ(error.code(), "");

    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(value, &error); }));
    expectError(error, "DE01765", "Failed to create GetDispensedFormulaAnswer");
    EXPECT_FALSE(command.buildProtoAnswer(Value(0), &error));
    EXPECT_EQ(error.code(), "DE01711");
    EXPECT_FALSE(command.getProtoAnswer());
    EXPECT_FALSE(command.buildProtoAnswer(Value(0), nullptr));
}

TEST(GetDispensedFormulaCmd, isAnsweredByTheStatusOfTheMachineFromAList)
{
    GetDispensedFormulaCmd command;
    FW_DriverError error;
    List list = {variantOf(formula()), variantOf(formula()), variantOf(formula())};
    EXPECT_TRUE(command.buildProtoAnswer(list, &error));
    EXPECT_EQ(className(command.getProtoAnswer()), "DispenserStatusAnswer");
    command.clearProtoAnswer();
    EXPECT_TRUE(command.setAnswer(list, &error));
    EXPECT_EQ(className(command.getProtoAnswer()), "DispenserStatusAnswer");

    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(list, &error); }));
    expectError(error, "DE01766", "Failed to create DispenserStatusAnswer");
    EXPECT_FALSE(command.getProtoAnswer());
}

TEST(GetDispensedFormulaCmd, copiesDeeply)
{
    GetDispensedFormulaCmd command(List{3, 2});
    const GetDispensedFormulaAnswer answer(formula(), formula(), formula());
    const std::unique_ptr<ProtoAnswer> given(answer.clone());
    command.setProtoAnswer(given.get());
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    ASSERT_TRUE(dynamic_cast<GetDispensedFormulaCmd *>(clone.get()));
    EXPECT_EQ(clone->parameters(), (List{3, 2}));
    EXPECT_EQ(className(clone->getProtoAnswer()), "GetDispensedFormulaAnswer");
    EXPECT_NE(clone->getProtoAnswer(), command.getProtoAnswer());
}

} // namespace
