// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/certifysessionanswer.h"

#include "base/decoding_p.h"
#include "base/describedanswer_p.h"

struct CertifySessionAnswer::Description
{
    static std::vector<quv::Member<CertifySessionAnswer>> members()
    {
        constexpr quv::Refusal invalid = {"DE01028",
                                          "CertifySessionAnswer decoding failed: invalid QVariant value"};
        return {quv::Member<CertifySessionAnswer>(
            keyVerifyResult_TAG, &CertifySessionAnswer::m_keyVerifyResult, invalid, invalid)};
    }
};

template class quv::DescribedAnswer<CertifySessionAnswer, ConfProtoAnswer>;

CertifySessionAnswer::CertifySessionAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

CertifySessionAnswer::CertifySessionAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

CertifySessionAnswer *CertifySessionAnswer::clone() const
{
    return new CertifySessionAnswer(*this);
}

void CertifySessionAnswer::setKeyVerifyResult(const QVariant &keyVerifyResult)
{
    quv::decodeVariant(keyVerifyResult, m_keyVerifyResult);
}

void CertifySessionAnswer::setKeyVerifyResult(const XmlRpc::XmlRpcValue &keyVerifyResult)
{
    DecodeXmlRpcValue(keyVerifyResult, m_keyVerifyResult);
}
