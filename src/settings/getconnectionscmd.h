// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** GET_CONNECTIONS: asks the driver which connections to machines it can see; the answer is a GetConnectionsAnswer. */
class QUVPROTOCOL_EXPORT GetConnectionsCmd : public quv::DescribedCommand<GetConnectionsCmd, ConfProtoCommand>
{
public:
    struct Description;

    /** How far the driver goes with the Bluetooth devices that it finds. */
    enum BTConnectionFilter : int { DiscoveryFilter = 0, PairingFilter, ConnectionFilter, MachineInfoFilter };

    static constexpr char connType_TAG[] = "conn_type";
    static constexpr char btConnFilter_TAG[] = "bt_conn_filter";

    static constexpr int anyConnection = -1;

    GetConnectionsCmd() = default; ///< connections of any type, by discovery
    GetConnectionsCmd(int connectionType, BTConnectionFilter filter);
    /**
     * One optional struct, of which each member may be missing. Throws DE03220 for what is no struct, DE03221 (conn_type) and
     * DE03222 (bt_conn_filter) for a member that is no int.
     */
    explicit GetConnectionsCmd(const XmlRpc::XmlRpcValue &value);
    /** Two optional ints, connection type and filter. Throws DE03221 and DE03222 likewise. */
    explicit GetConnectionsCmd(QList<QVariant> list);

    GetConnectionsCmd *clone() const override;
    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    int connectionType() const { return m_connectionType; } ///< an FW_SerialPort::SerialPortConnType, or any
    BTConnectionFilter filter() const { return static_cast<BTConnectionFilter>(m_filter); }

    /** The filter's name in English; empty for one that there is not. */
    static QString BTconnectionFilterStr(BTConnectionFilter filter);

private:
    int m_connectionType = anyConnection;
    int m_filter = DiscoveryFilter;
};
