// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/commandrows_p.h"
#include "catalogue/protocommandlist.h"
#include "machine/commanddatalist.h"

#include <QuvFramework/fw_dispenser.h>

namespace {

bool hasAll(int mask, int bits)
{
    return (mask & bits) == bits;
}

CommandData dataOf(const CMD_STRUCT &row, int family)
{
    const bool isFamily1 = family == FW_Dispenser::CommandFamily1;
    CommandData data;
    data.id = row.id;
    data.name = row.name;
    data.m_code = isFamily1 ? row.code : row.altCode;
    data.minParams = row.minParams;
    data.maxParams = row.maxParams;
    data.type = row.type;
    data.multiple = row.multiple;
    data.useDispenser = row.addressMachine;
    data.workingPriorityLevel = row.workingPriorityLevel;
    data.schedulingPriorityLevel = row.schedulingPriorityLevel;
    data.checkBusy = row.checkBusy;
    data.trackExecutionTime = isFamily1 && row.trackExecutionTime;
    data.busyTimeout = row.busyTimeout;
    data.recordInStats = row.recordInStats;
    data.machineObjUsage = row.machineObjUsage;
    data.privateCommand = row.privateCommand;
    data.erogationCommand = row.erogationCommand;
    return data;
}

} // namespace

bool ProtoCommandList::fillCommandDataList(CommandDataList &list, SerialDeviceType device, int family)
{
    list.clear();
    for (const CMD_STRUCT &row : quv::catalogue::rows()) {
        if (hasAll(row.familyMask, family) && hasAll(row.target, static_cast<int>(device)))
            list.appendCommandData(dataOf(row, family));
    }
    return true;
}

bool ProtoCommandList::getOfflineCommandDataList(CommandDataList &list, SerialDeviceType device, int family)
{
    CommandDataList all;
    if (!fillCommandDataList(all, device, family))
        return false;
    list.clear();
    for (int i = 0; i < all.size(); ++i) {
        // the row of the position, and not of the command: what clients see of a machine that is away depends on it
        const CMD_STRUCT *row = ProtoCommandList::row(i);
        if (isConfigurationCommand(all.at(i).name, true) && row &&
            hasAll(row->target, static_cast<int>(device)))
            list.appendCommandData(all.at(i));
    }
    return true;
}
