// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getconnectionstatuscmd.h"

#include "base/describedcommand_p.h"

struct GetConnectionStatusCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_CONN_STATUS; // its answer goes by its name
    static constexpr auto commandText = "Connection status read";

    static void tellArguments(quv::ArgumentTeller &) {} // there are none
};

template class quv::DescribedCommand<GetConnectionStatusCmd, ConfProtoCommand>;

GetConnectionStatusCmd::GetConnectionStatusCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value) {}

GetConnectionStatusCmd::GetConnectionStatusCmd(QList<QVariant> list) : DescribedCommand(list) {}

GetConnectionStatusCmd *GetConnectionStatusCmd::clone() const
{
    return new GetConnectionStatusCmd(*this);
}
