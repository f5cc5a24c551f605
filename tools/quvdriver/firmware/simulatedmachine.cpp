// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/simulatedmachine.h"

#include "firmware/errorcodes.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace quv {
namespace {

QString gerundOf(Process process)
{
    switch (process) {
    case Process::Resetting:
        return QStringLiteral("resetting");
    case Process::Finalising:
        return QStringLiteral("writing its configuration");
    case Process::Pouring:
        return QStringLiteral("pouring");
    case Process::Stirring:
        return QStringLiteral("stirring");
    case Process::Recirculating:
        return QStringLiteral("recirculating");
    case Process::Cleaning:
    case Process::Rinsing:
        return QStringLiteral("cleaning");
    case Process::MovingShelf:
        return QStringLiteral("moving its shelf");
    case Process::MovingTurntable:
        return QStringLiteral("turning its table");
    case Process::MovingCap:
        return QStringLiteral("moving its cap");
    case Process::MovingStation:
        return QStringLiteral("moving its capping station");
    case Process::MovingPlates:
        return QStringLiteral("moving its plates");
    case Process::Mixing:
        return QStringLiteral("mixing");
    case Process::UpdatingBoards:
        return QStringLiteral("updating its boards");
    case Process::ReadingLevels:
        return QStringLiteral("reading its level sensors");
    }
    return {};
}

Obstacle obstacleOf(const FirmwarePart &part)
{
    const auto process = part.atWork().first();
    return {part.obstacle(), process ? QStringLiteral("the machine is ") + gerundOf(*process) : QString()};
}

/// What the canister holds when its sensor falls.
double criticalContent(const FW_Canister &canister, const FW_CanisterLevelSensor &sensor)
{
    constexpr double HundredthsOfStroke = 100;
    for (const FW_Circuit &circuit : canister.circuits()) {
        const double strokes = sensor.criticalLevel() / HundredthsOfStroke;
        const qint64 steps = std::llround(strokes * circuit.dosingMotor().stepsPerStroke());
        const auto quantity = SimulatedMachine::quantityOfSteps(circuit, steps);
        if (quantity && steps > 0)
            return *quantity;
    }
    return canister.reserveQuantity(); // nobody can tell how much a stroke is
}

} // namespace

SimulatedMachine::SimulatedMachine(const FW_Machine &machine, double speed, Clock clock)
    : m_type(machine.machineType()),
      m_speed(speed),
      m_clock(std::move(clock))
{
    if (const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine))
        m_dispenser = *dispenser;
    if (turntable())
        m_table.emplace(*turntable(), speed);
    for (const FW_Canister &canister : std::as_const(m_dispenser).canisters())
        m_contents[canister.id()] = canister.currentQuantity();
}

