// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/simulatedmachine.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quv {

SimulatedMachine::SimulatedMachine(const FW_Machine &machine, double speed, Clock clock)
    : m_type(machine.machineType()),
      m_speed(speed),
      m_clock(std::move(clock))
{
    if (const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine))
        m_dispenser = *dispenser;
    for (const FW_Canister &canister : std::as_const(m_dispenser).canisters())
        m_contents[canister.id()] = canister.currentQuantity();
}

qint64 SimulatedMachine::endOf(double milliseconds) const
{
    return m_clock() + std::llround(milliseconds / m_speed);
}

const FW_Turntable *SimulatedMachine::turntable() const
{
    return dynamic_cast<const FW_Turntable *>(m_dispenser.getDevice(FW_Device::Turntable));
}

const FW_Circuit *SimulatedMachine::circuitAt(int position) const
{
    return m_dispenser.hasCircuitPosition(position, true) ? m_dispenser.getCircuitByPosition(position)
                                                          : nullptr;
}

StatusWords SimulatedMachine::status(int module) const
{
    StatusWords status;
    for (const auto &part : m_parts)
        part->tellStatus(status, module);
    return status;
}

bool SimulatedMachine::isAt(ProcessSet processes) const
{
    return std::any_of(m_parts.begin(), m_parts.end(),
                       [processes](const auto &part) { return part->atWork().hasAny(processes); });
}

std::optional<Reason> SimulatedMachine::obstacle(Process process) const
{
    if (isHeld())
        return Reason::NotAvailable;
    for (const auto &part : m_parts)
        if (part->excluded().has(process))
            return part->obstacle();
    return std::nullopt;
}

void SimulatedMachine::giveWay(const QList<int> &positions)
{
    for (const auto &part : m_parts)
        part->giveWay(positions);
}

bool SimulatedMachine::isDue(TimedProcess process, const Rhythm &rhythm, qint64 since) const
{
    if (!m_timed.has(process) || rhythm.activity <= 0)
        return false;
    const double elapsed = double(now() - std::max(since, m_timed.since)) * m_speed;
    return std::fmod(elapsed, rhythm.pause + rhythm.activity) >= rhythm.pause;
}

qint64 SimulatedMachine::takeFromCanister(const FW_Circuit &circuit, qint64 steps)
{
    bool isKnown = false;
    const double quantity = circuit.calibration().quantity(steps, &isKnown);
    const FW_Canister *canister = m_dispenser.getCanisterOfCircuitID(circuit.id());
    if (!isKnown || !canister)
        return steps;
    double &content = m_contents[canister->id()];
    if (content >= quantity) {
        content -= quantity;
        return steps;
    }
    const qint64 rest = std::min(qint64(circuit.calibration().steps(std::max(content, 0.0))), steps);
    content = 0;
    return rest;
}

void SimulatedMachine::putIntoCanister(const FW_Circuit &circuit, qint64 steps)
{
    bool isKnown = false;
    const double quantity = circuit.calibration().quantity(steps, &isKnown);
    if (const FW_Canister *canister = m_dispenser.getCanisterOfCircuitID(circuit.id()); canister && isKnown)
        m_contents[canister->id()] += quantity;
}

} // namespace quv
