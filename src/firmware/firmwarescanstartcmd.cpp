// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwarescanstartcmd.h"

#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_dispenser.h>

#include <utility>

FirmwareScanStartCmd::FirmwareScanStartCmd()
{
    setCommand(ProtoCommandList::cmdStr(ProtoCommandList::FW_SCAN_START));
}

FirmwareScanStartCmd::FirmwareScanStartCmd(const XmlRpc::XmlRpcValue &value) : FirmwareScanCmd(value)
{
    setCommand(ProtoCommandList::cmdStr(ProtoCommandList::FW_SCAN_START));
}

FirmwareScanStartCmd *FirmwareScanStartCmd::clone() const
{
    return new FirmwareScanStartCmd(*this);
}

// The firmware tells that it has begun, and no more: what it has found is asked for by FW_SCAN_READ. So all answers are plain.
// NOLINTBEGIN(bugprone-parent-virtual-call): those of the class between are the very ones that are not wanted

bool FirmwareScanStartCmd::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
{
    return SerialProtoCommand::buildProtoAnswer(std::move(tokens), error);
}

bool FirmwareScanStartCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return SerialProtoCommand::buildProtoAnswer(value, error);
}

bool FirmwareScanStartCmd::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return SerialProtoCommand::buildProtoAnswer(list, error);
}

// NOLINTEND(bugprone-parent-virtual-call)

QList<int> FirmwareScanStartCmd::serialParameters(int) const
{
    constexpr int start = 1;
    return {start};
}

long long FirmwareScanStartCmd::getCmdEstimatedExecutionTime(const FW_Machine *machine) const
{
    constexpr long long timeOfBoard = 250;
    if (m_moduleID != 0)
        return timeOfBoard;
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    return dispenser ? timeOfBoard * dispenser->getEnabledCircuits().size() : 0;
}
