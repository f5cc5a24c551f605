// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/getusswaterstatusanswer.h"

#include "base/memberfacts_p.h"
#include "statistics/usswaterchangestatus_p.h"

GetUssWaterStatusAnswer::GetUssWaterStatusAnswer(const UssWaterChangeStatus &status) : m_status(status) {}

GetUssWaterStatusAnswer::GetUssWaterStatusAnswer(const XmlRpc::XmlRpcValue &value)
    : ConfProtoAnswer(value),
      m_status(value)
{}

GetUssWaterStatusAnswer::GetUssWaterStatusAnswer(QList<QVariant> &list)
    : ConfProtoAnswer(list),
      m_status(list)
{}

GetUssWaterStatusAnswer *GetUssWaterStatusAnswer::clone() const
{
    return new GetUssWaterStatusAnswer(*this);
}

bool GetUssWaterStatusAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetUssWaterStatusAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue GetUssWaterStatusAnswer::toXmlRpcValue() const
{
    return m_status.toXmlRpcValue();
}

QList<QVariant> GetUssWaterStatusAnswer::variantParameters() const
{
    return m_status.variantParameters();
}

QList<quv::MemberFacts> GetUssWaterStatusAnswer::memberFacts()
{
    return quv::factsOf(quv::ussWaterChangeRecord().rows());
}
