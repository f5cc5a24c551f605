// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/setdriversettingscmd.h"

#include "base/commandcontract.h"
#include "settings/environment.h"

#include <type_traits>

namespace {

using namespace testing_base;

using Hash = QHash<QString, QVariant>;

constexpr char ofValue[] = "SetDriverSettingsCmd::SetDriverSettingsCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "SetDriverSettingsCmd::SetDriverSettingsCmd(QList<QVariant>)";
constexpr char notCreated[] = "SetDriverSettingsCmd: Failed to create DriverSettings object";

// with the empty name for the folder of logs, that of the defaults of a command
std::string settingsDump(const std::string &profile)
{
    return R"([{"driver_settings": {"AppProfile": ")" + profile +
           R"(", "BTBannedDevices": "", "BTEnabled": false, "BTScanFilter": "VELTO_5G", "BTScanPolicy": 0, )"
           R"("BTTargetDevices": "", "BusyCheckFrequency": 500, "ConfigurationFileName": "configuration.xml", )"
           R"("ConfigurationPath": "/var/lib/velto/nuadriver/NUAlocal/config/", )"
           R"("CustomCalibrationProfilesFileName": "calibrationProfiles_custom.xml", )"
           R"("CustomCalibrationProfilesPath": "/var/lib/velto/nuadriver/NUAlocal/profiles/", )"
           R"("DefaultCalibrationProfilesFileName": "calibrationProfiles_default.xml", )"
           R"("DefaultCalibrationProfilesPath": "/config_data/", "LockConfiguration": false, )"
           R"("Logger": {"CompactLog": true, "LogFileEnabled": true, "LogFilePath": "/var/log/velto//", )"
           R"("MaxFileSizeB": 5242880, "MaxNFile": 20}, "QuantityPrecision": 4, )"
           R"("ScaleCom_AdvancedPortScanFilter": "", "ScaleCom_PortScanFilter": "", )"
           R"("SerCom_AdvancedPortScanFilter": "5G", "SerCom_PortScanFilter": "", "SerialConnScanFreq": 5000, )"
           R"("SerialScanLevel": 3, "SkipChecks": false, "StatsDBFileName2": "stats_db_V_1.db", )"
           R"("StatsDBPath": "/var/lib/velto/nuadriver/NUAlocal/stats/"}}])";
}

DriverSettings settings()
{
    DriverSettings settings;
    settings.setAppProfile("SHOP");
    return settings;
}

CommandFacts facts()
{
    const Hash hash = {{"AppProfile", "SHOP"}, {"Logger_MaxNFile", 7}};
    CommandFacts facts(formsOf<SetDriverSettingsCmd>());
    facts.catalogue = {"SET_DRIVER_SETTINGS", 82, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.getters = {getter(&SetDriverSettingsCmd::driverSettingsValue),
                     getter(&SetDriverSettingsCmd::driverSettingsHash)};
    facts.words = {"Application settings update", "Updating application settings"};
    facts.defaults = Request()
                         .parameters({QVariant::fromValue(DriverSettings())})
                         .holds({QVariant::fromValue(DriverSettings()), Hash()})
                         .written(settingsDump("DEFAULT"));
    facts.requests = {
        Request({QVariant::fromValue(settings())})
            .typed<SetDriverSettingsCmd>(settings())
            .value(arrayOf(structOf({{"driver_settings", structOf({{"AppProfile", "SHOP"}})}})))
            .holds({QVariant::fromValue(settings()), Hash()})
            .written(settingsDump("SHOP")),
        Request({hash})
            .typed<SetDriverSettingsCmd>(hash)
            .value(arrayOf(structOf(
                {{"driver_settings_hash", structOf({{"AppProfile", "SHOP"}, {"Logger_MaxNFile", 7}})}})))
            .holds({QVariant::fromValue(DriverSettings()), hash})
            .written(R"([{"driver_settings_hash": {"AppProfile": "SHOP", "Logger_MaxNFile": 7}}])"),
    };
    facts.answers = confAnswers();
    return facts;
}

class SetDriverSettingsCmdTest : public CleanEnvironment
{};

TEST_F(SetDriverSettingsCmdTest, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST_F(SetDriverSettingsCmdTest, takesTheStructInAListToo)
{
    const QVariantMap whole = QVariant::fromValue(settings()).toMap();
    EXPECT_EQ(SetDriverSettingsCmd(List{whole}).driverSettingsValue(), settings());
    const QVariantMap hash = {{"AppProfile", "SHOP"}};
    for (const QVariantMap &map :
         {QVariantMap{{"driver_settings", whole}}, QVariantMap{{"driver_settings", hash}}}) {
        const SetDriverSettingsCmd command(List{map});
        EXPECT_EQ(command.driverSettingsValue(), settings());
        EXPECT_TRUE(command.driverSettingsHash().isEmpty());
    }
    const SetDriverSettingsCmd command(List{QVariantMap{{"driver_settings_hash", hash}}});
    EXPECT_EQ(command.driverSettingsHash(), (Hash{{"AppProfile", "SHOP"}}));
}

TEST_F(SetDriverSettingsCmdTest, takesTheWholeSetupBeforeSingleSettings)
{
    const SetDriverSettingsCmd command(
        arrayOf(structOf({{"driver_settings", structOf({{"AppProfile", "SHOP"}})},
                          {"driver_settings_hash", structOf({{"SkipChecks", true}})}})));
    EXPECT_EQ(command.driverSettingsValue(), settings());
    EXPECT_TRUE(command.driverSettingsHash().isEmpty());
}

TEST_F(SetDriverSettingsCmdTest, withoutASingleSettingHoldsTheDefaults)
{
    const SetDriverSettingsCmd command(arrayOf(structOf({{"driver_settings_hash", structOf({})}})));
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), settingsDump("DEFAULT"));
}

