// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "connectionstatus.h"

/** The answer to GET_CONN_STATUS: how the driver's links stand, a struct of ints. */
class QUVPROTOCOL_EXPORT GetConnectionStatusAnswer
    : public quv::DescribedAnswer<GetConnectionStatusAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char serialConnectionStatus_TAG[] = "serial_connection_status";
    static constexpr char btConnectionStatus_TAG[] = "BT_connection_status";
    static constexpr char scaleConnectionStatus_TAG[] = "scale_connection_status";

    GetConnectionStatusAnswer() = default;
    GetConnectionStatusAnswer(ConnectionStatus serial, ConnectionStatus bluetooth,
                              ConnectionStatus scale = defaultScaleConnectionStatus());
    /** Throws DE01670 (serial), DE01671 (Bluetooth), DE01672 (scale) for a member that is missing or no int. */
    explicit GetConnectionStatusAnswer(const XmlRpc::XmlRpcValue &value);
    explicit GetConnectionStatusAnswer(QList<QVariant> &list); ///< the same as a list

    GetConnectionStatusAnswer *clone() const override;

    ConnectionStatus serialConnectionStatus() const { return static_cast<ConnectionStatus>(m_serial); }
    ConnectionStatus btConnectionStatus() const { return static_cast<ConnectionStatus>(m_bluetooth); }
    ConnectionStatus scaleConnectionStatus() const { return static_cast<ConnectionStatus>(m_scale); }

    static constexpr ConnectionStatus defaultScaleConnectionStatus() { return ConnectionStatus::NotUsed; }

private:
    // as they travel
    int m_serial = static_cast<int>(ConnectionStatus::NotConnected);
    int m_bluetooth = static_cast<int>(ConnectionStatus::NotUsed);
    int m_scale = static_cast<int>(defaultScaleConnectionStatus());
};
