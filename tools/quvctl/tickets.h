// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "commandline.h"
#include "driver.h"
#include "interrupt.h"

#include "base/cmdstatus.h"

#include <chrono>
#include <exception>

namespace quv {

/// What failed while the command behind a ticket went on, so that the ticket is told with it.
class FailedBehindTicket : public std::exception
{
public:
    explicit FailedBehindTicket(const QString &ticket) : m_ticket(ticket) {}
    const char *what() const noexcept override { return "what failed behind a ticket"; }

    const QString &ticket() const { return m_ticket; }
    const std::exception_ptr &cause() const { return m_cause; }

private:
    QString m_ticket{};
    std::exception_ptr m_cause = std::current_exception();
};

/// What \a work gives, which is done behind a ticket. \throws FailedBehindTicket for all that it throws
template <class Work>
auto behindTicket(const QString &ticket, Work work)
{
    try {
        return work();
    } catch (...) {
        throw FailedBehindTicket(ticket);
    }
}

/// A command that a driver carries out while nobody waits for it.
class Ticket
{
public:
    Ticket(const Driver &driver, const QString &id, const CommandLine &line);

    const QString &id() const { return m_id; }
    /// The command line that asks for it again.
    const QString &again() const { return m_again; }

    /// \throws RequestRefused when the driver does not know the ticket, and as Driver::execute
    CmdStatus status() const;
    /**
     * Asks every \a interval until the command has ended. Ctrl-C, and a driver that is gone for several questions, end the
     * waiting, with the way to look again. \throws as status
     */
    CmdStatus waitForEnd(std::chrono::milliseconds interval, bool showProgress) const;
    /// The same, with another \a plan for Ctrl-C.
    CmdStatus waitForEnd(std::chrono::milliseconds interval, bool showProgress, InterruptPlan plan) const;
    /// What a Ctrl-C during the waiting tells.
    InterruptPlan interruptPlan() const;

private:
    QString hint() const;

    const Driver &m_driver;
    QString m_id{};
    QString m_again{};
    bool m_asJson = false;
};

/**
 * Sends a command that goes on by itself, as Driver::start. Ctrl-C, and a driver that does not answer, leave the user with the way
 * to see whether the machine has begun.
 */
const XmlRpcAnswer &startOnMachine(const Driver &driver, ProtoCommand &command, const CommandLine &line);

/// The ticket of a command that has been started: Driver::start. \throws std::runtime_error when the driver gave none
QString ticketIn(const ProtoCommand &command);

/**
 * The envelope of a command that has ended. \throws RequestRefused when it holds a return code other than 0, std::runtime_error when
 * the command ended without an envelope, or badly
 */
XmlRpcAnswer resultOf(const CmdStatus &ended);

} // namespace quv
