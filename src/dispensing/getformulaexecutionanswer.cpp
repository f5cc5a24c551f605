// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulaexecutionanswer.h"

#include "dispensing/formula_p.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace quv {

template <>
inline constexpr const char *markOf<FormulaProgress> = FormulaProgress::CHANNELS;

} // namespace quv

namespace {

constexpr quv::Refusal noProgressInList = {
    "DE02935",
    "GetFormulaExecutionAnswer decoding failed: invalid QVariant value (expected FormulaProgress type)"};

} // namespace

GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(const FormulaProgress &progress)
    : m_formulaProgress(progress)
{}

GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(QList<QVariant> &list)
    : ConfProtoAnswer(list),
      m_formulaProgress(quv::decodedVariant<FormulaProgress>(list.value(0), noProgressInList,
                                                             noProgressInList, Q_FUNC_INFO))
{}

GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(const XmlRpc::XmlRpcValue &value)
    : m_formulaProgress(quv::decodedValue<FormulaProgress>(
          FindXmlRpcMember(value, formulaProgress_TAG),
          {"DE02936", "GetFormulaExecutionAnswer failed: expected FormulaProgress type for first parameter"},
          Q_FUNC_INFO))
{}

GetFormulaExecutionAnswer *GetFormulaExecutionAnswer::clone() const
{
    return new GetFormulaExecutionAnswer(*this);
}

bool GetFormulaExecutionAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetFormulaExecutionAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue GetFormulaExecutionAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[formulaProgress_TAG] = m_formulaProgress.toXmlRpcValue();
    return value;
}
