// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/driversettings.h"

#include "base/bluetoothdeviceinfo_p.h"
#include "base/decoding_p.h"
#include "settings/driversettings_p.h"
#include "settings/setting_p.h"

#include <QuvFramework/fw_fileutils.h>
#include <QuvFramework/fw_machine.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_serialport.h>

#include <QtCore/QStringList>
#include <QtCore/QThread>

#include <algorithm>

namespace {

using XmlRpc::XmlRpcValue;
using Setting = quv::Setting<DriverSettings, QString>; // the folder for logs goes by a name

const bool isRegistered = RegisterTravellingType<DriverSettings>("DriverSettings");

constexpr int bluetooth = FW_SerialPort::BluetoothConnection;

/** A folder, with a separator at its end. */
struct AsFolder
{
    using Outside = QString;
    static bool take(const QString &given, QString &field)
    {
        field = FW_FileUtils::appendEndSeparator(given);
        return true;
    }
    static const QString &give(const QString &field) { return field; }
};

bool isScanLevel(int level)
{
    return level >= 0 && level <= 3;
}

struct AsScanLevel
{
    using Outside = int;
    static bool take(int given, int &field)
    {
        if (!isScanLevel(given))
            return false;
        field = given;
        return true;
    }
    static int give(int field) { return field; }
};

/** Devices as one text. */
struct AsText
{
    using Outside = QString;
    static bool take(const QString &given, BluetoothDeviceInfoList &field)
    {
        field = DriverSettings::configStringToDeviceInfoList(given);
        return true;
    }
    static QString give(const BluetoothDeviceInfoList &field)
    {
        return DriverSettings::deviceInfoListToQString(field);
    }
};

bool takeDevices(const QVariant &variant, BluetoothDeviceInfoList &devices)
{
    // readers of settings files part a text without quotes at its commas
    QStringList parts;
    if (quv::decodeVariant(variant, parts))
        return AsText::take(parts.join(QLatin1Char(',')), devices);
    QString text;
    return quv::takeObject(variant, devices) ||
           (quv::convertSetting(variant, text) && AsText::take(text, devices));
}

int defaultMaxThreadCount()
{
    static const int idealCount = QThread::idealThreadCount();
    return std::max(idealCount, 1000);
}

} // namespace

template <>
bool quv::readSettingVariant<BluetoothDeviceInfoList, AsText>(const QVariant &variant, void *field)
{
    return takeDevices(variant, *static_cast<BluetoothDeviceInfoList *>(field));
}

/** All settings, in their order: the field, its default, and how it travels. */
struct DriverSettings::Table
{
    static const std::vector<Setting> &settings();
    static const DriverSettings &fixedDefaults();
    static void addOtherDefaults(DriverSettings &settings, const QString &name);
    static const quv::RecordTable &members();       ///< of the struct
    static const quv::RecordTable &loggerMembers(); ///< of the struct in it
};

