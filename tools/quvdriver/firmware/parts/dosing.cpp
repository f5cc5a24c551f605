// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/dosing.h"

#include "firmware/errorcodes.h"
#include "firmware/wirereply.h"

#include <algorithm>

namespace quv {
namespace {

constexpr int StrokesCriterion = 3;  // of a tint's code: the amounts are strokes
constexpr int UnqueuedCriterion = 1; // all circuits as they come, whatever their queues
constexpr int PurgeMark = 64;

/// Milliseconds of so many steps.
double motorTime(const FW_DosingMotor &motor, qint64 steps, int turnsPerMinute)
{
    constexpr double MillisecondsPerMinute = 60000;
    return double(steps) * MillisecondsPerMinute / (double(turnsPerMinute) * std::max(motor.resolution(), 1));
}

} // namespace

std::vector<FirmwareCode> Dosing::codes()
{
    using Numbers = QList<int>;
    return {
        {QStringLiteral("0017"), {}, [this](int, const Numbers &numbers) { return tint(numbers); }, true},
        {QStringLiteral("0023"),
         {},
         [this](int, const Numbers &numbers) { return strokes(numbers, Movement::IdleStrokes); },
         true},
        {QStringLiteral("0024"),
         {},
         [this](int, const Numbers &numbers) { return strokes(numbers, Movement::PouredStrokes); },
         true},
        {QStringLiteral("0035"),
         {},
         [this](int, const Numbers &numbers) {
             return begin(readPourRequest(PourLayout::Tint2, numbers), Movement::Steps);
         },
         true},
        {QStringLiteral("0074"),
         {},
         [this](int, const Numbers &) { return replied(m_pour.report(m_machine.now())); }},
    };
}

void Dosing::tellStatus(StatusWords &status, int module) const
{
    status.words.set(1, 2, module == 0 ? !atWork().isEmpty() : m_pour.turns(module, m_machine.now()));
    status.words.set(5, 4, m_isInterrupted);
}

ProcessSet Dosing::atWork() const
{
    return m_pour.isRunning(m_machine.now()) ? ProcessSet{Process::Pouring} : ProcessSet();
}

void Dosing::goOn()
{
    if (atWork().isEmpty())
        return;
    if (m_machine.isHeld())
        stop();
    for (const int position : risingNumbers(m_machine.faults().blockedCircuits))
        if (cutOff(position))
            m_machine.raise({CircuitBlockedError, position});
}

void Dosing::stop()
{
    if (atWork().isEmpty())
        return;
    const qint64 now = m_machine.now();
    for (const int position : m_pour.positions())
        cutOff(position);
    m_pour.end(now);
    if (Table *table = m_machine.table()) // the ways to the circuits that were still to pour
        table->stop(now);
    m_isInterrupted = true;
}

/// What the circuit has not poured is in its canister again. False when it has poured all.
bool Dosing::cutOff(int position)
{
    const PouredSteps cut = m_pour.cutOff(position, m_machine.now());
    if (cut.taken == cut.poured)
        return false;
    m_machine.putIntoCanister(*m_machine.circuitAt(position), cut.taken, cut.poured);
    return true;
}

Withdrawal Dosing::withdrawal(int canisterID) const
{
    Withdrawal all;
    const qint64 now = m_machine.now();
    if (!m_pour.isRunning(now))
        return all;
    for (const PouredSteps &steps : m_pour.steps(now)) {
        const FW_Circuit &circuit = *m_machine.circuitAt(steps.position);
        const FW_Canister *canister = m_machine.dispenser().getCanisterOfCircuitID(circuit.id());
        if (!canister || canister->id() != canisterID)
            continue;
        all.taken += SimulatedMachine::quantityOfSteps(circuit, steps.taken).value_or(0);
        all.poured += SimulatedMachine::quantityOfSteps(circuit, steps.poured).value_or(0);
    }
    return all;
}

FirmwareReply Dosing::tint(const QList<int> &parameters)
{
    const auto request = readPourRequest(PourLayout::Tint, parameters);
    const bool areStrokes = request && request->criterion == StrokesCriterion;
    return begin(request, areStrokes ? Movement::StrokesOrPack : Movement::Steps);
}

FirmwareReply Dosing::strokes(const QList<int> &parameters, Movement movement)
{
    const auto isThere = [this](int position) { return m_machine.circuitAt(position) != nullptr; };
    return begin(readPourRequest(PourLayout::Strokes, parameters, isThere), movement);
}

FirmwareReply Dosing::begin(const std::optional<PourRequest> &request, Movement movement)
{
    if (const auto obstacle = m_machine.obstacle(Process::Pouring))
        return refused(*obstacle);
    if (!request)
        return refused(Reason::WrongParameters);
    for (const PourPart &part : request->parts) {
        const FW_Circuit *circuit = m_machine.circuitAt(part.position);
        if (!circuit)
            return refused(Reason::WrongModule);
        if (m_machine.refuses(part.position))
            return refused(Reason::NotAvailable,
                           QStringLiteral("the board at %1 refuses").arg(part.position));
        if (pours(part, movement) && movement != Movement::Steps &&
            circuit->dosingMotor().stepsPerStroke() <= 0)
            return refused(Reason::WrongParameters);
    }
    std::vector<CircuitPour> circuits;
    double next = double(m_machine.now()); // on a table, where one circuit pours at a time
    for (const PourPart &part : request->parts) {
        circuits.push_back(plan(part, movement, next));
        next += circuits.back().approach + circuits.back().duration;
        circuits.back().isQueued = part.queue != 0 && request->criterion != UnqueuedCriterion;
    }
    QList<int> positions;
    for (const CircuitPour &circuit : circuits)
        positions.append(circuit.position);
    m_machine.giveWay(positions);
    const int parallelism = m_machine.turntable() ? 1 : m_machine.dispenser().tintingParallelism();
    m_isInterrupted = false;
    m_pour =
        Pour(request->criterion | (request->isPurge ? PurgeMark : 0), circuits, parallelism, m_machine.now());
    m_process = static_cast<int>(processOf(*request, movement));
    return begun();
}

std::vector<ActiveCircuit> Dosing::activeCircuits(int process) const
{
    std::vector<ActiveCircuit> circuits;
    if (process != m_process && process != static_cast<int>(CircuitProcess::NozzleValves))
        return circuits;
    for (const EngagedCircuit &circuit : m_pour.engaged(m_machine.now())) {
        if (process == m_process)
            circuits.push_back({circuit.position, LogicalState | (circuit.turns ? PhysicalState : 0)});
        else if (circuit.nozzleValve != 0)
            circuits.push_back({circuit.position, circuit.nozzleValve});
    }
    return circuits;
}

CircuitProcess Dosing::processOf(const PourRequest &request, Movement movement)
{
    if (movement == Movement::Steps)
        return request.isPurge ? CircuitProcess::Purging : CircuitProcess::Dosing;
    const bool isPriming = std::any_of(request.parts.begin(), request.parts.end(),
                                       [movement](const PourPart &part) { return pours(part, movement); });
    return isPriming ? CircuitProcess::Priming : CircuitProcess::Packing;
}

/// A tint's code with strokes is a pack or an unpack when the number is one of these two movements.
bool Dosing::pours(const PourPart &part, Movement movement)
{
    return movement != Movement::IdleStrokes && !(movement == Movement::StrokesOrPack && part.amount <= 1);
}

/// What the circuit will do, on a table from the moment \a begin. It takes from the canister what it will pour.
CircuitPour Dosing::plan(const PourPart &part, Movement movement, double begin)
{
    const FW_Circuit &circuit = *m_machine.circuitAt(part.position);
    const bool isPoured = pours(part, movement);
    qint64 steps = part.amount;
    if (movement != Movement::Steps) // a pump goes to its packed position in one stroke
        steps = std::max(part.amount, qint64(isPoured ? 0 : 1)) * circuit.dosingMotor().stepsPerStroke();
    CircuitPour pour;
    pour.position = part.position;
    pour.queue = part.queue;
    pour.nozzleValve = part.nozzleValve;
    pour.total = isPoured ? steps : 0;
    pour.available = m_machine.takeFromCanister(circuit, pour.total);
    pour.approach = m_machine.table() ? m_machine.table()->bring(part.position, begin) : 0;
    pour.duration = motorTime(circuit.dosingMotor(), steps, part.speed) / m_machine.speed();
    return pour;
}

} // namespace quv
