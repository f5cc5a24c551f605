// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "interrupt.h"
#include "machinechoice.h"

#include <functional>

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
    using Send =
        std::function<const XmlRpcAnswer &(ProtoCommand &)>; ///< as Driver::execute, outside of a session

    /// \throws RequestRefused when the driver has no such machine, or takes no more clients, and what \a send throws
    MachineSession(const MachineChoice &choice, const Send &send, const Send &sendShortly);
    ~MachineSession();
    MachineSession(const MachineSession &) = delete;
    MachineSession &operator=(const MachineSession &) = delete;

    const QString &id() const { return m_id; }

private:
    void logOut() const noexcept;

    const Send m_sendShortly{};
    const QString m_id{};
    const OnInterrupt m_onInterrupt;
};

} // namespace quv