const std::vector<Setting> &DriverSettings::Table::settings()
{
    using S = DriverSettings;
    constexpr char none[] = "";
    static const std::vector<Setting> settings = {
        //  field                            default                          section         key             travels as
        {&S::m_configurationFileName, "configuration.xml", none, ConfigurationFileName_TAG},
        {&S::m_configurationPath, defaultConfigurationPath, none, ConfigurationPath_TAG, AsFolder()},
        {&S::m_defaultCalibrationProfilesFileName, "calibrationProfiles_default.xml", none,
         DefaultCalibrationProfilesFileName_TAG},
        {&S::m_customCalibrationProfilesFileName, "calibrationProfiles_custom.xml", none,
         CustomCalibrationProfilesFileName_TAG},
        {&S::m_defaultCalibrationProfilesPath, defaultDefaultCalibrationProfilesPath, none,
         DefaultCalibrationProfilesPath_TAG},
        {&S::m_customCalibrationProfilesPath, defaultCustomCalibrationProfilesPath, none,
         CustomCalibrationProfilesPath_TAG},
        {&S::m_statsDBFileName, "stats_db_V_1.db", none, StatsDBFileName_TAG},
        {&S::m_statsDBPath, defaultStatsDBPath, none, StatsDBPath_TAG},
        {&S::m_statsDelete, false},
        {&S::m_serialConnScanFreq, 5000, none, SerialConnScanFreq_TAG},
        {&S::m_autoCleanErrors, false},
        {&S::m_lockConfiguration, false, none, LockConfiguration_TAG},
        {&S::m_commandDebugging, false},
        {&S::m_xmlRpcPort, 9333},
        {&S::m_maxThreadCount, defaultMaxThreadCount},
        {&S::m_skipChecks, false, none, SkipChecks_TAG},
        {&S::m_busyCheckFrequency, 500, none, BusyCheckFrequency_TAG},
        {&S::m_tintCommandTimeout, 3600000},
        {&S::m_bootstrapTimeout, 10000},
        {&S::m_quantityPrecision, 4U, none, QuantityPrecision_TAG},
        {&S::m_appProfile, "DEFAULT", none, AppProfile_TAG},
        {&S::m_dispenserPort, SerialDeviceType::Dispenser},
        {&S::m_mixerPort, SerialDeviceType::Mixer},
        {&S::m_scalePort, SerialDeviceType::Scale},
        Setting::ofPart(&S::m_dispenserPort, &Port::portScanFilter, SerCom_SECTION, PortScanFilter_TAG),
        Setting::ofPart(&S::m_scalePort, &Port::portScanFilter, ScaleCom_SECTION, PortScanFilter_TAG),
        Setting::ofPart(&S::m_dispenserPort, &Port::advancedPortScanFilter, SerCom_SECTION,
                        AdvancedPortScanFilter_TAG),
        Setting::ofPart(&S::m_scalePort, &Port::advancedPortScanFilter, ScaleCom_SECTION,
                        AdvancedPortScanFilter_TAG),
        Setting::ofPart(&S::m_dispenserPort, &Port::serialScanLevel, none, SerialScanLevel_TAG,
                        AsScanLevel()),
        {&S::m_btEnabled, false, none, BTEnabled_TAG},
        {&S::m_btScanFilter, "VELTO_5G", none, BTScanFilter_TAG},
        {&S::m_btScanPolicy, BTDispenserScanPolicy::Default, none, BTScanPolicy_TAG,
         quv::AsNumber<BTDispenserScanPolicy>()},
        {&S::m_btPairingTimeout, 60000U},
        {&S::m_btDiscoveryTimeout, 60000U},
        {&S::m_btConnectionTimeout, FW_SerialPort::getDefaultBluetoothConnectionTimeout()},
        {&S::m_btTargetDevices, BluetoothDeviceInfoList(), none, BTTargetDevices_TAG, AsText()},
        {&S::m_btBannedDevices, BluetoothDeviceInfoList(), none, BTBannedDevices_TAG, AsText()},
        {&S::m_btReadTimeout, FW_SerialPort::getDefaultReadTimeout(bluetooth)},
        {&S::m_btReadRetries, FW_SerialPort::getDefaultReadRetries(bluetooth)},
        {&S::m_btReadRetriesInterval, FW_SerialPort::getDefaultReadRetriesInterval(bluetooth)},
        {&S::m_btWriteTimeout, FW_SerialPort::getDefaultWriteTimeout(bluetooth)},
        {&S::m_btWriteRetries, FW_SerialPort::getDefaultWriteRetries(bluetooth)},
        {&S::m_btWriteRetriesInterval, FW_SerialPort::getDefaultWriteRetriesInterval(bluetooth)},
        {&S::m_btWriteReadInterval, FW_SerialPort::getDefaultWriteReadInterval(bluetooth)},
        {&S::m_btReadWriteInterval, FW_SerialPort::getDefaultReadWriteInterval(bluetooth)},
        {&S::m_btFirstWriteDelay, FW_SerialPort::getDefaultFirstWriteDelay(bluetooth)},
        {&S::m_btClearBeforeWrite, FW_SerialPort::getDefaultClearBeforeWrite(bluetooth) != 0},
        {&S::m_logFileEnabled, true, Logger_SECTION, LogFileEnabled_TAG},
        {&S::m_logFilePath, defaultLogFilePath, Logger_SECTION, LogFilePath_TAG, AsFolder()},
        {&S::m_maxNLogFile, defaultMaxNLogFiles(MachineModel::None), Logger_SECTION, MaxNLogFile_TAG},
        {&S::m_maxLogFileSize, 5242880, Logger_SECTION, MaxLogFileSize_TAG},
        {&S::m_compactLog, true, Logger_SECTION, CompactLog_TAG},
    };
    return settings;
}

/** What is the default at all times is worked out once. */
const DriverSettings &DriverSettings::Table::fixedDefaults()
{
    static const DriverSettings fixed = [] {
        DriverSettings bare{Bare()};
        for (const Setting &setting : settings()) {
            if (!setting.isMadeByFunction())
                setting.setDefault(bare, QString());
        }
        return bare;
    }();
    return fixed;
}

/** The defaults that go by the moment and the \a name, of what has not been told: to ask the system for others would be in vain. */
void DriverSettings::Table::addOtherDefaults(DriverSettings &settings, const QString &name)
{
    for (const Setting &setting : Table::settings()) {
        if (setting.isMadeByFunction() && setting.isUnset(settings))
            setting.setDefault(settings, name);
    }
}

const quv::RecordTable &DriverSettings::Table::loggerMembers()
{
    static const quv::RecordTable table([] {
        std::vector<quv::MemberRow> rows;
        for (const Setting &setting : settings()) {
            if (setting.isIn(Logger_SECTION))
                rows.push_back(setting.member());
        }
        return rows;
    }());
    return table;
}

