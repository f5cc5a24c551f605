// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"
#include "replies.h"
#include "stopping.h"
#include "subcommands.h"
#include "terminal.h"

namespace quv {

namespace {

ExitStatus runStop(const CommandLine &line)
{
    const Driver driver(line);
    stopMachine(driver);
    if (line.isSet("json"))
        printJson(success());
    else if (!line.isQuiet())
        printLine(QStringLiteral("the machine has been told to stop"), Colour::Bold);
    return Done;
}

} // namespace

const Subcommand stopSubcommand = {
    "stop",
    "",
    "stops what a machine does",
    "Has the dispenser, or the machine of --on, stop whatever it does: a pour, stirring, cleaning, a "
    "movement.\n"
    "What a pour has delivered until then is taken from the levels.",
    0,
    0,
    withDriverOptions({quietOption, {"json", nullptr, "what became of it as one JSON object"}}),
    runStop};

} // namespace quv
