// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulacmd.h"

#include "dispensing/dispensedformulacmdtesting.h"
#include "status/dispenserstatusanswer.h"

namespace {

using namespace testing_dispensing;

AnswerFacts answers()
{
    const List list = {variantOf(formula()), variantOf(formula()), variantOf(formula())};
    AnswerFacts answers = plainAnswers();
    answers.value = dispensedAnswerOfValue("DE01765");
    // a list becomes the status of the machine, which reads nothing of it
    answers.list =
        AnswerOfList("DispenserStatusAnswer", list, dumped(DispenserStatusAnswer().toXmlRpcValue()))
            .failsWith("DE01766", "Failed to create DispenserStatusAnswer")
            .refusesNothing();
    return answers;
}

TEST(GetDispensedFormulaCmd, keepsTheCommandContract)
{
    CommandFacts facts = typedDispensedFormulaFacts<GetDispensedFormulaCmd>();
    facts.protoType = 0;
    facts.answers = answers();
    expectCommandContract(facts);
}

} // namespace
