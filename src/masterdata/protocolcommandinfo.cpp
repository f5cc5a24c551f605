// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/protocolcommandinfo.h"

#include "base/commanddata.h"
#include "base/record_p.h"
#include "masterdata/protocolcommandinfo_p.h"

#include <QuvFramework/fw_metatype.h>

namespace {

const bool isRegistered = RegisterTravellingType<ProtocolCommandInfo>("ProtocolCommandInfo");

const quv::Record<ProtocolCommandInfo> &record()
{
    using Info = ProtocolCommandInfo;
    static const quv::Record<Info> record({
        {Info::id_TAG, &Info::id, quv::noCommandID},
        {Info::name_TAG, &Info::name, quv::noCommandName},
        {Info::code_TAG, &Info::code, quv::noCommandCode},
        {Info::minParams_TAG, &Info::minParams, quv::noMinParams},
        {Info::maxParams_TAG, &Info::maxParams, quv::noMaxParams},
        {Info::driverCmd_TAG, &Info::driverCmd, quv::noDriverCmd},
        {Info::version_TAG, &Info::version, quv::noCommandVersion},
        {Info::enabled_TAG, &Info::enabled}, // optional, as is the next: older drivers do not tell them
        {Info::timeTracking_TAG, &Info::timeTracking},
    });
    return record;
}

} // namespace

ProtocolCommandInfo::ProtocolCommandInfo(const CommandData &data)
    : id(data.id),
      name(data.name),
      code(data.m_code),
      minParams(data.minParams),
      maxParams(data.maxParams),
      driverCmd(!data.useDispenser),
      version(data.version),
      enabled(data.available),
      timeTracking(data.trackExecutionTime)
{}

ProtocolCommandInfo::ProtocolCommandInfo(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue ProtocolCommandInfo::toXmlRpcValue() const
{
    return record().encode(*this);
}

ProtocolCommandInfo::operator QString() const
{
    return QStringLiteral("Command %1 (version %2)").arg(name, QString::number(version));
}

bool ProtocolCommandInfo::operator==(const ProtocolCommandInfo &other) const
{
    return record().equal(*this, other);
}
