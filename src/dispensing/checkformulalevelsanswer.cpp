// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/checkformulalevelsanswer.h"

#include "dispensing/arraymember_p.h"

namespace {

constexpr char noCanister[] = "Canister ID: expected INT parameter";

constexpr quv::ArrayMember criticalMember = {
    CheckFormulaLevelsAnswer::canistersBelowCritical_TAG,
    {"DE00460", "CheckFormulaLevelsAnswer: Errors during Canister below critical list creation"},
    {"DE00459", noCanister}};
constexpr quv::ArrayMember warningMember = {
    CheckFormulaLevelsAnswer::canistersBelowWarning_TAG,
    {"DE00462", "CheckFormulaLevelsAnswer: Errors during Canister below warning list creation"},
    {"DE00461", noCanister}};

} // namespace

CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(const QList<int> &belowCritical,
                                                   const QList<int> &belowWarning)
    : m_canistersBelowCritical(belowCritical),
      m_canistersBelowWarning(belowWarning)
{}

CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(QList<QVariant> &list) : ConfProtoAnswer(list)
{
    if (!DecodeVariantList(list, 0, m_canistersBelowCritical))
        throw FW_Exception("DE00456",
                           "CheckFormulaLevelsAnswer decoding failed: invalid QVariant value (expected list "
                           "of canister below critical)",
                           Q_FUNC_INFO);
    if (!DecodeVariantList(list, 1, m_canistersBelowWarning))
        throw FW_Exception("DE00457",
                           "CheckFormulaLevelsAnswer decoding failed: invalid QVariant value (expected list "
                           "of canister below warning)",
                           Q_FUNC_INFO);
}

CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(const XmlRpc::XmlRpcValue &value)
    : m_canistersBelowCritical(quv::decodedArray<int>(value, criticalMember, Q_FUNC_INFO)),
      m_canistersBelowWarning(quv::decodedArray<int>(value, warningMember, Q_FUNC_INFO))
{}

CheckFormulaLevelsAnswer *CheckFormulaLevelsAnswer::clone() const
{
    return new CheckFormulaLevelsAnswer(*this);
}

bool CheckFormulaLevelsAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const CheckFormulaLevelsAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue CheckFormulaLevelsAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[canistersBelowCritical_TAG] = quv::encodedArray(m_canistersBelowCritical);
    value[canistersBelowWarning_TAG] = quv::encodedArray(m_canistersBelowWarning);
    return value;
}

bool CheckFormulaLevelsAnswer::operator==(const CheckFormulaLevelsAnswer &other) const
{
    return m_canistersBelowCritical == other.m_canistersBelowCritical &&
           m_canistersBelowWarning == other.m_canistersBelowWarning;
}
