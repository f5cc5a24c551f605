// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machineprocess.h"

#include "executed.h"
#include "operations.h"
#include "patience.h"
#include "progress.h"
#include "replies.h"
#include "stopping.h"
#include "terminal.h"
#include "tickets.h"
#include "words.h"

#include "base/cmdstatus.h"
#include "base/getcmdestimatedexectimeanswer.h"
#include "base/getcmdestimatedexectimecmd.h"
#include "status/mixerstatusanswer.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <thread>

namespace quv {

namespace {

using Clock = std::chrono::steady_clock;

/// A command that the driver has taken. It ends when the machine has begun, or when the machine has ended: drivers differ.
class BegunCommand
{
public:
    BegunCommand(const Driver &driver, ProtoCommand &command, const CommandLine &line)
        : m_ticket(driver, started(driver, command, line), line)
    {}

    /// \throws RequestRefused for one that the machine has refused
    bool hasEnded()
    {
        if (m_hasEnded)
            return true;
        const CmdStatus now = m_ticket.status();
        m_hasEnded = now.status() <= 0;
        if (m_hasEnded)
            resultOf(now);
        return m_hasEnded;
    }

private:
    static QString started(const Driver &driver, ProtoCommand &command, const CommandLine &line)
    {
        requireDone(startOnMachine(driver, command, line));
        return ticketIn(command);
    }

    Ticket m_ticket;
    bool m_hasEnded = false;
};

/// What the driver, which knows how fast its machine works, expects of the longest of them; 0 when it does not know either.
long long estimateOf(const Driver &driver, const ProtoCommands &commands)
{
    long long longest = 0;
    try {
        for (const auto &each : commands) {
            GetCmdEstimatedExecTimeCmd command(each.get());
            longest =
                std::max(longest, executed<GetCmdEstimatedExecTimeAnswer>(driver, command).executionTime());
        }
    } catch (const RequestRefused &) {
        return 0;
    }
    return longest;
}

/// How far the process is, by the clock; a mixer tells itself how much time is left.
class ProcessClock
{
public:
    ProcessClock(const MachineProcess &process, long long expected) : m_process(process), m_expected(expected)
    {}

    /// Nothing when nobody knows.
    std::optional<CmdStatus> now(const MachineStatusAnswer &told)
    {
        constexpr long long second = 1000;
        const auto *mixer = dynamic_cast<const MixerStatusAnswer *>(&told);
        const long long toldLeft = mixer ? std::max(0, mixer->m_timeleft) * second : 0;
        m_isTold = m_isTold || toldLeft > 0;
        m_expected = std::max(m_expected, toldLeft);
        if (m_expected <= 0)
            return std::nullopt;
        const long long gone =
            std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_begin).count();
        const long long left = m_isTold ? toldLeft : std::max(0LL, m_expected - gone);
        CmdStatus status(CmdStatus::Executing, 0, static_cast<int>((m_expected - left) * 100 / m_expected),
                         m_process.begun);
        status.setTimeLeft(left);
        return status;
    }

private:
    const MachineProcess &m_process;
    long long m_expected = 0;
    bool m_isTold = false;
    const Clock::time_point m_begin = Clock::now();
};

QStringList badConditions(const MachineStatusAnswer &status)
{
    QStringList texts;
    for (const StatusLine &condition : statusInWords(status))
        if (condition.bad)
            texts.append(condition.text);
    return texts;
}

/// A command, the circuit on which it works (0 is the machine), and what has become of it.
struct ProcessPart
{
    ProtoCommand *command = nullptr;
    int position = 0;
    std::unique_ptr<BegunCommand> begun{};
    Clock::time_point begin{};
    bool isOver = false;
};

using ProcessParts = std::vector<ProcessPart>;

/// As in "circuit 3" or "circuits 3, 8": those of which \a isMeant.
template <class Predicate>
QString circuitsIn(const ProcessParts &parts, Predicate isMeant)
{
    QStringList names;
    for (const ProcessPart &part : parts)
        if (part.position > 0 && isMeant(part))
            names.append(QString::number(part.position));
    if (names.isEmpty())
        return {};
    return (names.size() == 1 ? QStringLiteral("circuit ") : QStringLiteral("circuits ")) +
           names.join(QStringLiteral(", "));
}

bool isToBegin(const ProcessPart &part)
{
    return !part.begun;
}

bool isGoingOn(const ProcessPart &part)
{
    return part.begun && !part.isOver;
}

/// Of a machine that is at something else, among other reasons of the firmware's.
bool isByFirmware(const RequestRefused &refusal)
{
    constexpr int errorsOnFirmware = 4;
    return refusal.json()["envelope"]["ret_code"] == errorsOnFirmware;
}

/// What holds for as long as one process does.
class ProcessRun
{
public:
    ProcessRun(const Driver &driver, StatusQuestion &question, const MachineProcess &process,
               const CommandLine &line)
        : m_driver(driver),
          m_question(question),
          m_process(process),
          m_line(line),
          m_interval(intervalOf(line)),
          m_status(question.ask().answer),
          m_badBefore(badConditions(*m_status))
    {}

