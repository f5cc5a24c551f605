// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogwords.h"
#include "commandreference.h"

#include "catalogue/protocommandlist.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <vector>

namespace quv {

namespace {

/// Plain text in which nothing is taken for a mark.
QString escaped(QString text)
{
    for (const char *mark : {"\\", "`", "*", "|", "<", "["})
        text.replace(QLatin1String(mark), QLatin1Char('\\') + QLatin1String(mark));
    return text;
}

QString code(const QString &text)
{
    return QLatin1Char('`') + text + QLatin1Char('`');
}

QString tableRow(const QStringList &cells)
{
    return QStringLiteral("| %1 |\n").arg(cells.join(QStringLiteral(" | ")));
}

QString table(const QStringList &heading, const QList<QStringList> &rows)
{
    if (rows.isEmpty())
        return {};
    QString text = tableRow(heading) + QLatin1Char('|') + QStringLiteral("---|").repeated(heading.size()) +
                   QLatin1Char('\n');
    for (const QStringList &row : rows)
        text += tableRow(row);
    return text;
}

QString block(const QString &language, const QString &text)
{
    return QStringLiteral("```%1\n%2\n```\n").arg(language, text);
}

/// What is so of the row; what is not, and what does not apply, is left out.
QString rowLine(const CMD_STRUCT &row)
{
    QStringList parts;
    for (const auto &[title, words] : rowInWords(row))
        if (words != QLatin1String("-") && words != QLatin1String("no"))
            parts.append(QStringLiteral("%1: %2").arg(title, words));
    return parts.join(QStringLiteral("; "));
}

QString argumentsTable(const CommandFacts &facts)
{
    QList<QStringList> rows;
    for (const ArgumentFacts &argument : facts.arguments)
        rows.append({code(argument.name), argument.type,
                     argument.optional ? code(defaultInWords(argument)) : defaultInWords(argument),
                     escaped(argument.meaning)});
    return table({QStringLiteral("Argument"), QStringLiteral("Type"), QStringLiteral("Default"),
                  QStringLiteral("Meaning")},
                 rows);
}

QString membersTable(const CommandFacts &facts)
{
    QList<QStringList> rows;
    for (const MemberFacts &member : facts.members)
        rows.append({code(member.key), member.type,
                     member.required ? QStringLiteral("required") : QStringLiteral("optional"),
                     codesInWords(member), escaped(member.meaning)});
    return table({QStringLiteral("Member"), QStringLiteral("Type"), QString(), QStringLiteral("Refusal"),
                  QStringLiteral("Meaning")},
                 rows);
}

QString refusalsTable(const CommandReference &command)
{
    QList<QStringList> rows;
    for (const RefusalLine &refusal : refusalsInWords(command))
        rows.append({refusal.code, refusal.forms, escaped(refusal.when), escaped(refusal.text)});
    return table(
        {QStringLiteral("Code"), QStringLiteral("Form"), QStringLiteral("When"), QStringLiteral("Text")},
        rows);
}

QString section(const CommandReference &command)
{
    const CommandFacts &facts = command.facts;
    QStringList parts{QStringLiteral("## %1\n").arg(facts.name),
                      escaped(facts.purpose) + QStringLiteral(".\n"),
                      QStringLiteral("Class: %1; %2\n").arg(classInWords(facts), rowLine(*command.row)),
                      argumentsTable(facts)};
    if (const QString note = argumentsNote(command); !note.isEmpty())
        parts.append(QStringLiteral("Arguments: %1.\n").arg(note));
    if (const QString note = answerNote(command); !note.isEmpty())
        parts.append(QStringLiteral("Answer: %1.\n").arg(note));
    parts.append(membersTable(facts));
    parts.append(refusalsTable(command));
    if (command.example) {
        if (!command.example->shell.isEmpty())
            parts.append(block(QStringLiteral("sh"), command.example->shell));
        parts.append(block(QStringLiteral("python"), command.example->python));
    }
    parts.removeAll(QString());
    return parts.join(QLatin1Char('\n'));
}

const char *const introduction = R"(# Commands

`quvctl show --markdown > docs/commands.md` writes this file, out of what the library knows of itself; `quvctl show NAME` tells one
command.

- Arguments travel by their places, in the order in which they stand here. `quvctl call` and `quvctl encode` take them by place and,
  after those, by name: `position=3`. One with a default may be left out, also before another one. A text that begins like an
  argument by name is written as JSON: `'"position=3"'`.
- A refusal tells the form of what it refuses: the arguments or the answer as an XML-RPC value or as a list, the answer as the firmware's
  tokens or in its envelope. An ellipsis in a text stands for the member, or for a number. What a class refuses behind these, by its own
  checks (of ranges, against a machine, of an answer's tokens), `quvctl explain` tells by its code.
- The examples in Python go on from this:

)";

} // namespace

QString commandsMarkdown()
{
    std::vector<CommandReference> commands;
    commands.reserve(ProtoCommandList::rowCount);
    for (int id = 0; id < ProtoCommandList::rowCount; ++id)
        commands.push_back(referenceOf(*ProtoCommandList::row(id)));
    std::sort(commands.begin(), commands.end(),
              [](const auto &a, const auto &b) { return a.facts.name < b.facts.name; });

    QList<QStringList> contents;
    QString sections;
    for (const CommandReference &command : commands) {
        contents.append({QStringLiteral("[%1](#%2)").arg(command.facts.name, command.facts.name.toLower()),
                         kindInWords(*command.row), escaped(command.facts.purpose)});
        sections += QLatin1Char('\n') + section(command);
    }
    return QString::fromUtf8(introduction) +
           block(QStringLiteral("python"), QString::fromUtf8(pythonPreparation).trimmed()) +
           QLatin1Char('\n') +
           table({QStringLiteral("Command"), QStringLiteral("Kind"), QStringLiteral("Purpose")}, contents) +
           sections;
}

} // namespace quv
