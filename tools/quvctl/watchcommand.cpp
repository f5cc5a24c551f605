// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"
#include "operations.h"
#include "subcommands.h"
#include "terminal.h"
#include "words.h"

#include "base/xmlrpcanswer.h"
#include "status/dispenserstatusanswer.h"
#include "status/dispenserstatuscmd.h"

#include <QuvFramework/fw_error.h>

#include <QtCore/QDateTime>

#include <chrono>
#include <optional>
#include <thread>

namespace quv {

namespace {

/// The status, or why there is none: for people, and for programs.
struct Observation
{
    std::optional<DispenserStatusAnswer> status;
    QStringList failure;
    OrderedJson reply;
};

Observation noStatus(const QString &why)
{
    return {std::nullopt, {why}, failureReply(why.toStdString())};
}

Observation refused(const RequestRefused &refusal)
{
    return {std::nullopt, refusal.lines(), refusal.json()};
}

Observation observe(const Driver &driver)
{
    try {
        DispenserStatusCmd command;
        const XmlRpcAnswer &envelope = driver.execute(command);
        if (envelope.retCode() != 0)
            return refused(RequestRefused(envelope));
        const auto *status = dynamic_cast<const DispenserStatusAnswer *>(command.getProtoAnswer());
        if (!status)
            return noStatus(QStringLiteral("the answer is no status"));
        return {*status, {}, answerReply(command)};
    } catch (const FW_DriverError &error) {
        return {std::nullopt, {error.toPrintableString()}, failureReply(error)};
    } catch (const std::exception &error) {
        return noStatus(QString::fromUtf8(error.what()));
    }
}

void tell(const QString &text, bool bad)
{
    printLine(QTime::currentTime().toString(QStringLiteral("hh:mm:ss ")) + text,
              bad ? Colour::Red : Colour::Plain);
}

/// Tells what is new in each observation.
class Watcher
{
public:
    bool hasSeenAStatus() const { return m_last.has_value(); }

    void take(const Observation &now)
    {
        if (!now.status) {
            if (now.failure != m_failure)
                tellFailure(now.failure);
            m_failure = now.failure;
            return;
        }
        if (!m_failure.isEmpty())
            tell(QStringLiteral("The driver answers again"), false);
        m_failure.clear();
        if (m_last)
            tellChanges(*now.status);
        else
            tellAll(*now.status);
        m_last = now.status;
    }

private:
    static void tellFailure(const QStringList &lines)
    {
        for (int i = 0; i < lines.size(); ++i)
            tell((i == 0 ? QStringLiteral("No status: ") : QString()) + lines[i], true);
    }

    static void tellAll(const DispenserStatusAnswer &status)
    {
        tell(QStringLiteral("Machine status %1").arg(status.status()), false);
        for (const StatusLine &line : statusInWords(status))
            tell(line.text, line.bad);
    }

    void tellChanges(const DispenserStatusAnswer &status) const
    {
        if (status.status() != m_last->status())
            tell(QStringLiteral("Machine status %1").arg(status.status()), false);
        for (const QString &text : DispenserStatusAnswer::getNewStatesDescriptions(&*m_last, &status))
            tell(text, false);
    }

    std::optional<DispenserStatusAnswer> m_last;
    QStringList m_failure;
};

/// An object with the time whenever the status, or the reason that there is none, is another one.
class JsonWatcher
{
public:
    bool hasSeenAStatus() const { return m_hasSeenAStatus; }

    void take(const Observation &now)
    {
        m_hasSeenAStatus = m_hasSeenAStatus || now.status;
        std::string told = writeJson(now.reply);
        if (told == m_last)
            return;
        m_last = std::move(told);
        OrderedJson reply = now.reply;
        reply["time"] = toJson(QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
        printJson(reply);
    }

private:
    std::string m_last{};
    bool m_hasSeenAStatus = false;
};

template <class AnyWatcher>
ExitStatus watch(const CommandLine &line)
{
    const Driver driver(line);
    const std::chrono::milliseconds interval = intervalOf(line);
    const int count = line.number("count", 0, 0, 1000000000);
    AnyWatcher watcher;
    for (int i = 1;; ++i) {
        watcher.take(observe(driver));
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
    "a dispenser's status as it changes",
    "Asks a driver for the status of its dispenser again and again: shows what holds at first, then what\n"
    "changes. A driver that goes away is waited for. With --count, the exit status is 1 when no status came.",
    0,
    0,
    withDriverOptions({intervalOption,
                       {"json", nullptr, "a JSON object a line, with the time, whenever something changes"},
                       {"count", "N", "ends after N questions; 0 goes on for ever (0)"}}),
    run};

} // namespace quv
