// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "usswaterchangestatus.h"

namespace quv {
struct MemberFacts;
}

/** The answer to GET_USS_W_STATUS: how the water of the ultrasound cleaning is faring. Over XML-RPC the struct of that status. */
class QUVPROTOCOL_EXPORT GetUssWaterStatusAnswer : public ConfProtoAnswer
{
public:
    GetUssWaterStatusAnswer() = default;
    explicit GetUssWaterStatusAnswer(const UssWaterChangeStatus &status);
    // Both throw what UssWaterChangeStatus throws.
    explicit GetUssWaterStatusAnswer(const XmlRpc::XmlRpcValue &value);
    explicit GetUssWaterStatusAnswer(QList<QVariant> &list);

    GetUssWaterStatusAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    QList<QVariant> variantParameters() const; ///< those of the status

    const UssWaterChangeStatus &ussWaterChangeStatus() const { return m_status; }

    bool operator==(const GetUssWaterStatusAnswer &other) const { return m_status == other.m_status; }
    bool operator!=(const GetUssWaterStatusAnswer &other) const { return !(*this == other); }

    static QList<quv::MemberFacts> memberFacts();

private:
    UssWaterChangeStatus m_status;
};
