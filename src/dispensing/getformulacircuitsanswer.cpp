// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulacircuitsanswer.h"

#include "base/arguments_p.h"
#include "dispensing/arraymember_p.h"

namespace {

constexpr quv::ArrayMember circuits = {
    GetFormulaCircuitsAnswer::circuitIDs_TAG,
    {"DE00717", "GetFormulaCircuitsAnswer: Errors during Circuits ID list creation"},
    {"DE00716", "Circuit ID: expected INT parameter"}};
constexpr quv::ArrayMember positions = {
    GetFormulaCircuitsAnswer::positionIDs_TAG,
    {"DE00719", "GetFormulaCircuitsAnswer: Errors during Positions ID list creation"},
    {"DE00718", "Position ID: expected INT parameter"}};
constexpr quv::ArrayMember amounts = {
    GetFormulaCircuitsAnswer::quantities_TAG,
    {"DE01234", "GetFormulaCircuitsAnswer: Errors during quantities list creation"},
    {"DE01233", "Quantity: expected DOUBLE parameter"}};

/** A list of numbers, or a list of variants that are numbers. */
bool decodeNumbers(const QVariant &variant, QList<double> &out)
{
    if (variant.userType() == qMetaTypeId<QList<double>>()) {
        out = variant.value<QList<double>>();
        return true;
    }
    if (variant.userType() != QMetaType::QVariantList)
        return false;
    QList<double> numbers;
    for (const QVariant &element : variant.toList()) {
        double number = 0;
        if (!quv::decodeVariant(element, number))
            return false;
        numbers.append(number);
    }
    out = numbers;
    return true;
}

} // namespace

GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(const QList<int> &circuitIDs,
                                                   const QList<int> &positionIDs,
                                                   const QList<double> &quantities)
    : m_circuitIDs(circuitIDs),
      m_positionIDs(positionIDs),
      m_quantities(quantities)
{}

GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(QList<QVariant> &list) : ConfProtoAnswer(list)
{
    if (!DecodeVariantList(list, 0, m_circuitIDs))
        throw FW_Exception("DE00713",
                           "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected list "
                           "of circuit IDs)",
                           Q_FUNC_INFO);
    if (!DecodeVariantList(list, 1, m_positionIDs))
        throw FW_Exception("DE00714",
                           "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected list "
                           "of position IDs)",
                           Q_FUNC_INFO);
    if (!decodeNumbers(list.value(2), m_quantities))
        throw FW_Exception("DE01232",
                           "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected list "
                           "of quantities)",
                           Q_FUNC_INFO);
}

GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(const XmlRpc::XmlRpcValue &value)
    : m_circuitIDs(quv::decodedArray<int>(value, circuits, Q_FUNC_INFO)),
      m_positionIDs(quv::decodedArray<int>(value, positions, Q_FUNC_INFO)),
      m_quantities(quv::decodedArray<double>(value, amounts, Q_FUNC_INFO))
{}

GetFormulaCircuitsAnswer *GetFormulaCircuitsAnswer::clone() const
{
    return new GetFormulaCircuitsAnswer(*this);
}

bool GetFormulaCircuitsAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetFormulaCircuitsAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue GetFormulaCircuitsAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[circuitIDs_TAG] = quv::encodedArray(m_circuitIDs);
    value[positionIDs_TAG] = quv::encodedArray(m_positionIDs);
    value[quantities_TAG] = quv::encodedArray(m_quantities);
    return value;
}

bool GetFormulaCircuitsAnswer::operator==(const GetFormulaCircuitsAnswer &other) const
{
    return m_circuitIDs == other.m_circuitIDs && m_positionIDs == other.m_positionIDs &&
           m_quantities == other.m_quantities;
}
