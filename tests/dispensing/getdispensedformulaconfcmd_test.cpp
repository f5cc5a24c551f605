// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaconfcmd.h"

#include "dispensing/dispensedformulacmdtesting.h"

namespace {

using namespace testing_dispensing;

AnswerFacts answers()
{
    const List list = {variantOf(formula()), variantOf(formula()), variantOf(formula())};
    AnswerFacts answers = confAnswers();
    answers.value = dispensedAnswerOfValue("DE01723");
    answers.list = AnswerOfList("GetDispensedFormulaAnswer", list, dispensedAnswerWritten())
                       .failsWith("DE01724", "Failed to create GetDispensedFormulaAnswer")
                       .refuses({}, "DE01719",
                                "GetDispensedFormulaAnswer decoding failed: invalid QVariant values length",
                                "GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(QList<QVariant>&)");
    return answers;
}

TEST(GetDispensedFormulaConfCmd, keepsTheCommandContract)
{
    CommandFacts facts = typedDispensedFormulaFacts<GetDispensedFormulaConfCmd>();
    facts.protoType = 2;
    facts.answers = answers();
    expectCommandContract(facts);
}

} // namespace
