// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/commandfacts.h"

#include "catalogue/commandrows_p.h"
#include "factory/answertables_p.h"
#include "factory/commandtables_p.h"

namespace quv {

namespace {

/** What a table knows of the command; false when it has no row of it. */
template <class Command>
bool tellFrom(const CommandTable<Command> &table, const CMD_STRUCT &row, CommandFacts &facts)
{
    const auto tell = table.classOf(row).tell;
    if (tell)
        tell(facts);
    return tell != nullptr;
}

void tellAnswerOf(const AnswerRow *answer, CommandFacts &facts)
{
    if (answer && facts.answerClass.isEmpty())
        answer->tell(facts);
}

// The tables are asked in the order in which the factory asks them.

void tellSerial(const CMD_STRUCT &row, CommandFacts &facts)
{
    if (ProtoCommandList::targetIsDispenser(row.name) && tellFrom(dispenserSerialTable, row, facts))
        return;
    if (ProtoCommandList::targetIsMixer(row.name) && tellFrom(mixerSerialTable, row, facts))
        return;
    if (!tellFrom(serialTable, row, facts))
        tellClass<SerialProtoCommand>(facts);
}

void tellConfiguration(const CMD_STRUCT &row, CommandFacts &facts)
{
    if (ProtoCommandList::targetIsDispenser(row.name) && tellFrom(dispenserConfigTable, row, facts))
        return;
    if (ProtoCommandList::targetIsMixer(row.name) && tellFrom(mixerConfigTable, row, facts))
        return;
    if (!tellFrom(configTable, row, facts))
        tellClass<ConfProtoCommand>(facts);
}

} // namespace

CommandFacts commandFacts(const QString &name)
{
    CommandFacts facts;
    const CMD_STRUCT *row = ProtoCommandList::row(name);
    if (!row)
        return facts;
    facts.name = row->name;
    facts.purpose = QString::fromUtf8(commandPurpose(row->id));
    if (ProtoCommandList::isSerialCommand(name, false)) {
        tellSerial(*row, facts);
        tellAnswerOf(serialAnswerRow(name), facts);
    } else if (ProtoCommandList::isConfigurationCommand(name, false)) {
        tellConfiguration(*row, facts);
        tellAnswerOf(configurationAnswerRow(name), facts);
    } else {
        tellFrom(scaleTable, *row, facts);
    }
    return facts;
}

} // namespace quv
