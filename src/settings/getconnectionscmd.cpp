// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getconnectionscmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "settings/getconnectionsanswer.h"

namespace {

constexpr quv::Refusal noStruct = {"DE03220", "GetConnectionsCmd: expected STRUCT parameter"};
constexpr quv::Refusal noType = {"DE03221", "Connection type: expected INT parameter"};
constexpr quv::Refusal noFilter = {"DE03222", "Bluetooth connection filter: expected INT parameter"};

} // namespace

struct GetConnectionsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_CONNECTIONS;
    static constexpr auto commandText = "Connections read";
    static constexpr auto actionText =
        QT_TRANSLATE_NOOP("QuvProtocol", "Scanning available dispenser connections");

    static constexpr char answerFailed[] = "Failed to create GetConnectionsAnswer";
    static constexpr quv::AnsweredBy<GetConnectionsAnswer> answer = {
        {}, {"DE03223", answerFailed}, {"DE03224", answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"connections",
             "\"conn_type\": 0 serial, 1 Bluetooth, 2 FTDI, -1 any; \"bt_conn_filter\": 0 discovery, "
             "1 pairing, 2 connection, 3 machine info; in a list two ints"},
            "struct", GetConnectionsCmd().xmlrpc_parameters()[0]);
        teller.refuse("another type", {noStruct, {}});
        teller.refuse("conn_type is of another type", {noType, noType});
        teller.refuse("bt_conn_filter is of another type", {noFilter, noFilter});
    }
};

template class quv::DescribedCommand<GetConnectionsCmd, ConfProtoCommand>;

GetConnectionsCmd::GetConnectionsCmd(int connectionType, BTConnectionFilter filter)
    : m_connectionType(connectionType),
      m_filter(filter)
{}

GetConnectionsCmd::GetConnectionsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpc::XmlRpcValue *request = FindXmlRpcElement(value, 0);
    if (!request)
        return;
    if (request->getType() != XmlRpc::XmlRpcValue::TypeStruct)
        quv::throwRefusal(noStruct, Q_FUNC_INFO);
    quv::readMember(*request, connType_TAG, m_connectionType, noType, Q_FUNC_INFO);
    quv::readMember(*request, btConnFilter_TAG, m_filter, noFilter, Q_FUNC_INFO);
}

GetConnectionsCmd::GetConnectionsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    quv::ListReader reader(list, Q_FUNC_INFO);
    reader.optional(connType_TAG, m_connectionType, {noType, noType});
    reader.optional(btConnFilter_TAG, m_filter, {noFilter, noFilter});
}

GetConnectionsCmd *GetConnectionsCmd::clone() const
{
    return new GetConnectionsCmd(*this);
}

QList<QVariant> GetConnectionsCmd::parameters() const
{
    return {m_connectionType, m_filter};
}

XmlRpc::XmlRpcValue GetConnectionsCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array[0][connType_TAG] = m_connectionType;
    array[0][btConnFilter_TAG] = m_filter;
    return array;
}

QString GetConnectionsCmd::BTconnectionFilterStr(BTConnectionFilter filter)
{
    switch (filter) {
    case DiscoveryFilter:
        return QStringLiteral("Discovery");
    case PairingFilter:
        return QStringLiteral("Pairing");
    case ConnectionFilter:
        return QStringLiteral("Connection");
    case MachineInfoFilter:
        return QStringLiteral("Machine info");
    }
    return {};
}
