// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulacmd.h"

#include "base/prototypes_p.h"
#include "base/replaceanswer_p.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/getdispensedformulacmdbase_p.h"
#include "status/dispenserstatusanswer.h"

namespace {

QString name()
{
    return ProtoCommandList::cmdStr(GetDispensedFormulaCmdBase::Description::command);
}

} // namespace

GetDispensedFormulaCmd::GetDispensedFormulaCmd() : ProtoCommand(quv::PlainType, name(), nullptr) {}

GetDispensedFormulaCmd::GetDispensedFormulaCmd(int formulaType, int quantityUnit)
    : GetDispensedFormulaCmdBase(formulaType, quantityUnit),
      ProtoCommand(quv::PlainType, name(), nullptr)
{}

GetDispensedFormulaCmd::GetDispensedFormulaCmd(const XmlRpc::XmlRpcValue &value)
    : GetDispensedFormulaCmdBase(value),
      ProtoCommand(quv::PlainType, name(), value, nullptr)
{}

GetDispensedFormulaCmd::GetDispensedFormulaCmd(QList<QVariant> list)
    : GetDispensedFormulaCmdBase(list),
      ProtoCommand(quv::PlainType, name(), list, nullptr)
{}

GetDispensedFormulaCmd *GetDispensedFormulaCmd::clone() const
{
    return new GetDispensedFormulaCmd(*this);
}

QList<QVariant> GetDispensedFormulaCmd::parameters() const
{
    return GetDispensedFormulaCmdBase::parameters();
}

XmlRpc::XmlRpcValue GetDispensedFormulaCmd::xmlrpc_parameters(bool *ok) const
{
    return xmlrpc_parameters_base(ok);
}

XmlRpc::XmlRpcValue GetDispensedFormulaCmd::toXmlRpcValue(QString leading, bool *ok) const
{
    return ProtoCommand::toXmlRpcValue(leading, ok);
}

bool GetDispensedFormulaCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01765", quv::dispensedFormulaFailed, error,
                              [&] { return new GetDispensedFormulaAnswer(value); });
}

bool GetDispensedFormulaCmd::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01766", "Failed to create DispenserStatusAnswer", error,
                              [&] { return new DispenserStatusAnswer(list); });
}
