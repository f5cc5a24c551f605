// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/driversettings.h"

#include <QuvFramework/fw_fileutils.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

// Where the files of a driver lie when its settings do not say it.

namespace {

QString joined(const QString &folder, const char *name)
{
    const bool isRoot = folder == QDir::separator(); // alone it ends with a separator
    return (isRoot ? QString() : folder) + QDir::separator() + QLatin1String(name);
}

QString joinedFolder(const QString &folder, const char *name)
{
    return joined(folder, name) + QDir::separator();
}

} // namespace

QString DriverSettings::getEnvValue(const char *name)
{
    const QString folder = qEnvironmentVariable(name);
    return !folder.isEmpty() && FW_FileUtils::isDirWritable(folder) ? FW_FileUtils::removeEndSeparator(folder)
                                                                    : QString();
}

QString DriverSettings::getEnvRWDataPrefixPath()
{
    return getEnvValue("NUA_RW_DATA");
}

QString DriverSettings::getEnvConfigDataPrefixPath()
{
    return getEnvValue("NUA_CONFIG");
}

QString DriverSettings::defaultAppPath()
{
    const QString prefix = getEnvRWDataPrefixPath();
    return prefix.isEmpty() ? QStringLiteral("/var/lib/velto/nuadriver") : prefix;
}

QString DriverSettings::defaultDataPath()
{
    return joined(defaultAppPath(), "NUAlocal");
}

QString DriverSettings::defaultConfigurationPath()
{
    return joinedFolder(defaultDataPath(), "config");
}

QString DriverSettings::defaultCustomCalibrationProfilesPath()
{
    return joinedFolder(defaultDataPath(), "profiles");
}

QString DriverSettings::defaultStatsDBPath()
{
    return joinedFolder(defaultDataPath(), "stats");
}

QString DriverSettings::getDriverPrivatePath()
{
    QString folder = getEnvConfigDataPrefixPath();
    // without an application Qt would only complain
    if (folder.isEmpty() && QCoreApplication::instance())
        folder = QCoreApplication::applicationDirPath();
    return joinedFolder(folder, "config_data");
}

QString DriverSettings::defaultDefaultCalibrationProfilesPath()
{
    return getDriverPrivatePath();
}

QString DriverSettings::defaultLogFilePath(QString name)
{
    const QString folder = qEnvironmentVariable("NUA_LOG_PATH");
    if (!folder.isEmpty() && FW_FileUtils::isDirReadable(folder))
        return FW_FileUtils::appendEndSeparator(folder);
    return QStringLiteral("/var/log/velto/%1/").arg(name);
}
