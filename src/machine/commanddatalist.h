// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/commanddata.h"
#include "fw_command.h"

#include <QtCore/QList>

#include <vector>

class FW_Machine;
struct FW_Version;

/**
 * What one connected machine can do right now. ProtoCommandList::fillCommandDataList fills it from the catalogue when the machine
 * connects, or getOfflineCommandDataList as long as it is not connected; updateCommandsList then corrects it by what the firmware tells.
 *
 * What is asked by name is answered by the first command of that name, and by false, -1 or 0 when there is none.
 */
class QUVPROTOCOL_EXPORT CommandDataList
{
public:
    void clear() { m_commands.clear(); }
    int size() const { return static_cast<int>(m_commands.size()); }
    const CommandData &at(int index) const; ///< one as when new outside the list
    void appendCommandData(const CommandData &command) { m_commands.push_back(command); }

    bool existsCommand(const QString &name) const; ///< available or not
    bool isCommandAvailable(const QString &name) const;
    int cmdParamNum(const QString &name, bool min) const; ///< the least or the greatest number
    bool isMultipleCommand(const QString &name) const;
    bool useDispenser(const QString &name) const;
    bool checkBusyFlag(const QString &name) const;
    bool trackExecutionTime(const QString &name) const;
    int getSchedulingPriorityLevel(const QString &name) const;
    int getWorkingPriorityLevel(const QString &name) const;
    long long busyTimeout(const QString &name) const;        ///< milliseconds
    long long busyCheckFrequency(const QString &name) const; ///< milliseconds

    /**
     * Takes over what the firmware told of its commands: those with a code that it does not have become unavailable, and its word holds
     * on which keep it busy. Then each command gets the version of its protocol, by the firmware's \a version. Without \a fwCommands
     * nothing changes at all. Without \a version, what depends on it stays or becomes unavailable; without a dispenser as \a machine
     * the times of pours stay tracked. The first argument is not read.
     */
    void updateCommandsList(int unread, const QList<FW_Command> &fwCommands, const FW_Version *version,
                            const FW_Machine *machine);

    /** Of the first command that delivers colorant, and of no other; false when there is none. In milliseconds. */
    bool setTintCmdTimeout(long long timeout);
    /** Of all commands; always true. In milliseconds. */
    bool setBusyCheckFrequency(long long frequency);

private:
    const CommandData *find(const QString &name) const;
    template <class T>
    T read(const QString &name, T CommandData::*field) const;

    std::vector<CommandData> m_commands;
};
