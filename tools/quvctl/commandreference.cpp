// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandreference.h"

#include "catalogwords.h"
#include "explanations.h"
#include "requestrefusals.h"

#include "catalogue/protocommandlist.h"

#include <QtCore/QSet>

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
    if (facts.answerToCome)
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
    QList<RefusalLine> lines = refusalLines(command.requestRefusals, command.facts);
    QSet<QString> told;
    for (const RefusalLine &line : qAsConst(lines))
        told.insert(line.code);
    // what the classes refuse by themselves: ranges, checks against a machine, the tokens of an answer
    for (const Explanation &explanation : explanations()) {
        const QString refuser = QString::fromUtf8(explanation.refuser);
        const QString code = QString::fromLatin1(explanation.code);
        if ((refuser == command.facts.className || refuser == command.facts.answerClass) &&
            !refuser.isEmpty() && !told.contains(code))
            lines.append({code, QString::fromUtf8(explanation.form), whenInWords(explanation),
                          QString::fromUtf8(explanation.text)});
    }
    return lines;
}

} // namespace quv