qint64 SimulatedMachine::endOf(double milliseconds) const
{
    return now() + std::llround(milliseconds / m_speed);
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

void SimulatedMachine::goOn()
{
    const qint64 until = m_clock();
    while (const auto moment = m_plan.takeChange(until)) {
        m_moment = moment;
        letPartsGoOn(); // what was over before the fault is not hit by it
        m_faults = m_plan.faultsAt(*moment);
        letPartsGoOn();
    }
    m_moment = until; // for all parts, whatever the clock tells meanwhile
    letPartsGoOn();
}

void SimulatedMachine::letPartsGoOn()
{
    for (const auto &part : m_parts)
        part->lookBack();
    for (const auto &part : m_parts)
        part->goOn();
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

qint64 SimulatedMachine::endOfWork(qint64 from, qint64 until)
{
    const auto moment = m_moment;
    while (from < until) { // work that has ended does not begin again by itself
        const qint64 middle = from + (until - from) / 2;
        m_moment = middle;
        if (isAt(ProcessSet::all()))
            from = middle + 1;
        else
            until = middle;
    }
    m_moment = moment;
    return from;
}

std::optional<Obstacle> SimulatedMachine::obstacle(Process process) const
{
    if (auto byHand = obstacleByHand(process))
        return byHand;
    for (const auto &part : m_parts)
        if (part->excluded().has(process))
            return obstacleOf(*part);
    return std::nullopt;
}

std::optional<Obstacle> SimulatedMachine::obstacleByHand(Process process) const
{
    if (m_faults.emergencyPressed)
        return Obstacle{Reason::NotAvailable, QStringLiteral("the emergency button is pressed")};
    if (m_faults.offlinePressed)
        return Obstacle{Reason::NotAvailable, QStringLiteral("the offline button is pressed")};
    if (m_faults.doorOpen && processesInReach().has(process))
        return Obstacle{Reason::NotAvailable, QStringLiteral("the door is open")};
    return std::nullopt;
}

std::optional<Obstacle> SimulatedMachine::obstacleByWork(ProcessSet processes) const
{
    for (const auto &part : m_parts)
        if (part->atWork().hasAny(processes))
            return obstacleOf(*part);
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
    const double elapsed = double(now() - std::max(since, m_timed.since(process))) * m_speed;
    return std::fmod(elapsed, rhythm.pause + rhythm.activity) >= rhythm.pause;
}

void SimulatedMachine::stop(ProcessSet processes)
{
    for (const auto &part : m_parts) {
        if (part->atWork().hasAny(processes))
            part->stop();
    }
}

ProcessSet SimulatedMachine::processesInReach()
{
    return {Process::Resetting,     Process::Pouring,         Process::Cleaning,
            Process::MovingShelf,   Process::MovingTurntable, Process::MovingCap,
            Process::MovingStation, Process::MovingPlates,    Process::Mixing};
}

std::optional<double> SimulatedMachine::quantityOfSteps(const FW_Circuit &circuit, qint64 steps)
{
    bool isKnown = false;
    const double quantity = circuit.calibration().quantity(steps, &isKnown);
    return isKnown ? std::optional(quantity) : std::nullopt;
}

qint64 SimulatedMachine::takeFromCanister(const FW_Circuit &circuit, qint64 steps)
{
    if (steps > 0 && m_faults.blockedCircuits.contains(circuit.positionId())) {
        raise({CircuitBlockedError, circuit.positionId()});
        return 0;
    }
    const auto quantity = quantityOfSteps(circuit, steps);
    const FW_Canister *canister = m_dispenser.getCanisterOfCircuitID(circuit.id());
    if (!quantity || !canister)
        return steps;
    double &content = m_contents[canister->id()];
    if (content >= *quantity) {
        content -= *quantity;
        return steps;
    }
    // whole steps alone leave the nozzle, and what is less than one stays
    constexpr double Nothing = 1e-9;
    qint64 rest = std::min(qint64(circuit.calibration().steps(std::max(content, 0.0))), steps);
    if (quantityOfSteps(circuit, rest).value_or(0) > content + Nothing) // the nearest was one too many
        --rest;
    content = std::max(content - quantityOfSteps(circuit, rest).value_or(0), 0.0);
    raise({CanisterEmptyError, circuit.positionId()});
    return rest;
}

void SimulatedMachine::putIntoCanister(const FW_Circuit &circuit, qint64 taken, qint64 poured)
{
    const auto quantity = quantityOfSteps(circuit, taken);
    const FW_Canister *canister = m_dispenser.getCanisterOfCircuitID(circuit.id());
    if (canister && quantity)
        m_contents[canister->id()] += *quantity - quantityOfSteps(circuit, poured).value_or(0);
}

Withdrawal SimulatedMachine::withdrawal(int canisterID) const
{
    Withdrawal all;
    for (const auto &part : m_parts) {
        const Withdrawal withdrawal = part->withdrawal(canisterID);
        all.taken += withdrawal.taken;
        all.poured += withdrawal.poured;
    }
    return all;
}

double SimulatedMachine::content(int canisterID) const
{
    const Withdrawal running = withdrawal(canisterID);
    return std::max(m_contents.value(canisterID) + running.taken - running.poured, 0.0);
}

void SimulatedMachine::setContent(int canisterID, double quantity)
{
    m_contents[canisterID] = quantity - withdrawal(canisterID).taken;
}

bool SimulatedMachine::tellsCriticalLevel(const FW_Canister &canister) const
{
    const FW_CanisterLevelSensor *sensor = canister.canisterLevelSensor();
    return sensor && sensor->isEnabled() && toldContent(canister) < criticalContent(canister, *sensor);
}

double SimulatedMachine::toldContent(const FW_Canister &canister) const
{
    const double held = content(canister.id());
    const FW_CanisterLevelSensor *sensor = canister.canisterLevelSensor();
    if (!sensor || !m_faults.lyingSensors.contains(canister.id()))
        return held;
    const double critical = criticalContent(canister, *sensor);
    return held < critical ? std::max(canister.maximumQuantity(), critical) : 0;
}

void SimulatedMachine::raise(const RaisedError &error)
{
    if (m_errors.size() < MaxErrors - 1)
        m_errors.append(error);
    else if (m_errors.size() < MaxErrors)
        m_errors.append({ErrorsLostError});
}

} // namespace quv
