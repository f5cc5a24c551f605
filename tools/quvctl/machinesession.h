// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "interrupt.h"
#include "machinechoice.h"

#include <functional>
#include <mutex>

class ProtoCommand;
class XmlRpcAnswer;

namespace quv {

/**
 * A login on one of a driver's machines, which ends with it, and with Ctrl-C too. A driver that is gone then, or knows the session no
 * more, changes nothing: it ends sessions by itself.
 */
class MachineSession
{
public:
    /// As Driver::execute, with the session that the request begins with; an empty one is none.
    using Send = std::function<const XmlRpcAnswer &(ProtoCommand &, const QString &session)>;

    /// \throws RequestRefused when the driver has no such machine, or takes no more clients, and what \a send throws
    MachineSession(const MachineID &machine, const Send &send, const Send &sendShortly);
    ~MachineSession();
    MachineSession(const MachineSession &) = delete;
    MachineSession &operator=(const MachineSession &) = delete;

    QString id() const;
    /// Logs in again on the same machine, for a driver that knows the session no more. \throws as the constructor
    void renew();

private:
    void logOut() const noexcept;

    const MachineID m_machine;
    const Send m_send;
    const Send m_sendShortly;
    mutable std::mutex m_mutex{}; ///< a Ctrl-C asks for the session from a thread of its own
    QString m_id{};
    const OnInterrupt m_onInterrupt;
};

/// The machine that \a choice calls. \throws as MachineSession, std::runtime_error when the driver has none of the kind
MachineID machineOf(const MachineChoice &choice, const MachineSession::Send &send);
/// The active machine of a kind; nothing when the driver has none, or does not tell. \throws TransportError when it is gone
std::optional<MachineID> activeMachine(SerialDeviceType type, const MachineSession::Send &send);

} // namespace quv
