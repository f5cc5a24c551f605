// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulacmd.h"

#include "dispensing/dispensedformulacmdtesting.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/querytesting.h"

namespace {

using namespace testing_dispensing;

struct Asked
{
    using Command = GetDispensedFormulaCmd;
    static constexpr int protoType = 0;
    static constexpr bool takesNumbers = true;
};
INSTANTIATE_TYPED_TEST_SUITE_P(GetDispensedFormulaCmd, DispensedFormulaCommand, Asked);

TEST(GetDispensedFormulaCmd, isAnsweredByFormulas)
{
    GetDispensedFormulaCmd command;
    FW_DriverError error;
    const Value value = dispensedAnswerStruct();
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

} // namespace
