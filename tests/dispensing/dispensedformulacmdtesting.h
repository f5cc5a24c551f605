// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "dispensing/querytesting.h"

#include <limits>

// What the tests of GET_DISPENSED_FORMULA share, whoever answers it.

namespace testing_dispensing {

/** An answer with the same formula three times, as it travels. */
inline Value dispensedAnswerStruct()
{
    return structOf({{"dispensed_formula", formulaStruct()},
                     {"remaining_formula", formulaStruct()},
                     {"total_formula", formulaStruct()}});
}
inline std::string dispensedAnswerWritten()
{
    const std::string formula = formulaWritten;
    return R"({"dispensed_formula": )" + formula + R"(, "remaining_formula": )" + formula +
           R"(, "total_formula": )" + formula + '}';
}

/** The answer that a value becomes, and what its class refuses. */
inline AnswerOfValue dispensedAnswerOfValue(const char *code)
{
    return AnswerOfValue("GetDispensedFormulaAnswer", dispensedAnswerStruct(), dispensedAnswerWritten())
        .failsWith(code, "Failed to create GetDispensedFormulaAnswer")
        .refuses(Value(0), "DE01711",
                 "GetDispensedFormulaAnswer failed: expected Dispensed Formula parameter",
                 "GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(const XmlRpc::XmlRpcValue&)");
}

/** Type and unit of the formula, which the class that all share reads. */
inline std::vector<Argument> dispensedFormulaArguments()
{
    using Int = std::numeric_limits<int>;
    return {
        optional(Integer, {"DE01911", "DE01912", "Formula type: expected INT parameter"})
            .outOfRange({0, 5, -1, Int::max(), Int::min()},
                        {"DE01910", "DE01913", "Formula type: invalid parameter"})
            .takes({1, 2, 3, 4}),
        optional(Integer, {"DE01721", "DE01722", "Quantity unit: expected INT parameter"})
            .outOfRange({-1, 4, Int::max(), Int::min()},
                        {"DE01720", "DE01720", "Quantity unit: invalid parameter"})
            .takes({0, 1, 2, 3}),
    };
}

template <class Command>
CommandFacts dispensedFormulaFacts()
{
    CommandFacts facts(formsOf<Command>());
    facts.catalogue = {"GET_DISPENSED_FORMULA", 93, "0074", 0};
    facts.valueFunction =
        "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(QList<QVariant>)";
    facts.arguments = dispensedFormulaArguments();
    facts.getters = {getter(&Command::formulaType), getter(&Command::quantityUnit)};
    facts.defaults = Request().parameters({1, 0}).written("[1, 0]");
    facts.requests = {
        Request({3, 2}).written("[3, 2]"),
        Request({4}).parameters({4, 0}).written("[4, 0]"),
        Request().parameters({1, 0}).written("[1, 0]"),
    };
    return facts;
}

/** Of a class that also takes type and unit as they are. */
template <class Command>
CommandFacts typedDispensedFormulaFacts()
{
    constexpr char ofInts[] = "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(int, int)";
    CommandFacts facts = dispensedFormulaFacts<Command>();
    facts.requests.front().template typed<Command>(3, 2);
    using Int = std::numeric_limits<int>;
    for (int type : {0, 5, -1, Int::max(), Int::min()})
        facts.typedRefusals.push_back(
            {made<Command>(type, 9), {"DE01908", "Formula type: invalid parameter"}, ofInts});
    for (int unit : {-1, 4, Int::max(), Int::min()})
        facts.typedRefusals.push_back(
            {made<Command>(1, unit), {"DE01909", "Quantity unit: invalid parameter"}, ofInts});
    return facts;
}

} // namespace testing_dispensing
