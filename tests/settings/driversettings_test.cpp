// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/driversettings.h"

#include "base/basetesting.h"
#include "settings/environment.h"

#include <QuvFramework/fw_serialport.h>

#include <QtCore/QThread>

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace testing_base;
using S = DriverSettings;
using Type = SerialDeviceType;
using Devices = BluetoothDeviceInfoList;

constexpr auto unknownType = static_cast<Type>(3);

Devices devices()
{
    Devices devices;
    devices.append(BluetoothDeviceInfo("VELTO 1", "00:11"));
    devices.append(BluetoothDeviceInfo("VELTO 2", "00:22"));
    return devices;
}

class DriverSettingsTest : public CleanEnvironment
{};

// ---- defaults

TEST_F(DriverSettingsTest, haveTheirDefaults)
{
    const S settings("driver");
    EXPECT_EQ(settings.getConfigurationFileName(), "configuration.xml");
    EXPECT_EQ(settings.getConfigurationPath(), "/var/lib/velto/nuadriver/NUAlocal/config/");
    EXPECT_EQ(settings.getDefaultCalibrationProfilesFileName(), "calibrationProfiles_default.xml");
    EXPECT_EQ(settings.getCustomCalibrationProfilesFileName(), "calibrationProfiles_custom.xml");
    EXPECT_EQ(settings.getDefaultCalibrationProfilesPath(), "/config_data/"); // there is no application here
    EXPECT_EQ(settings.getCustomCalibrationProfilesPath(), "/var/lib/velto/nuadriver/NUAlocal/profiles/");
    EXPECT_EQ(settings.getStatsDBFileName(), "stats_db_V_1.db");
    EXPECT_EQ(settings.getStatsDBPath(), "/var/lib/velto/nuadriver/NUAlocal/stats/");
    EXPECT_FALSE(settings.getStatsDelete());
    EXPECT_EQ(settings.getSerialConnScanFreq(), 5000);
    EXPECT_FALSE(settings.getAutoCleanErrors());
    EXPECT_FALSE(settings.getLockConfiguration());
    EXPECT_FALSE(settings.getCommandDebugging());
    EXPECT_EQ(settings.getXmlRpcPort(), 9333);
    EXPECT_EQ(settings.getMaxThreadCount(),
              QThread::idealThreadCount() > 1000 ? QThread::idealThreadCount() : 1000);
    EXPECT_FALSE(settings.getSkipChecks());
    EXPECT_EQ(settings.getBusyCheckFrequency(), 500);
    EXPECT_EQ(settings.getTintCommandTimeout(), 3600000);
    EXPECT_EQ(settings.getBootstrapTimeout(), 10000);
    EXPECT_EQ(settings.getQuantityPrecision(), 4U);
    EXPECT_EQ(settings.getAppProfile(), "DEFAULT");
    for (const Type type : {Type::Dispenser, Type::Mixer, Type::Scale})
        EXPECT_EQ(settings.getSerialPortSettings(type), SerialPortSettings(type));
    EXPECT_TRUE(settings.getLogFileEnabled());
    EXPECT_EQ(settings.getLogFilePath(), "/var/log/velto/driver/");
    EXPECT_EQ(settings.getMaxNLogFile(), 20);
    EXPECT_EQ(settings.getMaxLogFileSize(), 5242880);
    EXPECT_TRUE(settings.getCompactLog());
}

TEST_F(DriverSettingsTest, haveTheDefaultsOfBluetooth)
{
    const S settings("driver");
    EXPECT_FALSE(settings.getBTEnabled());
    EXPECT_EQ(settings.getBTScanFilter(), "VELTO_5G");
    EXPECT_EQ(static_cast<int>(settings.getBTScanPolicy()), 0);
    EXPECT_EQ(settings.getBTPairingTimeout(), 60000U);
    EXPECT_EQ(settings.getBTDiscoveryTimeout(), 60000U);
    EXPECT_EQ(settings.getBTConnectionTimeout(), FW_SerialPort::getDefaultBluetoothConnectionTimeout());
    EXPECT_TRUE(settings.getBTTargetDevices().isEmpty());
    EXPECT_TRUE(settings.getBTBannedDevices().isEmpty());
    EXPECT_EQ(settings.getBTReadTimeout(), FW_SerialPort::getDefaultReadTimeout(1));
    EXPECT_EQ(settings.getBTReadRetries(), FW_SerialPort::getDefaultReadRetries(1));
    EXPECT_EQ(settings.getBTReadRetriesInterval(), FW_SerialPort::getDefaultReadRetriesInterval(1));
    EXPECT_EQ(settings.getBTWriteTimeout(), FW_SerialPort::getDefaultWriteTimeout(1));
    EXPECT_EQ(settings.getBTWriteRetries(), FW_SerialPort::getDefaultWriteRetries(1));
    EXPECT_EQ(settings.getBTWriteRetriesInterval(), FW_SerialPort::getDefaultWriteRetriesInterval(1));
    EXPECT_EQ(settings.getBTWriteReadInterval(), FW_SerialPort::getDefaultWriteReadInterval(1));
    EXPECT_EQ(settings.getBTReadWriteInterval(), FW_SerialPort::getDefaultReadWriteInterval(1));
    EXPECT_EQ(settings.getBTFirstWriteDelay(), FW_SerialPort::getDefaultFirstWriteDelay(1));
    EXPECT_EQ(settings.getBTClearBeforeWrite(), FW_SerialPort::getDefaultClearBeforeWrite(1) != 0);
}

