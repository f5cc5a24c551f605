// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machines/machineregistry.h"

#include "machines/refusal.h"

#include "catalogue/protocommandlist.h"

#include <algorithm>
#include <utility>

namespace quv {

using RegistryLock = std::lock_guard<std::mutex>;

QString kindInWords(SerialDeviceType type)
{
    switch (type) {
    case SerialDeviceType::Dispenser:
        return QStringLiteral("dispenser");
    case SerialDeviceType::Mixer:
        return QStringLiteral("mixer");
    case SerialDeviceType::Scale:
        return QStringLiteral("scale");
    default:
        return QStringLiteral("machine of the kind %1").arg(static_cast<int>(type));
    }
}

bool MachineRegistry::add(std::unique_ptr<DrivenMachine> machine)
{
    if (find(machine->id()))
        return false;
    m_active.emplace(machine->type(), machine.get()); // the first of its kind stays
    m_machines.push_back(std::move(machine));
    return true;
}

DrivenMachine *MachineRegistry::find(const MachineID &id) const
{
    const auto found = std::find_if(m_machines.begin(), m_machines.end(),
                                    [&id](const auto &machine) { return machine->id() == id; });
    return found == m_machines.end() ? nullptr : found->get();
}

DrivenMachine &MachineRegistry::get(const MachineID &id) const
{
    if (DrivenMachine *machine = find(id))
        return *machine;
    refuse(NotConfigured, "DE03401",
           QStringLiteral("The driver has no %1 with the ID %2; it has %3")
               .arg(kindInWords(id.type), QString::number(id.id), inWords()));
}

/// As they can be named when a program is told one.
QString MachineRegistry::inWords() const
{
    QStringList names;
    for (const auto &machine : m_machines)
        names.append(QStringLiteral("%1:%2").arg(kindInWords(machine->type())).arg(machine->id().id));
    if (names.isEmpty())
        names.append(QStringLiteral("none at all"));
    return names.join(QStringLiteral(", "));
}

DrivenMachine *MachineRegistry::active(SerialDeviceType type) const
{
    const RegistryLock lock(m_mutex);
    const auto found = m_active.find(type);
    return found == m_active.end() ? nullptr : found->second;
}

DrivenMachine *MachineRegistry::activeFor(const QString &command) const
{
    DrivenMachine *dispenser =
        ProtoCommandList::targetIsDispenser(command) ? active(SerialDeviceType::Dispenser) : nullptr;
    DrivenMachine *mixer =
        ProtoCommandList::targetIsMixer(command) ? active(SerialDeviceType::Mixer) : nullptr;
    if (command == ProtoCommandList::cmdStr(ProtoCommandList::MIXER_PLATES))
        return mixer ? mixer : dispenser;
    return dispenser ? dispenser : mixer;
}

void MachineRegistry::activate(const DrivenMachine &machine)
{
    const RegistryLock lock(m_mutex);
    m_active[machine.type()] = find(machine.id());
}

} // namespace quv
