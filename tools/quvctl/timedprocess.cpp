// SPDX-License-Identifier: LGPL-3.0-or-later
#include "timedprocess.h"

#include "circuitchoice.h"
#include "durationwords.h"
#include "machineprocess.h"

#include "base/protocommand.h"
#include "processes/fwprocess.h"
#include "status/dispenserstatusanswer.h"

namespace quv {

namespace {

struct AskedTime
{
    long long seconds = 0;
    bool isLasting = true; ///< it ends by itself
    QString words{};       ///< as in "for 30 s"
};

AskedTime askedTime(const CommandLine &line)
{
    const QString word = line.words().value(0, QStringLiteral("30s"));
    if (word == QLatin1String("off"))
        return {0, false, QString()};
    if (word == QLatin1String("endless"))
        return {FWProcess::infiniteDuration(), false, QStringLiteral("without end")};
    const int seconds = secondsOf(word, static_cast<int>(FWProcess::maxDuration()));
    return {seconds, true, QStringLiteral("for ") + timeInWords(seconds)};
}

QString beginningInWords(const TimedProcess &timed, const QString &circuits, const AskedTime &time)
{
    if (time.seconds == 0)
        return QStringLiteral("%1 %2 ends").arg(QLatin1String(timed.ending), circuits);
    return QStringLiteral("%1 %2 %3").arg(QLatin1String(timed.doing), circuits, time.words);
}

} // namespace

ExitStatus carryOutTimed(const TimedProcess &timed, const CommandLine &line)
{
    const AskedTime time = askedTime(line);
    requirePositions(line);
    const Driver driver(line, SerialDeviceType::Dispenser);
    const CircuitChoice circuits = chosenCircuits(driver, line);
    ProtoCommands commands;
    for (const int position : circuits.positions)
        commands.push_back(timed.command(position, time.seconds));
    MachineProcess process;
    process.begun = beginningInWords(timed, circuits.words, time);
    process.ended = QLatin1String(timed.done);
    process.isAtWork = anyOf({timed.flag});
    process.positions = circuits.positions;
    process.expected = time.seconds * 1000;
    process.isLasting = time.isLasting;
    process.goesOn = time.seconds > 0;
    StatusQuestion question(driver, SerialDeviceType::Dispenser);
    return carryOutProcess(driver, question, commands, process, line);
}

} // namespace quv