TEST_F(DriverSettingsTest, keepMoreLogFilesForOneModel)
{
    EXPECT_EQ(S::defaultMaxNLogFiles(static_cast<MachineModel>(6)), 100);
    for (const int model : {-1, 0, 5, 7, 10, 100})
        EXPECT_EQ(S::defaultMaxNLogFiles(static_cast<MachineModel>(model)), 20) << model;
    S settings("driver");
    settings.setMaxNLogFile(7);
    settings.setDefaultMaxNLogFile();
    EXPECT_EQ(settings.getMaxNLogFile(), 20);
}

// ---- setters

/** A setting, by its getter and its setter, and a value that is not its default. */
struct Change
{
    template <class V, class P, class Value>
    Change(V (S::*get)() const, void (S::*set)(P), Value value)
        : make([=](S &settings) { (settings.*set)(V(value)); }),
          isMade([=](const S &settings) { return (settings.*get)() == V(value); })
    {}
    /** The same of the port of a type of device. */
    template <class V, class Value>
    Change(V (S::*get)(Type) const, void (S::*set)(V, Type), Type type, Value value)
        : make([=](S &settings) { (settings.*set)(V(value), type); }),
          isMade([=](const S &settings) { return (settings.*get)(type) == V(value); })
    {}

    std::function<void(S &)> make;
    std::function<bool(const S &)> isMade;
};

std::vector<Change> changesOfPort(Type type)
{
    return {
        {&S::getBaudRate, &S::setBaudRate, type, QSerialPort::Baud1200},
        {&S::getDataBits, &S::setDataBits, type, QSerialPort::Data5},
        {&S::getFlowControl, &S::setFlowControl, type, QSerialPort::SoftwareControl},
        {&S::getParity, &S::setParity, type, QSerialPort::MarkParity},
        {&S::getStopBits, &S::setStopBits, type, QSerialPort::TwoStop},
        {&S::getPortScanFilter, &S::setPortScanFilter, type, "other"},
        {&S::getAdvancedPortScanFilter, &S::setAdvancedPortScanFilter, type, "other"},
        {&S::getSerialScanLevel, &S::setSerialScanLevel, type, 1},
        {&S::getSerialReadTimeout, &S::setSerialReadTimeout, type, 1001U},
        {&S::getSerialReadRetries, &S::setSerialReadRetries, type, 1002U},
        {&S::getSerialReadRetriesInterval, &S::setSerialReadRetriesInterval, type, 1003U},
        {&S::getSerialWriteTimeout, &S::setSerialWriteTimeout, type, 1004U},
        {&S::getSerialWriteRetries, &S::setSerialWriteRetries, type, 1005U},
        {&S::getSerialWriteRetriesInterval, &S::setSerialWriteRetriesInterval, type, 1006U},
        {&S::getSerialWriteReadInterval, &S::setSerialWriteReadInterval, type, 1007U},
        {&S::getSerialReadWriteInterval, &S::setSerialReadWriteInterval, type, 1008U},
        {&S::getSerialFirstWriteDelay, &S::setSerialFirstWriteDelay, type, 1009U},
        {&S::getSerialClearBeforeWrite, &S::setSerialClearBeforeWrite, type,
         !SerialPortSettings(type).clearBeforeWrite},
    };
}

