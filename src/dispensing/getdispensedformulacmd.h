// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/protocommand.h"
#include "getdispensedformulacmdbase.h"

/**
 * GET_DISPENSED_FORMULA as a client asks it: what really left the nozzles. Over XML-RPC the answer is a
 * GetDispensedFormulaAnswer; a list tells no formula and is answered by the status of the machine, a
 * DispenserStatusAnswer.
 */
class QUVPROTOCOL_EXPORT GetDispensedFormulaCmd : public GetDispensedFormulaCmdBase, public ProtoCommand
{
public:
    GetDispensedFormulaCmd();
    GetDispensedFormulaCmd(int formulaType, int quantityUnit);
    explicit GetDispensedFormulaCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetDispensedFormulaCmd(QList<QVariant> list);

    GetDispensedFormulaCmd *clone() const override;
    using GetDispensedFormulaCmdBase::setDefaults;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue(QString leading, bool *ok = nullptr) const override;

    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
};
