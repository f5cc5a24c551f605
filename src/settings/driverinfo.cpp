// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/driverinfo.h"

#include "base/record_p.h"
#include "settings/driverinfo_p.h"

#include <QuvFramework/fw_metatype.h>

#include <utility>

namespace {

const bool isRegistered = RegisterTravellingType<DriverInfo>("DriverInfo");

const quv::Record<DriverInfo> &record()
{
    using Info = DriverInfo;
    static const quv::Record<Info> record({
        {Info::driverName_TAG, &Info::driverName, quv::noDriverName},
        {Info::driverPath_TAG, &Info::driverPath, quv::noDriverPath},
        {Info::driverVersion_TAG, &Info::version, quv::noDriverVersion},
        {Info::hostName_TAG, &Info::hostName, quv::noHostName},
        {Info::configurationFilePath_TAG, &Info::configurationFilePath, quv::noConfigurationPath},
        {Info::defaultProfilesPath_TAG, &Info::defaultProfilesPath, quv::noDefaultProfilesPath},
        {Info::customProfilesPath_TAG, &Info::customProfilesPath, quv::noCustomProfilesPath},
        {Info::settingsPath_TAG, &Info::settingsPath},
    });
    return record;
}

} // namespace

template <>
const quv::FieldType &quv::fieldType<DriverInfo>()
{
    static constexpr FieldType type = objectType<DriverInfo>();
    return type;
}

DriverInfo::DriverInfo(QString name, QString path, const QVersionNumber &ofVersion, QString host,
                       QString configurationFile, QString defaultProfiles, QString customProfiles,
                       QString settings)
    : driverName(name),
      driverPath(path),
      version(ofVersion),
      hostName(host),
      configurationFilePath(configurationFile),
      defaultProfilesPath(defaultProfiles),
      customProfilesPath(customProfiles),
      settingsPath(settings)
{}

DriverInfo::DriverInfo(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

void DriverInfo::setDefaults()
{
    *this = DriverInfo();
}

XmlRpc::XmlRpcValue DriverInfo::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool DriverInfo::operator==(const DriverInfo &other) const
{
    return record().equal(*this, other);
}
