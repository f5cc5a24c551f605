// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ratios.h"
#include "settings/driversettings.h"
#include "suites.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace {

using XmlRpc::XmlRpcValue;
using S = DriverSettings;
using Type = SerialDeviceType;

XmlRpcValue structByHand(const S &settings)
{
    XmlRpcValue value;
    value["ConfigurationFileName"] = settings.getConfigurationFileName().toStdString();
    value["ConfigurationPath"] = settings.getConfigurationPath().toStdString();
    value["DefaultCalibrationProfilesFileName"] =
        settings.getDefaultCalibrationProfilesFileName().toStdString();
    value["CustomCalibrationProfilesFileName"] =
        settings.getCustomCalibrationProfilesFileName().toStdString();
    value["DefaultCalibrationProfilesPath"] = settings.getDefaultCalibrationProfilesPath().toStdString();
    value["CustomCalibrationProfilesPath"] = settings.getCustomCalibrationProfilesPath().toStdString();
    value["StatsDBFileName2"] = settings.getStatsDBFileName().toStdString();
    value["StatsDBPath"] = settings.getStatsDBPath().toStdString();
    value["SerialConnScanFreq"] = settings.getSerialConnScanFreq();
    value["SerCom_PortScanFilter"] = settings.getPortScanFilter(Type::Dispenser).toStdString();
    value["ScaleCom_PortScanFilter"] = settings.getPortScanFilter(Type::Scale).toStdString();
    value["SerCom_AdvancedPortScanFilter"] =
        settings.getAdvancedPortScanFilter(Type::Dispenser).toStdString();
    value["ScaleCom_AdvancedPortScanFilter"] = settings.getAdvancedPortScanFilter(Type::Scale).toStdString();
    value["BusyCheckFrequency"] = static_cast<int>(settings.getBusyCheckFrequency());
    value["LockConfiguration"] = settings.getLockConfiguration();
    value["SerialScanLevel"] = settings.getSerialScanLevel(Type::Dispenser);
    value["BTEnabled"] = settings.getBTEnabled();
    value["BTScanFilter"] = settings.getBTScanFilter().toStdString();
    value["BTScanPolicy"] = static_cast<int>(settings.getBTScanPolicy());
    value["BTTargetDevices"] = S::deviceInfoListToQString(settings.getBTTargetDevices()).toStdString();
    value["BTBannedDevices"] = S::deviceInfoListToQString(settings.getBTBannedDevices()).toStdString();
    value["QuantityPrecision"] = static_cast<int>(settings.getQuantityPrecision());
    value["AppProfile"] = settings.getAppProfile().toStdString();
    value["SkipChecks"] = settings.getSkipChecks();
    XmlRpcValue &logger = value["Logger"];
    logger["LogFileEnabled"] = settings.getLogFileEnabled();
    logger["LogFilePath"] = settings.getLogFilePath().toStdString();
    logger["MaxNFile"] = settings.getMaxNLogFile();
    logger["MaxFileSizeB"] = static_cast<int>(settings.getMaxLogFileSize());
    logger["CompactLog"] = settings.getCompactLog();
    return value;
}

/** Gives the setter the member, if there is one of this type. */
template <class Number, class Take>
void readByHand(const XmlRpcValue &value, const std::string &key, Take take)
{
    if (value.hasMember(key))
        take(static_cast<const Number &>(value[key]));
}

template <class Take>
void readTextByHand(const XmlRpcValue &value, const std::string &key, Take take)
{
    if (value.hasMember(key))
        take(QString::fromStdString(static_cast<const std::string &>(value[key])));
}

