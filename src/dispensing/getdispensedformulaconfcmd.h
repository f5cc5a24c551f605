// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/confprotocommand.h"
#include "dispensing/getdispensedformulacmdbase.h"

/**
 * GET_DISPENSED_FORMULA for a driver that keeps the formula itself and answers by itself; the answer is a
 * GetDispensedFormulaAnswer.
 */
class QUVPROTOCOL_EXPORT GetDispensedFormulaConfCmd : public GetDispensedFormulaCmdBase,
                                                      public ConfProtoCommand
{
public:
    GetDispensedFormulaConfCmd();
    GetDispensedFormulaConfCmd(int formulaType, int quantityUnit);
    explicit GetDispensedFormulaConfCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetDispensedFormulaConfCmd(QList<QVariant> list);
    GetDispensedFormulaConfCmd(const GetDispensedFormulaConfCmd &) = default;

    GetDispensedFormulaConfCmd *clone() const override;
    using GetDispensedFormulaCmdBase::setDefaults;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue(QString leading, bool *ok = nullptr) const override;

    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
};
