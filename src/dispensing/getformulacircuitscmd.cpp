// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulacircuitscmd.h"

#include "base/replaceanswer_p.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/formula_p.h"
#include "dispensing/formulaquery_p.h"
#include "dispensing/getformulacircuitsanswer.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace {

constexpr char answerFailed[] = "Failed to create GetFormulaCircuitsAnswer";
constexpr quv::Refusal noFormula = {
    "DE00235", "GetFormulaCircuitsCmd failed: expected Formula type for first parameter"};
constexpr quv::Refusal noPurge = {
    "DE01253", "GetFormulaCircuitsCmd failed: expected PurgeFormula type for first parameter"};

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::GET_FORMULA_CIRCUITS);
}

bool isMeantForPurge(const XmlRpc::XmlRpcValue &value)
{
    return FindXmlRpcElement(value, 0) || FindXmlRpcMember(value, PurgeFormula::PURGE_QUANTITY);
}

} // namespace

GetFormulaCircuitsCmd::GetFormulaCircuitsCmd() : ConfProtoCommand(name(), nullptr) {}

GetFormulaCircuitsCmd::GetFormulaCircuitsCmd(const Formula &formula, bool isPurge) : GetFormulaCircuitsCmd()
{
    m_parameters = {QVariant::fromValue(formula), isPurge};
}

GetFormulaCircuitsCmd::GetFormulaCircuitsCmd(const PurgeFormula &formula) : GetFormulaCircuitsCmd()
{
    m_parameters = {QVariant::fromValue(formula)};
}

GetFormulaCircuitsCmd::GetFormulaCircuitsCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine)
    : ConfProtoCommand(name(), machine) // a purge may come without its array, so the base cannot count
{
    const XmlRpc::XmlRpcValue *first = FindXmlRpcElement(value, 0);
    if (first && FindXmlRpcMember(*first, Formula::FORMULA_TYPE)) {
        bool isPurge = false;
        DecodeXmlRpcValue(value, 1, isPurge);
        m_parameters = {QVariant::fromValue(quv::decodedValue<Formula>(first, noFormula, Q_FUNC_INFO)),
                        isPurge};
        return;
    }
    if (!isMeantForPurge(value))
        throw FW_Exception("DE01254", "GetFormulaCircuitsCmd failed: incorrect Formula type parameter",
                           Q_FUNC_INFO);
    m_parameters = {QVariant::fromValue(quv::decodedValue<PurgeFormula>(&value, noPurge, Q_FUNC_INFO))};
}

GetFormulaCircuitsCmd::GetFormulaCircuitsCmd(QList<QVariant> list) : ConfProtoCommand(name(), list, nullptr)
{
    m_parameters = quv::formulaParameters(list);
}

GetFormulaCircuitsCmd *GetFormulaCircuitsCmd::clone() const
{
    return new GetFormulaCircuitsCmd(*this);
}

XmlRpc::XmlRpcValue GetFormulaCircuitsCmd::xmlrpc_parameters(bool *ok) const
{
    return quv::formulaQueryValue(m_parameters, ok);
}

bool GetFormulaCircuitsCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01276", answerFailed, error,
                              [&] { return new GetFormulaCircuitsAnswer(value); });
}

bool GetFormulaCircuitsCmd::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer("DE00210", answerFailed, error,
                              [&] { return new GetFormulaCircuitsAnswer(list); });
}

bool GetFormulaCircuitsCmd::setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error)
{
    return takeXmlRpcAnswer(value, async, "DE00211", answerFailed, error);
}
