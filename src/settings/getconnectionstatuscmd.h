// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/**
 * GET_CONN_STATUS: asks how the driver's links stand; the answer is a GetConnectionStatusAnswer. The factory makes a plain command
 * of the name, with the same answer.
 */
class QUVPROTOCOL_EXPORT GetConnectionStatusCmd
    : public quv::DescribedCommand<GetConnectionStatusCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetConnectionStatusCmd() = default;
    explicit GetConnectionStatusCmd(const XmlRpc::XmlRpcValue &value); ///< takes no arguments
    explicit GetConnectionStatusCmd(QList<QVariant> list);
    explicit GetConnectionStatusCmd(int) = delete; // would be an XML-RPC value

    GetConnectionStatusCmd *clone() const override;
};
