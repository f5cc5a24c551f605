// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/stirring.h"

#include "machines/refusal.h"
#include "procedures/waiting.h"

#include "processes/stirallcmd.h"
#include "status/dispenserstatusanswer.h"

#include <algorithm>
#include <cmath>

namespace quv {
namespace {

using std::chrono::milliseconds;
using StirClock = std::chrono::steady_clock;
using Batch = QList<StirringCmd>;

/// Of a circuit that is to stir until somebody stops it.
constexpr milliseconds Endless = std::chrono::hours(24 * 365);

const StirAllCmd &stirAllOf(const ProtoCommand &command)
{
    return dynamic_cast<const StirAllCmd &>(command);
}

int batchSize(const StirAllCmd &command)
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(command.machine());
    return command.isSequential() || !dispenser ? 1 : std::max(dispenser->stirringParallelism(), 1);
}

/// Milliseconds of a machine that is not faster than real, on this one.
milliseconds onMachine(double time, const DrivenMachine &machine)
{
    return milliseconds(std::llround(time / machine.speed()));
}

milliseconds timeOf(qint64 duration, const DrivenMachine &machine)
{
    constexpr double Second = 1000;
    return duration == StirringCmd::infiniteDuration() ? Endless
                                                       : onMachine(double(duration) * Second, machine);
}

/// Waits for a condition over a circuit until its time is up; without an end, if need be.
WaitEnd waitForCircuit(const StirringCmd &command, const StatusCondition &condition, milliseconds expected,
                       std::optional<milliseconds> limit, const ProcedureRun &run)
{
    const Ending ending{&run.stopped, &run.isDriverGoing};
    WaitRules rules;
    rules.module = command.moduleID();
    rules.expected = expected.count();
    rules.limit = limit;
    const WaitEnd end = waitUntil(condition, run.machine, rules, ending);
    if (end == WaitEnd::Stopped)
        run.requireToGoOn();
    return end;
}

/// When a batch began: the firmware did so between the two.
struct BatchBegin
{
    StirClock::time_point first{};
    StirClock::time_point last{};
};

/// Why the machine ends what it is at; empty while it is ready.
QString hindranceIn(const MachineStatusAnswer &status)
{
    if (!status.dispenser_not_ready)
        return {};
    if (status.emergency_pressed)
        return QStringLiteral("the emergency button is pressed");
    return status.offline_pressed ? QStringLiteral("the offline button is pressed")
                                  : QStringLiteral("the machine is not ready");
}

/// Waits until the circuit stirs no more. A motor may turn only after the firmware has replied, and what has not been seen to stir is
/// given its time.
void waitForEnd(const StirringCmd &command, const BatchBegin &begin, const ProcedureRun &run)
{
    constexpr double Slack = 60000; // milliseconds, beside as much again as it should take
    const StatusCondition standsStill = hasFallen(&DispenserStatusAnswer::stirring);
    const StatusCondition hasBegun = [&standsStill](const MachineStatusAnswer &status) {
        return !standsStill(status) || status.dispenser_not_ready;
    };
    QString hindrance;
    const StatusCondition hasEnded = [&](const MachineStatusAnswer &status) {
        hindrance = hindranceIn(status);
        return standsStill(status);
    };
    const milliseconds expected = timeOf(command.duration(), run.machine);
    const auto left = [&](milliseconds time) -> std::optional<milliseconds> {
        if (expected == Endless)
            return std::nullopt;
        const auto passed = std::chrono::duration_cast<milliseconds>(StirClock::now() - begin.last);
        return std::max(time - passed, milliseconds(0));
    };
    if (waitForCircuit(command, hasBegun, expected, left(expected), run) == WaitEnd::Untold) {
        run.wait(left(expected).value_or(Endless));
        return;
    }
    const milliseconds longest = expected == Endless ? Endless : 2 * expected + onMachine(Slack, run.machine);
    if (waitForCircuit(command, hasEnded, expected, left(longest), run) == WaitEnd::TimeIsUp)
        refuse(OtherFailure, "DE03414",
               QStringLiteral("The circuit at position %1 stirs on, long after its time")
                   .arg(command.moduleID()));
    if (!hindrance.isEmpty() && StirClock::now() - begin.first < expected)
        refuse(Interrupted, "DE03417",
               QStringLiteral("The circuit at position %1 stirs no more, before its time: %2")
                   .arg(QString::number(command.moduleID()), hindrance));
}

void stir(Batch batch, ProcedureRun &run)
{
    BatchBegin begin{StirClock::now(), {}};
    for (StirringCmd &command : batch)
        run.begin(command);
    begin.last = StirClock::now();
    for (const StirringCmd &command : batch)
        waitForEnd(command, begin, run);
}

} // namespace

FW_ErrorList stirAll(ProcedureRun &run)
{
    const StirAllCmd &command = stirAllOf(run.command);
    const QList<StirringCmd> series = command.getSingleStirringCommands();
    const milliseconds interval = onMachine(command.interval(), run.machine);
    const int size = batchSize(command);
    for (int first = 0; first < series.size(); first += size) {
        if (first > 0)
            run.wait(interval);
        stir(series.mid(first, size), run);
        // each circuit may stir for a time of its own
        milliseconds left{0};
        for (int next = first + size; next < series.size(); next += size)
            left += interval + timeOf(StirringCmd::maxDuration(series.mid(next, size)), run.machine);
        run.progress->expect(left.count());
    }
    return {};
}

void checkStirring(const ProtoCommand &command)
{
    if (stirAllOf(command).getSingleStirringCommands().isEmpty())
        refuse(InvalidRequest, "DE03413",
               QStringLiteral(
                   "There is nothing to stir: the machine has no stirrers, or none of those asked for"));
}

} // namespace quv
