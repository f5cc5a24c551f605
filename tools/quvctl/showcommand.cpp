// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogwords.h"
#include "queries.h"
#include "subcommands.h"
#include "suggestions.h"
#include "terminal.h"

#include "catalogue/protocommandlist.h"

#include <stdexcept>

namespace quv {

namespace {

QString yesOrNo(bool yes)
{
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

void printRow(const CMD_STRUCT &row)
{
    Columns columns;
    columns.add({QStringLiteral("Name"), row.name});
    columns.add({QStringLiteral("Row"), QString::number(row.id)});
    columns.add({QStringLiteral("Code"), codesInWords(row)});
    columns.add({QStringLiteral("Parameters"), parametersInWords(row)});
    columns.add({QStringLiteral("Kind"), kindInWords(row)});
    columns.add({QStringLiteral("Machine"), machinesInWords(row)});
    columns.add({QStringLiteral("Command families"), familiesInWords(row)});
    columns.add({QStringLiteral("Addressed to"),
                 row.addressMachine ? QStringLiteral("a machine") : QStringLiteral("the driver")});
    columns.add({QStringLiteral("Priority"), QStringLiteral("working %1, scheduling %2")
                                                 .arg(row.workingPriorityLevel)
                                                 .arg(row.schedulingPriorityLevel)});
    columns.add({QStringLiteral("Looks at busy state"), yesOrNo(row.checkBusy)});
    columns.add({QStringLiteral("Time-out"), timeoutInWords(row)});
    columns.add({QStringLiteral("Measures its time"), yesOrNo(row.trackExecutionTime)});
    columns.add({QStringLiteral("In the statistics"), yesOrNo(row.recordInStats)});
    columns.add({QStringLiteral("Machine object use"), QString::number(row.machineObjUsage)});
    columns.add({QStringLiteral("Multiple"), yesOrNo(row.multiple)});
    columns.add({QStringLiteral("Private"), yesOrNo(row.privateCommand)});
    columns.add({QStringLiteral("Delivers colorant"), yesOrNo(row.erogationCommand)});
    columns.print(true);
}

ExitStatus run(const CommandLine &line)
{
    const QString &name = line.words().first();
    const CMD_STRUCT *row = ProtoCommandList::row(name);
    if (!row)
        throw std::runtime_error(QStringLiteral("the catalogue has no command \"%1\"%2")
                                     .arg(name, didYouMeanCommand(name))
                                     .toStdString());
    if (line.isSet("json"))
        printLine(QString::fromStdString(writeJson(catalogueRow(*row))));
    else
        printRow(*row);
    return Done;
}

} // namespace

const Subcommand showSubcommand = {"show",
                                   "NAME",
                                   "one command in words",
                                   "Shows what the catalogue knows of a command.",
                                   1,
                                   1,
                                   {{"json", nullptr, "the row as JSON"}},
                                   run};

} // namespace quv
