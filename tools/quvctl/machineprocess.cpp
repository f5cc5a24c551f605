// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machineprocess.h"

#include "driveraddress.h"
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

#include <algorithm>
#include <chrono>
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
        if (const XmlRpcAnswer &envelope = startOnMachine(driver, command, line); envelope.retCode() != 0)
            throw RequestRefused(envelope);
        return ticketIn(command);
    }

    Ticket m_ticket;
    bool m_hasEnded = false;
};

using BegunCommands = std::vector<std::unique_ptr<BegunCommand>>;

/// What the driver, which knows how fast its machine works, expects; 0 when it does not know either.
long long estimateOf(const Driver &driver, const ProtoCommands &commands)
{
    if (commands.size() != 1)
        return 0;
    try {
        GetCmdEstimatedExecTimeCmd command(commands.front().get());
        return std::max(0LL, executed<GetCmdEstimatedExecTimeAnswer>(driver, command).executionTime());
    } catch (const RequestRefused &) {
        return 0;
    }
}

/// How far the process is, by the clock: no machine tells it.
class ProcessClock
{
public:
    explicit ProcessClock(const MachineProcess &process) : m_process(process) {}

    CmdStatus now() const
    {
        if (m_process.expected <= 0)
            return {CmdStatus::Executing, 0, 0, m_process.begun};
        const long long gone =
            std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_begin).count();
        const long long left = std::max(0LL, m_process.expected - gone);
        CmdStatus status(CmdStatus::Executing, 0, static_cast<int>(gone * 100 / m_process.expected),
                         m_process.begun);
        status.setTimeLeft(left);
        return status;
    }

private:
    const MachineProcess &m_process;
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
          m_badBefore(badConditions(*question.ask().answer))
    {}

    void begin(const ProtoCommands &commands)
    {
        for (const auto &command : commands) {
            m_commands.push_back(std::make_unique<BegunCommand>(m_driver, *command, m_line));
            waitUntil([&] { return m_commands.back()->hasEnded() || isAtWork(); }, nullptr);
        }
    }

    /// What has gone wrong with the machine meanwhile; nothing when the process has come to its end.
    QStringList waitForEnd()
    {
        const ProcessClock clock(m_process);
        std::optional<Progress> progress;
        if (!m_line.isSet("json") && !m_line.isQuiet())
            progress.emplace();
        const auto isOver = [this] { return haveAllEnded() && (!isAtWork() || !badSinceThen().isEmpty()); };
        waitUntil(isOver, progress ? std::function<void()>([&] { progress->tell(clock.now()); }) : nullptr);
        QStringList bad = badSinceThen();
        if (progress && bad.isEmpty())
            progress->tell(CmdStatus(CmdStatus::Done, 0, 100, QString()));
        return bad;
    }

private:
    /// What is wrong with the machine that was not before, or has ended meanwhile and come again.
    QStringList badSinceThen()
    {
        QStringList texts = badConditions(*m_question.ask().answer);
        QStringList stillBad;
        for (const QString &text : qAsConst(m_badBefore))
            if (texts.removeAll(text) > 0)
                stillBad.append(text);
        m_badBefore = stillBad;
        return texts;
    }

    bool isAtWork()
    {
        return std::any_of(m_process.positions.begin(), m_process.positions.end(), [this](int position) {
            return m_process.isAtWork(*m_question.ask(position).answer);
        });
    }

    bool haveAllEnded()
    {
        return std::all_of(m_commands.begin(), m_commands.end(),
                           [](const auto &command) { return command->hasEnded(); });
    }

    template <class Condition>
    void waitUntil(Condition condition, const std::function<void()> &tell)
    {
        const QString hint =
            QStringLiteral("the machine goes on; look at it with: quvctl status") + sameDriver(m_line);
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
    QStringList m_badBefore{};
    BegunCommands m_commands{};
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
                           MachineProcess process, const CommandLine &line)
{
    const bool isTold = !line.isSet("json") && !line.isQuiet();
    const bool isWaitedFor = process.isLasting && !line.isSet("no-wait");
    if (const long long estimate = isWaitedFor ? estimateOf(driver, commands) : 0; estimate > 0)
        process.expected = estimate;
    ProcessRun run(driver, question, process, line);
    run.begin(commands);
    if (isTold)
        printLine(process.begun, Colour::Bold);
    if (!isWaitedFor)
        return tellEnd(process, QStringLiteral("begun"), {}, line);
    const QStringList bad = run.waitForEnd();
    if (isTold && bad.isEmpty())
        printLine(process.ended, Colour::Bold);
    return tellEnd(process, bad.isEmpty() ? QStringLiteral("ended") : QStringLiteral("disturbed"), bad, line);
}

} // namespace quv
