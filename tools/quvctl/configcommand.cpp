// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configtransfer.h"
#include "progress.h"
#include "subcommands.h"
#include "suggestions.h"
#include "terminal.h"
#include "tickets.h"

#include "base/cmdstatus.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <cstdio>
#include <iostream>
#include <optional>
#include <unistd.h>

namespace quv {

namespace {

/// How far a transfer is.
class TransferProgress
{
public:
    enum Where { Anywhere, OnTerminalOnly };

    explicit TransferProgress(Where where)
    {
        if (where == Anywhere || canRedraw())
            m_progress.emplace();
    }

    void tell(int percentage) { show(CmdStatus(CmdStatus::Executing, 0, percentage, QString())); }
    void end()
    {
        show(CmdStatus(CmdStatus::Done, 0, 0, QString()));
        m_progress.reset();
    }

private:
    void show(const CmdStatus &status)
    {
        if (m_progress)
            m_progress->tell(status);
    }

    std::optional<Progress> m_progress{};
};

QString inWords(std::size_t count, const char *one, const char *many)
{
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : many));
}

QString rowsInWords(std::size_t count)
{
    return inWords(count, "row", "rows");
}

std::runtime_error fileFailure(const QFileDevice &file)
{
    return std::runtime_error(
        QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()).toStdString());
}

std::vector<ConfigRow> rowsOfFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw fileFailure(file);
    const QByteArray text = file.read(MaxConfigFileSize + 1);
    if (file.error() != QFileDevice::NoError)
        throw fileFailure(file);
    if (text.size() > MaxConfigFileSize)
        throw UsageError(QStringLiteral("%1 is longer than 1 MiB").arg(path));
    try {
        return readConfigFile(text);
    } catch (const ConfigFileError &error) {
        throw UsageError(
            QStringLiteral("%1:%2: %3").arg(path).arg(error.line()).arg(QString::fromUtf8(error.what())));
    }
}

void openForWriting(QSaveFile &file)
{
    if (!file.open(QIODevice::WriteOnly))
        throw fileFailure(file);
}

/// Better known before the rows are read.
void checkWritable(const QString &path)
{
    QSaveFile file(path);
    openForWriting(file);
    file.cancelWriting();
}

ExitStatus pull(const FirmwareConfiguration &firmware, const QString &path)
{
    checkWritable(path);
    TransferProgress progress(TransferProgress::Anywhere);
    const OfferedStructures offered = firmware.structures();
    const std::vector<ConfigRow> rows =
        firmware.allRows(offered, [&](int percentage) { progress.tell(percentage); });
    progress.end();
    QSaveFile file(path);
    openForWriting(file);
    file.write(configFileOf(
        rows, QStringLiteral("firmware configuration %1.%2").arg(offered.version).arg(offered.minorVersion)));
    if (!file.commit())
        throw fileFailure(file);
    printLine(QStringLiteral("%1 in %2").arg(rowsInWords(rows.size()), path), Colour::Bold);
    return Done;
}

void show(const ConfigComparison &comparison)
{
    for (const QString &warning : comparison.warnings)
        printError(QStringLiteral("warning: %1").arg(warning));
    for (const RowChange &change : comparison.changes) {
        printLine(headingOf(change.row), Colour::Bold);
        for (const FieldChange &field : change.fields)
            printLine(QStringLiteral("  %1: %2 -> %3").arg(field.label, field.from, field.to));
    }
}

ConfigComparison compareShowing(const std::vector<ConfigRow> &file, const FirmwareConfiguration &firmware)
{
    // elsewhere the differences are all that is wanted
    TransferProgress progress(TransferProgress::OnTerminalOnly);
    ConfigComparison comparison = compare(file, firmware, [&](int percentage) { progress.tell(percentage); });
    progress.end();
    show(comparison);
    if (comparison.changes.empty())
        printLine(QStringLiteral("no differences"), Colour::Bold);
    return comparison;
}

