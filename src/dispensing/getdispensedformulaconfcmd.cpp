// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaconfcmd.h"

#include "base/replaceanswer_p.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/getdispensedformulaanswer.h"

namespace {

constexpr char answerFailed[] = "Failed to create GetDispensedFormulaAnswer";

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::GET_DISPENSED_FORMULA);
}

} // namespace

GetDispensedFormulaConfCmd::GetDispensedFormulaConfCmd() : ConfProtoCommand(name(), nullptr) {}

GetDispensedFormulaConfCmd::GetDispensedFormulaConfCmd(int formulaType, int quantityUnit)
    : GetDispensedFormulaCmdBase(formulaType, quantityUnit),
      ConfProtoCommand(name(), nullptr)
{}

GetDispensedFormulaConfCmd::GetDispensedFormulaConfCmd(const XmlRpc::XmlRpcValue &value)
    : GetDispensedFormulaCmdBase(value),
      ConfProtoCommand(name(), value, nullptr)
{}

GetDispensedFormulaConfCmd::GetDispensedFormulaConfCmd(QList<QVariant> list)
    : GetDispensedFormulaCmdBase(list),
      ConfProtoCommand(name(), list, nullptr)
{}

GetDispensedFormulaConfCmd *GetDispensedFormulaConfCmd::clone() const
{
    return new GetDispensedFormulaConfCmd(*this);
}

QList<QVariant> GetDispensedFormulaConfCmd::parameters() const
{
    return GetDispensedFormulaCmdBase::parameters();
}

XmlRpc::XmlRpcValue GetDispensedFormulaConfCmd::xmlrpc_parameters(bool *ok) const
{
    return xmlrpc_parameters_base(ok);
}

XmlRpc::XmlRpcValue GetDispensedFormulaConfCmd::toXmlRpcValue(QString leading, bool *ok) const
{
    return ConfProtoCommand::toXmlRpcValue(leading, ok);
}

bool GetDispensedFormulaConfCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01723", answerFailed, error,
                              [&] { return new GetDispensedFormulaAnswer(value); });
}

bool GetDispensedFormulaConfCmd::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01724", answerFailed, error,
                              [&] { return new GetDispensedFormulaAnswer(list); });
}
