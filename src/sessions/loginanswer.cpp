// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/loginanswer.h"

#include "base/decoding_p.h"
#include "base/describedanswer_p.h"

struct LoginAnswer::Description
{
    static std::vector<quv::Member<LoginAnswer>> members()
    {
        constexpr quv::Refusal invalid = {"DE00353", "LoginAnswer decoding failed: invalid QVariant value"};
        return {quv::Member<LoginAnswer>(sessionID_TAG, &LoginAnswer::m_sessionID, invalid, invalid)};
    }
};

template class quv::DescribedAnswer<LoginAnswer, ConfProtoAnswer>;

LoginAnswer::LoginAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

LoginAnswer::LoginAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

LoginAnswer *LoginAnswer::clone() const
{
    return new LoginAnswer(*this);
}

void LoginAnswer::setSessionID(const QVariant &sessionID)
{
    quv::decodeVariant(sessionID, m_sessionID);
}

void LoginAnswer::setSessionID(const XmlRpc::XmlRpcValue &sessionID)
{
    DecodeXmlRpcValue(sessionID, m_sessionID);
}
