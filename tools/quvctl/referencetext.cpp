// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogwords.h"
#include "commandreference.h"
#include "terminal.h"

#include "catalogue/protocommandlist.h"

namespace quv {

namespace {

constexpr int indent = 2;

void printHeading(const char *title, const QString &note = QString())
{
    printLine(QString());
    printParagraph(QLatin1String(title) + (note.isEmpty() ? note : QStringLiteral(": ") + note),
                   Colour::Bold);
}

void printHead(const CommandFacts &facts)
{
    Columns columns;
    columns.add({QStringLiteral("Name"), facts.name});
    columns.add({QStringLiteral("Purpose"), facts.purpose});
    columns.add({QStringLiteral("Class"), classInWords(facts)});
    columns.printBroken(0);
}

void printArguments(const CommandReference &command)
{
    printHeading("Arguments", argumentsNote(command));
    Columns columns;
    for (const ArgumentFacts &argument : command.facts.arguments)
        columns.add({argument.name, argument.type,
                     argument.optional ? QStringLiteral("optional, %1").arg(defaultInWords(argument))
                                       : defaultInWords(argument),
                     argument.meaning});
    columns.printBroken(indent);
}

void printAnswer(const CommandReference &command)
{
    const QString note = answerNote(command);
    if (note.isEmpty())
        return;
    printHeading("Answer", note);
    Columns columns;
    for (const MemberFacts &member : command.facts.members)
        columns.add({member.key, member.type,
                     member.required ? QStringLiteral("required") : QStringLiteral("optional"),
                     codesInWords(member), member.meaning});
    columns.printBroken(indent);
}

void printRefusals(const CommandReference &command)
{
    const QList<RefusalLine> refusals = refusalsInWords(command);
    if (refusals.isEmpty())
        return;
    printHeading("Refusals");
    Columns columns;
    for (const RefusalLine &refusal : refusals)
        columns.add(
            {refusal.code, refusal.forms, QStringLiteral("%1: \"%2\"").arg(refusal.when, refusal.text)});
    columns.printBroken(indent);
}

/// Not broken: it is there to be copied.
void printCode(const QString &code)
{
    for (const QString &line : code.split(QLatin1Char('\n')))
        printLine(line.isEmpty() ? line : QString(indent, QLatin1Char(' ')) + line);
}

void printExample(const CommandReference &command)
{
    if (!command.example)
        return;
    printHeading("Examples");
    if (!command.example->shell.isEmpty())
        printCode(command.example->shell + QLatin1Char('\n'));
    printCode(QLatin1String(pythonPreparation) + QStringLiteral("print(%1)").arg(command.example->python));
}

void printRow(const CMD_STRUCT &row)
{
    printLine(QString());
    Columns columns;
    for (const auto &[title, words] : rowInWords(row))
        columns.add({title, words});
    columns.print(false);
}

} // namespace

void printReference(const CommandReference &command)
{
    printHead(command.facts);
    printArguments(command);
    printAnswer(command);
    printRefusals(command);
    printExample(command);
    printRow(*command.row);
}

} // namespace quv
