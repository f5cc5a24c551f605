// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/circuitmotors.h"

namespace quv {

void CircuitMotors::tellStatus(StatusWords &status, int module) const
{
    const FW_Circuit *circuit = module == 0 ? nullptr : m_machine.circuitAt(module);
    const bool isOn = circuit ? isTurning(*circuit) : module == 0 && m_runs.isAnyOfMachine(m_machine.now());
    status.words.set(1, m_kind.statusBit, isOn);
}

std::vector<ActiveCircuit> CircuitMotors::activeCircuits(int process) const
{
    std::vector<ActiveCircuit> circuits;
    if (process == static_cast<int>(m_kind.number))
        for (const int position : turning())
            circuits.push_back({position, LogicalState | PhysicalState});
    return circuits;
}

ProcessSet CircuitMotors::atWork() const
{
    return m_runs.turning(m_machine.now()).isEmpty() ? ProcessSet() : ProcessSet{m_kind.process};
}

ProcessSet CircuitMotors::excluded() const
{
    return m_runs.isAnyBusy(m_machine.now()) ? ProcessSet::all() : ProcessSet();
}

void CircuitMotors::goOn()
{
    if (m_machine.isHeld())
        stop();
}

void CircuitMotors::stop()
{
    end(addressed(0));
}

FirmwareReply CircuitMotors::begin(int module, bool isBusy, const EndOf &endOf)
{
    if (const auto obstacle = m_machine.obstacle(m_kind.process))
        return refused(*obstacle);
    const QList<int> positions = addressed(module);
    if (positions.isEmpty())
        return module == 0 ? refused(Reason::NotAvailable, m_kind.lack) : refused(Reason::WrongModule);
    const bool areAll = movesAll(module);
    if (!areAll && !hasPlaceFor(module))
        return refused(Reason::NotAvailable, m_kind.limit.arg(parallelism()));
    QList<qint64> ends;
    for (const int position : positions) {
        const auto moment = endOf(*m_machine.circuitAt(position));
        if (!moment)
            return refused(Reason::WrongParameters);
        ends.append(*moment);
    }
    for (int i = 0; i < positions.size(); ++i)
        m_runs.begin(positions.at(i), {ends.at(i), isBusy, areAll});
    return begun();
}

FirmwareReply CircuitMotors::end(int module)
{
    if (module != 0 && !m_machine.circuitAt(module))
        return refused(Reason::WrongModule);
    end(addressed(module));
    return begun();
}

void CircuitMotors::end(const QList<int> &positions)
{
    for (const int position : positions) {
        m_runs.end(position);
        m_restingSince[position] = m_machine.now();
    }
}

bool CircuitMotors::isTurning(const FW_Circuit &circuit) const
{
    return m_runs.isTurning(circuit.positionId(), m_machine.now()) || isDue(circuit);
}

/// Whether it turns by itself. It keeps out of the way of all else.
bool CircuitMotors::isDue(const FW_Circuit &circuit) const
{
    return hasMotor(circuit) &&
           m_machine.isDue(m_kind.timed, rhythm(circuit), m_restingSince.value(circuit.positionId())) &&
           m_machine.mayBegin(m_kind.process);
}

bool CircuitMotors::hasPlaceFor(int position) const
{
    const qint64 now = m_machine.now();
    return m_runs.isTurning(position, now) || m_runs.turning(now).size() < parallelism();
}

/// The positions whose motors a command at this address is for.
QList<int> CircuitMotors::addressed(int module) const
{
    QList<int> positions;
    if (module != 0 && !m_machine.circuitAt(module))
        return positions;
    for (const int position : m_machine.dispenser().getPositionsIDList(true))
        if ((movesAll(module) || position == module) && hasMotor(*m_machine.circuitAt(position)))
            positions.append(position);
    return positions;
}

QList<int> CircuitMotors::turning() const
{
    if (!m_machine.timed().has(m_kind.timed)) // the usual case, asked again and again
        return m_runs.turning(m_machine.now());
    QList<int> positions;
    for (const int position : addressed(0))
        if (isTurning(*m_machine.circuitAt(position)))
            positions.append(position);
    return positions;
}

} // namespace quv
