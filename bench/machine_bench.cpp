// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/protocommandlist.h"
#include "machine/commanddatalist.h"
#include "ratios.h"
#include "suites.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_version.h>

#include <vector>

namespace {

/** A firmware that has all codes of a dispenser. */
QList<FW_Command> tableOf(const CommandDataList &list)
{
    QList<FW_Command> table;
    for (int i = 0; i < list.size(); ++i) {
        bool hasCode = false;
        const unsigned code = list.at(i).code(&hasCode);
        if (hasCode)
            table.append(FW_Command(code, i % 3, CmdExecution::Yes));
    }
    return table;
}

/** The same rows copied, and the code of each looked up, without anybody who asks for a version. */
std::vector<CMD_STRUCT> copiedByHand(const QList<FW_Command> &table)
{
    std::vector<CMD_STRUCT> rows;
    for (int id = 0; id < ProtoCommandList::rowCount; ++id) {
        const CMD_STRUCT &row = *ProtoCommandList::row(id);
        if ((row.familyMask & 1) == 0 || (row.target & 1) == 0)
            continue;
        rows.push_back(row);
        const unsigned code = row.code.toUInt(nullptr, 16);
        for (const FW_Command &command : table) {
            if (command.cmdCode == code) {
                rows.back().checkBusy = command.cmdStatus == 2;
                break;
            }
        }
    }
    return rows;
}

} // namespace

void quv::addMachineRatios()
{
    constexpr int family = FW_Dispenser::CommandFamily1;
    const FW_Version version(63, 41);
    CommandDataList all;
    ProtoCommandList::fillCommandDataList(all, SerialDeviceType::Dispenser, family);
    const QList<FW_Command> table = tableOf(all);
    // a machine that connects waits for it: at most 100 us
    addRatio("machine: its commands, filled and updated", 1.3, repeat([version, table] {
                 CommandDataList list;
                 ProtoCommandList::fillCommandDataList(list, SerialDeviceType::Dispenser, family);
                 list.updateCommandsList(0, table, &version, nullptr);
                 return list;
             }),
             repeat([table] { return copiedByHand(table); }));
}
