// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "catalogue/protocommandlist.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/querytesting.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

// What the tests of GET_DISPENSED_FORMULA share, whoever answers it.

namespace testing_dispensing {

/** An answer with the same formula three times, as it travels. */
inline Value dispensedAnswerStruct()
{
    return structOf({{"dispensed_formula", formulaStruct()},
                     {"remaining_formula", formulaStruct()},
                     {"total_formula", formulaStruct()}});
}

/**
 * The tests of the two arguments and of a copy. A Kind tells the Command, its protoType, and whether it also takes its
 * arguments as plain numbers (takesNumbers).
 */
template <class Kind>
class DispensedFormulaCommand : public testing::Test
{};

TYPED_TEST_SUITE_P(DispensedFormulaCommand);

TYPED_TEST_P(DispensedFormulaCommand, asksByPositionInTheMachinesUnit)
{
    using Command = typename TypeParam::Command;
    for (const Command &command : {Command(), Command(arrayOf()), Command(List())}) {
        EXPECT_EQ(command.command(), "GET_DISPENSED_FORMULA");
        EXPECT_EQ(command.protoType(), TypeParam::protoType);
        EXPECT_EQ(command.parameters(), (List{1, 0}));
        EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[1, 0]");
        EXPECT_FALSE(command.machine());
    }
    const CMD_STRUCT *row = ProtoCommandList::row(Command().command());
    ASSERT_TRUE(row);
    EXPECT_EQ(row->id, 93);
    EXPECT_EQ(row->code, "0074");
}

TYPED_TEST_P(DispensedFormulaCommand, takesATypeAndAUnit)
{
    using Command = typename TypeParam::Command;
    const auto expectTaken = [](const Command &command) {
        EXPECT_EQ(command.formulaType(), 3);
        EXPECT_EQ(command.quantityUnit(), 2);
        const ProtoCommand &base = command;
        EXPECT_EQ(base.parameters(), (List{3, 2}));
        bool ok = false;
        EXPECT_EQ(dumped(base.xmlrpc_parameters(&ok)), "[3, 2]");
        EXPECT_TRUE(ok);
        EXPECT_EQ(dumped(base.toXmlRpcValue("user", &ok)), R"(["user", "GET_DISPENSED_FORMULA", 3, 2])");
        EXPECT_TRUE(ok);
    };
    expectTaken(Command(arrayOf(3, 2)));
    expectTaken(Command(List{3, 2}));
    static_assert(std::is_constructible_v<Command, int, int> == TypeParam::takesNumbers);
    if constexpr (TypeParam::takesNumbers)
        expectTaken(Command(3, 2));
    EXPECT_EQ(Command(arrayOf(4)).parameters(), (List{4, 0}));
    EXPECT_EQ(Command(List{4}).parameters(), (List{4, 0}));
}

TYPED_TEST_P(DispensedFormulaCommand, refusesWhatThereIsNot)
{
    using Command = typename TypeParam::Command;
    expectRefusal("DE01911", "Formula type: expected INT parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(const XmlRpc::XmlRpcValue&)",
                  [] { const Command command(arrayOf("3", 2)); });
    expectRefusal("DE01722", "Quantity unit: expected INT parameter",
                  "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(QList<QVariant>)", [] {
                      const Command command(List{3, "2"});
                  });
    if constexpr (TypeParam::takesNumbers) {
        expectRefusal("DE01908", "Formula type: invalid parameter",
                      "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(int, int)",
                      [] { const Command command(5, 2); });
    }
    constexpr char ofBase[] =
        "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBase,
                  [] { const Command command{Value()}; });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBase,
                  [] { const Command command{Value(structOf({}))}; });
}

TYPED_TEST_P(DispensedFormulaCommand, goesBackToItsDefaults)
{
    typename TypeParam::Command command(List{3, 2});
    command.setDefaults();
    EXPECT_EQ(command.parameters(), (List{1, 0}));
    EXPECT_EQ(command.command(), "GET_DISPENSED_FORMULA");
    EXPECT_EQ(command.protoType(), TypeParam::protoType);
}

TYPED_TEST_P(DispensedFormulaCommand, saysNothingOfItself)
{
    using Command = typename TypeParam::Command;
    EXPECT_EQ(Command().commandString(), QString());
    EXPECT_EQ(Command().actionString(true).m_text, "In progress");
}

TYPED_TEST_P(DispensedFormulaCommand, copiesDeeply)
{
    using Command = typename TypeParam::Command;
    Command command(List{3, 2});
    const GetDispensedFormulaAnswer answer(formula(), formula(), formula());
    const std::unique_ptr<ProtoAnswer> given(answer.clone());
    command.setProtoAnswer(given.get());
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    ASSERT_TRUE(dynamic_cast<Command *>(clone.get()));
    EXPECT_EQ(clone->parameters(), (List{3, 2}));
    EXPECT_EQ(className(clone->getProtoAnswer()), "GetDispensedFormulaAnswer");
    EXPECT_NE(clone->getProtoAnswer(), command.getProtoAnswer());
}

REGISTER_TYPED_TEST_SUITE_P(DispensedFormulaCommand, asksByPositionInTheMachinesUnit, takesATypeAndAUnit,
                            refusesWhatThereIsNot, goesBackToItsDefaults, saysNothingOfItself, copiesDeeply);

} // namespace testing_dispensing
