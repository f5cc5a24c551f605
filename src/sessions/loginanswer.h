// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/** The answer to LOGIN: the session's ID, the member "session_id" of a struct. */
class QUVPROTOCOL_EXPORT LoginAnswer : public quv::DescribedAnswer<LoginAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char sessionID_TAG[] = "session_id";

    LoginAnswer() = default;
    explicit LoginAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE00353 without the member
    explicit LoginAnswer(QList<QVariant> &list);            ///< a string; throws DE00353 without one

    LoginAnswer *clone() const override;

    QString sessionID() const { return m_sessionID; }
    // For the driver; both take a text, and leave the ID alone for anything else.
    void setSessionID(const QVariant &sessionID);
    void setSessionID(const XmlRpc::XmlRpcValue &sessionID);

private:
    QString m_sessionID;
};
