// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/levelsensors.h"

#include "firmware/wirereader.h"

#include <algorithm>
#include <optional>

namespace quv {
namespace {

/// The content of a circuit's canister in hundredths of a stroke; nothing without a sensor, or when nobody knows what a stroke pours.
std::optional<int> sensorLevelAt(const SimulatedMachine &machine, int position)
{
    constexpr qint64 MaxLevel = WireBase * WireBase - 1; // two digits
    constexpr qint64 HundredthsOfStroke = 100;
    const FW_Circuit *circuit = machine.circuitAt(position);
    const FW_Canister *canister =
        circuit ? machine.dispenser().getCanisterOfCircuitID(circuit->id()) : nullptr;
    const FW_CanisterLevelSensor *sensor = canister ? canister->canisterLevelSensor() : nullptr;
    if (!sensor || !sensor->isEnabled() || circuit->dosingMotor().stepsPerStroke() <= 0)
        return std::nullopt;
    bool isKnown = false;
    const qint64 steps =
        circuit->calibration().steps(std::max(machine.toldContent(*canister), 0.0), &isKnown);
    if (!isKnown)
        return std::nullopt;
    return static_cast<int>(
        std::min(steps * HundredthsOfStroke / circuit->dosingMotor().stepsPerStroke(), MaxLevel));
}

/// The positions that speak for the sensors of the machine.
QList<int> levelSensorPositions(const SimulatedMachine &machine)
{
    QList<int> positions;
    for (const FW_Canister &canister : machine.dispenser().canisters()) {
        const int position = machine.dispenser().getCLS_MasterPositionID(canister.id());
        if (sensorLevelAt(machine, position))
            positions.append(position);
    }
    std::sort(positions.begin(), positions.end());
    return positions;
}

} // namespace

std::vector<FirmwareCode> LevelSensors::codes()
{
    return {
        {QStringLiteral("0029"), {}, [this](int, const QList<int> &numbers) { return read(numbers); }, true}};
}

void LevelSensors::tellStatus(StatusWords &status, int /*module*/) const
{
    status.words.set(10, 3, isReading());
}

ProcessSet LevelSensors::atWork() const
{
    return isReading() ? ProcessSet{Process::ReadingLevels} : ProcessSet();
}

/// A level that sinks tells nothing.
ProcessSet LevelSensors::excluded() const
{
    return isReading() ? ProcessSet{Process::ReadingLevels, Process::Pouring} : ProcessSet();
}

FirmwareReply LevelSensors::read(const QList<int> &parameters)
{
    constexpr double TimeOfReading = 8000; // of as many sensors as circuits pour at once
    if (const auto obstacle = m_machine.obstacle(Process::ReadingLevels))
        return refused(*obstacle);
    if (parameters.value(0, -1) != 0)
        return refused(Reason::WrongParameters);
    const QList<int> asked = parameters.mid(1);
    const QList<int> positions = asked.isEmpty() ? levelSensorPositions(m_machine) : asked;
    QList<int> levels{positions.size()};
    for (const int position : positions) {
        const auto level = sensorLevelAt(m_machine, position);
        if (!level)
            return refused(Reason::WrongModule);
        levels << position << *level % WireBase << *level / WireBase;
    }
    const int parallelism = std::max(m_machine.dispenser().tintingParallelism(), 1);
    const int rounds = (positions.size() + parallelism - 1) / parallelism;
    m_end = m_machine.endOf(rounds * TimeOfReading);
    return replied(levels);
}

} // namespace quv
