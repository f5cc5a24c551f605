// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getlowlevelformulaanswer.h"

#include "dispensing/formula_p.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace {

constexpr quv::Refusal noFormulaInList = {
    "DE00902", "GetLowLevelFormulaAnswer decoding failed: invalid QVariant value (expected Formula type)"};

} // namespace

GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(const Formula &formula) : m_formula(formula) {}

GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(QList<QVariant> &list)
    : ConfProtoAnswer(list),
      m_formula(quv::decodedVariant<Formula>(list.value(0), noFormulaInList, noFormulaInList, Q_FUNC_INFO))
{}

GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(const XmlRpc::XmlRpcValue &value)
    : m_formula(quv::decodedValue<Formula>(
          FindXmlRpcMember(value, formula_TAG),
          {"DE00904", "GetLowLevelFormulaAnswer failed: expected Formula type for first parameter"},
          Q_FUNC_INFO))
{}

GetLowLevelFormulaAnswer *GetLowLevelFormulaAnswer::clone() const
{
    return new GetLowLevelFormulaAnswer(*this);
}

bool GetLowLevelFormulaAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetLowLevelFormulaAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue GetLowLevelFormulaAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[formula_TAG] = m_formula.toXmlRpcValue(nullptr);
    return value;
}
