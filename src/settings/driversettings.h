// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/bluetoothdeviceinfo.h"
#include "../quvprotocol_global.h"
#include "serialportsettings.h"

#include <QtCore/QHash>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

#include <string>

enum class MachineModel;

/** How a driver looks for dispensers over Bluetooth. The numbers are the driver's; any is kept. */
enum class BTDispenserScanPolicy : int { Default = 0 };

/**
 * The whole setup of a driver, as a value: where its files lie, how it looks for machines and talks to them, what it logs. Whoever
 * owns the file of settings reads and writes it; what stands in a section there has the flat key "Section_Key" for update(). Over
 * XML-RPC it is a struct with the same keys, but for those of the logger, which are a struct "Logger" in it. In a QVariant it
 * travels under its name, also as the map that its struct is.
 *
 * Nothing here fails: what is missing, of another type or out of range leaves a setting as it was. Times are milliseconds.
 */
class QUVPROTOCOL_EXPORT DriverSettings
{
public:
    static constexpr char ConfigurationFileName_TAG[] = "ConfigurationFileName";
    static constexpr char ConfigurationPath_TAG[] = "ConfigurationPath";
    static constexpr char DefaultCalibrationProfilesFileName_TAG[] = "DefaultCalibrationProfilesFileName";
    static constexpr char CustomCalibrationProfilesFileName_TAG[] = "CustomCalibrationProfilesFileName";
    static constexpr char DefaultCalibrationProfilesPath_TAG[] = "DefaultCalibrationProfilesPath";
    static constexpr char CustomCalibrationProfilesPath_TAG[] = "CustomCalibrationProfilesPath";
    static constexpr char StatsDBFileName_TAG[] = "StatsDBFileName2";
    static constexpr char StatsDBPath_TAG[] = "StatsDBPath";
    static constexpr char SerialConnScanFreq_TAG[] = "SerialConnScanFreq";
    static constexpr char LockConfiguration_TAG[] = "LockConfiguration";
    static constexpr char SkipChecks_TAG[] = "SkipChecks";
    static constexpr char BusyCheckFrequency_TAG[] = "BusyCheckFrequency";
    static constexpr char QuantityPrecision_TAG[] = "QuantityPrecision";
    static constexpr char AppProfile_TAG[] = "AppProfile";
    static constexpr char PortScanFilter_TAG[] = "PortScanFilter";
    static constexpr char AdvancedPortScanFilter_TAG[] = "AdvancedPortScanFilter";
    static constexpr char SerialScanLevel_TAG[] = "SerialScanLevel";
    static constexpr char BTEnabled_TAG[] = "BTEnabled";
    static constexpr char BTScanFilter_TAG[] = "BTScanFilter";
    static constexpr char BTScanPolicy_TAG[] = "BTScanPolicy";
    static constexpr char BTTargetDevices_TAG[] = "BTTargetDevices";
    static constexpr char BTBannedDevices_TAG[] = "BTBannedDevices";
    static constexpr char LogFileEnabled_TAG[] = "LogFileEnabled";
    static constexpr char LogFilePath_TAG[] = "LogFilePath";
    static constexpr char MaxNLogFile_TAG[] = "MaxNFile";
    static constexpr char MaxLogFileSize_TAG[] = "MaxFileSizeB";
    static constexpr char CompactLog_TAG[] = "CompactLog";
    // For the readers of settings files alone.
    static constexpr char BTPairingTimeout_TAG[] = "PairingTimeout";
    static constexpr char BTDiscoveryTimeout_TAG[] = "DiscoveryTimeout";
    static constexpr char BTConnectionTimeout_TAG[] = "ConnectionTimeout";
    static constexpr char SettingsVersion_TAG[] = "SettingsVersion";

    static constexpr char SerCom_SECTION[] = "SerCom"; ///< a dispenser's port
    static constexpr char ScaleCom_SECTION[] = "ScaleCom";
    static constexpr char Logger_SECTION[] = "Logger";

