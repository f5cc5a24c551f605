// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/getkeyanswer.h"

#include "base/decoding_p.h"
#include "base/describedanswer_p.h"

struct GetKeyAnswer::Description
{
    static std::vector<quv::Member<GetKeyAnswer>> members()
    {
        constexpr quv::Refusal invalid = {"DE00908", "GetKeyAnswer decoding failed: invalid QVariant value"};
        return {quv::Member<GetKeyAnswer>(driverKey_TAG, &GetKeyAnswer::m_driverKey, invalid, invalid)};
    }
};

template class quv::DescribedAnswer<GetKeyAnswer, ConfProtoAnswer>;

GetKeyAnswer::GetKeyAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetKeyAnswer::GetKeyAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetKeyAnswer *GetKeyAnswer::clone() const
{
    return new GetKeyAnswer(*this);
}

void GetKeyAnswer::setDriverKey(const QVariant &driverKey)
{
    quv::decodeVariant(driverKey, m_driverKey);
}

void GetKeyAnswer::setDriverKey(const XmlRpc::XmlRpcValue &driverKey)
{
    DecodeXmlRpcValue(driverKey, m_driverKey);
}
