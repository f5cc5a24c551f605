// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/setbluetoothsettingscmd.h"

#include "base/commandcontract.h"
#include "settings/bluetoothtesting.h"

#include <type_traits>

namespace {

using namespace testing_settings;

constexpr char ofValue[] = "BluetoothSettingsBase::BluetoothSettingsBase(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "BluetoothSettingsBase::BluetoothSettingsBase(QList<QVariant>)";

CommandFacts facts()
{
    const QVariant none = QVariant::fromValue(BluetoothDeviceInfoList());
    const std::string written = std::string("[") + dump + "]";
    CommandFacts facts(formsOf<SetBluetoothSettingsCmd>());
    facts.catalogue = {"SET_BT_SETTINGS", 129, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.words = {"Bluetooth settings update", "Updating bluetooth settings"};
    facts.defaults =
        Request()
            .parameters({false, none, none})
            .written(R"([{"bt_banned_devices": [], "bt_enabled": false, "bt_target_devices": []}])");
    facts.requests = {
        Request(settingsList())
            .typed<SetBluetoothSettingsCmd>(true, targets(), banned())
            .value(arrayOf(settingsStruct()))
            .written(written),
        Request(settingsListOfMaps())
            .typed<SetBluetoothSettingsCmd>(BluetoothSettingsBase(true, targets(), banned()))
            .value(arrayOf(settingsStruct()))
            .parameters(settingsList())
            .written(written),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(SetBluetoothSettingsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(SetBluetoothSettingsCmd, holdsTheSettings)
{
    const SetBluetoothSettingsCmd command(arrayOf(settingsStruct()));
    EXPECT_TRUE(command.enabled());
    EXPECT_EQ(command.targetDevices(), targets());
    EXPECT_EQ(command.bannedDevices(), banned());
}

TEST(SetBluetoothSettingsCmd, isRefusedAsTheSettings)
{
    for (const Value &value : {Value(), Value(true), arrayOf(true), structOf({})})
        expectRefusal("DE02446", invalid, ofValue, [&] { SetBluetoothSettingsCmd{arrayOf(value)}; });
    expectRefusal("DE02446", invalid, ofList, [] { SetBluetoothSettingsCmd{List{1}}; });
    expectRefusal("DE02447", invalid, ofList, [] { SetBluetoothSettingsCmd{List{true}}; });
    expectRefusal("DE02448", invalid, ofList, [] { SetBluetoothSettingsCmd{settingsList().mid(0, 2)}; });
    static_assert(!std::is_constructible_v<SetBluetoothSettingsCmd, int>);
}

} // namespace
