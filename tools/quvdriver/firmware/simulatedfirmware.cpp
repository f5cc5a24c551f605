// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/simulatedfirmware.h"

#include <QuvFramework/fw_turntable.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace quv {
namespace {

constexpr qint64 ResetDuration = 6000; // milliseconds
constexpr qint64 FinalisingDuration = 3000;
constexpr int MaxModule = 255; // the address is one byte
constexpr int NoPosition = 245;
constexpr int StrokesCriterion = 3;  // of a tint's code: the amounts are strokes
constexpr int UnqueuedCriterion = 1; // all circuits as they come, whatever their queues
constexpr int PurgeMark = 64;

/// Why a command is refused: a bit of one of the two masks of reasons.
struct Reason
{
    int mask;
    int bit;
};
constexpr Reason FieldOutOfRange{0, 0};
constexpr Reason UnknownCode{0, 3};
constexpr Reason WrongModule{0, 4};
constexpr Reason WrongParameters{0, 5};
constexpr Reason ConfigurationNotWritten{1, 1};
constexpr Reason NotAvailable{1, 3};

template <class Numbers>
QStringList tokensOf(const Numbers &numbers)
{
    QStringList tokens{QString::number(numbers.size(), 16).toUpper()};
    for (const int number : numbers)
        tokens.append(QString::number(number, 16).toUpper());
    return tokens;
}

FirmwareReply refusal(Reason reason)
{
    std::array<int, 6> parameters{};
    parameters[static_cast<std::size_t>(reason.mask)] = 1 << reason.bit;
    return {true, tokensOf(parameters)};
}

FirmwareReply begun()
{
    return {false, tokensOf(std::array<int, 0>{})};
}

const FW_Turntable *tableOf(const FW_Dispenser &dispenser)
{
    return dynamic_cast<const FW_Turntable *>(dispenser.getDevice(FW_Device::Turntable));
}

/// Milliseconds of so many steps.
double motorTime(const FW_DosingMotor &motor, qint64 steps, int turnsPerMinute)
{
    constexpr double MillisecondsPerMinute = 60000;
    return double(steps) * MillisecondsPerMinute / (double(turnsPerMinute) * std::max(motor.resolution(), 1));
}

} // namespace

struct SimulatedFirmware::Command
{
    QString code;
    FirmwareReply (SimulatedFirmware::*run)(const QList<int> &parameters);
    bool takesParameters = false;
};

const SimulatedFirmware::Commands &SimulatedFirmware::commandsOf(const FW_Machine &machine)
{
    static const Commands mixer{
        {QStringLiteral("0001"), &SimulatedFirmware::beginReset},
        {QStringLiteral("0065"), &SimulatedFirmware::writeRow, true},
        {QStringLiteral("0066"), &SimulatedFirmware::readRow, true},
        {QStringLiteral("0067"), &SimulatedFirmware::finalise},
    };
    static const Commands dispenser1{
        {QStringLiteral("0001"), &SimulatedFirmware::beginReset},
        {QStringLiteral("0006"), &SimulatedFirmware::status},
        {QStringLiteral("0017"), &SimulatedFirmware::tint, true},
        {QStringLiteral("0023"), &SimulatedFirmware::pack2, true},
        {QStringLiteral("0024"), &SimulatedFirmware::priming2, true},
        {QStringLiteral("0035"), &SimulatedFirmware::tint2, true},
        {QStringLiteral("0065"), &SimulatedFirmware::writeRow, true},
        {QStringLiteral("0066"), &SimulatedFirmware::readRow, true},
        {QStringLiteral("0067"), &SimulatedFirmware::finalise},
        {QStringLiteral("0074"), &SimulatedFirmware::report},
    };
    static const Commands dispenser2{
        {QStringLiteral("I3"), &SimulatedFirmware::status},
    };
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine);
    if (!dispenser)
        return mixer;
    return dispenser->commandFamily() == FW_Dispenser::CommandFamily2 ? dispenser2 : dispenser1;
}

