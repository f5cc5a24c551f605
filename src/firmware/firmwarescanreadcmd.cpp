// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwarescanreadcmd.h"

#include "catalogue/protocommandlist.h"

FirmwareScanReadCmd::FirmwareScanReadCmd()
{
    setCommand(ProtoCommandList::cmdStr(ProtoCommandList::FW_SCAN_READ));
}

FirmwareScanReadCmd::FirmwareScanReadCmd(const XmlRpc::XmlRpcValue &value) : FirmwareScanCmd(value)
{
    setCommand(ProtoCommandList::cmdStr(ProtoCommandList::FW_SCAN_READ));
}

FirmwareScanReadCmd *FirmwareScanReadCmd::clone() const
{
    return new FirmwareScanReadCmd(*this);
}

QList<int> FirmwareScanReadCmd::serialParameters(int) const
{
    constexpr int read = 2;
    return {read};
}
