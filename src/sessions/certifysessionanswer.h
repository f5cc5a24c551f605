// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/** The answer to CERTIFY_SESSION: whether the driver has the same key, the member "key_verify_result" of a struct. */
class QUVPROTOCOL_EXPORT CertifySessionAnswer
    : public quv::DescribedAnswer<CertifySessionAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char keyVerifyResult_TAG[] = "key_verify_result";

    CertifySessionAnswer() = default;
    explicit CertifySessionAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE01028 without the member
    explicit CertifySessionAnswer(QList<QVariant> &list);            ///< a bool; throws DE01028 without one

    CertifySessionAnswer *clone() const override;

    bool keyVerifyResult() const { return m_keyVerifyResult; }
    // For the driver; both take a bool, and leave the result alone for anything else.
    void setKeyVerifyResult(const QVariant &keyVerifyResult);
    void setKeyVerifyResult(const XmlRpc::XmlRpcValue &keyVerifyResult);

private:
    bool m_keyVerifyResult = false;
};
