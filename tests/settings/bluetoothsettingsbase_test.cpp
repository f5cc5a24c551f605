// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/bluetoothsettingsbase.h"

#include "base/basetesting.h"
#include "settings/bluetoothtesting.h"
#include "settings/structs.h"

namespace {

using namespace testing_settings;

TEST(BluetoothSettingsBase, isOffAtFirst)
{
    const BluetoothSettingsBase settings;
    EXPECT_FALSE(settings.enabled());
    EXPECT_TRUE(settings.targetDevices().isEmpty());
    EXPECT_TRUE(settings.bannedDevices().isEmpty());
    EXPECT_EQ(dumped(settings.xmlrpcvalue(nullptr)),
              R"({"bt_banned_devices": [], "bt_enabled": false, "bt_target_devices": []})");
}

TEST(BluetoothSettingsBase, travels)
{
    const BluetoothSettingsBase settings(true, targets(), banned());
    EXPECT_TRUE(settings.enabled());
    EXPECT_EQ(settings.targetDevices(), targets());
    EXPECT_EQ(settings.bannedDevices(), banned());
    bool ok = false;
    EXPECT_EQ(dumped(settings.xmlrpcvalue(&ok)), dump);
    EXPECT_TRUE(ok);
    EXPECT_EQ(BluetoothSettingsBase(settingsStruct()), settings);
    EXPECT_EQ(settings.variantParameters(), settingsList());
    EXPECT_EQ(BluetoothSettingsBase(settingsList()), settings);
    EXPECT_EQ(BluetoothSettingsBase(settingsListOfMaps()), settings);
}

TEST(BluetoothSettingsBase, refusesWhatLacksAMember)
{
    constexpr char ofList[] = "BluetoothSettingsBase::BluetoothSettingsBase(QList<QVariant>)";
    constexpr char ofValue[] = "BluetoothSettingsBase::BluetoothSettingsBase(const XmlRpc::XmlRpcValue&)";
    const std::pair<const char *, const char *> members[] = {
        {"bt_enabled", "DE02446"}, {"bt_target_devices", "DE02447"}, {"bt_banned_devices", "DE02448"}};
    for (int i = 0; i < 3; ++i) {
        const auto &[key, code] = members[i];
        SCOPED_TRACE(key);
        const List cut = settingsList().mid(0, i);
        expectRefusal(code, invalid, ofList, [&] { BluetoothSettingsBase{cut}; });
        for (const QVariant &wrong : {QVariant(), QVariant(1), QVariant("true"), QVariant(QVariantList{1})}) {
            List other = settingsList();
            other[i] = wrong;
            expectRefusal(code, invalid, ofList, [&] { BluetoothSettingsBase{other}; });
        }
        for (const Value &wrong : {Value(1), Value("true"), structOf({})}) {
            Value other = settingsStruct();
            other[key] = wrong;
            expectRefusal(code, invalid, ofValue, [&] { BluetoothSettingsBase{other}; });
        }
        const Value missing = without(settingsStruct(), key);
        expectRefusal(code, invalid, ofValue, [&] { BluetoothSettingsBase{missing}; });
    }
    for (const Value &value : {Value(), Value(5), arrayOf(true)})
        expectRefusal("DE02446", invalid, ofValue, [&] { BluetoothSettingsBase{value}; });
}

TEST(BluetoothSettingsBase, passesOnWhatADeviceIsRefusedWith)
{
    Value value = settingsStruct();
    value["bt_banned_devices"] = arrayOf(structOf({{"bt_name", "VELTO 3"}}));
    expectRefusal("DE03032", "BluetoothDeviceInfo: expected address value",
                  "BluetoothDeviceInfo::BluetoothDeviceInfo(const XmlRpc::XmlRpcValue&)",
                  [&] { BluetoothSettingsBase{value}; });
}

TEST(BluetoothSettingsBase, differsInEachField)
{
    const BluetoothSettingsBase settings(true, targets(), banned());
    const BluetoothSettingsBase others[] = {
        {false, targets(), banned()}, {true, banned(), banned()}, {true, targets(), targets()}};
    for (const BluetoothSettingsBase &other : others) {
        EXPECT_TRUE(settings != other);
        EXPECT_FALSE(settings == other);
    }
}

} // namespace
