// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaanswer.h"

#include "base/describedanswer_p.h"
#include "base/tokens_p.h"
#include "dispensing/formulafield_p.h"

#include <utility>

namespace {

constexpr int tokensOfCircuit = 3; // what a firmware sends of one at the least

constexpr quv::Refusal badAnswer(const char *code)
{
    return {code, "Error during dispensed formula serial answer decoding: bad answer received"};
}

/** The circuits of a firmware's report, as the lists of which a formula is built. */
struct Report
{
    QList<QString> positions;
    QList<int> queues;
    QList<QVariant> totals;
    QList<QVariant> dispensed;
};

QVariant nextSteps(quv::TokenReader &reader, const char *countCode, const char *digitsCode)
{
    return reader.nextNumber(reader.next(badAnswer(countCode)), badAnswer(digitsCode));
}

Report nextCircuits(quv::TokenReader &reader, int count)
{
    Report report;
    if (count > 0)
        reader.require(tokensOfCircuit, badAnswer("DE01702"));
    for (int i = 0; i < count; ++i) {
        reader.require(1, badAnswer("DE01702"));
        report.positions.append(QString::number(reader.next(badAnswer("DE01703"))));
        report.queues.append(reader.next(badAnswer("DE01704")));
        report.totals.append(nextSteps(reader, "DE01705", "DE01706"));
        report.dispensed.append(nextSteps(reader, "DE01707", "DE01708"));
    }
    return report;
}

Formula formulaOf(Report &report, QList<QVariant> &steps, int criterion)
{
    constexpr int decimals = 3;
    constexpr int noPolicy = 0;
    return Formula(report.positions, steps, report.queues, Formula::CircuitPositions, Formula::Steps,
                   criterion, decimals, noPolicy, QList<int>());
}

} // namespace

struct GetDispensedFormulaAnswer::Description
{
    using Answer = GetDispensedFormulaAnswer;

    static constexpr char noFormula[] = "GetDispensedFormulaAnswer failed: expected Formula type parameter";

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    dispensedFormula_TAG, &Answer::m_dispensedFormula,
                    {"DE01711", "GetDispensedFormulaAnswer failed: expected Dispensed Formula parameter"},
                    {"DE01716", "GetDispensedFormulaAnswer decoding failed: invalid QVariant value (expected "
                                "Dispensed Formula type)"})
                    .otherType({"DE01710", noFormula})
                    .meaning("what has left the nozzles"),
                quv::Member<Answer>(
                    remainingFormula_TAG, &Answer::m_remainingFormula,
                    {"DE01713", "GetDispensedFormulaAnswer failed: expected Remaining Formula parameter"},
                    {"DE01531", "GetDispensedFormulaAnswer decoding failed: invalid QVariant value (expected "
                                "Remaining Formula type)"})
                    .otherType({"DE01712", noFormula})
                    .meaning("what has not; a firmware does not tell it"),
                quv::Member<Answer>(
                    totalFormula_TAG, &Answer::m_totalFormula,
                    {"DE01715", "GetDispensedFormulaAnswer failed: expected Total Formula parameter"},
                    {"DE01718", "GetDispensedFormulaAnswer decoding failed: invalid QVariant value (expected "
                                "Total Formula type)"})
                    .otherType({"DE01714", noFormula})
                    .meaning("the whole")};
    }
};

template class quv::DescribedAnswer<GetDispensedFormulaAnswer, SerialProtoAnswer>;

GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(const Formula &dispensed, const Formula &remaining,
                                                     const Formula &total)
    : m_dispensedFormula(dispensed),
      m_remainingFormula(remaining),
      m_totalFormula(total)
{}

GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    reader.require(2, badAnswer("DE01698"));
    const int told = Formula::convertExecutionCriterionFromFw(reader.next(badAnswer("DE01699")));
    const int criterion = Formula::checkExecutionCriterion(told) ? told : 0;
    Report report = nextCircuits(reader, reader.next(badAnswer("DE01701")));
    try {
        m_dispensedFormula = formulaOf(report, report.dispensed, criterion);
        m_totalFormula = formulaOf(report, report.totals, criterion);
    } catch (...) {
        quv::rethrowCurrentException(
            "DE01709", "GetDispensedFormulaAnswer failed: error in Formula construction", Q_FUNC_INFO);
    }
}

GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    if (list.size() != 3)
        throw FW_Exception("DE01719",
                           "GetDispensedFormulaAnswer decoding failed: invalid QVariant values length",
                           Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
}

GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetDispensedFormulaAnswer *GetDispensedFormulaAnswer::clone() const
{
    return new GetDispensedFormulaAnswer(*this);
}

void GetDispensedFormulaAnswer::setDefaults()
{
    quv::recordOf<GetDispensedFormulaAnswer>().reset(*this);
}