    /** All defaults; \a name is that of the folder for logs. */
    explicit DriverSettings(QString name = QString());
    explicit DriverSettings(const char *name)
        : DriverSettings(QString::fromUtf8(name)) {} // is no XML-RPC value
    explicit DriverSettings(const XmlRpc::XmlRpcValue &value, QString name = QString());
    explicit DriverSettings(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit DriverSettings(const std::string &) = delete;
    explicit DriverSettings(int) = delete;
    explicit DriverSettings(double) = delete;

    void copy(const DriverSettings &other) { *this = other; }

    bool operator==(const DriverSettings &other) const;
    bool operator!=(const DriverSettings &other) const { return !(*this == other); }
    bool equalTo(const DriverSettings &other) const { return *this == other; }

    /** The default of every setting. Those of folders go by the environment of this moment. */
    void setDefaults(QString name);
    /** Takes the settings that the hash holds, under their flat keys; texts are converted. Devices may be a list, too. */
    void update(const QHash<QString, QVariant> &values);
    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    // clang-format off
    QString getConfigurationFileName() const { return m_configurationFileName; }
    void setConfigurationFileName(QString value) { m_configurationFileName = value; }
    QString getConfigurationPath() const { return m_configurationPath; }
    void setConfigurationPath(QString value); ///< gets a separator at its end
    QString getDefaultCalibrationProfilesFileName() const { return m_defaultCalibrationProfilesFileName; }
    void setDefaultCalibrationProfilesFileName(QString value) { m_defaultCalibrationProfilesFileName = value; }
    QString getCustomCalibrationProfilesFileName() const { return m_customCalibrationProfilesFileName; }
    void setCustomCalibrationProfilesFileName(QString value) { m_customCalibrationProfilesFileName = value; }
    QString getDefaultCalibrationProfilesPath() const { return m_defaultCalibrationProfilesPath; }
    void setDefaultCalibrationProfilesPath(QString value) { m_defaultCalibrationProfilesPath = value; }
    QString getCustomCalibrationProfilesPath() const { return m_customCalibrationProfilesPath; }
    void setCustomCalibrationProfilesPath(QString value) { m_customCalibrationProfilesPath = value; }
    QString getStatsDBFileName() const { return m_statsDBFileName; }
    void setStatsDBFileName(QString value) { m_statsDBFileName = value; }
    QString getStatsDBPath() const { return m_statsDBPath; }
    void setStatsDBPath(QString value) { m_statsDBPath = value; }
    bool getStatsDelete() const { return m_statsDelete; }
    void setStatsDelete(bool value) { m_statsDelete = value; }
    int getSerialConnScanFreq() const { return m_serialConnScanFreq; }
    void setSerialConnScanFreq(int value) { m_serialConnScanFreq = value; }
    bool getAutoCleanErrors() const { return m_autoCleanErrors; }
    void setAutoCleanErrors(bool value) { m_autoCleanErrors = value; }
    bool getLockConfiguration() const { return m_lockConfiguration; }
    void setLockConfiguration(bool value) { m_lockConfiguration = value; }
    bool getCommandDebugging() const { return m_commandDebugging; }
    void setCommandDebugging(bool value) { m_commandDebugging = value; }
    int getXmlRpcPort() const { return m_xmlRpcPort; }
    void setXmlRpcPort(int value); ///< 1026 to 65535
    int getMaxThreadCount() const { return m_maxThreadCount; }
    void setMaxThreadCount(int value); ///< above 0
    bool getSkipChecks() const { return m_skipChecks; }
    void setSkipChecks(bool value) { m_skipChecks = value; }
    long long getBusyCheckFrequency() const { return m_busyCheckFrequency; }
    void setBusyCheckFrequency(long long value) { m_busyCheckFrequency = value; }
    long long getTintCommandTimeout() const { return m_tintCommandTimeout; }
    void setTintCommandTimeout(long long value) { m_tintCommandTimeout = value; }
    long long getBootstrapTimeout() const { return m_bootstrapTimeout; }
    void setBootstrapTimeout(long long value) { m_bootstrapTimeout = value; }
    unsigned int getQuantityPrecision() const { return m_quantityPrecision; }
    void setQuantityPrecision(unsigned int value) { m_quantityPrecision = value; }
    QString getAppProfile() const { return m_appProfile; }
    void setAppProfile(QString value) { m_appProfile = value; }

    bool getBTEnabled() const { return m_btEnabled; }
    void setBTEnabled(bool value) { m_btEnabled = value; }
    QString getBTScanFilter() const { return m_btScanFilter; }
    void setBTScanFilter(QString value) { m_btScanFilter = value; }
    BTDispenserScanPolicy getBTScanPolicy() const { return m_btScanPolicy; }
    void setBTScanPolicy(BTDispenserScanPolicy value) { m_btScanPolicy = value; }
    unsigned int getBTPairingTimeout() const { return m_btPairingTimeout; }
    void setBTPairingTimeout(unsigned int value) { m_btPairingTimeout = value; }
    unsigned int getBTDiscoveryTimeout() const { return m_btDiscoveryTimeout; }
    void setBTDiscoveryTimeout(unsigned int value) { m_btDiscoveryTimeout = value; }
    unsigned int getBTConnectionTimeout() const { return m_btConnectionTimeout; }
    void setBTConnectionTimeout(unsigned int value) { m_btConnectionTimeout = value; }
    BluetoothDeviceInfoList getBTTargetDevices() const { return m_btTargetDevices; }
    void setBTTargetDevices(const BluetoothDeviceInfoList &value) { m_btTargetDevices = value; }
    BluetoothDeviceInfoList getBTBannedDevices() const { return m_btBannedDevices; }
    void setBTBannedDevices(const BluetoothDeviceInfoList &value) { m_btBannedDevices = value; }
    unsigned int getBTReadTimeout() const { return m_btReadTimeout; }
    void setBTReadTimeout(unsigned int value) { m_btReadTimeout = value; }
    unsigned int getBTReadRetries() const { return m_btReadRetries; }
    void setBTReadRetries(unsigned int value) { m_btReadRetries = value; }
    unsigned int getBTReadRetriesInterval() const { return m_btReadRetriesInterval; }
    void setBTReadRetriesInterval(unsigned int value) { m_btReadRetriesInterval = value; }
    unsigned int getBTWriteTimeout() const { return m_btWriteTimeout; }
    void setBTWriteTimeout(unsigned int value) { m_btWriteTimeout = value; }
    unsigned int getBTWriteRetries() const { return m_btWriteRetries; }
    void setBTWriteRetries(unsigned int value) { m_btWriteRetries = value; }
    unsigned int getBTWriteRetriesInterval() const { return m_btWriteRetriesInterval; }
    void setBTWriteRetriesInterval(unsigned int value) { m_btWriteRetriesInterval = value; }
    unsigned int getBTWriteReadInterval() const { return m_btWriteReadInterval; }
    void setBTWriteReadInterval(unsigned int value) { m_btWriteReadInterval = value; }
    unsigned int getBTReadWriteInterval() const { return m_btReadWriteInterval; }
    void setBTReadWriteInterval(unsigned int value) { m_btReadWriteInterval = value; }
    unsigned int getBTFirstWriteDelay() const { return m_btFirstWriteDelay; }
    void setBTFirstWriteDelay(unsigned int value) { m_btFirstWriteDelay = value; }
    bool getBTClearBeforeWrite() const { return m_btClearBeforeWrite; }
    void setBTClearBeforeWrite(bool value) { m_btClearBeforeWrite = value; }

    bool getLogFileEnabled() const { return m_logFileEnabled; }
    void setLogFileEnabled(bool value) { m_logFileEnabled = value; }
    QString getLogFilePath() const { return m_logFilePath; }
    void setLogFilePath(QString value); ///< gets a separator at its end
    int getMaxNLogFile() const { return m_maxNLogFile; }
    void setMaxNLogFile(int value) { m_maxNLogFile = value; }
    long long getMaxLogFileSize() const { return m_maxLogFileSize; }
    void setMaxLogFileSize(long long value) { m_maxLogFileSize = value; }
    bool getCompactLog() const { return m_compactLog; }
    void setCompactLog(bool value) { m_compactLog = value; }

    // Of the port of a kind of device. For a type that there is not they read the dispenser's, and set nothing.
    QSerialPort::BaudRate getBaudRate(SerialDeviceType type) const { return port(type).baudRate; }
    void setBaudRate(QSerialPort::BaudRate value, SerialDeviceType type) { set(&Port::baudRate, value, type); }
    QSerialPort::DataBits getDataBits(SerialDeviceType type) const { return port(type).dataBits; }
    void setDataBits(QSerialPort::DataBits value, SerialDeviceType type) { set(&Port::dataBits, value, type); }
    QSerialPort::FlowControl getFlowControl(SerialDeviceType type) const { return port(type).flowControl; }
    void setFlowControl(QSerialPort::FlowControl value, SerialDeviceType type) { set(&Port::flowControl, value, type); }
    QSerialPort::Parity getParity(SerialDeviceType type) const { return port(type).parity; }
    void setParity(QSerialPort::Parity value, SerialDeviceType type) { set(&Port::parity, value, type); }
    QSerialPort::StopBits getStopBits(SerialDeviceType type) const { return port(type).stopBits; }
    void setStopBits(QSerialPort::StopBits value, SerialDeviceType type) { set(&Port::stopBits, value, type); }
    QString getPortScanFilter(SerialDeviceType type) const { return port(type).portScanFilter; }
    void setPortScanFilter(QString value, SerialDeviceType type) { set(&Port::portScanFilter, value, type); }
    QString getAdvancedPortScanFilter(SerialDeviceType type) const { return port(type).advancedPortScanFilter; }
    void setAdvancedPortScanFilter(QString value, SerialDeviceType type) { set(&Port::advancedPortScanFilter, value, type); }
    int getSerialScanLevel(SerialDeviceType type) const { return port(type).serialScanLevel; }
    void setSerialScanLevel(int value, SerialDeviceType type); ///< 0 to 3
    unsigned int getSerialReadTimeout(SerialDeviceType type) const { return port(type).readTimeout; }
    void setSerialReadTimeout(unsigned int value, SerialDeviceType type) { set(&Port::readTimeout, value, type); }
    unsigned int getSerialReadRetries(SerialDeviceType type) const { return port(type).readRetries; }
    void setSerialReadRetries(unsigned int value, SerialDeviceType type) { set(&Port::readRetries, value, type); }
    unsigned int getSerialReadRetriesInterval(SerialDeviceType type) const { return port(type).readRetriesInterval; }
    void setSerialReadRetriesInterval(unsigned int value, SerialDeviceType type) { set(&Port::readRetriesInterval, value, type); }
    unsigned int getSerialWriteTimeout(SerialDeviceType type) const { return port(type).writeTimeout; }
    void setSerialWriteTimeout(unsigned int value, SerialDeviceType type) { set(&Port::writeTimeout, value, type); }
    unsigned int getSerialWriteRetries(SerialDeviceType type) const { return port(type).writeRetries; }
    void setSerialWriteRetries(unsigned int value, SerialDeviceType type) { set(&Port::writeRetries, value, type); }
    unsigned int getSerialWriteRetriesInterval(SerialDeviceType type) const { return port(type).writeRetriesInterval; }
    void setSerialWriteRetriesInterval(unsigned int value, SerialDeviceType type) { set(&Port::writeRetriesInterval, value, type); }
    unsigned int getSerialWriteReadInterval(SerialDeviceType type) const { return port(type).writeReadInterval; }
    void setSerialWriteReadInterval(unsigned int value, SerialDeviceType type) { set(&Port::writeReadInterval, value, type); }
    unsigned int getSerialReadWriteInterval(SerialDeviceType type) const { return port(type).readWriteInterval; }
    void setSerialReadWriteInterval(unsigned int value, SerialDeviceType type) { set(&Port::readWriteInterval, value, type); }
    unsigned int getSerialFirstWriteDelay(SerialDeviceType type) const { return port(type).firstWriteDelay; }
    void setSerialFirstWriteDelay(unsigned int value, SerialDeviceType type) { set(&Port::firstWriteDelay, value, type); }
    bool getSerialClearBeforeWrite(SerialDeviceType type) const { return port(type).clearBeforeWrite; }
    void setSerialClearBeforeWrite(bool value, SerialDeviceType type) { set(&Port::clearBeforeWrite, value, type); }
    // clang-format on

    const SerialPortSettings &getSerialPortSettings(SerialDeviceType type) const { return port(type); }

    // Where a driver's files lie. NUA_RW_DATA and NUA_CONFIG name folders that must be writable, NUA_LOG_PATH one that must be
    // readable; otherwise they count as not set.
    /** The folder in an environment variable, without a separator at its end; empty when it is not set or not writable. */
    static QString getEnvValue(const char *name);
    static QString getEnvRWDataPrefixPath();     ///< of NUA_RW_DATA
    static QString getEnvConfigDataPrefixPath(); ///< of NUA_CONFIG
    static QString defaultAppPath();
    static QString defaultDataPath();
    static QString defaultConfigurationPath();
    static QString defaultCustomCalibrationProfilesPath();
    static QString defaultStatsDBPath();
    static QString getDriverPrivatePath(); ///< of what comes with the driver
    static QString defaultDefaultCalibrationProfilesPath();
    static QString
    defaultLogFilePath(QString name); ///< NUA_LOG_PATH, or else the system's folder for logs of that name
    static int defaultMaxNLogFiles(MachineModel model);
    void setDefaultMaxNLogFile(); ///< that of no particular model

    /** Devices as text: "name|address", joined by commas. */
    static QString deviceInfoListToQString(const BluetoothDeviceInfoList &devices);
    static BluetoothDeviceInfoList configStringToDeviceInfoList(QString text); ///< empty parts are skipped

private:
    struct Table;
    struct Bare
    {};

    explicit DriverSettings(Bare) {} ///< without any default
    using Port = SerialPortSettings;

    const SerialPortSettings &port(SerialDeviceType type) const;
    SerialPortSettings *ownPort(SerialDeviceType type); ///< null for a type that there is not

    template <class V>
    void set(V SerialPortSettings::*field, const V &value, SerialDeviceType type)
    {
        if (SerialPortSettings *port = ownPort(type))
            port->*field = value;
    }

    QString m_configurationFileName;
    QString m_configurationPath;
    QString m_defaultCalibrationProfilesFileName;
    QString m_customCalibrationProfilesFileName;
    QString m_defaultCalibrationProfilesPath;
    QString m_customCalibrationProfilesPath;
    QString m_statsDBFileName;
    QString m_statsDBPath;
    bool m_statsDelete = false;
    int m_serialConnScanFreq = 0;
    bool m_autoCleanErrors = false;
    bool m_lockConfiguration = false;
    bool m_commandDebugging = false;
    int m_xmlRpcPort = 0;
    int m_maxThreadCount = 0;
    bool m_skipChecks = false;
    long long m_busyCheckFrequency = 0;
    long long m_tintCommandTimeout = 0;
    long long m_bootstrapTimeout = 0;
    unsigned int m_quantityPrecision = 0;
    QString m_appProfile;
    SerialPortSettings m_dispenserPort;
    SerialPortSettings m_mixerPort;
    SerialPortSettings m_scalePort;
    bool m_btEnabled = false;
    QString m_btScanFilter;
    BTDispenserScanPolicy m_btScanPolicy = BTDispenserScanPolicy::Default;
    unsigned int m_btPairingTimeout = 0;
    unsigned int m_btDiscoveryTimeout = 0;
    unsigned int m_btConnectionTimeout = 0;
    BluetoothDeviceInfoList m_btTargetDevices;
    BluetoothDeviceInfoList m_btBannedDevices;
    unsigned int m_btReadTimeout = 0;
    unsigned int m_btReadRetries = 0;
    unsigned int m_btReadRetriesInterval = 0;
    unsigned int m_btWriteTimeout = 0;
    unsigned int m_btWriteRetries = 0;
    unsigned int m_btWriteRetriesInterval = 0;
    unsigned int m_btWriteReadInterval = 0;
    unsigned int m_btReadWriteInterval = 0;
    unsigned int m_btFirstWriteDelay = 0;
    bool m_btClearBeforeWrite = false;
    bool m_logFileEnabled = false;
    QString m_logFilePath;
    int m_maxNLogFile = 0;
    long long m_maxLogFileSize = 0;
    bool m_compactLog = false;
};

Q_DECLARE_METATYPE(DriverSettings)
