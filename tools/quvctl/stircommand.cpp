// SPDX-License-Identifier: LGPL-3.0-or-later
#include "circuitchoice.h"
#include "machineprocess.h"
#include "subcommands.h"
#include "timedprocess.h"

#include "processes/stirringcmd.h"
#include "status/dispenserstatusanswer.h"

namespace quv {

namespace {

ExitStatus runStir(const CommandLine &line)
{
    const auto command = [](int position, long long seconds) {
        return std::make_unique<StirringCmd>(position, seconds, false);
    };
    return carryOutTimed({"stirring", "stirring of", "stirred", &DispenserStatusAnswer::stirring, command},
                         line);
}

} // namespace

const Subcommand stirSubcommand = {
    "stir",
    "[TIME|endless|off]",
    "stirs the colorants",
    "Turns the stirring motors of all circuits, or of some, for a time such as 90s, 3min or 1h30min (30s).\n"
    "endless goes on until quvctl stir off. Waits until the motors stand, with the progress; Ctrl-C ends "
    "the\n"
    "waiting, and a second one within 2 seconds stops the machine.",
    0,
    1,
    withProcessOptions({circuitOption}),
    runStir,
    SerialDeviceType::Dispenser};

} // namespace quv
