// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/commanddatalist.h"

#include "catalogue/protocommandlist.h"
#include "machine/commandupdate_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <algorithm>

const CommandData &CommandDataList::at(int index) const
{
    static const CommandData none;
    return index >= 0 && index < size() ? m_commands[static_cast<std::size_t>(index)] : none;
}

const CommandData *CommandDataList::find(const QString &name) const
{
    const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                    [&](const CommandData &command) { return command.name == name; });
    return found == m_commands.end() ? nullptr : &*found;
}

template <class T>
T CommandDataList::read(const QString &name, T CommandData::*field) const
{
    const CommandData *command = find(name);
    return command ? command->*field : T();
}

bool CommandDataList::existsCommand(const QString &name) const
{
    return find(name) != nullptr;
}

bool CommandDataList::isCommandAvailable(const QString &name) const
{
    return read(name, &CommandData::available);
}

int CommandDataList::cmdParamNum(const QString &name, bool min) const
{
    const CommandData *command = find(name);
    if (!command)
        return -1;
    return min ? command->minParams : command->maxParams;
}

bool CommandDataList::isMultipleCommand(const QString &name) const
{
    return read(name, &CommandData::multiple);
}

bool CommandDataList::useDispenser(const QString &name) const
{
    return read(name, &CommandData::useDispenser);
}

bool CommandDataList::checkBusyFlag(const QString &name) const
{
    return read(name, &CommandData::checkBusy);
}

bool CommandDataList::trackExecutionTime(const QString &name) const
{
    return read(name, &CommandData::trackExecutionTime);
}

int CommandDataList::getSchedulingPriorityLevel(const QString &name) const
{
    return read(name, &CommandData::schedulingPriorityLevel);
}

int CommandDataList::getWorkingPriorityLevel(const QString &name) const
{
    return read(name, &CommandData::workingPriorityLevel);
}

long long CommandDataList::busyTimeout(const QString &name) const
{
    return read(name, &CommandData::busyTimeout);
}

long long CommandDataList::busyCheckFrequency(const QString &name) const
{
    return read(name, &CommandData::busyCheckFrequency);
}

void CommandDataList::updateCommandsList(int, const QList<FW_Command> &fwCommands, const FW_Version *version,
                                         const FW_Machine *machine)
{
    if (fwCommands.isEmpty())
        return;
    const auto *dispenser = machine && machine->machineType() == SerialDeviceType::Dispenser
                                ? dynamic_cast<const FW_Dispenser *>(machine)
                                : nullptr;
    const bool cannotTellTimes = dispenser && !dispenser->canEstimateDosingCmdExecution();
    for (CommandData &command : m_commands) {
        const CMD_STRUCT *row = ProtoCommandList::row(command.name);
        const int number = row ? row->id : -1;
        quv::takeOver(fwCommands, number, command);
        quv::takeOver(version, number, command);
        if (cannotTellTimes && command.erogationCommand)
            command.trackExecutionTime = false;
    }
}

bool CommandDataList::setTintCmdTimeout(long long timeout)
{
    const auto found = std::find_if(m_commands.begin(), m_commands.end(), [](const CommandData &command) {
        return ProtoCommandList::erogationCommand(command.name);
    });
    if (found == m_commands.end())
        return false;
    found->busyTimeout = timeout;
    return true;
}

bool CommandDataList::setBusyCheckFrequency(long long frequency)
{
    for (CommandData &command : m_commands)
        command.busyCheckFrequency = frequency;
    return true;
}