std::vector<Change> changes()
{
    std::vector<Change> changes = {
        {&S::getConfigurationFileName, &S::setConfigurationFileName, "a.xml"},
        {&S::getConfigurationPath, &S::setConfigurationPath, "/etc/a/"},
        {&S::getDefaultCalibrationProfilesFileName, &S::setDefaultCalibrationProfilesFileName, "b.xml"},
        {&S::getCustomCalibrationProfilesFileName, &S::setCustomCalibrationProfilesFileName, "c.xml"},
        {&S::getDefaultCalibrationProfilesPath, &S::setDefaultCalibrationProfilesPath, "/etc/b"},
        {&S::getCustomCalibrationProfilesPath, &S::setCustomCalibrationProfilesPath, "/etc/c"},
        {&S::getStatsDBFileName, &S::setStatsDBFileName, "d.db"},
        {&S::getStatsDBPath, &S::setStatsDBPath, "/srv/d"},
        {&S::getStatsDelete, &S::setStatsDelete, true},
        {&S::getSerialConnScanFreq, &S::setSerialConnScanFreq, 10001},
        {&S::getAutoCleanErrors, &S::setAutoCleanErrors, true},
        {&S::getLockConfiguration, &S::setLockConfiguration, true},
        {&S::getCommandDebugging, &S::setCommandDebugging, true},
        {&S::getXmlRpcPort, &S::setXmlRpcPort, 9444},
        {&S::getMaxThreadCount, &S::setMaxThreadCount, 17},
        {&S::getSkipChecks, &S::setSkipChecks, true},
        {&S::getBusyCheckFrequency, &S::setBusyCheckFrequency, 3000000000LL},
        {&S::getTintCommandTimeout, &S::setTintCommandTimeout, 3000000001LL},
        {&S::getBootstrapTimeout, &S::setBootstrapTimeout, 3000000002LL},
        {&S::getQuantityPrecision, &S::setQuantityPrecision, 6U},
        {&S::getAppProfile, &S::setAppProfile, "SHOP"},
        {&S::getBTEnabled, &S::setBTEnabled, true},
        {&S::getBTScanFilter, &S::setBTScanFilter, "OTHER"},
        {&S::getBTScanPolicy, &S::setBTScanPolicy, static_cast<BTDispenserScanPolicy>(2)},
        {&S::getBTPairingTimeout, &S::setBTPairingTimeout, 2001U},
        {&S::getBTDiscoveryTimeout, &S::setBTDiscoveryTimeout, 2002U},
        {&S::getBTConnectionTimeout, &S::setBTConnectionTimeout, 2003U},
        {&S::getBTTargetDevices, &S::setBTTargetDevices, devices()},
        {&S::getBTBannedDevices, &S::setBTBannedDevices, devices()},
        {&S::getBTReadTimeout, &S::setBTReadTimeout, 2004U},
        {&S::getBTReadRetries, &S::setBTReadRetries, 2005U},
        {&S::getBTReadRetriesInterval, &S::setBTReadRetriesInterval, 2006U},
        {&S::getBTWriteTimeout, &S::setBTWriteTimeout, 2007U},
        {&S::getBTWriteRetries, &S::setBTWriteRetries, 2008U},
        {&S::getBTWriteRetriesInterval, &S::setBTWriteRetriesInterval, 2009U},
        {&S::getBTWriteReadInterval, &S::setBTWriteReadInterval, 2010U},
        {&S::getBTReadWriteInterval, &S::setBTReadWriteInterval, 2011U},
        {&S::getBTFirstWriteDelay, &S::setBTFirstWriteDelay, 2012U},
        {&S::getBTClearBeforeWrite, &S::setBTClearBeforeWrite, !S().getBTClearBeforeWrite()},
        {&S::getLogFileEnabled, &S::setLogFileEnabled, false},
        {&S::getLogFilePath, &S::setLogFilePath, "/srv/log/"},
        {&S::getMaxNLogFile, &S::setMaxNLogFile, 3},
        {&S::getMaxLogFileSize, &S::setMaxLogFileSize, 3000000003LL},
        {&S::getCompactLog, &S::setCompactLog, false},
    };
    for (const Type type : {Type::Dispenser, Type::Mixer, Type::Scale}) {
        const std::vector<Change> ofPort = changesOfPort(type);
        changes.insert(changes.end(), ofPort.begin(), ofPort.end());
    }
    return changes;
}

TEST_F(DriverSettingsTest, differInEachSetting)
{
    const std::vector<Change> all = changes();
    ASSERT_EQ(all.size(), 44U + 3U * 18U);
    const S defaults("driver");
    for (std::size_t i = 0; i < all.size(); ++i) {
        SCOPED_TRACE(i);
        S settings("driver");
        EXPECT_FALSE(all[i].isMade(settings));
        all[i].make(settings);
        EXPECT_FALSE(settings == defaults);
        EXPECT_TRUE(settings != defaults);
        EXPECT_FALSE(settings.equalTo(defaults));
        // and none but this one has changed
        for (std::size_t j = 0; j < all.size(); ++j)
            EXPECT_EQ(all[j].isMade(settings), j == i) << j;
    }
}

