// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaserialcmd.h"

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

TEST(GetDispensedFormulaSerialCmd, asksByPositionInTheMachinesUnit)
{
    for (const GetDispensedFormulaSerialCmd &command :
         {GetDispensedFormulaSerialCmd(), GetDispensedFormulaSerialCmd(arrayOf()),
          GetDispensedFormulaSerialCmd(List())}) {
        EXPECT_EQ(command.command(), "GET_DISPENSED_FORMULA");
        EXPECT_EQ(command.protoType(), 1);
        EXPECT_EQ(command.parameters(), (List{1, 0}));
        EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[1, 0]");
        EXPECT_FALSE(command.machine());
    }
    const CMD_STRUCT *row = ProtoCommandList::row(GetDispensedFormulaSerialCmd().command());
    ASSERT_TRUE(row);
    EXPECT_EQ(row->id, 93);
    EXPECT_EQ(row->code, "0074");
}

TEST(GetDispensedFormulaSerialCmd, takesATypeAndAUnit)
{
    for (const GetDispensedFormulaSerialCmd &command :
         {GetDispensedFormulaSerialCmd(arrayOf(3, 2)), GetDispensedFormulaSerialCmd(List{3, 2})}) {
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
    EXPECT_EQ(GetDispensedFormulaSerialCmd(arrayOf(4)).parameters(), (List{4, 0}));
    EXPECT_EQ(GetDispensedFormulaSerialCmd(List{4}).parameters(), (List{4, 0}));
}

TEST(GetDispensedFormulaSerialCmd, refusesWhatThereIsNot)
{
    expectRefusal("DE01911", "Formula type: expected INT parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(const XmlRpc::XmlRpcValue&)",
                  [] { const GetDispensedFormulaSerialCmd command(arrayOf("3", 2)); });
    expectRefusal("DE01722", "Quantity unit: expected INT parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(QList<QVariant>)", [] {
                      const GetDispensedFormulaSerialCmd command(List{3, "2"});
                  });
    static_assert(!std::is_constructible_v<GetDispensedFormulaSerialCmd, int, int>);
    constexpr char ofBase[] =
        "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBase,
                  [] { const GetDispensedFormulaSerialCmd command{Value()}; });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBase,
                  [] { const GetDispensedFormulaSerialCmd command{Value(structOf({}))}; });
}

TEST(GetDispensedFormulaSerialCmd, goesBackToItsDefaults)
{
    GetDispensedFormulaSerialCmd command(List{3, 2});
    command.setDefaults();
    EXPECT_EQ(command.parameters(), (List{1, 0}));
    EXPECT_EQ(command.command(), "GET_DISPENSED_FORMULA");
    EXPECT_EQ(command.protoType(), 1);
}

TEST(GetDispensedFormulaSerialCmd, saysNothingOfItself)
{
    EXPECT_EQ(GetDispensedFormulaSerialCmd().commandString(), QString());
    EXPECT_EQ(GetDispensedFormulaSerialCmd().actionString(true).m_text, "In progress");
}

TEST(GetDispensedFormulaSerialCmd, sendsNoParametersToTheFirmware)
{
    for (int family : {0, 1, 2})
        EXPECT_EQ(GetDispensedFormulaSerialCmd(List{3, 2}).serialParameters(family), QList<int>());
    EXPECT_EQ(GetDispensedFormulaSerialCmd().moduleID(), 0);
}

TEST(GetDispensedFormulaSerialCmd, isAnsweredByTheFirmware)
{
    GetDispensedFormulaSerialCmd command;
    FW_DriverError error;
    EXPECT_TRUE(command.setSerialAnswer({"2", "1", "0"}, &error));
    ASSERT_EQ(className(command.getProtoAnswer()), "GetDispensedFormulaAnswer");
    const auto &answer = dynamic_cast<const GetDispensedFormulaAnswer &>(*command.getProtoAnswer());
    EXPECT_EQ(answer.dispensedFormula().executionCriterion(), 1);

    EXPECT_FALSE(command.setSerialAnswer({"1", "1"}, &error));
    expectError(error, "DE01698",
                "Error during dispensed formula serial answer decoding: bad answer received");
    EXPECT_FALSE(command.getProtoAnswer());
    EXPECT_FALSE(command.buildProtoAnswer(QStringList{"1", "1"}, nullptr));

    const QStringList tokens = {"2", "1", "0"};
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(tokens, &error); }));
    expectError(error, "DE01726", "Failed to create GetDispensedFormulaAnswer");
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.setSerialAnswer(tokens, nullptr); }));
}

TEST(GetDispensedFormulaSerialCmd, leavesOtherAnswersToItsBase)
{
    const Value value = answerStruct();
    List list;
    FW_DriverError error;
    GetDispensedFormulaSerialCmd command;
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(value, &error); }));
    EXPECT_EQ(error.code(), "DE01295");
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(list, &error); }));
    EXPECT_EQ(error.code(), "DE00473");
}

TEST(GetDispensedFormulaSerialCmd, copiesDeeply)
{
    GetDispensedFormulaSerialCmd command(List{3, 2});
    const GetDispensedFormulaAnswer answer(formula(), formula(), formula());
    const std::unique_ptr<ProtoAnswer> given(answer.clone());
    command.setProtoAnswer(given.get());
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    ASSERT_TRUE(dynamic_cast<GetDispensedFormulaSerialCmd *>(clone.get()));
    EXPECT_EQ(clone->parameters(), (List{3, 2}));
    EXPECT_EQ(className(clone->getProtoAnswer()), "GetDispensedFormulaAnswer");
    EXPECT_NE(clone->getProtoAnswer(), command.getProtoAnswer());
}

} // namespace
