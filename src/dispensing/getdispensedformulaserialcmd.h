// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/serialprotocommand.h"
#include "dispensing/getdispensedformulacmdbase.h"

/** GET_DISPENSED_FORMULA for a driver that asks the firmware, whose answer is a GetDispensedFormulaAnswer. */
class QUVPROTOCOL_EXPORT GetDispensedFormulaSerialCmd : public GetDispensedFormulaCmdBase,
                                                        public SerialProtoCommand
{
public:
    GetDispensedFormulaSerialCmd();
    explicit GetDispensedFormulaSerialCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetDispensedFormulaSerialCmd(QList<QVariant> list);
    GetDispensedFormulaSerialCmd(const GetDispensedFormulaSerialCmd &) = default;

    GetDispensedFormulaSerialCmd *clone() const override;
    using GetDispensedFormulaCmdBase::setDefaults;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue(QString leading, bool *ok = nullptr) const override;

    using SerialProtoCommand::buildProtoAnswer;
    bool buildProtoAnswer(QStringList tokens, FW_DriverError *error) override;
};