TEST_F(DriverSettingsTest, areCopiedAndGetTheirDefaultsBack)
{
    S settings("driver");
    for (const Change &change : changes())
        change.make(settings);
    S copy("other");
    copy.copy(settings);
    EXPECT_TRUE(copy == settings);
    EXPECT_TRUE(copy.equalTo(settings));
    EXPECT_FALSE(copy != settings);
    for (const Change &change : changes())
        EXPECT_TRUE(change.isMade(copy));
    copy.setDefaults("driver");
    EXPECT_EQ(copy, S("driver"));
    EXPECT_NE(copy, S("other"));
}

TEST_F(DriverSettingsTest, takeNoPortOfTheSystem)
{
    S settings("driver");
    for (const auto &[given, held] : std::vector<std::pair<int, int>>{{1025, 9333},
                                                                      {0, 9333},
                                                                      {-1, 9333},
                                                                      {65536, 9333},
                                                                      {1026, 1026},
                                                                      {1025, 1026},
                                                                      {65535, 65535},
                                                                      {65536, 65535}}) {
        settings.setXmlRpcPort(given);
        EXPECT_EQ(settings.getXmlRpcPort(), held) << given;
    }
}

TEST_F(DriverSettingsTest, needAThread)
{
    S settings("driver");
    for (const auto &[given, held] :
         std::vector<std::pair<int, int>>{{1, 1}, {0, 1}, {-1, 1}, {2000, 2000}}) {
        settings.setMaxThreadCount(given);
        EXPECT_EQ(settings.getMaxThreadCount(), held) << given;
    }
}

TEST_F(DriverSettingsTest, knowFourScanLevels)
{
    for (const Type type : {Type::Dispenser, Type::Mixer, Type::Scale}) {
        S settings("driver");
        for (const auto &[given, held] :
             std::vector<std::pair<int, int>>{{0, 0}, {4, 0}, {-1, 0}, {1, 1}, {3, 3}, {4, 3}}) {
            settings.setSerialScanLevel(given, type);
            EXPECT_EQ(settings.getSerialScanLevel(type), held) << given;
        }
    }
}

TEST_F(DriverSettingsTest, endTwoFoldersWithASeparator)
{
    S settings("driver");
    settings.setConfigurationPath("/etc/a");
    settings.setLogFilePath("/srv/log");
    settings.setStatsDBPath("/srv/d");
    EXPECT_EQ(settings.getConfigurationPath(), "/etc/a/");
    EXPECT_EQ(settings.getLogFilePath(), "/srv/log/");
    EXPECT_EQ(settings.getStatsDBPath(), "/srv/d");
}

TEST_F(DriverSettingsTest, answerForADispenserWhenTheTypeIsUnknown)
{
    S settings("driver");
    settings.setBaudRate(QSerialPort::Baud9600, Type::Dispenser);
    EXPECT_EQ(settings.getBaudRate(unknownType), 9600);
    EXPECT_EQ(settings.getAdvancedPortScanFilter(unknownType), "5G");
    const S before = settings;
    for (const Change &change : changesOfPort(unknownType))
        change.make(settings);
    EXPECT_EQ(settings, before);
}

// ---- in and out

/** A key with a value in either form, and how it is known to have been taken. */
struct Given
{
    const char *flatKey;
    Value value;
    QVariant text; ///< as a reader of a file of settings gives it
    std::function<bool(const S &)> isTaken;
};

bool isOfLogger(const Given &given)
{
    return QString(given.flatKey).startsWith("Logger_");
}

/** The struct that has this member alone. */
Value structWith(const Given &given)
{
    if (!isOfLogger(given))
        return structOf({{given.flatKey, given.value}});
    return structOf({{"Logger", structOf({{given.flatKey + 7, given.value}})}});
}

