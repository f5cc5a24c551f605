// SPDX-License-Identifier: LGPL-3.0-or-later
#include "askedstatus.h"
#include "canisters.h"
#include "machineerrors.h"
#include "operations.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"
#include "words.h"
#include "xmlrpcerrors.h"

#include "status/dispenserstatusanswer.h"
#include "status/mixerstatusanswer.h"

#include <QuvFramework/fw_error.h>

#include <QtCore/QDateTime>
#include <QtCore/QMap>

#include <algorithm>
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
    Surroundings(const Driver &driver, bool isMixer) : m_driver(driver), m_tellsLevels(!isMixer) {}

    /// The canisters whose level has crossed their warning or their reserve; at first those that are below.
    QList<CanisterData> crossedLevels()
    {
        QList<CanisterData> crossed;
        for (const CanisterData &canister : ask(canistersOf, m_tellsLevels)) {
            const Level level = levelOf(canister);
            if (m_levels.value(canister.id, Level::Good) != level)
                crossed.append(canister);
            m_levels[canister.id] = level;
        }
        return crossed;
    }

    FW_ErrorList newErrors()
    {
        const FW_ErrorList errors = ask(errorsOf, m_tellsErrors);
        FW_ErrorList added;
        for (int i = 0; i < errors.size(); ++i)
            if (!isIn(*errors[i], m_errors))
                added.append(errors[i]);
        m_errors = errors;
        return added;
    }

    void askAgain()
    {
        m_tellsLevels = m_tellsLevels || !m_levels.isEmpty();
        m_tellsErrors = true;
    }

private:
    template <class Told>
    Told ask(std::optional<Told> (*question)(const Driver &), bool &isTold)
    {
        try {
            if (!isTold)
                return {};
            const std::optional<Told> told = question(m_driver);
            isTold = told.has_value();
            return told.value_or(Told());
        } catch (const TransportError &) { // the next status tells it
            return {};
        }
    }

    static bool isIn(const FW_Error &error, const FW_ErrorList &errors)
    {
        for (int i = 0; i < errors.size(); ++i)
            if (errors[i]->equalTo(error) && errors[i]->timestamp() == error.timestamp())
                return true;
        return false;
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

/// The conditions of a mixer that are no other machine's.
QStringList ownConditions(const MixerStatusAnswer &status)
{
    QStringList texts;
    for (const auto &[text, bad] : status.getStatusDescriptions(nullptr))
        texts.append(text);
    for (const auto &[text, bad] : status.getMachineStatusDescriptions(SerialDeviceType::Mixer))
        texts.removeAll(text);
    return texts;
}

/// The library tells the changes that a mixer shares with dispensers.
QStringList changesBetween(const MixerStatusAnswer &before, const MixerStatusAnswer &after)
{
    QStringList changes = MixerStatusAnswer::getNewStatesDescriptions(&before, &after);
    const QStringList was = ownConditions(before);
    const QStringList is = ownConditions(after);
    for (const QString &text : is)
        if (!was.contains(text))
            changes.append(text);
    for (const QString &text : was)
        if (!is.contains(text))
            changes.append(QStringLiteral("No longer: ") + text);
    return changes;
}

/// What has changed of a machine, whose kind stays.
QStringList changesBetween(const MachineStatusAnswer &before, const MachineStatusAnswer &after)
{
    if (const auto *mixer = dynamic_cast<const MixerStatusAnswer *>(&after))
        return changesBetween(dynamic_cast<const MixerStatusAnswer &>(before), *mixer);
    return DispenserStatusAnswer::getNewStatesDescriptions(
        dynamic_cast<const DispenserStatusAnswer *>(&before),
        dynamic_cast<const DispenserStatusAnswer *>(&after));
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
        for (const QString &text : changesBetween(*m_last, status))
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
    StatusQuestion question =
        driver.chosen() ? StatusQuestion(driver) : StatusQuestion(driver, SerialDeviceType::Dispenser);
    Surroundings surroundings(driver, question.isMixer());
    AnyWatcher watcher;
    for (int i = 1;; ++i) {
        const Observation now = observe(question);
        if (watcher.take(now))
            surroundings.askAgain();
        if (now.status) {
            watcher.takeErrors(surroundings.newErrors());
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

ExitStatus run(const CommandLine &line)
{
    return line.isSet("json") ? watch<JsonWatcher>(line) : watch<Watcher>(line);
}

} // namespace

const Subcommand watchSubcommand = {
    "watch",
    "",
    "a machine's status as it changes",
    "Asks a driver for the status of its dispenser, or of the machine of --on, again and again: shows what\n"
    "holds at first, then what changes, new errors, and levels that cross their warning or their reserve. A\n"
    "driver that goes away is waited for. With --count, the exit status is 1 when no status came.",
    0,
    0,
    withDriverOptions({intervalOption,
                       {"json", nullptr, "a JSON object a line, with the time, whenever something changes"},
                       {"count", "N", "ends after N questions; 0 goes on for ever (0)"}}),
    run};

} // namespace quv
