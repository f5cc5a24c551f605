// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaconfcmd.h"

#include "dispensing/dispensedformulacmdtesting.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/querytesting.h"

namespace {

using namespace testing_dispensing;

struct Kept
{
    using Command = GetDispensedFormulaConfCmd;
    static constexpr int protoType = 2;
    static constexpr bool takesNumbers = true;
};
INSTANTIATE_TYPED_TEST_SUITE_P(GetDispensedFormulaConfCmd, DispensedFormulaCommand, Kept);

TEST(GetDispensedFormulaConfCmd, isAnsweredByFormulas)
{
    GetDispensedFormulaConfCmd command;
    const GetDispensedFormulaAnswer answer(formula(), formula(), formula());
    const List list = {variantOf(formula()), variantOf(formula()), variantOf(formula())};
    expectAnswers(command, "GetDispensedFormulaAnswer", dispensedAnswerStruct(), list,
                  answer.toXmlRpcValue());
    const Value value = dispensedAnswerStruct();
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

} // namespace