const std::vector<Given> &keys()
{
    static const std::vector<Given> keys = {
        {"ConfigurationFileName", "a.xml", "a.xml",
         [](const S &s) { return s.getConfigurationFileName() == "a.xml"; }},
        {"ConfigurationPath", "/etc/a", "/etc/a",
         [](const S &s) { return s.getConfigurationPath() == "/etc/a/"; }},
        {"DefaultCalibrationProfilesFileName", "b.xml", "b.xml",
         [](const S &s) { return s.getDefaultCalibrationProfilesFileName() == "b.xml"; }},
        {"CustomCalibrationProfilesFileName", "c.xml", "c.xml",
         [](const S &s) { return s.getCustomCalibrationProfilesFileName() == "c.xml"; }},
        {"DefaultCalibrationProfilesPath", "/etc/b", "/etc/b",
         [](const S &s) { return s.getDefaultCalibrationProfilesPath() == "/etc/b"; }},
        {"CustomCalibrationProfilesPath", "/etc/c", "/etc/c",
         [](const S &s) { return s.getCustomCalibrationProfilesPath() == "/etc/c"; }},
        {"StatsDBFileName2", "d.db", "d.db", [](const S &s) { return s.getStatsDBFileName() == "d.db"; }},
        {"StatsDBPath", "/srv/d", "/srv/d", [](const S &s) { return s.getStatsDBPath() == "/srv/d"; }},
        {"SerialConnScanFreq", 700, "700", [](const S &s) { return s.getSerialConnScanFreq() == 700; }},
        {"SerCom_PortScanFilter", "ttyS", "ttyS",
         [](const S &s) { return s.getPortScanFilter(Type::Dispenser) == "ttyS"; }},
        {"ScaleCom_PortScanFilter", "ttyU", "ttyU",
         [](const S &s) { return s.getPortScanFilter(Type::Scale) == "ttyU"; }},
        {"SerCom_AdvancedPortScanFilter", "6G", "6G",
         [](const S &s) { return s.getAdvancedPortScanFilter(Type::Dispenser) == "6G"; }},
        {"ScaleCom_AdvancedPortScanFilter", "7G", "7G",
         [](const S &s) { return s.getAdvancedPortScanFilter(Type::Scale) == "7G"; }},
        {"BusyCheckFrequency", 3000000000.0, "3000000000",
         [](const S &s) { return s.getBusyCheckFrequency() == 3000000000LL; }},
        {"LockConfiguration", true, "true", [](const S &s) { return s.getLockConfiguration(); }},
        {"SerialScanLevel", 1, "1", [](const S &s) { return s.getSerialScanLevel(Type::Dispenser) == 1; }},
        {"BTEnabled", true, "1", [](const S &s) { return s.getBTEnabled(); }},
        {"BTScanFilter", "OTHER", "OTHER", [](const S &s) { return s.getBTScanFilter() == "OTHER"; }},
        {"BTScanPolicy", 2, "2", [](const S &s) { return static_cast<int>(s.getBTScanPolicy()) == 2; }},
        {"BTTargetDevices", "VELTO 1|00:11,VELTO 2|00:22", "VELTO 1|00:11,,VELTO 2|00:22,",
         [](const S &s) { return s.getBTTargetDevices() == devices(); }},
        {"BTBannedDevices", "VELTO 1|00:11,VELTO 2|00:22", "VELTO 1|00:11,VELTO 2|00:22",
         [](const S &s) { return s.getBTBannedDevices() == devices(); }},
        {"QuantityPrecision", 6, "6", [](const S &s) { return s.getQuantityPrecision() == 6U; }},
        {"AppProfile", "SHOP", "SHOP", [](const S &s) { return s.getAppProfile() == "SHOP"; }},
        {"SkipChecks", true, "true", [](const S &s) { return s.getSkipChecks(); }},
        {"Logger_LogFileEnabled", false, "false", [](const S &s) { return !s.getLogFileEnabled(); }},
        {"Logger_LogFilePath", "/srv/log", "/srv/log",
         [](const S &s) { return s.getLogFilePath() == "/srv/log/"; }},
        {"Logger_MaxNFile", 3, "3", [](const S &s) { return s.getMaxNLogFile() == 3; }},
        {"Logger_MaxFileSizeB", 4096, "4096", [](const S &s) { return s.getMaxLogFileSize() == 4096; }},
        {"Logger_CompactLog", false, "0", [](const S &s) { return !s.getCompactLog(); }},
    };
    return keys;
}

/** Expects that of all keys just this one was taken. */
void expectTaken(const S &settings, const Given &taken)
{
    for (const Given &given : keys())
        EXPECT_EQ(given.isTaken(settings), &given == &taken) << given.flatKey;
}

TEST_F(DriverSettingsTest, takeEachKeyOfAHash)
{
    for (const Given &given : keys()) {
        SCOPED_TRACE(given.flatKey);
        S settings("driver");
        settings.update({{given.flatKey, given.text}});
        expectTaken(settings, given);
    }
}

TEST_F(DriverSettingsTest, takeEachMemberOfAStruct)
{
    for (const Given &given : keys()) {
        SCOPED_TRACE(given.flatKey);
        expectTaken(S(structWith(given), "driver"), given);
    }
}

TEST_F(DriverSettingsTest, takeAnEmptyText)
{
    for (const char *key :
         {"ConfigurationPath", "StatsDBPath", "DefaultCalibrationProfilesPath", "AppProfile"}) {
        const Value written = S(structOf({{key, ""}}), "driver").toXmlRpcValue();
        EXPECT_EQ(dumped(written[key]), R"("")") << key;
    }
    const S settings(structOf({{"Logger", structOf({{"LogFilePath", ""}})}}), "driver");
    EXPECT_EQ(settings.getLogFilePath(), "");
}

