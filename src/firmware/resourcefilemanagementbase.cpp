// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilemanagementbase.h"

#include "firmware/resourcefilemanagementbase_p.h"

#include <utility>

namespace {

const quv::Record<ResourceFileManagementBase> &record()
{
    return quv::recordOf<ResourceFileManagementBase>();
}

} // namespace

ResourceFileManagementBase::ResourceFileManagementBase(const FwResourceData &data) : m_resourceData(data) {}

ResourceFileManagementBase::ResourceFileManagementBase(QList<QVariant> &list)
{
    if (list.isEmpty())
        quv::throwRefusal(quv::emptyResourceList, Q_FUNC_INFO);
    record().decode(list, *this, Q_FUNC_INFO);
}

ResourceFileManagementBase::ResourceFileManagementBase(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

ResourceFileManagementBase::ResourceFileManagementBase(QStringList parameters)
{
    m_resourceData = quv::madeOrRefused({"DE02740", quv::invalidResourceData}, Q_FUNC_INFO,
                                        [&] { return FwResourceData(std::move(parameters)); });
}

void ResourceFileManagementBase::setDefaultsBase()
{
    m_resourceData.setDefaults();
}

QList<int> ResourceFileManagementBase::serialParameters() const
{
    return m_resourceData.serialParameters();
}

XmlRpc::XmlRpcValue ResourceFileManagementBase::xmlRpcValue() const
{
    return record().encode(*this);
}

QList<QVariant> ResourceFileManagementBase::parameters() const
{
    return {m_resourceData.subcommand, m_resourceData.resourceIndex, m_resourceData.blockAddress,
            m_resourceData.data};
}

bool ResourceFileManagementBase::operator==(const ResourceFileManagementBase &other) const
{
    return record().equal(*this, other);
}
