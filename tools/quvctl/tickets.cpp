// SPDX-License-Identifier: LGPL-3.0-or-later
#include "tickets.h"

#include "hints.h"
#include "operations.h"
#include "progress.h"
#include "terminal.h"
#include "xmlrpcerrors.h"

#include "base/asyncanswer.h"
#include "base/getcommandstatusanswer.h"
#include "base/getcommandstatuscmd.h"
#include "base/xmlrpcanswer.h"

#include <atomic>
#include <memory>
#include <optional>
#include <thread>
#include <unistd.h>

namespace quv {

namespace {

std::atomic<const OnInterrupt::Texts *> interruptTexts{nullptr};
static_assert(std::atomic<const OnInterrupt::Texts *>::is_always_lock_free, "a signal handler reads it");

void writeAtOnce(int descriptor, const std::string &text)
{
    const ssize_t written = write(descriptor, text.data(), text.size());
    static_cast<void>(written); // it ends either way
}

extern "C" void endInterrupted(int)
{
    if (const OnInterrupt::Texts *texts = interruptTexts.load()) {
        writeAtOnce(STDOUT_FILENO, texts->output);
        writeAtOnce(STDERR_FILENO, texts->error);
    }
    _exit(Interrupted);
}

OnInterrupt::Texts interruptedTexts(const QString &text, bool asJson, const QString &ticket)
{
    const std::string error = printable(text).toStdString() + '\n';
    if (!asJson)
        return {{}, (canRedraw() ? "\n" : "") + error};
    OrderedJson reply = failureReply(text.toStdString());
    if (!ticket.isEmpty())
        reply["ticket"] = toJson(ticket);
    return {writeJson(reply) + '\n', error};
}

/// A driver that forgot a ticket, or was started anew, cannot tell what the machine did.
QString unknownTicketHint()
{
    return QStringLiteral("hint: ") + hintFor(QStringLiteral("DE03111"));
}

QString commandLineOf(const QString &id, const CommandLine &line)
{
    const bool isLikeAnOption = id.startsWith(QLatin1Char('-')); // and comes behind all options
    QString text = QStringLiteral("quvctl ticket");
    if (!isLikeAnOption)
        text += QLatin1Char(' ') + shellWord(id);
    for (const char *option : {"host", "port", "token-file"})
        if (line.isSet(option))
            text += QStringLiteral(" --%1 %2")
                        .arg(QLatin1String(option), shellWord(line.value(option, QString())));
    return isLikeAnOption ? text + QStringLiteral(" -- ") + shellWord(id) : text;
}

/// A driver may tell any percentage and any time.
CmdStatus clamped(CmdStatus status)
{
    if (!status.setStatus(status.status())) // neither running nor ended, so that nobody waits for it
        return CmdStatus(CmdStatus::Unknown, 0, 0, status.resultValue(), status.info());
    status.setPercentage(status.percentage());
    status.setTimeLeft(status.timeLeft());
    return status;
}

} // namespace

OnInterrupt::OnInterrupt(const QString &text, bool asJson, const QString &ticket)
    : m_texts(interruptedTexts(text, asJson, ticket)),
      m_outerTexts(interruptTexts.exchange(&m_texts))
{
    struct sigaction action = {};
    action.sa_handler = endInterrupted;
    sigaction(SIGINT, nullptr, &m_outerAction);
    if (m_outerAction.sa_handler != SIG_IGN)
        sigaction(SIGINT, &action, nullptr);
}

OnInterrupt::~OnInterrupt()
{
    sigaction(SIGINT, &m_outerAction, nullptr);
    interruptTexts = m_outerTexts;
}

Ticket::Ticket(const Driver &driver, const QString &id, const CommandLine &line)
    : m_driver(driver),
      m_id(id),
      m_again(commandLineOf(id, line)),
      m_asJson(line.isSet("json"))
{}

CmdStatus Ticket::status() const
{
    GetCommandStatusCmd command(m_id);
    const XmlRpcAnswer &envelope = m_driver.execute(command);
    if (envelope.retCode() != 0) {
        RequestRefused refusal(envelope);
        if (errorLines(envelope).filter(unknownTicketHint()).isEmpty())
            refusal.addHint(unknownTicketHint());
        throw refusal;
    }
    const auto *answer = dynamic_cast<const GetCommandStatusAnswer *>(command.getProtoAnswer());
    if (!answer)
        throw std::runtime_error("the answer is no status of a ticket");
    return clamped(answer->cmdStatus());
}

CmdStatus Ticket::waitForEnd(std::chrono::milliseconds interval, bool showProgress) const
{
    const QString hint = QStringLiteral("the machine goes on; look again with: %1").arg(m_again);
    const OnInterrupt onInterrupt(hint, m_asJson, m_id);
    std::optional<Progress> progress;
    if (showProgress)
        progress.emplace();
    try {
        for (int failures = 0;; std::this_thread::sleep_for(interval)) {
            CmdStatus now = statusDespiteFailures(failures);
            if (failures > 0)
                continue;
            if (progress)
                progress->tell(now);
            if (now.status() <= 0)
                return now;
        }
    } catch (const TransportError &) {
        progress.reset();
        printError(hint);
        throw;
    }
}

CmdStatus Ticket::statusDespiteFailures(int &failures) const
{
    constexpr int mostFailures = 5; // in a row
    try {
        CmdStatus now = status();
        failures = 0;
        return now;
    } catch (const TransportError &) {
        if (++failures == mostFailures)
            throw;
        return CmdStatus();
    }
}

const XmlRpcAnswer &startOnMachine(const Driver &driver, ProtoCommand &command, const CommandLine &line)
{
    const QString hint =
        QStringLiteral("the machine may have begun; look at it with: quvctl call GET_STATUS");
    const OnInterrupt onInterrupt(hint, line.isSet("json"));
    try {
        return driver.start(command);
    } catch (const HttpRefusal &refusal) {
        if (!refusal.isOfRequest())
            printError(hint);
        throw;
    } catch (const TransportError &error) {
        if (!QByteArray(error.what()).startsWith("Cannot connect"))
            printError(hint);
        throw;
    }
}

QString ticketIn(const ProtoCommand &command)
{
    const auto *answer = dynamic_cast<const AsyncAnswer *>(command.getProtoAnswer());
    if (!answer)
        throw std::runtime_error("the driver gave no ticket");
    return answer->ticketID();
}

XmlRpcAnswer resultOf(const CmdStatus &ended)
{
    bool ok = false;
    XmlRpcAnswer envelope = ended.getXmlRpcAnswer(&ok);
    if (ok && envelope.retCode() != 0)
        throw RequestRefused(envelope);
    if (ended.status() != CmdStatus::Done)
        throw std::runtime_error(ended.info().toStdString());
    if (!ok)
        throw std::runtime_error("the command has ended without a result");
    return envelope;
}

} // namespace quv