TEST_F(DriverSettingsTest, keepWhatAHashDoesNotTell)
{
    S settings("driver");
    for (const Change &change : changes())
        change.make(settings);
    const S before = settings;
    settings.update({});
    EXPECT_EQ(settings, before);
    settings.update({{"AppProfile", "MILL"}});
    EXPECT_EQ(settings.getAppProfile(), "MILL");
    settings.setAppProfile("SHOP");
    EXPECT_EQ(settings, before);
}

TEST_F(DriverSettingsTest, dropWhatDoesNotConvert)
{
    const S defaults("driver");
    for (const auto &[key, value] : std::vector<std::pair<const char *, QVariant>>{
             {"SerialConnScanFreq", "often"},
             {"SerialConnScanFreq", ""},
             {"SerialConnScanFreq", QVariant()},
             {"SerialConnScanFreq", "2147483648"},
             {"SerialConnScanFreq", 3e9},
             {"BusyCheckFrequency", "often"},
             {"BusyCheckFrequency", 1e300},
             {"BusyCheckFrequency", 18446744073709551615ULL},
             {"BusyCheckFrequency", 9223372036854775808ULL},
             {"BusyCheckFrequency", QVariant::fromValue(18446744073709551615UL)},
             {"QuantityPrecision", "-1"},
             {"QuantityPrecision", 4294967296LL},
             {"SerialScanLevel", "4"},
             {"SerialScanLevel", -1},
             {"BTScanPolicy", "none"},
             {"LockConfiguration", QVariantMap()},
             {"AppProfile", QVariantMap()},
             {"AppProfile", QVariant()},
             {"Logger_MaxNFile", "many"},
         }) {
        S settings("driver");
        settings.update({{key, value}});
        EXPECT_EQ(settings, defaults) << key << ' ' << value.toString().toStdString();
    }
}

TEST_F(DriverSettingsTest, convertNumbersAndTruth)
{
    S settings("driver");
    settings.update({{"SerialConnScanFreq", 700.4},
                     {"BusyCheckFrequency", 800},
                     {"QuantityPrecision", 3LL},
                     {"LockConfiguration", 1},
                     {"AppProfile", 7},
                     {"SerialScanLevel", true}});
    EXPECT_EQ(settings.getSerialConnScanFreq(), 700);
    EXPECT_EQ(settings.getBusyCheckFrequency(), 800);
    EXPECT_EQ(settings.getQuantityPrecision(), 3U);
    EXPECT_TRUE(settings.getLockConfiguration());
    EXPECT_EQ(settings.getAppProfile(), "7");
    EXPECT_EQ(settings.getSerialScanLevel(Type::Dispenser), 1);
}

TEST_F(DriverSettingsTest, takeUnsignedNumbersThatFit)
{
    for (const QVariant &greatest :
         {QVariant(9223372036854775807ULL), QVariant::fromValue(9223372036854775807UL)}) {
        S settings("driver");
        settings.update({{"BusyCheckFrequency", greatest}});
        EXPECT_EQ(settings.getBusyCheckFrequency(), 9223372036854775807LL);
    }
}

TEST_F(DriverSettingsTest, takeDevicesInEveryForm)
{
    const QVariantList structs = {QVariantMap{{"bt_name", "VELTO 1"}, {"bt_address", "00:11"}},
                                  QVariantMap{{"bt_name", "VELTO 2"}, {"bt_address", "00:22"}}};
    const std::vector<std::pair<const char *, Devices (S::*)() const>> settingsOfDevices = {
        {"BTTargetDevices", &S::getBTTargetDevices}, {"BTBannedDevices", &S::getBTBannedDevices}};
    for (const auto &[key, held] : settingsOfDevices) {
        SCOPED_TRACE(key);
        for (const QVariant &form : {QVariant(QStringList{"VELTO 1|00:11", "VELTO 2|00:22"}),
                                     QVariant(QVariantList{"VELTO 1|00:11", "VELTO 2|00:22"}),
                                     QVariant(structs), QVariant::fromValue(devices())}) {
            S settings("driver");
            settings.update({{key, form}});
            EXPECT_EQ((settings.*held)(), devices()) << form.typeName();
            for (const QVariant &other : {QVariant(), QVariant(QVariantMap()), QVariant(QVariantList{7}),
                                          QVariant(QVariantList{QVariantMap{{"bt_name", "VELTO 3"}}})})
                settings.update({{key, other}});
            EXPECT_EQ((settings.*held)(), devices()) << form.typeName();
            settings.update({{key, QStringList()}});
            EXPECT_EQ((settings.*held)(), Devices());
        }
        Devices withComma;
        withComma.append(BluetoothDeviceInfo("mill, left", "00:33"));
        S settings("driver");
        settings.update({{key, QVariant::fromValue(withComma)}});
        EXPECT_EQ((settings.*held)(), withComma);
    }
}

