// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulacmdbase.h"

#include "base/protocommand.h"
#include "dispensing/getdispensedformulacmdbase_p.h"

#include <QuvFramework/formula.h>

GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(int formulaType, int quantityUnit)
    : m_formulaType(formulaType),
      m_quantityUnit(quantityUnit)
{
    check("DE01908", "DE01909", Q_FUNC_INFO);
}

GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(const XmlRpc::XmlRpcValue &value)
{
    quv::ValueReader reader(value, Q_FUNC_INFO);
    Description::arguments(*this, reader);
    check("DE01910", "DE01720", Q_FUNC_INFO);
}

GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(QList<QVariant> list)
{
    quv::ListReader reader(list, Q_FUNC_INFO);
    Description::arguments(*this, reader);
    check("DE01913", "DE01720", Q_FUNC_INFO);
}

void GetDispensedFormulaCmdBase::setDefaults()
{
    *this = GetDispensedFormulaCmdBase();
}

QList<QVariant> GetDispensedFormulaCmdBase::parameters() const
{
    quv::ListWriter writer;
    Description::arguments(*this, writer);
    return writer.result();
}

XmlRpc::XmlRpcValue GetDispensedFormulaCmdBase::xmlrpc_parameters_base(bool *ok) const
{
    if (ok)
        *ok = true;
    return quv::writtenArguments([this](auto &archive) { Description::arguments(*this, archive); });
}

XmlRpc::XmlRpcValue GetDispensedFormulaCmdBase::toXmlRpcValue(QString leading, bool *ok) const
{
    return ProtoCommand::buildXmlRpcValue(ProtoCommandList::cmdStr(Description::command),
                                          xmlrpc_parameters_base(nullptr), leading, ok);
}

void GetDispensedFormulaCmdBase::check(const char *typeCode, const char *unitCode, const char *function) const
{
    if (!Formula::checkFormulaType(m_formulaType))
        throw FW_Exception(typeCode, "Formula type: invalid parameter", function);
    if (!Formula::checkQuantityUnit(m_quantityUnit))
        throw FW_Exception(unitCode, "Quantity unit: invalid parameter", function);
}
