// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confprotoanswer.h"
#include "describedanswer.h"

/** The ticket that a client gets at once for a command that goes on: a struct with the member "ticket_id" (string). */
class QUVPROTOCOL_EXPORT AsyncAnswer : public quv::DescribedAnswer<AsyncAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char ticketID_TAG[] = "ticket_id";

    AsyncAnswer() = default;
    explicit AsyncAnswer(QString ticketID);
    explicit AsyncAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE00573 when there is no ticket
    explicit AsyncAnswer(QList<QVariant> &list); ///< reads the first element; throws DE00572 without one
    explicit AsyncAnswer(const char *) = delete; // a QString or a value? say which

    AsyncAnswer *clone() const override;

    QString ticketID() const { return m_ticketID; }
    // Each leaves the ticket alone when there is none in what it is given.
    void setTicketID(const QVariant &ticketID);
    void setTicketID(const XmlRpc::XmlRpcValue &value);

private:
    QString m_ticketID;
};
