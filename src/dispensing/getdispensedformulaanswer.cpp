// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaanswer.h"

#include "base/tokens_p.h"
#include "dispensing/formula_p.h"

#include <QuvFramework/fw_xmlrpc.h>

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

Formula decodedMember(const XmlRpc::XmlRpcValue &value, const char *key, const quv::Refusal &missing,
                      const char *otherTypeCode, const char *function)
{
    const XmlRpc::XmlRpcValue *member = FindXmlRpcMember(value, key);
    if (!member)
        throw FW_Exception(missing.code, missing.text, function);
    return quv::decodedValue<Formula>(
        member, {otherTypeCode, "GetDispensedFormulaAnswer failed: expected Formula type parameter"},
        function);
}

Formula decodedElement(const QVariant &element, const quv::Refusal &refusal, const char *function)
{
    return quv::decodedVariant<Formula>(element, refusal, refusal, function);
}

} // namespace

GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(const Formula &dispensed, const Formula &remaining,
                                                     const Formula &total)
    : m_dispensedFormula(dispensed),
      m_remainingFormula(remaining),
      m_totalFormula(total)
{}

GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(QStringList tokens)
    : SerialProtoAnswer(std::move(tokens))
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

GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(QList<QVariant> &list) : SerialProtoAnswer(list)
{
    if (list.size() != 3)
        throw FW_Exception("DE01719",
                           "GetDispensedFormulaAnswer decoding failed: invalid QVariant values length",
                           Q_FUNC_INFO);
    m_dispensedFormula =
        decodedElement(list.at(0),
                       {"DE01716", "GetDispensedFormulaAnswer decoding failed: invalid QVariant value "
                                   "(expected Dispensed Formula type)"},
                       Q_FUNC_INFO);
    m_remainingFormula =
        decodedElement(list.at(1),
                       {"DE01531", "GetDispensedFormulaAnswer decoding failed: invalid QVariant value "
                                   "(expected Remaining Formula type)"},
                       Q_FUNC_INFO);
    m_totalFormula = decodedElement(list.at(2),
                                    {"DE01718", "GetDispensedFormulaAnswer decoding failed: invalid QVariant "
                                                "value (expected Total Formula type)"},
                                    Q_FUNC_INFO);
}

GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(const XmlRpc::XmlRpcValue &value)
    : m_dispensedFormula(
          decodedMember(value, dispensedFormula_TAG,
                        {"DE01711", "GetDispensedFormulaAnswer failed: expected Dispensed Formula parameter"},
                        "DE01710", Q_FUNC_INFO)),
      m_remainingFormula(
          decodedMember(value, remainingFormula_TAG,
                        {"DE01713", "GetDispensedFormulaAnswer failed: expected Remaining Formula parameter"},
                        "DE01712", Q_FUNC_INFO)),
      m_totalFormula(
          decodedMember(value, totalFormula_TAG,
                        {"DE01715", "GetDispensedFormulaAnswer failed: expected Total Formula parameter"},
                        "DE01714", Q_FUNC_INFO))
{}

GetDispensedFormulaAnswer *GetDispensedFormulaAnswer::clone() const
{
    return new GetDispensedFormulaAnswer(*this);
}

void GetDispensedFormulaAnswer::setDefaults()
{
    m_dispensedFormula.setDefaults();
    m_remainingFormula.setDefaults();
    m_totalFormula.setDefaults();
}

bool GetDispensedFormulaAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetDispensedFormulaAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue GetDispensedFormulaAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[dispensedFormula_TAG] = m_dispensedFormula.toXmlRpcValue(nullptr);
    value[remainingFormula_TAG] = m_remainingFormula.toXmlRpcValue(nullptr);
    value[totalFormula_TAG] = m_totalFormula.toXmlRpcValue(nullptr);
    return value;
}

bool GetDispensedFormulaAnswer::operator==(const GetDispensedFormulaAnswer &other) const
{
    return m_dispensedFormula == other.m_dispensedFormula && m_remainingFormula == other.m_remainingFormula &&
           m_totalFormula == other.m_totalFormula;
}
