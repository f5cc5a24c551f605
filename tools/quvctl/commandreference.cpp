// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandreference.h"

#include "catalogwords.h"
#include "requestrefusals.h"

#include "catalogue/protocommandlist.h"

namespace quv {

CommandReference referenceOf(const CMD_STRUCT &row)
{
    CommandReference command;
    command.row = &row;
    command.facts = commandFacts(row.name);
    if (!command.facts.className.isEmpty()) {
        command.requestRefusals = requestRefusals(command.facts);
        command.example = exampleOf(command.facts);
    }
    return command;
}

QString classInWords(const CommandFacts &command)
{
    return command.className.isEmpty() ? QStringLiteral("none of its own yet") : command.className;
}

QString argumentsNote(const CommandReference &command)
{
    if (!command.facts.arguments.isEmpty())
        return {};
    if (command.row->maxParams == 0)
        return QStringLiteral("none");
    const bool travel = !command.facts.className.isEmpty() && !command.facts.tellsArguments;
    return QStringLiteral("%1, without names yet, and %2")
        .arg(parametersInWords(*command.row),
             travel ? QStringLiteral("given by place") : QStringLiteral("not sent"));
}

QString answerNote(const CommandReference &command)
{
    const CommandFacts &facts = command.facts;
    if (!facts.answerClass.isEmpty())
        return facts.tellsMembers
                   ? facts.answerClass
                   : QStringLiteral("%1, whose members are not told yet").arg(facts.answerClass);
    if (facts.answerToCome && facts.tellsArguments)
        return QStringLiteral("a plain one, as long as its class is still to come");
    return facts.tellsArguments ? QStringLiteral("a plain one, without members") : QString();
}

QString defaultInWords(const ArgumentFacts &argument)
{
    return argument.optional ? QString::fromStdString(writeJson(toJson(argument.defaultValue)))
                             : QStringLiteral("required");
}

QString codesInWords(const MemberFacts &member)
{
    QStringList codes;
    for (const RefusalFacts &refusal : member.refusals)
        codes.append(refusal.code);
    codes.removeDuplicates();
    return codes.join(QStringLiteral(", "));
}

QList<RefusalLine> refusalsInWords(const CommandReference &command)
{
    return refusalLines(command.requestRefusals, command.facts);
}

} // namespace quv
