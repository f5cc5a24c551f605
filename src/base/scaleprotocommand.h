// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "protocommand.h"

class ScaleProtoAnswer;

/** A command that a scale carries out. */
class QUVPROTOCOL_EXPORT ScaleProtoCommand : public ProtoCommand
{
public:
    ScaleProtoCommand();
    explicit ScaleProtoCommand(QString command);
    ScaleProtoCommand(QString command, const XmlRpc::XmlRpcValue &value);
    ScaleProtoCommand(QString command, QList<QVariant> parameters);

    ScaleProtoCommand *clone() const override;

    using ProtoCommand::setAnswer;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    bool setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error) override;
    bool setAnswer(QList<QVariant> &list, FW_DriverError *error) override;

    /** Stores a clone of the scale's answer. */
    virtual bool setScaleAnswer(ScaleProtoAnswer *answer, FW_DriverError *error);

protected:
    // For the layer of a described command, which hands its base a machine as well: a scale has none.
    ScaleProtoCommand(QString command, const FW_Machine *machine);
    ScaleProtoCommand(QString command, const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    ScaleProtoCommand(QString command, QList<QVariant> parameters, const FW_Machine *machine);
};
