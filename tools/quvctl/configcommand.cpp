// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configtransfer.h"
#include "excerpt.h"
#include "operations.h"
#include "progress.h"
#include "replies.h"
#include "savedfile.h"
#include "subcommands.h"
#include "suggestions.h"
#include "terminal.h"
#include "tickets.h"
#include "xmlrpcerrors.h"

#include "base/cmdstatus.h"

#include <iostream>
#include <optional>
#include <unistd.h>

namespace quv {

namespace {

/// How far a transfer is.
class TransferProgress
{
public:
    explicit TransferProgress(bool isShown)
    {
        if (isShown)
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

/// What becomes of rows that were written only; a machine keeps them when it is told to.
QString notFinalised(std::size_t rows)
{
    return QStringLiteral("the firmware forgets %1 when it is switched off")
        .arg(QLatin1String(rows == 1 ? "it" : "them"));
}

/// How to have it do what a push without differences does not.
QString finaliseHint(std::size_t rows)
{
    return QStringLiteral("have it keep %1 with: quvctl call FINALIZE_CONFIG")
        .arg(QLatin1String(rows == 1 ? "it" : "them"));
}

/// What \a work gives; its failures tell the file, as an \a Error.
template <class Error = FileError, class Work>
auto onFile(const QString &path, Work work)
{
    try {
        return work();
    } catch (const FileError &error) {
        throw Error(QStringLiteral("%1: %2").arg(path, QString::fromUtf8(error.what())));
    }
}

/// \throws UsageError when it cannot be read, or is none
ConfigFile configFile(const QString &path)
{
    const QByteArray text = onFile<UsageError>(path, [&] { return loadFile(path, MaxConfigFileSize + 1); });
    if (text.size() > MaxConfigFileSize)
        throw UsageError(QStringLiteral("%1 is longer than 1 MiB").arg(path));
    try {
        return readConfigFile(text);
    } catch (const ConfigFileError &error) {
        throw UsageError(
            QStringLiteral("%1:%2: %3").arg(path).arg(error.line()).arg(QString::fromUtf8(error.what())));
    }
}

/// What is shown of it all.
struct Shown
{
    bool asJson = false;
    bool answersOnly = false;

    explicit Shown(const CommandLine &line) : asJson(line.isSet("json")), answersOnly(line.isQuiet()) {}
    bool confirms() const { return !asJson && !answersOnly; }
};

ExitStatus pull(const FirmwareConfiguration &firmware, const QString &path, const Shown &shown)
{
    onFile(path, [&] { checkSavable(path); }); // better known before the rows are read
    TransferProgress progress(shown.confirms());
    const OfferedStructures offered = firmware.structures();
    const std::vector<ConfigRow> rows =
        firmware.allRows(offered, [&](int percentage) { progress.tell(percentage); });
    const QString version = QStringLiteral("%1.%2").arg(offered.version).arg(offered.minorVersion);
    const QString machine = machineKind(offered.codes);
    const QByteArray text =
        configFileOf({machine, rows}, QStringLiteral("firmware configuration %1").arg(version));
    if (text.size() > MaxConfigFileSize)
        throw std::runtime_error("the firmware's configuration is longer than 1 MiB");
    onFile(path, [&] { saveFile(path, text); });
    progress.end();
    if (shown.asJson)
        printJson({{"ok", true},
                   {"file", toJson(path)},
                   {"machine", toJson(machine)},
                   {"version", toJson(version)},
                   {"rows", rows.size()}});
    else if (shown.confirms())
        printLine(QStringLiteral("%1 in %2").arg(rowsInWords(rows.size()), path), Colour::Bold);
    return Done;
}

OrderedJson inJson(const std::vector<RowChange> &changes)
{
    OrderedJson array = OrderedJson::array();
    for (const RowChange &change : changes) {
        OrderedJson fields = OrderedJson::array();
        for (const FieldChange &field : change.fields)
            fields.push_back(OrderedJson::object(
                {{"label", toJson(field.label)}, {"from", toJson(field.from)}, {"to", toJson(field.to)}}));
        array.push_back(
            OrderedJson::object({{"row", toJson(headingOf(change.row))}, {"fields", std::move(fields)}}));
    }
    return array;
}

OrderedJson inJson(const ConfigComparison &comparison)
{
    OrderedJson warnings = OrderedJson::array();
    for (const QString &warning : comparison.warnings)
        warnings.push_back(toJson(warning));
    return OrderedJson::object(
        {{"ok", true}, {"differences", inJson(comparison.changes)}, {"warnings", std::move(warnings)}});
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

ConfigComparison compareShowing(const ConfigFile &file, const FirmwareConfiguration &firmware,
                                const Shown &shown)
{
    // elsewhere the differences are all that is wanted
    TransferProgress progress(shown.confirms() && canRedraw());
    ConfigComparison comparison = compare(file, firmware, [&](int percentage) { progress.tell(percentage); });
    progress.end();
    if (shown.asJson)
        return comparison;
    show(comparison);
    if (comparison.changes.empty() && shown.confirms())
        printLine(QStringLiteral("no differences"), Colour::Bold);
    return comparison;
}

bool agrees(std::size_t rows, const Shown &shown)
{
    if (shown.asJson || isatty(STDIN_FILENO) == 0)
        throw UsageError(QStringLiteral("nobody can be asked here: config push needs --yes"));
    printWhole(QStringLiteral("write %1? [y/N] ").arg(rowsInWords(rows)));
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "y" || answer == "yes";
}

void write(const std::vector<RowChange> &changes, const FirmwareConfiguration &firmware, bool asJson)
{
    const OnInterrupt onInterrupt(
        QStringLiteral("the firmware may have some of the rows, and forgets them when it is "
                       "switched off; look with: quvctl config diff"),
        asJson);
    std::size_t written = 0;
    try {
        for (const RowChange &change : changes) {
            firmware.write(change.row);
            ++written;
        }
        firmware.finalise();
    } catch (const TransportError &) {
        printError(
            written == changes.size()
                ? QStringLiteral("%1 written; nobody knows whether the firmware has finalised that; %2")
                      .arg(rowsInWords(written), finaliseHint(written))
                : QStringLiteral("%1 written, perhaps %2 as well, and not finalised: %3")
                      .arg(rowsInWords(written), headingOf(changes[written].row), notFinalised(written + 1)));
        throw;
    } catch (...) {
        printError(written == 0
                       ? QStringLiteral("no row was written, and nothing is changed")
                       : QStringLiteral("%1 written, and not finalised: %2")
                             .arg(rowsInWords(written),
                                  written == changes.size() ? finaliseHint(written) : notFinalised(written)));
        throw;
    }
}

/// What the firmware has otherwise than it was written.
ExitStatus verify(const ConfigComparison &done, const FirmwareConfiguration &firmware, const Shown &shown)
{
    ConfigFile written;
    written.rows.reserve(done.changes.size());
    for (const RowChange &change : done.changes)
        written.rows.push_back(change.row);
    const ConfigComparison comparison = compare(written, firmware, [](int) {});
    const bool isTaken = comparison.changes.empty();
    const QString notTaken = QStringLiteral("the firmware has not taken all of it");
    if (shown.asJson) {
        OrderedJson reply = isTaken ? success() : failureReply(notTaken.toStdString());
        reply["written"] = inJson(done.changes);
        reply["not_taken"] = inJson(comparison.changes);
        printJson(reply);
    }
    if (isTaken) {
        if (shown.confirms())
            printLine(
                QStringLiteral("%1 written, finalised and read back").arg(rowsInWords(written.rows.size())),
                Colour::Bold);
        return Done;
    }
    printError(notTaken + QLatin1Char(':'));
    if (!shown.asJson)
        show(comparison);
    return Refused;
}

ExitStatus push(const FirmwareConfiguration &firmware, const QString &path, bool yes, const Shown &shown)
{
    const ConfigComparison comparison = compareShowing(configFile(path), firmware, shown);
    const std::vector<RowChange> &changes = comparison.changes;
    for (const RowChange &change : changes)
        if (const QString reason = whyUnwritable(change.row); !reason.isEmpty())
            throw std::runtime_error(reason.toStdString());
    if (changes.empty()) {
        if (shown.asJson)
            printJson({{"ok", true}, {"written", inJson(changes)}, {"not_taken", inJson(changes)}});
        return Done;
    }
    if (!yes && !agrees(changes.size(), shown)) {
        printLine(QStringLiteral("nothing was written"));
        return Refused;
    }
    write(changes, firmware, shown.asJson);
    return verify(comparison, firmware, shown);
}

ExitStatus diff(const FirmwareConfiguration &firmware, const QString &path, const Shown &shown)
{
    const ConfigComparison comparison = compareShowing(configFile(path), firmware, shown);
    if (shown.asJson)
        printJson(inJson(comparison));
    return comparison.changes.empty() ? Done : Refused;
}

ExitStatus runConfig(const CommandLine &line)
{
    const QString action = line.words()[0];
    const QString path = line.words()[1];
    const bool yes = line.isSet("yes");
    if (yes && action != QLatin1String("push"))
        throw UsageError(QStringLiteral("--yes belongs to config push"));
    const Driver driver(line);
    const FirmwareConfiguration firmware(driver);
    const Shown shown(line);
    if (action == QLatin1String("pull"))
        return pull(firmware, path, shown);
    if (action == QLatin1String("push"))
        return push(firmware, path, yes, shown);
    if (action == QLatin1String("diff"))
        return diff(firmware, path, shown);
    const QStringList actions = {QStringLiteral("pull"), QStringLiteral("push"), QStringLiteral("diff")};
    throw UsageError(QStringLiteral("config has pull, push and diff, not \"%1\"%2")
                         .arg(excerpt(action), didYouMean(action, actions)));
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
    "Exit status of diff: 0 without differences, 1 with some; 2 for a file that cannot be read.",
    2,
    2,
    withDriverOptions({{"yes", nullptr, "push without asking"},
                       quietOption,
                       {"json", nullptr, "one JSON object, and no question"}}),
    runConfig};

} // namespace quv