SimulatedFirmware::SimulatedFirmware(const FW_Machine &machine, double speed, Clock clock,
                                     SimulatedConfiguration configuration)
    : m_commands(commandsOf(machine)),
      m_speed(speed),
      m_clock(std::move(clock)),
      m_resetEnd(m_clock()),
      m_finalisingEnd(m_resetEnd),
      m_type(machine.machineType()),
      m_rows(machine, configuration.age),
      m_state(std::move(configuration.state))
{
    if (const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine))
        m_dispenser = *dispenser;
    for (const FW_Canister &canister : m_dispenser.canisters())
        m_contents[canister.id()] = canister.currentQuantity();
    if (const FW_Turntable *table = tableOf(m_dispenser))
        m_tablePosition = table->positions().value(0);
    if (!m_state)
        return;
    try {
        m_rows.restore(m_state->rows(m_type));
    } catch (const std::runtime_error &error) {
        throw std::runtime_error("State file \"" + m_state->path().toStdString() + "\": " + error.what());
    }
    followRows();
}

SimulatedFirmware::Clock SimulatedFirmware::steadyClock()
{
    return [] {
        using namespace std::chrono;
        return qint64(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
    };
}

FirmwareReply SimulatedFirmware::execute(const QString &code, int module, const QList<int> &parameters)
{
    for (const Command &command : m_commands) {
        if (command.code != code)
            continue;
        if (module < 0 || module > MaxModule)
            return refusal(WrongModule);
        if (!parameters.isEmpty() && !command.takesParameters)
            return refusal(WrongParameters);
        return (this->*command.run)(parameters);
    }
    return refusal(UnknownCode);
}

FirmwareReply SimulatedFirmware::status(const QList<int> & /*parameters*/)
{
    const bool resetting = isResetting();
    const bool finalising = isFinalising();
    const bool tinting = m_pour.isRunning(m_clock());
    // A head cannot begin to dispense while it searches its origin or dispenses.
    const int heads = m_dispenser.hasMultipleHead() ? 2 : 1;
    const int readyHeads = resetting || finalising || tinting ? 0 : (1 << heads) - 1;
    std::array<int, 14> parameters{};
    parameters[1] = 1; // at work
    parameters[2] = int(resetting) << 6 | int(tinting) << 2;
    parameters[3] = int(finalising) << 5;
    parameters[7] = NoPosition;
    parameters[8] = NoPosition;
    parameters[9] = readyHeads << 2;
    return {false, tokensOf(parameters)};
}

FirmwareReply SimulatedFirmware::beginReset(const QList<int> & /*parameters*/)
{
    if (isBusy())
        return refusal(NotAvailable);
    m_resetEnd = m_clock() + std::llround(double(ResetDuration) / m_speed);
    return begun();
}

FirmwareReply SimulatedFirmware::tint(const QList<int> &parameters)
{
    const auto request = readPourRequest(PourLayout::Tint, parameters);
    const bool areStrokes = request && request->criterion == StrokesCriterion;
    return beginPour(request, areStrokes ? Movement::StrokesOrPack : Movement::Steps);
}

FirmwareReply SimulatedFirmware::tint2(const QList<int> &parameters)
{
    return beginPour(readPourRequest(PourLayout::Tint2, parameters), Movement::Steps);
}

std::optional<PourRequest> SimulatedFirmware::readStrokes(const QList<int> &parameters) const
{
    return readPourRequest(PourLayout::Strokes, parameters,
                           [this](int position) { return m_dispenser.hasCircuitPosition(position, true); });
}

FirmwareReply SimulatedFirmware::pack2(const QList<int> &parameters)
{
    return beginPour(readStrokes(parameters), Movement::IdleStrokes);
}

FirmwareReply SimulatedFirmware::priming2(const QList<int> &parameters)
{
    return beginPour(readStrokes(parameters), Movement::PouredStrokes);
}

FirmwareReply SimulatedFirmware::report(const QList<int> & /*parameters*/)
{
    return {false, tokensOf(m_pour.report(m_clock()))};
}

FirmwareReply SimulatedFirmware::writeRow(const QList<int> &parameters)
{
    if (isFinalising())
        return refusal(NotAvailable);
    switch (m_rows.write(parameters)) {
    case RowStore::Outcome::FieldOutOfRange:
        return refusal(FieldOutOfRange);
    case RowStore::Outcome::BadParameters:
        return refusal(WrongParameters);
    case RowStore::Outcome::Taken:
        break;
    }
    return begun();
}

FirmwareReply SimulatedFirmware::readRow(const QList<int> &parameters)
{
    constexpr int StructureAndID = 2;
    const int structure = parameters.value(0, -1);
    if (structure == 0 && parameters.size() <= StructureAndID)
        return {false, tokensOf(m_rows.listing())};
    const auto row =
        parameters.size() == StructureAndID ? m_rows.reply(structure, parameters.at(1)) : std::nullopt;
    return row ? FirmwareReply{false, tokensOf(*row)} : refusal(WrongParameters);
}

FirmwareReply SimulatedFirmware::finalise(const QList<int> & /*parameters*/)
{
    if (isBusy())
        return refusal(NotAvailable);
    try {
        if (m_state)
            m_state->keep(m_type, m_rows.rows());
    } catch (const std::runtime_error &error) {
        std::fprintf(stderr, "quvdriver: %s\n", error.what());
        FirmwareReply reply = refusal(ConfigurationNotWritten);
        reply.reason = QString::fromUtf8(error.what());
        return reply;
    }
    followRows();
    // Nobody can ask a mixer's status, so that it is ready when it replies.
    if (m_type == SerialDeviceType::Dispenser)
        m_finalisingEnd = m_clock() + std::llround(double(FinalisingDuration) / m_speed);
    return begun();
}

/// What of the configuration changes how it pours.
void SimulatedFirmware::followRows()
{
    constexpr int TintingParallelism = 4; // its place in "@GMC"
    if (const auto parallelism = m_rows.value(MachineStructure, TintingParallelism))
        m_dispenser.setTintingParallelism(*parallelism);
}

FirmwareReply SimulatedFirmware::beginPour(const std::optional<PourRequest> &request, Movement movement)
{
    if (isBusy())
        return refusal(NotAvailable);
    if (!request)
        return refusal(WrongParameters);
    for (const PourPart &part : request->parts) {
        if (!m_dispenser.hasCircuitPosition(part.position, true))
            return refusal(WrongModule);
        if (pours(part, movement) && movement != Movement::Steps &&
            circuitAt(part.position).dosingMotor().stepsPerStroke() <= 0)
            return refusal(WrongParameters);
    }
    std::vector<CircuitPour> circuits;
    for (const PourPart &part : request->parts) {
        circuits.push_back(plan(part, movement));
        circuits.back().isQueued = part.queue != 0 && request->criterion != UnqueuedCriterion;
    }
    const int parallelism = tableOf(m_dispenser) ? 1 : m_dispenser.tintingParallelism();
    m_pour = Pour(request->criterion | (request->isPurge ? PurgeMark : 0), circuits, parallelism, m_clock());
    return begun();
}

/// A tint's code with strokes is a pack or an unpack when the number is one of these two movements.
bool SimulatedFirmware::pours(const PourPart &part, Movement movement)
{
    return movement != Movement::IdleStrokes && !(movement == Movement::StrokesOrPack && part.amount <= 1);
}

const FW_Circuit &SimulatedFirmware::circuitAt(int position) const
{
    return *m_dispenser.getCircuitByPosition(position);
}

/// What the circuit will do. It takes from the canister what it will pour.
CircuitPour SimulatedFirmware::plan(const PourPart &part, Movement movement)
{
    const FW_Circuit &circuit = circuitAt(part.position);
    const bool isPoured = pours(part, movement);
    qint64 steps = part.amount;
    if (movement != Movement::Steps) // a pump goes to its packed position in one stroke
        steps = std::max(part.amount, qint64(isPoured ? 0 : 1)) * circuit.dosingMotor().stepsPerStroke();
    CircuitPour pour;
    pour.position = part.position;
    pour.queue = part.queue;
    pour.total = isPoured ? steps : 0;
    pour.available = takeFromCanister(circuit, pour.total);
    pour.approach = moveTable(part.position) / m_speed;
    pour.duration = motorTime(circuit.dosingMotor(), steps, part.speed) / m_speed;
    return pour;
}

/// The steps that the canister still gives. What a circuit without a calibration takes is known to nobody.
qint64 SimulatedFirmware::takeFromCanister(const FW_Circuit &circuit, qint64 steps)
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

/// Milliseconds until the circuit stands at the dosing point; 0 without a turntable.
double SimulatedFirmware::moveTable(int position)
{
    const FW_Turntable *table = tableOf(m_dispenser);
    if (!table)
        return 0;
    const int steps = table->distance(m_tablePosition, position);
    m_tablePosition = position;
    return double(steps) * table->stepTime();
}

} // namespace quv
