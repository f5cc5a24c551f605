// SPDX-License-Identifier: LGPL-3.0-or-later
#include "askedstatus.h"
#include "canisters.h"
#include "knownerrors.h"
#include "machineerrors.h"
#include "operations.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"
#include "words.h"
#include "xmlrpcerrors.h"

#include <QuvFramework/fw_error.h>

#include <QtCore/QDateTime>
#include <QtCore/QMap>

#include <chrono>
#include <optional>
#include <thread>

namespace quv {

namespace {

using StatusPointer = std::shared_ptr<const MachineStatusAnswer>;

/// The status, or why there is none: for people, and for programs.
struct Observation
{
    StatusPointer status;
    QStringList failure;
    OrderedJson reply;
};

Observation noStatus(const QString &why)
{
    return {nullptr, {why}, failureReply(why.toStdString())};
}

Observation observe(StatusQuestion &question)
{
    try {
        const ToldStatus told = question.ask();
        return {told.answer, {}, told.reply};
    } catch (const RequestRefused &refusal) {
        return {nullptr, refusal.lines(), refusal.json()};
    } catch (const FW_DriverError &error) {
        return {nullptr, {error.toPrintableString()}, failureReply(error)};
    } catch (const std::exception &error) {
        return noStatus(QString::fromUtf8(error.what()));
    }
}

/// What stands beside the status and is new since the last question; a driver that refuses to tell it is not asked again.
class Surroundings
{
public:
    explicit Surroundings(const Driver &driver) : m_driver(driver) {}

    /// The canisters whose level has crossed their warning or their reserve; at first those that are below.
    QList<CanisterData> crossedLevels()
    {
        QList<CanisterData> crossed;
        for (const CanisterData &canister : ask(canistersOf, m_tellsLevels).value_or(QList<CanisterData>())) {
            const Level level = levelOf(canister);
            if (m_levels.value(canister.id, Level::Good) != level)
                crossed.append(canister);
            m_levels[canister.id] = level;
        }
        return crossed;
    }

    /// Not by their times: there are drivers that tell that of the question.
    FW_ErrorList newErrors()
    {
        const std::optional<FW_ErrorList> errors = ask(errorsOf, m_tellsErrors);
        if (!errors)
            return {};
        KnownErrors known(m_errors);
        FW_ErrorList added;
        for (int i = 0; i < errors->size(); ++i) {
            const FW_Error &error = *(*errors)[i];
            if (!known.take(error))
                added.append(&error);
        }
        m_errors = *errors;
        return added;
    }

    void askAgain()
    {
        m_tellsLevels = m_tellsLevels || !m_levels.isEmpty();
        m_tellsErrors = true;
    }

private:
    /// Nothing when nobody tells it this time.
    template <class Told>
    std::optional<Told> ask(std::optional<Told> (*question)(const Driver &), bool &isTold)
    {
        try {
            if (!isTold)
                return std::nullopt;
            std::optional<Told> told = question(m_driver);
            isTold = told.has_value();
            return told;
        } catch (const TransportError &) { // the next status tells it
            return std::nullopt;
        }
    }

    const Driver &m_driver;
    bool m_tellsLevels = true;
    bool m_tellsErrors = true;
    QMap<int, Level> m_levels{};
    FW_ErrorList m_errors{};
};

void tell(const QString &text, bool bad)
{
    printLine(QTime::currentTime().toString(QStringLiteral("hh:mm:ss ")) + text,
              bad ? Colour::Red : Colour::Plain);
}

/// Tells what is new in each observation.
class Watcher
{
public:
    bool hasSeenAStatus() const { return m_last != nullptr; }

    /// True for the first status, and for one after a failure.
    bool take(const Observation &now)
    {
        if (!now.status) {
            if (now.failure != m_failure)
                tellFailure(now.failure);
            m_failure = now.failure;
            return false;
        }
        const bool isBack = !m_failure.isEmpty();
        if (isBack)
            tell(QStringLiteral("The driver answers again"), false);
        m_failure.clear();
        const bool isFirst = !m_last;
        if (m_last)
            tellChanges(*now.status);
        else
            tellAll(*now.status);
        m_last = now.status;
        return isFirst || isBack;
    }