TEST_F(SetDriverSettingsCmdTest, writesNoSettingWithoutAValue)
{
    bool ok = false;
    EXPECT_EQ(dumped(SetDriverSettingsCmd(Hash{{"AppProfile", "SHOP"}, {"SerialConnScanFreq", QVariant()}})
                         .xmlrpc_parameters(&ok)),
              R"([{"driver_settings_hash": {"AppProfile": "SHOP"}}])");
    EXPECT_TRUE(ok);
    // which is not the default setup
    EXPECT_EQ(dumped(SetDriverSettingsCmd(Hash{{"SerialConnScanFreq", QVariant()}}).xmlrpc_parameters()),
              R"([{"driver_settings_hash": {}}])");
}

TEST_F(SetDriverSettingsCmdTest, refusesAValueWithoutSettings)
{
    constexpr char noStruct[] = "SetDriverSettingsCmd decoding failed: expected xml-rpc struct type";
    for (const Value &value : {Value(5), Value("AppProfile"), Value(), arrayOf(1)})
        expectRefusal("DE00978", noStruct, ofValue, [&] { SetDriverSettingsCmd{arrayOf(value)}; });
    for (const Value &value : {Value(5), Value("AppProfile"), Value(), arrayOf(1)}) {
        expectRefusal("DE00980", notCreated, ofValue, [&] {
            SetDriverSettingsCmd{arrayOf(structOf({{"driver_settings", value}}))};
        });
        expectRefusal("DE02427", notCreated, ofValue, [&] {
            SetDriverSettingsCmd{arrayOf(structOf({{"driver_settings_hash", value}}))};
        });
    }
    for (const Value &value : {structOf({}), structOf({{"AppProfile", "SHOP"}})})
        expectRefusal("DE00979", notCreated, ofValue, [&] { SetDriverSettingsCmd{arrayOf(value)}; });
}

TEST_F(SetDriverSettingsCmdTest, refusesAListWithoutSettings)
{
    for (const QVariant &variant :
         {QVariant(), QVariant(5), QVariant("SHOP"), QVariant(QVariantMap()),
          QVariant(QVariantMap{{"driver_settings", 5}}), QVariant(QVariantMap{{"driver_settings_hash", 5}}),
          QVariant(QVariantList())})
        expectRefusal("DE00981", "SetDriverSettingsCmd: failed to create DriverSettings object", ofList,
                      [&] { SetDriverSettingsCmd{List{variant}}; });
}

TEST_F(SetDriverSettingsCmdTest, takesNoNumberAlone)
{
    static_assert(!std::is_constructible_v<SetDriverSettingsCmd, int>);
    static_assert(!std::is_convertible_v<DriverSettings, SetDriverSettingsCmd>);
}

} // namespace
