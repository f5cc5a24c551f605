// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "protocommand.h"

/** A command that the driver carries out itself. */
class QUVPROTOCOL_EXPORT ConfProtoCommand : public ProtoCommand
{
public:
    ConfProtoCommand();
    ConfProtoCommand(QString command, const FW_Machine *machine);
    ConfProtoCommand(QString command, const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    ConfProtoCommand(QString command, QList<QVariant> parameters, const FW_Machine *machine);

    ConfProtoCommand *clone() const override;

    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    bool setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error) override;
    bool setAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    bool setAnswer(ProtoAnswer *answer, ProtoCommand *command, FW_DriverError *error) override;
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;
};