    /// The first of them, and of the others as many as the machine takes at once.
    void begin(const ProtoCommands &commands, bool isWaitedFor)
    {
        m_isWaitedFor = isWaitedFor;
        const long long estimate = isWaitedFor ? estimateOf(m_driver, commands) : 0;
        m_expected = estimate > 0 ? estimate : m_process.expected;
        for (std::size_t i = 0; i < commands.size(); ++i) {
            ProcessPart part;
            part.command = commands[i].get();
            part.position = m_process.positions.value(static_cast<int>(i));
            m_parts.push_back(std::move(part));
        }
        beginMore();
        const auto begun = m_parts.size() - count(isToBegin);
        m_rounds = (m_parts.size() + begun - 1) / begun;
    }

    /// What has gone wrong with the machine meanwhile; nothing when the process has come to its end.
    QStringList waitForEnd()
    {
        const bool isShown = !m_line.isSet("json") && !m_line.isQuiet();
        ProcessClock clock(m_process, m_expected * static_cast<long long>(m_rounds));
        std::optional<Progress> progress;
        const auto tell = [&] {
            const std::optional<CmdStatus> now = isShown ? clock.now(*m_status) : std::nullopt;
            if (now && !progress)
                progress.emplace();
            if (now)
                progress->tell(*now);
        };
        while (!isOver()) {
            waitUntil([this] { return hasOneEnded(); }, tell);
            if (!isOver())
                beginMore();
        }
        if (m_bad.isEmpty() && m_process.failure)
            if (const QString failure = m_process.failure(); !failure.isEmpty())
                m_bad.append(failure);
        if (progress && m_bad.isEmpty())
            progress->tell(CmdStatus(CmdStatus::Done, 0, 100, QString()));
        if (const QString left = circuitsIn(m_parts, isToBegin); !left.isEmpty())
            m_bad.append(QStringLiteral("not begun: %1").arg(left));
        return m_bad;
    }

private:
    /// What is wrong with the machine that was not before, or has ended meanwhile and come again.
    QStringList badSinceThen()
    {
        QStringList texts = badConditions(*m_status);
        QStringList stillBad;
        for (const QString &text : qAsConst(m_badBefore))
            if (texts.removeAll(text) > 0)
                stillBad.append(text);
        m_badBefore = stillBad;
        return texts;
    }

    bool isAtWork(int position) { return m_process.isAtWork(*m_question.ask(position).answer); }

    std::size_t count(bool (*isMeant)(const ProcessPart &)) const
    {
        return static_cast<std::size_t>(std::count_if(m_parts.begin(), m_parts.end(), isMeant));
    }

    void beginMore()
    {
        m_isOneOver = false;
        for (ProcessPart &part : m_parts)
            if (isToBegin(part) && !begin(part))
                return;
    }

    /// False when the machine may take it when it is at less. \throws RequestRefused
    bool begin(ProcessPart &part)
    {
        // a machine that was at it before tells nothing new until the command has been taken, or refused
        constexpr std::chrono::seconds longestRefusal(1);
        const bool wasAtWork = part.position == 0 ? m_process.isAtWork(*m_status) : isAtWork(part.position);
        part.begin = Clock::now();
        try {
            part.begun = std::make_unique<BegunCommand>(m_driver, *part.command, m_line);
            waitUntil(
                [&] {
                    const bool isTold = !wasAtWork || Clock::now() - part.begin > longestRefusal;
                    return part.begun->hasEnded() || (isTold && isAtWork(part.position));
                },
                nullptr);
            return true;
        } catch (RequestRefused &refusal) {
            part.begun.reset();
            if (m_isWaitedFor && count(isGoingOn) > 0 && isByFirmware(refusal))
                return false;
            tellParts(refusal, part);
            throw;
        }
    }

    void tellParts(RequestRefused &refusal, const ProcessPart &refused) const
    {
        if (m_parts.size() < 2)
            return;
        refusal.addHint(QStringLiteral("refused for circuit %1").arg(refused.position));
        if (const QString others = circuitsIn(m_parts, isGoingOn); !others.isEmpty() && m_process.goesOn)
            refusal.addHint(QStringLiteral("begun and going on: %1; to end it: quvctl stop%2")
                                .arg(others, m_driver.sameMachine()));
    }

