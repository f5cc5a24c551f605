// SPDX-License-Identifier: LGPL-3.0-or-later
#include "circuitchoice.h"
#include "durationwords.h"
#include "excerpt.h"
#include "machineprocess.h"
#include "subcommands.h"
#include "suggestions.h"

#include "processes/cleaningcmd.h"
#include "processes/nozzlecleancmd.h"
#include "processes/ultrasoundcleaningcmd.h"
#include "status/dispenserstatusanswer.h"

#include <algorithm>
#include <iterator>

namespace quv {

namespace {

constexpr int ownTime = 0; ///< a command's typed form takes it for the time that the machine is configured to

template <int Type>
std::unique_ptr<ProtoCommand> byMotors(int position, int seconds)
{
    return std::make_unique<CleaningCmd>(Type, FWProcess::configSpeed(), seconds, position, false);
}

std::unique_ptr<ProtoCommand> ofNozzles(int position, int seconds)
{
    return std::make_unique<NozzleCleanCmd>(position, seconds);
}

template <UltrasoundCleaningCmd::UltrasoundCleaningType Type>
std::unique_ptr<ProtoCommand> byUltrasound(int /*position*/, int seconds)
{
    return std::make_unique<UltrasoundCleaningCmd>(
        Type, seconds == ownTime ? UltrasoundCleaningCmd::configuredDuration : seconds);
}

struct Cleaning
{
    const char *word;
    const char *begun;
    bool ofCircuits;
    std::unique_ptr<ProtoCommand> (*command)(int position, int seconds);
};

using Station = UltrasoundCleaningCmd;

constexpr Cleaning cleanings[] = {
    {"circuits", "cleaning", true, byMotors<1>},
    {"brush", "cleaning the brush", false, byMotors<0>},
    {"nozzles", "cleaning the nozzles of", true, ofNozzles},
    {"ultrasound", "cleaning by ultrasound", false, byUltrasound<Station::FullCleaning>},
    {"ultrasound-only", "cleaning by ultrasound in the water that is there", false,
     byUltrasound<Station::Clean>},
    {"fill", "filling the ultrasound station", false, byUltrasound<Station::Filling>},
    {"empty", "emptying the ultrasound station", false, byUltrasound<Station::Emptying>}};

const Cleaning &cleaningOf(const QString &word)
{
    const auto found =
        std::find_if(std::begin(cleanings), std::end(cleanings),
                     [&word](const Cleaning &each) { return word == QLatin1String(each.word); });
    if (found != std::end(cleanings))
        return *found;
    QStringList words;
    for (const Cleaning &each : cleanings)
        words.append(QLatin1String(each.word));
    throw UsageError(QStringLiteral("clean has %1, not \"%2\"%3")
                         .arg(words.join(QStringLiteral(", ")), excerpt(word), didYouMean(word, words)));
}

ExitStatus runClean(const CommandLine &line)
{
    const Cleaning &cleaning = cleaningOf(line.words().first());
    if (!cleaning.ofCircuits && line.isSet("circuit"))
        throw UsageError(QStringLiteral("clean %1 is not of circuits").arg(QLatin1String(cleaning.word)));
    const int seconds = line.words().size() > 1
                            ? secondsOf(line.words()[1], static_cast<int>(FWProcess::maxDuration()))
                            : ownTime;
    requirePositions(line);
    const Driver driver(line, SerialDeviceType::Dispenser);
    const CircuitChoice circuits = chosenCircuits(driver, line);
    ProtoCommands commands;
    for (const int position : circuits.positions)
        commands.push_back(cleaning.command(position, seconds));
    MachineProcess process;
    process.begun = QLatin1String(cleaning.begun);
    if (cleaning.ofCircuits)
        process.begun += QLatin1Char(' ') + circuits.words;
    if (seconds != ownTime)
        process.begun += QStringLiteral(" for ") + timeInWords(seconds);
    process.ended = QStringLiteral("cleaned");
    process.isAtWork = anyOf({&DispenserStatusAnswer::cleaning});
    process.positions = circuits.positions;
    process.expected = seconds * 1000LL;
    StatusQuestion question(driver, SerialDeviceType::Dispenser);
    return carryOutProcess(driver, question, commands, process, line);
}

} // namespace

const Subcommand cleanSubcommand = {
    "clean",
    "WHAT [TIME]",
    "cleans the machine",
    "WHAT is circuits (by the cleaning motors), brush (the brush itself), nozzles, ultrasound (fills the\n"
    "station, cleans and empties it), ultrasound-only, fill or empty. TIME is such as 90s, 3min or 1h30min;\n"
    "without one it takes as long as the machine is configured to. Waits for the end, with the progress;\n"
    "Ctrl-C ends the waiting, and a second one within 2 seconds stops the machine.",
    1,
    2,
    withProcessOptions({circuitOption}),
    runClean,
    SerialDeviceType::Dispenser};

} // namespace quv