TEST_F(DriverSettingsTest, knowNoOtherKeys)
{
    const S defaults("driver");
    // those of the logger are flat in a hash and nested in a struct; those without an owner are for readers of files
    for (const char *key : {"Logger", "LogFileEnabled", "LogFilePath", "MaxNFile", "MaxFileSizeB",
                            "CompactLog", "PortScanFilter", "SerCom_SerialScanLevel", "StatsDBFileName",
                            "StatsDelete", "XmlRpcPort", "PairingTimeout", "DiscoveryTimeout",
                            "ConnectionTimeout", "SettingsVersion", "MixerCom_PortScanFilter", ""}) {
        S settings("driver");
        settings.update({{key, "7"}});
        EXPECT_EQ(settings, defaults) << key;
        EXPECT_EQ(S(structOf({{key, 7}}), "driver"), defaults) << key;
        EXPECT_EQ(S(structOf({{key, "7"}}), "driver"), defaults) << key;
    }
    EXPECT_EQ(S(structOf({{"Logger_MaxNFile", 7}}), "driver"), defaults);
}

TEST_F(DriverSettingsTest, keepTheDefaultOfAMemberOfAnotherType)
{
    const S defaults("driver");
    for (const Given &given : keys()) {
        SCOPED_TRACE(given.flatKey);
        for (const Value &value : {Value(2.5), arrayOf(1), structOf({{"a", 1}}), Value()})
            EXPECT_EQ(S(structWith({given.flatKey, value, {}, {}}), "driver"), defaults) << dumped(value);
    }
    for (const auto &[key, value] :
         std::vector<std::pair<const char *, Value>>{{"SerialConnScanFreq", "700"},
                                                     {"LockConfiguration", 1},
                                                     {"AppProfile", 7},
                                                     {"QuantityPrecision", -1},
                                                     {"QuantityPrecision", 4294967296.0},
                                                     {"SerialScanLevel", 4},
                                                     {"SerialScanLevel", -1},
                                                     {"Logger", 5},
                                                     {"Logger_MaxNFile", "3"},
                                                     {"BTTargetDevices", arrayOf("a|b")},
                                                     {"BusyCheckFrequency", true},
                                                     {"Logger_CompactLog", 0}}) {
        EXPECT_EQ(S(structWith({key, value, {}, {}}), "driver"), defaults) << key;
    }
    for (const Value &value : {Value(), Value(5), Value("a"), arrayOf(1)})
        EXPECT_EQ(S(value, "driver"), defaults) << dumped(value);
}

constexpr char defaultDump[] =
    R"({"AppProfile": "DEFAULT", "BTBannedDevices": "", "BTEnabled": false, "BTScanFilter": "VELTO_5G", "BTScanPolicy": 0, )"
    R"("BTTargetDevices": "", "BusyCheckFrequency": 500, "ConfigurationFileName": "configuration.xml", )"
    R"("ConfigurationPath": "/var/lib/velto/nuadriver/NUAlocal/config/", )"
    R"("CustomCalibrationProfilesFileName": "calibrationProfiles_custom.xml", )"
    R"("CustomCalibrationProfilesPath": "/var/lib/velto/nuadriver/NUAlocal/profiles/", )"
    R"("DefaultCalibrationProfilesFileName": "calibrationProfiles_default.xml", )"
    R"("DefaultCalibrationProfilesPath": "/config_data/", "LockConfiguration": false, )"
    R"("Logger": {"CompactLog": true, "LogFileEnabled": true, "LogFilePath": "/var/log/velto/driver/", )"
    R"("MaxFileSizeB": 5242880, "MaxNFile": 20}, "QuantityPrecision": 4, "ScaleCom_AdvancedPortScanFilter": "", )"
    R"("ScaleCom_PortScanFilter": "", "SerCom_AdvancedPortScanFilter": "5G", "SerCom_PortScanFilter": "", )"
    R"("SerialConnScanFreq": 5000, "SerialScanLevel": 3, "SkipChecks": false, "StatsDBFileName2": "stats_db_V_1.db", )"
    R"("StatsDBPath": "/var/lib/velto/nuadriver/NUAlocal/stats/"})";