const quv::RecordTable &DriverSettings::Table::members()
{
    // the settings of the logger are fields like the others, so that its struct is read into the whole
    static constexpr quv::FieldType logger = {
        "struct",
        quv::FieldType::Other,
        [](const XmlRpcValue &value, void *settings) {
            loggerMembers().decode(value, settings, "");
            return quv::Decoded::Good;
        },
        nullptr,
        [](const void *settings, XmlRpcValue &value) { value = loggerMembers().encode(settings); },
        nullptr,
        nullptr};
    static const quv::RecordTable table([] {
        std::vector<quv::MemberRow> rows;
        for (const Setting &setting : settings()) {
            if (setting.travels() && !setting.isIn(Logger_SECTION))
                rows.push_back(setting.flatMember());
        }
        quv::MemberRow row;
        row.key = Logger_SECTION;
        row.type = &logger;
        rows.push_back(row);
        return rows;
    }());
    return table;
}

template <>
const quv::FieldType &quv::fieldType<DriverSettings>()
{
    static constexpr FieldType type = [] {
        FieldType object = objectType<DriverSettings>();
        object.read = [](const XmlRpcValue &value, void *field) {
            return value.getType() == XmlRpcValue::TypeStruct ? readObject<DriverSettings>(value, field)
                                                              : Decoded::OtherType;
        };
        return object;
    }();
    return type;
}

DriverSettings::DriverSettings(QString name) : DriverSettings(Table::fixedDefaults())
{
    Table::addOtherDefaults(*this, name);
}

DriverSettings::DriverSettings(const XmlRpcValue &value, QString name)
    : DriverSettings(Table::fixedDefaults())
{
    Table::members().decode(value, this, Q_FUNC_INFO);
    Table::addOtherDefaults(*this, name);
}

bool DriverSettings::operator==(const DriverSettings &other) const
{
    return std::all_of(Table::settings().begin(), Table::settings().end(),
                       [&](const Setting &setting) { return setting.isSame(*this, other); });
}

void DriverSettings::setDefaults(QString name)
{
    *this = DriverSettings(name);
}

void DriverSettings::update(const QHash<QString, QVariant> &values)
{
    for (const Setting &setting : Table::settings())
        setting.take(values, *this);
}

XmlRpcValue DriverSettings::toXmlRpcValue() const
{
    return Table::members().encode(this);
}

void DriverSettings::setConfigurationPath(QString value)
{
    AsFolder::take(value, m_configurationPath);
}

void DriverSettings::setLogFilePath(QString value)
{
    AsFolder::take(value, m_logFilePath);
}

void DriverSettings::setXmlRpcPort(int value)
{
    if (value >= 1026 && value <= 65535)
        m_xmlRpcPort = value;
}

void DriverSettings::setMaxThreadCount(int value)
{
    if (value > 0)
        m_maxThreadCount = value;
}

void DriverSettings::setSerialScanLevel(int value, SerialDeviceType type)
{
    if (isScanLevel(value))
        set(&Port::serialScanLevel, value, type);
}

int DriverSettings::defaultMaxNLogFiles(MachineModel model)
{
    return model == MachineModel::Rotan ? 100 : 20;
}

void DriverSettings::setDefaultMaxNLogFile()
{
    m_maxNLogFile = defaultMaxNLogFiles(MachineModel::None);
}

const SerialPortSettings &DriverSettings::port(SerialDeviceType type) const
{
    switch (type) {
    case SerialDeviceType::Mixer:
        return m_mixerPort;
    case SerialDeviceType::Scale:
        return m_scalePort;
    case SerialDeviceType::Dispenser:
        break;
    }
    return m_dispenserPort;
}

SerialPortSettings *DriverSettings::ownPort(SerialDeviceType type)
{
    switch (type) {
    case SerialDeviceType::Dispenser:
        return &m_dispenserPort;
    case SerialDeviceType::Mixer:
        return &m_mixerPort;
    case SerialDeviceType::Scale:
        return &m_scalePort;
    }
    return nullptr;
}

QString DriverSettings::deviceInfoListToQString(const BluetoothDeviceInfoList &devices)
{
    QStringList texts;
    for (const BluetoothDeviceInfo &device : devices)
        texts.append(device.name + QLatin1Char('|') + device.address);
    return texts.join(QLatin1Char(','));
}

BluetoothDeviceInfoList DriverSettings::configStringToDeviceInfoList(QString text)
{
    BluetoothDeviceInfoList devices;
    for (const QString &device : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString name = device.section(QLatin1Char('|'), 0, 0);
        const QString address = device.section(QLatin1Char('|'), 1, 1);
        if (!name.isEmpty() || !address.isEmpty())
            devices.append(BluetoothDeviceInfo(name, address));
    }
    return devices;
}
