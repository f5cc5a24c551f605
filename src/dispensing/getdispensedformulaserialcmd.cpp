// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaserialcmd.h"

#include "base/replaceanswer_p.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/getdispensedformulaanswer.h"

#include <utility>

namespace {

constexpr char answerFailed[] = "Failed to create GetDispensedFormulaAnswer";

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::GET_DISPENSED_FORMULA);
}

} // namespace

GetDispensedFormulaSerialCmd::GetDispensedFormulaSerialCmd() : SerialProtoCommand(name(), nullptr) {}

GetDispensedFormulaSerialCmd::GetDispensedFormulaSerialCmd(const XmlRpc::XmlRpcValue &value)
    : GetDispensedFormulaCmdBase(value),
      SerialProtoCommand(name(), value, nullptr)
{}

GetDispensedFormulaSerialCmd::GetDispensedFormulaSerialCmd(QList<QVariant> list)
    : GetDispensedFormulaCmdBase(list),
      SerialProtoCommand(name(), list, nullptr)
{}

GetDispensedFormulaSerialCmd *GetDispensedFormulaSerialCmd::clone() const
{
    return new GetDispensedFormulaSerialCmd(*this);
}

QList<QVariant> GetDispensedFormulaSerialCmd::parameters() const
{
    return GetDispensedFormulaCmdBase::parameters();
}

XmlRpc::XmlRpcValue GetDispensedFormulaSerialCmd::xmlrpc_parameters(bool *ok) const
{
    return xmlrpc_parameters_base(ok);
}

XmlRpc::XmlRpcValue GetDispensedFormulaSerialCmd::toXmlRpcValue(QString leading, bool *ok) const
{
    return SerialProtoCommand::toXmlRpcValue(leading, ok);
}

bool GetDispensedFormulaSerialCmd::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01726", answerFailed, error,
                              [&] { return new GetDispensedFormulaAnswer(std::move(tokens)); });
}
