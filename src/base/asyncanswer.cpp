// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/asyncanswer.h"

#include "base/describedanswer_p.h"

#include <QuvFramework/fw_exception.h>

struct AsyncAnswer::Description
{
    static std::vector<quv::Member<AsyncAnswer>> members()
    {
        return {{ticketID_TAG,
                 &AsyncAnswer::m_ticketID,
                 {"DE00573", "AsyncAnswer decoding failed: invalid xml-rpc value"}}};
    }
};

template class quv::DescribedAnswer<AsyncAnswer, ConfProtoAnswer>;

AsyncAnswer::AsyncAnswer(QString ticketID) : m_ticketID(ticketID) {}

AsyncAnswer::AsyncAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

AsyncAnswer::AsyncAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    if (list.isEmpty())
        throw FW_Exception("DE00572", "AsyncAnswer decoding failed: invalid QVariant value", Q_FUNC_INFO);
    setTicketID(list.constFirst());
}

AsyncAnswer *AsyncAnswer::clone() const
{
    return new AsyncAnswer(*this);
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
