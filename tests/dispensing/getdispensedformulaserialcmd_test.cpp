// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaserialcmd.h"

#include "dispensing/dispensedformulacmdtesting.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/querytesting.h"

namespace {

using namespace testing_dispensing;

struct Serial
{
    using Command = GetDispensedFormulaSerialCmd;
    static constexpr int protoType = 1;
    static constexpr bool takesNumbers = false;
};
INSTANTIATE_TYPED_TEST_SUITE_P(GetDispensedFormulaSerialCmd, DispensedFormulaCommand, Serial);

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
    const Value value = dispensedAnswerStruct();
    List list;
    FW_DriverError error;
    GetDispensedFormulaSerialCmd command;
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(value, &error); }));
    EXPECT_EQ(error.code(), "DE01295");
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(list, &error); }));
    EXPECT_EQ(error.code(), "DE00473");
}

} // namespace
