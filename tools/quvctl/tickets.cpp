// SPDX-License-Identifier: LGPL-3.0-or-later
#include "tickets.h"

#include "driveraddress.h"
#include "hints.h"
#include "patience.h"
#include "progress.h"
#include "terminal.h"
#include "xmlrpcerrors.h"

#include "base/asyncanswer.h"
#include "base/getcommandstatusanswer.h"
#include "base/getcommandstatuscmd.h"
#include "base/xmlrpcanswer.h"

#include <memory>
#include <optional>
#include <thread>

namespace quv {

namespace {

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
    text += sameDriver(line);
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
    return waitForEnd(interval, showProgress, interruptPlan());
}

CmdStatus Ticket::waitForEnd(std::chrono::milliseconds interval, bool showProgress, InterruptPlan plan) const
{
    const OnInterrupt onInterrupt(std::move(plan));
    std::optional<Progress> progress;
    if (showProgress)
        progress.emplace();
    try {
        for (Patience patience;; std::this_thread::sleep_for(interval)) {
            const std::optional<CmdStatus> now = patience.answerTo([&] { return status(); });
            if (!now)
                continue;
            waitForInterrupt();
            if (progress)
                progress->tell(*now);
            if (now->status() <= 0)
                return *now;
        }
    } catch (const TransportError &) {
        progress.reset();
        printError(hint());
        throw;
    }
}

QString Ticket::hint() const
{
    return QStringLiteral("the machine goes on; look again with: %1").arg(m_again);
}

InterruptPlan Ticket::interruptPlan() const
{
    return toldPlan(hint(), m_asJson, m_id);
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
