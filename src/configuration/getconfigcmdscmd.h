// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/**
 * GET_CONFIG_CMDS: asks the firmware which structures it has, which is the reading of structure 0; the answer is a
 * GetConfigCmdsAnswer.
 */
class QUVPROTOCOL_EXPORT GetConfigCmdsCmd : public quv::DescribedCommand<GetConfigCmdsCmd, SerialProtoCommand>
{
public:
    struct Description;

    GetConfigCmdsCmd() = default;
    explicit GetConfigCmdsCmd(const XmlRpc::XmlRpcValue &value); ///< nothing is read of the value
    explicit GetConfigCmdsCmd(QList<QVariant> list);             ///< kept, and not read

    GetConfigCmdsCmd *clone() const override;

    QList<int> serialParameters(int family) const override;
};
