// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/machineconfiguration.h"

#include "catalogue/protocommandlist.h"
#include "configuration/readconfigurationparamcmd.h"

#include <QuvFramework/fw_exception.h>

#include <algorithm>
#include <stdexcept>

namespace quv {
namespace {

using Catalogue = ProtoCommandList;

QString nameOf(const RowKey &key)
{
    const QString structure = ConfData::confCommandToString(key.first);
    return placeOfInstance(key.first) == 0 ? structure
                                           : QStringLiteral("%1 %2").arg(structure).arg(key.second);
}

ReadConfigurationParamAnswer readRow(const RowKey &key, const AskFirmware &ask)
{
    constexpr int Family = FW_Dispenser::CommandFamily1; // the other has no configuration
    const ReadConfigurationParamCmd command(key.first, key.second);
    const FirmwareReply reply =
        ask(Catalogue::cmdCode(command.command(), Family), command.serialParameters(Family));
    if (reply.refused)
        throw std::runtime_error("the firmware does not tell it");
    return ReadConfigurationParamAnswer(reply.tokens);
}

/// The row of a circuit that there is no longer.
bool isAbsentCircuit(const ToldRow &row)
{
    return row.key.first == CircuitStructure && row.answer.confData()->commandEnable() == ConfData::Absent;
}

/// The canister stays, with what is in it.
void removeCircuit(FW_Machine &machine, int position)
{
    auto *dispenser = dynamic_cast<FW_Dispenser *>(&machine);
    const FW_Circuit *circuit = dispenser ? dispenser->getCircuitByPosition(position) : nullptr;
    if (!circuit)
        return;
    const int id = circuit->id();
    QList<FW_Circuit> &circuits =
        dispenser->getCanisterById(dispenser->getCanisterOfCircuitID(id)->id())->circuits();
    circuits.erase(std::remove_if(circuits.begin(), circuits.end(),
                                  [id](const FW_Circuit &each) { return each.id() == id; }),
                   circuits.end());
}

} // namespace

RowKey writtenRow(const ConfData &row)
{
    return {row.commandCode(),
            instanceOf({row.commandCode(), QList<int>{row.commandEnable()} + row.parameters(), {}})};
}

ToldRows readRows(const RowKeys &keys, const AskFirmware &ask, QStringList &problems)
{
    ToldRows rows;
    for (const RowKey &key : keys) {
        try {
            rows.push_back({key, readRow(key, ask)});
        } catch (const FW_Exception &error) {
            problems.append(QStringLiteral("%1: %2").arg(nameOf(key), error.text()));
        } catch (const std::exception &error) {
            problems.append(QStringLiteral("%1: %2").arg(nameOf(key), QString::fromUtf8(error.what())));
        }
    }
    return rows;
}

void applyRows(FW_Machine &machine, const ToldRows &rows, QStringList &problems)
{
    QList<int> extra;
    for (const ToldRow &row : rows) {
        if (isAbsentCircuit(row))
            removeCircuit(machine, row.key.second);
        else if (!row.answer.confData()->updateConfiguration(&machine, nullptr, &extra))
            problems.append(QStringLiteral("%1: the machine does not take it").arg(nameOf(row.key)));
    }
}

} // namespace quv
