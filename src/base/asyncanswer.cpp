// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/asyncanswer.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

AsyncAnswer::AsyncAnswer(QString ticketID) : m_ticketID(ticketID) {}

AsyncAnswer::AsyncAnswer(const XmlRpc::XmlRpcValue &value)
{
    if (!DecodeXmlRpcValue(value, ticketID_TAG, m_ticketID))
        throw FW_Exception("DE00573", "AsyncAnswer decoding failed: invalid xml-rpc value", Q_FUNC_INFO);
}

AsyncAnswer::AsyncAnswer(QList<QVariant> &list) : ConfProtoAnswer(list)
{
    if (list.isEmpty())
        throw FW_Exception("DE00572", "AsyncAnswer decoding failed: invalid QVariant value", Q_FUNC_INFO);
    setTicketID(list.constFirst());
}

AsyncAnswer *AsyncAnswer::clone() const
{
    return new AsyncAnswer(*this);
}

bool AsyncAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const AsyncAnswer *>(other);
    return that && m_ticketID == that->m_ticketID;
}

XmlRpc::XmlRpcValue AsyncAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    EncodeXmlRpcValue(value, ticketID_TAG, m_ticketID);
    return value;
}

void AsyncAnswer::setTicketID(const QVariant &ticketID)
{
    if (ticketID.canConvert<QString>())
        m_ticketID = ticketID.toString();
}

void AsyncAnswer::setTicketID(const XmlRpc::XmlRpcValue &value)
{
    DecodeXmlRpcValue(value, ticketID_TAG, m_ticketID);
}