    static void takeErrors(const FW_ErrorList &errors)
    {
        for (int i = 0; i < errors.size(); ++i)
            tell(errorInWords(*errors[i]), true);
    }

    static void takeLevels(const QList<CanisterData> &canisters)
    {
        for (const CanisterData &canister : canisters)
            tell(levelInWords(canister), levelOf(canister) != Level::Good);
    }

private:
    static void tellFailure(const QStringList &lines)
    {
        for (int i = 0; i < lines.size(); ++i)
            tell((i == 0 ? QStringLiteral("No status: ") : QString()) + lines[i], true);
    }

    static void tellAll(const MachineStatusAnswer &status)
    {
        tell(QStringLiteral("Machine status %1").arg(status.status()), false);
        for (const StatusLine &line : statusInWords(status))
            tell(line.text, line.bad);
    }

    void tellChanges(const MachineStatusAnswer &status) const
    {
        if (status.status() != m_last->status())
            tell(QStringLiteral("Machine status %1").arg(status.status()), false);
        for (const QString &text : changesInWords(*m_last, status))
            tell(text, false);
    }

    StatusPointer m_last;
    QStringList m_failure;
};

/// An object with the time whenever the status, or the reason that there is none, is another one, or something else is new.
class JsonWatcher
{
public:
    bool hasSeenAStatus() const { return m_hasSeenAStatus; }

    /// True for the first status, and for one after a failure.
    bool take(const Observation &now)
    {
        const bool isNew = now.status && !m_hadStatus;
        m_hadStatus = now.status != nullptr;
        m_hasSeenAStatus = m_hasSeenAStatus || m_hadStatus;
        std::string told = writeJson(now.reply);
        if (told != m_last) {
            m_last = std::move(told);
            printWithTime(now.reply);
        }
        return isNew;
    }

    static void takeErrors(const FW_ErrorList &errors)
    {
        if (!errors.isEmpty())
            printWithTime({{"ok", true}, {"new_errors", errorsJson(errors)}});
    }

    static void takeLevels(const QList<CanisterData> &canisters)
    {
        if (!canisters.isEmpty())
            printWithTime({{"ok", true}, {"crossed_levels", canistersJson(canisters)}});
    }

private:
    static void printWithTime(OrderedJson reply)
    {
        reply["time"] = toJson(QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
        printJson(reply);
    }

    std::string m_last{};
    bool m_hadStatus = false;
    bool m_hasSeenAStatus = false;
};

template <class AnyWatcher>
ExitStatus watch(const CommandLine &line)
{
    const Driver driver(line);
    const std::chrono::milliseconds interval = intervalOf(line);
    const int count = line.number("count", 0, 0, 1000000000);
    StatusQuestion question(driver);
    Surroundings surroundings(driver);
    AnyWatcher watcher;
    for (int i = 1;; ++i) {
        const Observation now = observe(question);
        if (watcher.take(now))
            surroundings.askAgain();
        if (now.status) {
            watcher.takeErrors(surroundings.newErrors());
            if (!question.isMixer())
                watcher.takeLevels(surroundings.crossedLevels());
        }
        if (!outputFailure().isEmpty())
            return Refused; // nobody looks any more
        if (i == count)
            return watcher.hasSeenAStatus() ? Done : Refused;
        if (count == 0)
            i = 0;
        std::this_thread::sleep_for(interval);
    }
}

ExitStatus runWatch(const CommandLine &line)
{
    return line.isSet("json") ? watch<JsonWatcher>(line) : watch<Watcher>(line);
}

} // namespace

const Subcommand watchSubcommand = {
    "watch",
    "",
    "a machine's status as it changes",
    "Asks a driver for the status of its dispenser, of its mixer where there is no dispenser, or of the\n"
    "machine of --on, again and again: shows what holds at first, then what changes, new errors, and levels\n"
    "that cross their warning or their reserve. A driver that goes away is waited for. With --count, the "
    "exit\n"
    "status is 1 when no status came.",
    0,
    0,
    withDriverOptions({intervalOption,
                       {"json", nullptr, "a JSON object a line, with the time, whenever something changes"},
                       {"count", "N", "ends after N questions; 0 goes on for ever (0)"}}),
    runWatch};

} // namespace quv
