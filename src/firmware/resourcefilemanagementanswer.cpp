// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilemanagementanswer.h"

#include "firmware/resourcefilemanagementbase_p.h"

#include <utility>

ResourceFileManagementAnswer::ResourceFileManagementAnswer(const FwResourceData &data)
    : ResourceFileManagementBase(data)
{}

ResourceFileManagementAnswer::ResourceFileManagementAnswer(QList<QVariant> &list)
    : SerialProtoAnswer(list),
      ResourceFileManagementBase(list)
{}

ResourceFileManagementAnswer::ResourceFileManagementAnswer(const XmlRpc::XmlRpcValue &value)
    : SerialProtoAnswer(value),
      ResourceFileManagementBase(value)
{}

ResourceFileManagementAnswer::ResourceFileManagementAnswer(QStringList tokens)
    : SerialProtoAnswer(std::move(tokens)),
      ResourceFileManagementBase(m_parameters)
{}

ResourceFileManagementAnswer *ResourceFileManagementAnswer::clone() const
{
    return new ResourceFileManagementAnswer(*this);
}

bool ResourceFileManagementAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const ResourceFileManagementAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue ResourceFileManagementAnswer::toXmlRpcValue() const
{
    return xmlRpcValue();
}

QList<quv::MemberFacts> ResourceFileManagementAnswer::memberFacts()
{
    return quv::factsOf(quv::recordOf<ResourceFileManagementBase>().rows());
}
