// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/configparams.h"

#include "setup/configparams_p.h"

namespace {

const quv::Record<ConfigParams> &record()
{
    static const quv::Record<ConfigParams> record(ConfigParams::Description::members<ConfigParams>());
    return record;
}

} // namespace

ConfigParams::ConfigParams(const QMap<QString, QVariant> &params) : m_configParams(params) {}

ConfigParams::ConfigParams(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

ConfigParams::ConfigParams(QList<QVariant> list)
{
    record().decode(list, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue ConfigParams::xmlrpcvalue(bool *ok) const
{
    if (ok)
        *ok = true;
    return record().encode(*this);
}

bool ConfigParams::operator==(const ConfigParams &other) const
{
    return record().equal(*this, other);
}
