// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "session.h"

/** LOGIN: opens a session of a client on a machine; the answer is a LoginAnswer. */
class QUVPROTOCOL_EXPORT LoginCmd : public quv::DescribedCommand<LoginCmd, ConfProtoCommand>
{
public:
    struct Description;

    LoginCmd() = default;
    explicit LoginCmd(const Session &session);
    LoginCmd(const MachineID &machine, QString name, int level);
    LoginCmd(int machineID, QString name, int level); ///< of a dispenser
    /**
     * The machine's ID (int), the client's name (string), and if given its level (int) and the type of the machine (int). Throws
     * DE00160, DE00161, DE01396, DE03030 in this order for another type.
     */
    explicit LoginCmd(const XmlRpc::XmlRpcValue &value);
    explicit LoginCmd(QList<QVariant> list); ///< likewise
    explicit LoginCmd(int) = delete;         // would be an XML-RPC value

    LoginCmd *clone() const override;

    const Session &session() const { return m_session; }

private:
    Session m_session;
    int m_deviceType =
        static_cast<int>(SerialDeviceType::Dispenser); ///< of the session's machine, as it travels
};
