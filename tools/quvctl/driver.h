// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "driveraddress.h"
#include "jsonvalue.h"
#include "machinesession.h"
#include "xmlrpcclient.h"

#include "catalogue/protocommandlist.h"

#include <QtCore/QStringList>

#include <memory>
#include <stdexcept>

class FW_DriverError;
class ProtoCommand;
class XmlRpcAnswer;

namespace quv {

class CommandLine;

/// The first of the envelope's errors; what one without errors tells is its message. \a what, if any, comes before the text.
FW_DriverError firstError(const XmlRpcAnswer &envelope, const QString &what = QString());

/// A reply that tells success, or the first of the errors that stand beside the answer.
OrderedJson outcomeOf(const XmlRpcAnswer &envelope);

/// What a driver did not carry out, in lines: the reasons, with a hint behind those that need one, then what became of it.
class RequestRefused : public std::runtime_error
{
public:
    /// \a what, if any, is told before all of them.
    explicit RequestRefused(const XmlRpcAnswer &envelope, const QString &what = QString());
    const QStringList &lines() const { return m_lines; }
    /// The first of the envelope's errors as a failure for programs, with the envelope.
    const OrderedJson &json() const { return m_json; }
    /// Told behind the lines: what the user can do.
    void addHint(const QString &hint) { m_lines.append(hint); }

private:
    QStringList m_lines{};
    OrderedJson m_json{};
};

/**
 * The driver that --host, --port and --timeout name, and the environment where they do not; and of its machines that of --on, on which
 * the user is logged in for as long as this stands. A session that the driver knows no more is opened again on the same machine.
 */
class Driver
{
public:
    /**
     * Without --on a machine of the kind \a kept is that of the beginning, whichever is active later; a driver that does not tell of
     * its machines, or has no sessions, chooses by itself. \throws UsageError, and as execute when it cannot log in
     */
    explicit Driver(const CommandLine &line, std::optional<SerialDeviceType> kept = std::nullopt);
    Driver(const Driver &) = delete;
    Driver &operator=(const Driver &) = delete;

    /// The machine that the user has chosen, or that is kept; nothing leaves the choice to the driver.
    const std::optional<MachineChoice> &chosen() const { return m_chosen; }
    /// The options of a command line that lead to the same machine, a blank before each.
    const QString &sameMachine() const { return m_sameMachine; }

    /**
     * Sends \a command, waits for its end, and gives it the answer.
     * \throws FaultException, TransportError, CodecError as XmlRpcClient, and FW_DriverError for an answer of wrong form
     */
    const XmlRpcAnswer &execute(ProtoCommand &command) const;
    /// Sends \a command, which goes on by itself, and gives it the ticket for an answer. \throws as execute
    const XmlRpcAnswer &start(ProtoCommand &command) const;

private:
    const XmlRpcAnswer &send(ProtoCommand &command, ProtoCommandList::CallKind kind) const;
    const XmlRpcAnswer &sendBy(const XmlRpcClient &client, ProtoCommand &command,
                               ProtoCommandList::CallKind kind, const QString &session) const;
    void logIn(const CommandLine &line, std::optional<SerialDeviceType> kept);

    DriverAddress m_address{};
    std::optional<MachineChoice> m_chosen{};
    QString m_sameMachine{};
    bool m_isVerbose = false;
    XmlRpcClient m_client;
    std::unique_ptr<MachineSession> m_session{}; ///< last, so that it ends while the driver can be asked
};

} // namespace quv
