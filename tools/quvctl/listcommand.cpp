// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogwords.h"
#include "jsonvalue.h"
#include "queries.h"
#include "subcommands.h"
#include "terminal.h"

#include "catalogue/protocommandlist.h"

#include <vector>

namespace quv {

namespace {

bool isForMachine(const CMD_STRUCT &row, const QString &machine)
{
    if (machine == QLatin1String("dispenser"))
        return ProtoCommandList::targetIsDispenser(row.name);
    if (machine == QLatin1String("mixer"))
        return ProtoCommandList::targetIsMixer(row.name);
    return machine.isEmpty() || !ProtoCommandList::targetIsMachine(row.name);
}

bool isOfKind(const CMD_STRUCT &row, const QString &kind)
{
    if (kind == QLatin1String("serial"))
        return ProtoCommandList::isSerialCommand(row.name, false);
    if (kind == QLatin1String("configuration"))
        return ProtoCommandList::isConfigurationCommand(row.name, false);
    if (kind == QLatin1String("special"))
        return ProtoCommandList::isSpecialCommand(row.name, false);
    return kind.isEmpty() || ProtoCommandList::isScaleCommand(row.name, false);
}

std::vector<const CMD_STRUCT *> chosenRows(const CommandLine &line)
{
    const QString machine = line.choice(
        "machine", QString(), {QStringLiteral("dispenser"), QStringLiteral("mixer"), QStringLiteral("none")});
    const QString kind = line.choice("kind", QString(),
                                     {QStringLiteral("serial"), QStringLiteral("configuration"),
                                      QStringLiteral("special"), QStringLiteral("scale")});
    const int family = line.number("family", 1, 1, 2);
    std::vector<const CMD_STRUCT *> rows;
    for (int id = 0; id < ProtoCommandList::rowCount; ++id) {
        const CMD_STRUCT &row = *ProtoCommandList::row(id);
        const bool hasFamily = !line.isSet("family") || (row.familyMask & family) != 0;
        if (hasFamily && isForMachine(row, machine) && isOfKind(row, kind))
            rows.push_back(&row);
    }
    return rows;
}

void printTable(const std::vector<const CMD_STRUCT *> &rows)
{
    Columns columns;
    columns.add({QStringLiteral("NAME"), QStringLiteral("CODE"), QStringLiteral("PARAMETERS"),
                 QStringLiteral("FAMILIES"), QStringLiteral("MACHINE"), QStringLiteral("KIND")});
    for (const CMD_STRUCT *row : rows)
        columns.add({row->name, codesInWords(*row), parametersInWords(*row), familiesInWords(*row),
                     machinesInWords(*row), kindInWords(*row)});
    columns.print(true);
}

ExitStatus runList(const CommandLine &line)
{
    const auto rows = chosenRows(line);
    if (line.isSet("names")) {
        for (const CMD_STRUCT *row : rows)
            printLine(row->name);
    } else if (line.isSet("json")) {
        OrderedJson array = OrderedJson::array();
        for (const CMD_STRUCT *row : rows)
            array.push_back(catalogueRow(*row));
        printJson(array);
    } else {
        printTable(rows);
    }
    return Done;
}

} // namespace

const Subcommand listSubcommand = {
    "list",
    "",
    "the commands of the catalogue",
    "Lists the commands of the catalogue, all or those that every filter lets through.",
    0,
    0,
    {{"machine", "MACHINE", "dispenser, mixer or none (no machine)"},
     {"kind", "KIND", "serial, configuration, special or scale"},
     {"family", "FAMILY", "the command family, 1 or 2"},
     {"names", nullptr, "the names only, one a line"},
     {"json", nullptr, "the whole rows as one JSON array"}},
    runList};

} // namespace quv
