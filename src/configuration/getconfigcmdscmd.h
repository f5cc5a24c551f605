// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/serialprotocommand.h"

/**
 * GET_CONFIG_CMDS: asks the firmware which structures it has, which is the reading of structure 0; the answer is a
 * GetConfigCmdsAnswer.
 */
class QUVPROTOCOL_EXPORT GetConfigCmdsCmd : public SerialProtoCommand
{
public:
    GetConfigCmdsCmd();
    explicit GetConfigCmdsCmd(const XmlRpc::XmlRpcValue &value); ///< nothing is read of the value
    explicit GetConfigCmdsCmd(QList<QVariant> list);             ///< kept, and not read
    GetConfigCmdsCmd(const GetConfigCmdsCmd &) = default;

    GetConfigCmdsCmd *clone() const override;

    QList<int> serialParameters(int family) const override;

    using SerialProtoCommand::buildProtoAnswer;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QStringList tokens, FW_DriverError *error) override;
    bool setSerialAnswer(QStringList tokens, FW_DriverError *error) override;
};
