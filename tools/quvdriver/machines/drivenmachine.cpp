// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machines/drivenmachine.h"

#include "knownerrors.h"

#include <QuvFramework/fw_error.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace quv {
namespace {

using Lock = std::lock_guard<std::mutex>;

int familyOf(const FW_Machine &machine)
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine);
    return dispenser ? dispenser->commandFamily() : FW_Dispenser::CommandFamily1;
}

} // namespace

DrivenMachine::DrivenMachine(std::unique_ptr<FW_Machine> machine, std::unique_ptr<Firmware> firmware,
                             Abilities abilities)
    : m_id(machine->id(), machine->machineType()),
      m_family(familyOf(*machine)),
      m_speed(firmware->speed()),
      m_abilities(std::move(abilities)),
      m_firmware(std::move(firmware)),
      m_machine(std::move(machine))
{}

FirmwareReply DrivenMachine::exchange(const QString &code, int module, const QList<int> &parameters)
{
    const Lock lock(m_exchange);
    return m_firmware->execute(code, module, parameters);
}

void DrivenMachine::canisterFilled(int canisterID, double quantity)
{
    const Lock lock(m_exchange);
    m_firmware->canisterFilled(canisterID, quantity);
}

std::unique_ptr<FW_Machine> DrivenMachine::copy() const
{
    const Lock lock(m_state);
    return std::unique_ptr<FW_Machine>(m_machine->clone());
}

void DrivenMachine::change(const std::function<void(FW_Dispenser &)> &changes)
{
    const Lock lock(m_state);
    if (auto *dispenser = dynamic_cast<FW_Dispenser *>(m_machine.get()))
        changes(*dispenser);
}

void DrivenMachine::rowWritten(const RowKey &key)
{
    const Lock lock(m_state);
    m_writtenRows.insert(key);
}

RowKeys DrivenMachine::takeWrittenRows()
{
    const Lock lock(m_state);
    return std::exchange(m_writtenRows, {});
}

void DrivenMachine::configure(const std::function<void(FW_Machine &)> &changes)
{
    const Lock lock(m_state);
    std::unique_ptr<FW_Machine> changed(m_machine->clone());
    changes(*changed);
    m_machine = std::move(changed);
}

FW_ErrorList DrivenMachine::withFirstTimes(const FW_ErrorList &told)
{
    const Lock lock(m_state);
    KnownErrors known(m_errors);
    FW_ErrorList timed;
    for (int i = 0; i < told.size(); ++i) {
        const std::unique_ptr<FW_Error> error(told[i]->clone());
        if (const FW_Error *before = known.take(*error))
            error->setTimestamp(before->timestamp());
        timed.append(error.get());
    }
    m_errors = timed;
    return timed;
}

void DrivenMachine::errorsCleared()
{
    const Lock lock(m_state);
    m_errors.clear();
}

std::shared_ptr<Engagement> DrivenMachine::engage(const QString &command, Engages part, QString *other)
{
    const Lock lock(m_state);
    for (const auto &engagement : engagements()) {
        if (part == Engages::Nothing || engagement->engages != part)
            continue;
        if (other)
            *other = engagement->command;
        return nullptr;
    }
    m_engagements.erase(std::remove_if(m_engagements.begin(), m_engagements.end(),
                                       [](const auto &engagement) { return engagement.expired(); }),
                        m_engagements.end());
    auto engagement = std::make_shared<Engagement>(command, part);
    m_engagements.push_back(engagement);
    if (part == Engages::Pumps)
        m_pour = {};
    return engagement;
}

/// Those that go on. Called under the lock.
std::vector<std::shared_ptr<Engagement>> DrivenMachine::engagements() const
{
    std::vector<std::shared_ptr<Engagement>> engagements;
    for (const auto &candidate : m_engagements) {
        if (auto engagement = candidate.lock())
            engagements.push_back(std::move(engagement));
    }
    return engagements;
}

void DrivenMachine::asOneStep(const std::function<void()> &work)
{
    const Lock lock(m_step);
    work();
}

void DrivenMachine::stopProcedures(bool sparesFirmware)
{
    const Lock lock(m_state);
    for (const auto &engagement : engagements()) {
        if (sparesFirmware && engagement->engages == Engages::Pumps)
            continue;
        engagement->stopped.begin();
    }
}

void DrivenMachine::setRunningPour(const RunningPour &pour)
{
    const Lock lock(m_state);
    m_pour = pour;
}

std::unique_ptr<RunningPour> DrivenMachine::runningPour() const
{
    const Lock lock(m_state);
    const auto running = engagements();
    const bool pours = std::any_of(running.begin(), running.end(), [](const auto &engagement) {
        return engagement->engages == Engages::Pumps;
    });
    return pours && !m_pour.command.isEmpty() ? std::make_unique<RunningPour>(m_pour) : nullptr;
}

} // namespace quv
