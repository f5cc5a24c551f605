// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaserialcmd.h"

#include "dispensing/dispensedformulacmdtesting.h"

#include <type_traits>

namespace {

using namespace testing_dispensing;

AnswerFacts answers()
{
    const std::string poured = R"({"decimals": 3, "exec_criterion": 1, "formula_type": 1, "ids": [], )"
                               R"("levels_policy": 0, "quantities": [], "quantity_unit": 1})";
    const std::string written = R"({"dispensed_formula": )" + poured + R"(, "remaining_formula": )" +
                                emptyFormulaWritten + R"(, "total_formula": )" + poured + '}';
    AnswerFacts answers = serialAnswers(); // what comes not from the firmware is left to the base
    answers.tokens =
        AnswerOfTokens("GetDispensedFormulaAnswer", {"2", "1", "0"}, written)
            .failsWith("DE01726", "Failed to create GetDispensedFormulaAnswer")
            .refuses({"1", "1"}, "DE01698",
                     "Error during dispensed formula serial answer decoding: bad answer received",
                     "GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(QStringList)");
    return answers;
}

TEST(GetDispensedFormulaSerialCmd, keepsTheCommandContract)
{
    CommandFacts facts = dispensedFormulaFacts<GetDispensedFormulaSerialCmd>();
    facts.protoType = 1;
    facts.answers = answers();
    expectCommandContract(facts);
}

TEST(GetDispensedFormulaSerialCmd, takesNoPlainNumbers)
{
    static_assert(!std::is_constructible_v<GetDispensedFormulaSerialCmd, int, int>);
}

TEST(GetDispensedFormulaSerialCmd, sendsNoParametersToAFirmwareOfAnyFamily)
{
    for (int family : {0, 1, 2})
        EXPECT_EQ(GetDispensedFormulaSerialCmd(List{3, 2}).serialParameters(family), QList<int>()) << family;
}

} // namespace