S readByHand(const XmlRpcValue &value)
{
    S settings("driver");
    readTextByHand(value, "ConfigurationFileName",
                   [&](const QString &text) { settings.setConfigurationFileName(text); });
    readTextByHand(value, "ConfigurationPath",
                   [&](const QString &text) { settings.setConfigurationPath(text); });
    readTextByHand(value, "DefaultCalibrationProfilesFileName",
                   [&](const QString &text) { settings.setDefaultCalibrationProfilesFileName(text); });
    readTextByHand(value, "CustomCalibrationProfilesFileName",
                   [&](const QString &text) { settings.setCustomCalibrationProfilesFileName(text); });
    readTextByHand(value, "DefaultCalibrationProfilesPath",
                   [&](const QString &text) { settings.setDefaultCalibrationProfilesPath(text); });
    readTextByHand(value, "CustomCalibrationProfilesPath",
                   [&](const QString &text) { settings.setCustomCalibrationProfilesPath(text); });
    readTextByHand(value, "StatsDBFileName2",
                   [&](const QString &text) { settings.setStatsDBFileName(text); });
    readTextByHand(value, "StatsDBPath", [&](const QString &text) { settings.setStatsDBPath(text); });
    readByHand<int>(value, "SerialConnScanFreq", [&](int number) { settings.setSerialConnScanFreq(number); });
    readTextByHand(value, "SerCom_PortScanFilter",
                   [&](const QString &text) { settings.setPortScanFilter(text, Type::Dispenser); });
    readTextByHand(value, "ScaleCom_PortScanFilter",
                   [&](const QString &text) { settings.setPortScanFilter(text, Type::Scale); });
    readTextByHand(value, "SerCom_AdvancedPortScanFilter",
                   [&](const QString &text) { settings.setAdvancedPortScanFilter(text, Type::Dispenser); });
    readTextByHand(value, "ScaleCom_AdvancedPortScanFilter",
                   [&](const QString &text) { settings.setAdvancedPortScanFilter(text, Type::Scale); });
    readByHand<int>(value, "BusyCheckFrequency", [&](int number) { settings.setBusyCheckFrequency(number); });
    readByHand<bool>(value, "LockConfiguration", [&](bool flag) { settings.setLockConfiguration(flag); });
    readByHand<int>(value, "SerialScanLevel",
                    [&](int number) { settings.setSerialScanLevel(number, Type::Dispenser); });
    readByHand<bool>(value, "BTEnabled", [&](bool flag) { settings.setBTEnabled(flag); });
    readTextByHand(value, "BTScanFilter", [&](const QString &text) { settings.setBTScanFilter(text); });
    readByHand<int>(value, "BTScanPolicy", [&](int number) {
        settings.setBTScanPolicy(static_cast<BTDispenserScanPolicy>(number));
    });
    readTextByHand(value, "BTTargetDevices", [&](const QString &text) {
        settings.setBTTargetDevices(S::configStringToDeviceInfoList(text));
    });
    readTextByHand(value, "BTBannedDevices", [&](const QString &text) {
        settings.setBTBannedDevices(S::configStringToDeviceInfoList(text));
    });
    readByHand<int>(value, "QuantityPrecision",
                    [&](int number) { settings.setQuantityPrecision(static_cast<unsigned int>(number)); });
    readTextByHand(value, "AppProfile", [&](const QString &text) { settings.setAppProfile(text); });
    readByHand<bool>(value, "SkipChecks", [&](bool flag) { settings.setSkipChecks(flag); });
    const XmlRpcValue &logger = value["Logger"];
    readByHand<bool>(logger, "LogFileEnabled", [&](bool flag) { settings.setLogFileEnabled(flag); });
    readTextByHand(logger, "LogFilePath", [&](const QString &text) { settings.setLogFilePath(text); });
    readByHand<int>(logger, "MaxNFile", [&](int number) { settings.setMaxNLogFile(number); });
    readByHand<int>(logger, "MaxFileSizeB", [&](int number) { settings.setMaxLogFileSize(number); });
    readByHand<bool>(logger, "CompactLog", [&](bool flag) { settings.setCompactLog(flag); });
    return settings;
}

/** With a device to connect to. */
S settings()
{
    S settings("driver");
    settings.setBTTargetDevices(S::configStringToDeviceInfoList("VELTO_5G 7|00:1A:7D:DA:71:13"));
    return settings;
}

} // namespace

void quv::addSettingsRatios()
{
    addRatio("settings: to their struct", 1.0,
             repeat([settings = settings()] { return settings.toXmlRpcValue(); }),
             repeat([settings = settings()] { return structByHand(settings); }));
    const XmlRpcValue value = settings().toXmlRpcValue();
    addRatio("settings: from their struct", 0.4, repeat([value] { return S(value, "driver"); }),
             repeat([value] { return readByHand(value); }));
}
