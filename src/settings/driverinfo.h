// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVersionNumber>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * Which driver it is, on which host, and where its files lie. Travels in a QVariant under its name, also as the map that its struct
 * is; over XML-RPC all members are strings.
 */
struct QUVPROTOCOL_EXPORT DriverInfo
{
    static constexpr char driverName_TAG[] = "driver_name";
    static constexpr char driverPath_TAG[] = "driver_path";
    static constexpr char driverVersion_TAG[] = "driver_version";
    static constexpr char hostName_TAG[] = "host_name";
    static constexpr char configurationFilePath_TAG[] = "config_file_path";
    static constexpr char defaultProfilesPath_TAG[] = "default_calib_file_path";
    static constexpr char customProfilesPath_TAG[] = "custom_calib_file_path";
    static constexpr char settingsPath_TAG[] = "settings_path";

    DriverInfo() = default;
    DriverInfo(QString name, QString path, const QVersionNumber &ofVersion, QString host,
               QString configurationFile, QString defaultProfiles, QString customProfiles, QString settings);
    /**
     * Throws DE01311 (name), DE00354 (path), DE00795 (version), DE00796 (host), DE00624 (configuration file), DE01472 (default
     * calibration profiles), DE00625 (custom ones) without the member. The path of the settings may be missing.
     */
    explicit DriverInfo(const XmlRpc::XmlRpcValue &value);
    explicit DriverInfo(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit DriverInfo(int) = delete;
    explicit DriverInfo(double) = delete;
    explicit DriverInfo(const char *) = delete;

    void setDefaults(); ///< nothing is known
    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const DriverInfo &other) const;
    bool operator!=(const DriverInfo &other) const { return !(*this == other); }

    QString driverName;
    QString driverPath;
    QVersionNumber version;
    QString hostName;
    QString configurationFilePath;
    QString defaultProfilesPath; ///< of calibrations
    QString customProfilesPath;
    QString settingsPath;
};

Q_DECLARE_METATYPE(DriverInfo)
