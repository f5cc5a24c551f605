// SPDX-License-Identifier: LGPL-3.0-or-later
#include "help.h"

#include "terminal.h"

namespace quv {

namespace {

void printWrapped(const QString &text)
{
    printParagraph(text, Colour::Plain, columnsOfText());
}

void printTable(const Columns &columns)
{
    columns.printBroken(2, columnsOfText());
}

void addOption(Columns &columns, const OptionText &option)
{
    QString head =
        option.letter ? QStringLiteral("-%1, ").arg(QLatin1Char(option.letter)) : QStringLiteral("    ");
    head += QStringLiteral("--") + QLatin1String(option.name);
    if (option.value)
        head += QLatin1Char(' ') + QLatin1String(option.value);
    columns.add({head, QString::fromUtf8(option.text)});
}

} // namespace

void printOverview(const std::vector<const Subcommand *> &subcommands)
{
    printWrapped(QStringLiteral("Usage: quvctl SUBCOMMAND [options] ..."));
    printLine(QString());
    printWrapped(QStringLiteral("Shows, writes, reads and calls the commands of paint colorant dispensers."));
    printLine(QString());
    printLine(QStringLiteral("Subcommands:"));
    Columns columns;
    for (const Subcommand *subcommand : subcommands)
        columns.add({QLatin1String(subcommand->name), QLatin1String(subcommand->summary)});
    columns.add({QStringLiteral("help"), QStringLiteral("this help, or that of a subcommand")});
    printTable(columns);
    printLine(QString());
    printWrapped(
        QStringLiteral("quvctl help SUBCOMMAND, or quvctl SUBCOMMAND -h, tells its options; quvctl -V or "
                       "--version prints the version."));
    printLine(QString());
    printWrapped(
        QStringLiteral("Exit status: 0 done, 1 refused (on standard error as CODE: text), 2 wrong usage, "
                       "130 after Ctrl-C."));
}

void printHelp(const Subcommand &subcommand)
{
    printWrapped(QStringLiteral("Usage: quvctl %1 [options] %2")
                     .arg(QLatin1String(subcommand.name), QString::fromUtf8(subcommand.words))
                     .trimmed());
    printLine(QString());
    printWrapped(QString::fromUtf8(subcommand.details).simplified());
    printLine(QString());
    printLine(QStringLiteral("Options:"));
    Columns columns;
    for (const OptionText &option : subcommand.options)
        addOption(columns, option);
    addOption(columns, {"help", nullptr, "this help", 'h'});
    printTable(columns);
}

} // namespace quv
