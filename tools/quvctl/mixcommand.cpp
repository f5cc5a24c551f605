// SPDX-License-Identifier: LGPL-3.0-or-later
#include "durationwords.h"
#include "machineprocess.h"
#include "subcommands.h"

#include "processes/mixcmd.h"
#include "status/mixerstatusanswer.h"

namespace quv {

namespace {

constexpr int fastest = 100; // percent

/// A cycle as it is typed: TIME or TIME@SPEED.
MixerCycle cycleOf(const QString &word, const MixerCycle &common)
{
    constexpr int longest = 60514; // seconds that two digits tell
    MixerCycle cycle = common;
    const QString time = word.section(QLatin1Char('@'), 0, 0);
    cycle.duration = secondsOf(time, longest);
    if (time.size() == word.size())
        return cycle;
    bool isNumber = false;
    cycle.mixingSpeed = word.section(QLatin1Char('@'), 1).toInt(&isNumber);
    if (!isNumber || cycle.mixingSpeed < 1 || cycle.mixingSpeed > fastest)
        throw UsageError(
            QStringLiteral("a cycle is TIME or TIME@SPEED, with a speed from 1 to %1").arg(fastest));
    return cycle;
}

QList<MixerCycle> cyclesOf(const CommandLine &line)
{
    constexpr int strongest = 245; // greatest digit
    MixerCycle common;
    common.cycleType = line.number("type", 1, 0, strongest);
    common.clampingForce = line.number("force", 50, 0, strongest);
    if (line.isSet("speed"))
        common.mixingSpeed = line.number("speed", fastest, 1, fastest);
    QList<MixerCycle> cycles;
    const int times = line.number("times", 1, 1, 20);
    for (int i = 0; i < times; ++i)
        for (const QString &word : line.words())
            cycles.append(cycleOf(word, common));
    return cycles;
}

ExitStatus runMix(const CommandLine &line)
{
    const QList<MixerCycle> cycles = cyclesOf(line);
    long long seconds = 0;
    for (const MixerCycle &cycle : cycles)
        seconds += cycle.duration;
    const Driver driver(line, SerialDeviceType::Mixer);
    ProtoCommands commands;
    commands.push_back(std::make_unique<MixCmd>(cycles));
    MachineProcess process;
    process.begun =
        cycles.size() == 1
            ? QStringLiteral("mixing for %1").arg(timeInWords(seconds))
            : QStringLiteral("mixing for %1 in %2 cycles").arg(timeInWords(seconds)).arg(cycles.size());
    process.ended = QStringLiteral("mixed");
    process.isAtWork = anyOf({&MixerStatusAnswer::cycle_active, &MixerStatusAnswer::mixing,
                              &MixerStatusAnswer::clamping, &MixerStatusAnswer::repositioning});
    process.expected = seconds * 1000;
    StatusQuestion question(driver, SerialDeviceType::Mixer);
    return carryOutProcess(driver, question, commands, process, line);
}

} // namespace

const Subcommand mixSubcommand = {
    "mix",
    "TIME[@SPEED]...",
    "shakes the can",
    "Has the can mixer clamp the can and shake it, in one cycle for each word: quvctl mix 3min --speed 50, "
    "or\n"
    "quvctl mix 1min@30 2min@80. Waits for the end, with the progress; Ctrl-C ends the waiting, and a "
    "second\n"
    "one within 2 seconds stops the machine.",
    1,
    -1,
    withProcessOptions({{"speed", "PERCENT", "1 to 100 (as the mixer is configured to)"},
                        {"force", "NUMBER", "with which the plates hold the can, 0 to 245 (50)"},
                        {"type", "NUMBER", "the kind of motion, as the mixer numbers it (1)"},
                        {"times", "N", "all of the cycles so many times, 1 to 20 (1)"}}),
    runMix,
    SerialDeviceType::Mixer};

} // namespace quv
