// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/bluetoothsettingsanswer.h"

#include "settings/bluetoothtesting.h"

#include <memory>

namespace {

using namespace testing_settings;

TEST(BluetoothSettingsAnswer, tellsTheSettings)
{
    EXPECT_EQ(BluetoothSettingsAnswer().protoType(), 2);
    EXPECT_FALSE(BluetoothSettingsAnswer().enabled());
    const BluetoothSettingsAnswer answer(true, targets(), banned());
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), dump);
    EXPECT_EQ(BluetoothSettingsAnswer(settingsStruct()), answer);
    List list = settingsList();
    EXPECT_EQ(BluetoothSettingsAnswer(list), answer);
    EXPECT_EQ(answer.bannedDevices(), banned());
}

TEST(BluetoothSettingsAnswer, isRefusedAsTheSettings)
{
    List list = {true};
    expectRefusal("DE02447", invalid, "BluetoothSettingsBase::BluetoothSettingsBase(QList<QVariant>)",
                  [&] { BluetoothSettingsAnswer{list}; });
    expectRefusal("DE02446", invalid,
                  "BluetoothSettingsBase::BluetoothSettingsBase(const XmlRpc::XmlRpcValue&)",
                  [] { BluetoothSettingsAnswer{Value(0)}; });
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { BluetoothSettingsAnswer{Value()}; });
}

TEST(BluetoothSettingsAnswer, clonesAndCompares)
{
    const BluetoothSettingsAnswer answer(true, targets(), banned());
    const std::unique_ptr<ProtoAnswer> copy(answer.clone());
    EXPECT_EQ(className(copy.get()), "BluetoothSettingsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const BluetoothSettingsAnswer others[] = {
        {false, targets(), banned()}, {true, banned(), banned()}, {true, targets(), targets()}};
    for (const BluetoothSettingsAnswer &other : others) {
        EXPECT_FALSE(answer.equalTo(&other));
        EXPECT_TRUE(answer != other);
    }
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