    /// Looks at the machine; true when everything is over, or one of the commands that others wait for.
    bool hasOneEnded()
    {
        m_status = m_question.ask().answer;
        m_bad = badSinceThen();
        m_haveTicketsEnded = true;
        for (ProcessPart &part : m_parts) {
            if (!isGoingOn(part))
                continue;
            const bool hasEnded = part.begun->hasEnded();
            m_haveTicketsEnded = m_haveTicketsEnded && hasEnded;
            part.isOver =
                hasEnded && !(part.position == 0 ? m_process.isAtWork(*m_status) : isAtWork(part.position));
            m_isStopped = m_isStopped || (part.isOver && isEarly(part));
            m_isOneOver = m_isOneOver || part.isOver;
        }
        return isOver() || (m_isOneOver && !m_isStopped && count(isToBegin) > 0);
    }

    /// Somebody has stopped it, who wants no more of them.
    bool isEarly(const ProcessPart &part) const
    {
        return (Clock::now() - part.begin) * 2 < std::chrono::milliseconds(m_expected);
    }

    bool isOver() const
    {
        const bool isDone = count(isGoingOn) == 0 && (m_isStopped || count(isToBegin) == 0);
        return isDone || (m_haveTicketsEnded && !m_bad.isEmpty());
    }

    template <class Condition>
    void waitUntil(Condition condition, const std::function<void()> &tell)
    {
        const QString left = circuitsIn(m_parts, isToBegin);
        const QString without = left.isEmpty() ? QString() : QStringLiteral(", without %1").arg(left);
        const QString hint = QStringLiteral("the machine goes on%1; look at it with: quvctl status%2")
                                 .arg(without, m_driver.sameMachine());
        const OnInterrupt onInterrupt(stoppedBySecond(m_driver, toldPlan(hint, m_line.isSet("json"))));
        try {
            for (Patience patience;; std::this_thread::sleep_for(m_interval)) {
                const std::optional<bool> isSo = patience.answerTo(condition);
                waitForInterrupt();
                if (isSo.value_or(false))
                    return;
                if (tell)
                    tell();
            }
        } catch (const TransportError &) {
            printError(hint);
            throw;
        }
    }

    const Driver &m_driver;
    StatusQuestion &m_question;
    const MachineProcess &m_process;
    const CommandLine &m_line;
    const std::chrono::milliseconds m_interval;
    std::shared_ptr<const MachineStatusAnswer> m_status{};
    QStringList m_badBefore{};
    QStringList m_bad{};
    ProcessParts m_parts{};
    std::size_t m_rounds = 1; ///< in which they go on, so many at a time as have begun at first
    long long m_expected = 0; ///< milliseconds of each; 0 when nobody knows
    bool m_isWaitedFor = false;
    bool m_isOneOver = false; ///< so that others may begin
    bool m_isStopped = false;
    bool m_haveTicketsEnded = false;
};

ExitStatus tellEnd(const MachineProcess &process, const QString &state, const QStringList &bad,
                   const CommandLine &line)
{
    if (line.isSet("json")) {
        OrderedJson reply = bad.isEmpty() ? success() : failureReply(bad.first().toStdString());
        reply["process"] = toJson(process.begun);
        reply["state"] = toJson(state);
        printJson(reply);
    }
    for (const QString &text : bad)
        printError(text);
    return bad.isEmpty() ? Done : Refused;
}

} // namespace

std::vector<OptionText> withProcessOptions(std::vector<OptionText> options)
{
    options.push_back({"no-wait", nullptr, "do not wait for the end"});
    options.push_back(intervalOption);
    options.push_back(quietOption);
    options.push_back({"json", nullptr, "what became of it as one JSON object"});
    return withDriverOptions(std::move(options));
}

ExitStatus carryOutProcess(const Driver &driver, StatusQuestion &question, const ProtoCommands &commands,
                           const MachineProcess &process, const CommandLine &line)
{
    const bool isTold = !line.isSet("json") && !line.isQuiet();
    const bool isWaitedFor = process.isLasting && !line.isSet("no-wait");
    ProcessRun run(driver, question, process, line);
    run.begin(commands, isWaitedFor);
    if (isTold)
        printLine(process.begun, Colour::Bold);
    if (!isWaitedFor)
        return tellEnd(process, QStringLiteral("begun"), {}, line);
    const QStringList bad = run.waitForEnd();
    if (isTold && bad.isEmpty())
        printLine(process.ended, Colour::Bold);
    return tellEnd(process, bad.isEmpty() ? QStringLiteral("ended") : QStringLiteral("disturbed"), bad, line);
}

ExitStatus tellNothingToDo(const QString &text, const CommandLine &line)
{
    if (!line.isSet("json") && !line.isQuiet())
        printLine(text, Colour::Bold);
    MachineProcess process;
    process.begun = text;
    return tellEnd(process, QStringLiteral("ended"), {}, line);
}

} // namespace quv