bool agrees(std::size_t rows)
{
    if (isatty(STDIN_FILENO) == 0)
        throw UsageError(QStringLiteral("nobody can be asked here: config push needs --yes"));
    const std::string question = QStringLiteral("write %1? [y/N] ").arg(rowsInWords(rows)).toStdString();
    std::fputs(question.c_str(), stdout);
    std::fflush(stdout);
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "y" || answer == "yes";
}

void write(const std::vector<RowChange> &changes, const FirmwareConfiguration &firmware)
{
    const OnInterrupt onInterrupt(
        QStringLiteral("the firmware may have some of the rows, and forgets them when it is "
                       "switched off; look with: quvctl config diff"));
    std::size_t written = 0;
    try {
        for (const RowChange &change : changes) {
            firmware.write(change.row);
            ++written;
        }
        firmware.finalise();
    } catch (...) {
        printError(
            QStringLiteral("%1 written, and not finalised: the firmware forgets them when it is switched off")
                .arg(rowsInWords(written)));
        throw;
    }
}

/// What the firmware has otherwise than it was written.
ExitStatus verify(const std::vector<RowChange> &changes, const FirmwareConfiguration &firmware)
{
    std::vector<ConfigRow> written;
    written.reserve(changes.size());
    for (const RowChange &change : changes)
        written.push_back(change.row);
    const ConfigComparison comparison = compare(written, firmware, [](int) {});
    if (comparison.changes.empty()) {
        printLine(QStringLiteral("%1 written, finalised and read back").arg(rowsInWords(written.size())),
                  Colour::Bold);
        return Done;
    }
    printError(QStringLiteral("the firmware has not taken all of it:"));
    show(comparison);
    return Refused;
}

ExitStatus push(const FirmwareConfiguration &firmware, const QString &path, bool yes)
{
    const std::vector<RowChange> changes = compareShowing(rowsOfFile(path), firmware).changes;
    for (const RowChange &change : changes)
        if (const QString reason = whyUnwritable(change.row); !reason.isEmpty())
            throw std::runtime_error(reason.toStdString());
    if (changes.empty())
        return Done;
    if (!yes && !agrees(changes.size())) {
        printLine(QStringLiteral("nothing was written"));
        return Refused;
    }
    write(changes, firmware);
    return verify(changes, firmware);
}

ExitStatus diff(const FirmwareConfiguration &firmware, const QString &path)
{
    return compareShowing(rowsOfFile(path), firmware).changes.empty() ? Done : Refused;
}

ExitStatus run(const CommandLine &line)
{
    const QString action = line.words()[0];
    const QString path = line.words()[1];
    const bool yes = line.isSet("yes");
    if (yes && action != QLatin1String("push"))
        throw UsageError(QStringLiteral("--yes belongs to config push"));
    const Driver driver(line);
    const FirmwareConfiguration firmware(driver);
    if (action == QLatin1String("pull"))
        return pull(firmware, path);
    if (action == QLatin1String("push"))
        return push(firmware, path, yes);
    if (action == QLatin1String("diff"))
        return diff(firmware, path);
    const QStringList actions = {QStringLiteral("pull"), QStringLiteral("push"), QStringLiteral("diff")};
    throw UsageError(QStringLiteral("config has pull, push and diff, not \"%1\"%2")
                         .arg(action, didYouMean(action, actions)));
}

} // namespace

const Subcommand configSubcommand = {
    "config",
    "pull|push|diff FILE",
    "a machine's configuration as a text file",
    "pull reads the configuration of the machine behind a driver into a file of lines \"label = value\". "
    "push\n"
    "shows what the file would change, asks, writes the rows that differ, and has the firmware keep them. "
    "diff\n"
    "shows only. push and diff look at the structures that the file has, so that it may be a part of one.\n"
    "Exit status of diff: 0 without differences, 1 with some.",
    2,
    2,
    withDriverOptions({{"yes", nullptr, "push without asking"}}),
    run};

} // namespace quv