TEST_F(DriverSettingsTest, areWrittenAsAStruct)
{
    EXPECT_EQ(dumped(S("driver").toXmlRpcValue()), defaultDump);
    S settings("driver");
    settings.setBTTargetDevices(devices());
    settings.setBusyCheckFrequency(3000000000LL);
    settings.setAppProfile(QString::fromUtf8("L\xC3\xA4"
                                             "den"));
    const Value written = settings.toXmlRpcValue();
    EXPECT_EQ(dumped(written["BTTargetDevices"]), R"("VELTO 1|00:11,VELTO 2|00:22")");
    EXPECT_EQ(dumped(written["BusyCheckFrequency"]), "3.00000e+09");
    EXPECT_EQ(dumped(written["AppProfile"]), "\"L\xC3\xA4"
                                             "den\"");
}

TEST_F(DriverSettingsTest, comeBackFromTheirStruct)
{
    S settings("driver");
    for (const Given &given : keys())
        settings.update({{given.flatKey, given.text}});
    const S back(settings.toXmlRpcValue(), "other");
    EXPECT_EQ(back, settings);
    for (const Given &given : keys())
        EXPECT_TRUE(given.isTaken(back)) << given.flatKey;
}

TEST_F(DriverSettingsTest, keepAWidePrecision)
{
    S settings("driver");
    settings.setQuantityPrecision(4294967295U);
    const Value written = settings.toXmlRpcValue();
    EXPECT_EQ(dumped(written["QuantityPrecision"]), "4.29497e+09");
    EXPECT_EQ(S(written, "driver").getQuantityPrecision(), 4294967295U);
    settings.update({{"QuantityPrecision", 2147483648.0}});
    EXPECT_EQ(settings.getQuantityPrecision(), 2147483648U);
    EXPECT_EQ(S(settings.toXmlRpcValue(), "driver"), settings);
}

TEST_F(DriverSettingsTest, doNotSendWhatHasNoKey)
{
    S settings("driver");
    settings.setMaxThreadCount(17);
    settings.setPortScanFilter("other", Type::Mixer);
    settings.setBTPairingTimeout(5);
    EXPECT_EQ(dumped(settings.toXmlRpcValue()), defaultDump);
}

TEST_F(DriverSettingsTest, travelInAVariant)
{
    S settings("driver");
    settings.setAppProfile("SHOP");
    const QVariant variant = QVariant::fromValue(settings);
    EXPECT_STREQ(variant.typeName(), "DriverSettings");
    EXPECT_NE(QMetaType::type("DriverSettings"), 0);
    EXPECT_EQ(variant.value<S>(), settings);
    EXPECT_EQ(variant, QVariant::fromValue(settings));
    const QVariantMap map = variant.toMap();
    EXPECT_EQ(map.value("AppProfile"), "SHOP");
    EXPECT_EQ(QVariant(map).value<S>(), settings);
}

TEST_F(DriverSettingsTest, nameTheKeysOfFiles)
{
    EXPECT_STREQ(S::SettingsVersion_TAG, "SettingsVersion");
    EXPECT_STREQ(S::BTPairingTimeout_TAG, "PairingTimeout");
    EXPECT_STREQ(S::BTDiscoveryTimeout_TAG, "DiscoveryTimeout");
    EXPECT_STREQ(S::BTConnectionTimeout_TAG, "ConnectionTimeout");
    EXPECT_STREQ(S::SerCom_SECTION, "SerCom");
    EXPECT_STREQ(S::ScaleCom_SECTION, "ScaleCom");
    EXPECT_STREQ(S::Logger_SECTION, "Logger");
}

TEST_F(DriverSettingsTest, tellDevicesAsText)
{
    EXPECT_EQ(S::deviceInfoListToQString(devices()), "VELTO 1|00:11,VELTO 2|00:22");
    EXPECT_EQ(S::deviceInfoListToQString(Devices()), "");
    Devices nameless;
    nameless.append(BluetoothDeviceInfo("", "00:11"));
    EXPECT_EQ(S::deviceInfoListToQString(nameless), "|00:11");
    EXPECT_EQ(S::configStringToDeviceInfoList("|00:11"), nameless);
    EXPECT_EQ(S::configStringToDeviceInfoList(",VELTO 1|00:11,,|,VELTO 2|00:22,"), devices());
    EXPECT_TRUE(S::configStringToDeviceInfoList("").isEmpty());
    EXPECT_TRUE(S::configStringToDeviceInfoList(",,").isEmpty());
}

TEST_F(DriverSettingsTest, areMadeOfNoNumber)
{
    static_assert(!std::is_constructible_v<S, int> && !std::is_constructible_v<S, bool>);
    static_assert(!std::is_constructible_v<S, double> && !std::is_convertible_v<QString, S>);
    static_assert(!std::is_constructible_v<S, std::string>);
}

} // namespace
