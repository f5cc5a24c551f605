// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinefile.h"
#include "machines.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"

namespace quv {

namespace {

ExitStatus runMachine(const CommandLine &line)
{
    const DescribedMachine described = describedMachineByName(line.words().first());
    if (!described.machine)
        throw UsageError(QStringLiteral("\"none\" is no machine to print"));
    const QByteArray file = machineFileOf(*described.machine, described.firmwareVersion);
    if (line.isSet("json")) {
        OrderedJson reply = success();
        reply["machine"] = OrderedJson::parse(file.toStdString());
        printJson(reply);
        return Done;
    }
    const QStringList lines = QString::fromUtf8(file).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size() - 1; ++i) // behind the last line end is nothing
        printLine(lines[i]);
    return Done;
}

} // namespace

const Subcommand machineSubcommand = {
    "machine",
    "NAME|FILE",
    "a machine as the JSON of a machine file",
    "Prints a built-in machine (dispenser, turntable, dual, station, mixer), or that of a "
    "file, without the members that have their defaults.",
    1,
    1,
    {{"json", nullptr, "one JSON object, with the machine in it"}},
    runMachine};

} // namespace quv
