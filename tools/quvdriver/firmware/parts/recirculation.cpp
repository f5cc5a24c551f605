// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/recirculation.h"

#include "firmware/wirereader.h"

#include <algorithm>

namespace quv {
namespace {

/// Milliseconds of so many strokes; nothing for a pump whose stroke has no known steps.
std::optional<double> strokeTime(const FW_Circuit &circuit, int strokes, int speed)
{
    const FW_DosingMotor &pump = circuit.dosingMotor();
    if (!circuit.hasDosingMotor() || pump.stepsPerStroke() <= 0)
        return std::nullopt;
    const FW_RecirculationMotor *motor = circuit.firstRecirculationMotor();
    const int configured = motor ? motor->speed() : pump.maxSpeed();
    const int turnsPerMinute = std::max(speed == ConfiguredSpeed ? configured : speed, 1);
    return double(pump.stepsFromStrokes(strokes)) * MillisecondsOfMinute /
           (double(turnsPerMinute) * std::max(pump.resolution(), 1));
}

} // namespace

Recirculation::Recirculation(SimulatedMachine &machine)
    : CircuitMotors(machine,
                    {Process::Recirculating, CircuitProcess::Recirculating, TimedProcess::Recirculation, 3,
                     QStringLiteral("no circuit has a motor that recirculates"),
                     QStringLiteral("no more circuits than %1 recirculate at once")})
{}

std::vector<FirmwareCode> Recirculation::codes()
{
    return {{QStringLiteral("0005"),
             {},
             [this](int module, const QList<int> &numbers) { return recirculate(module, numbers); },
             true}};
}

bool Recirculation::hasMotor(const FW_Circuit &circuit) const
{
    const FW_RecirculationMotor *motor = circuit.firstRecirculationMotor();
    return motor ? motor->isEnabled() : circuit.hasDosingMotor();
}

/// A pump alone does not recirculate by itself.
Rhythm Recirculation::rhythm(const FW_Circuit &circuit) const
{
    const FW_RecirculationMotor *motor = circuit.firstRecirculationMotor();
    if (!motor)
        return {};
    return {double(motor->recirculationPause(FW_TimeSpan::Milliseconds)),
            motor->recirculationActivity() * MillisecondsOfSecond};
}

FirmwareReply Recirculation::recirculate(int module, const QList<int> &parameters)
{
    constexpr int MaxStrokes = WireBase - 1;
    WireReader reader(parameters);
    const int speed = reader.next(1, ConfiguredSpeed);
    const int seconds = reader.nextPair();
    const int strokes = reader.next(0, MaxStrokes);
    const bool isBusy = reader.next(0, 1) == 1;
    if (!reader.isGood() || !reader.atEnd() || !isProcessSpeed(speed) || (seconds > 0 && strokes > 0) ||
        (strokes > 0 && !countsStrokes()))
        return refused(Reason::WrongParameters);
    if (seconds == 0 && strokes == 0)
        return end(module);
    return begin(module, isBusy, [=](const FW_Circuit &circuit) -> std::optional<qint64> {
        if (seconds == EndlessDuration)
            return NeverEnds;
        const auto time =
            strokes > 0 ? strokeTime(circuit, strokes, speed) : std::optional(seconds * MillisecondsOfSecond);
        return time ? std::optional(m_machine.endOf(*time)) : std::nullopt;
    });
}

bool Recirculation::countsStrokes() const
{
    const MachineModel model = m_machine.dispenser().model();
    return model == MachineModel::Rotan || model == MachineModel::Lirador || model == MachineModel::Sola100;
}

} // namespace quv
