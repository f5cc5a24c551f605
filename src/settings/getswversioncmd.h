// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** GET_SW_VERSION: asks the driver for the version of its software; the answer is a GetSwVersionAnswer. */
class QUVPROTOCOL_EXPORT GetSwVersionCmd : public quv::DescribedCommand<GetSwVersionCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetSwVersionCmd() = default;
    explicit GetSwVersionCmd(const XmlRpc::XmlRpcValue &value); ///< takes no arguments
    explicit GetSwVersionCmd(QList<QVariant> list);
    explicit GetSwVersionCmd(int) = delete; // would be an XML-RPC value

    GetSwVersionCmd *clone() const override;
};
