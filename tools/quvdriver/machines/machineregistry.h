// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machines/drivenmachine.h"

#include "base/machineid.h"

#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace quv {

/// A dispenser, a mixer or a scale in words.
QString kindInWords(SerialDeviceType type);

/**
 * The machines that the driver owns. One of each kind is the active one, which gets what is addressed to no machine in particular; at
 * first it is the one that was added first. Machines are added before anybody else uses it; then any number of threads may.
 */
class MachineRegistry
{
public:
    /// Takes a machine; false, and it is gone, when another one of its kind has its ID.
    bool add(std::unique_ptr<DrivenMachine> machine);

    const std::vector<std::unique_ptr<DrivenMachine>> &all() const { return m_machines; }

    /// Null when there is none.
    DrivenMachine *find(const MachineID &id) const;
    /// The same. \throws CallRefusal DE03401, with those that there are, when there is none
    DrivenMachine &get(const MachineID &id) const;

    /// Null when there is none of the kind.
    DrivenMachine *active(SerialDeviceType type) const;
    /// The active machine of the kind that a command is for. What both kinds understand goes to the dispenser, except the movement of
    /// plates, which only mixers have. Null when there is none.
    DrivenMachine *activeFor(const QString &command) const;
    void activate(const DrivenMachine &machine);

private:
    QString inWords() const;

    std::vector<std::unique_ptr<DrivenMachine>> m_machines{};
    mutable std::mutex m_mutex{}; ///< guards what follows
    std::map<SerialDeviceType, DrivenMachine *> m_active{};
};

} // namespace quv
