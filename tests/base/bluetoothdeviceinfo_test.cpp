// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/bluetoothdeviceinfo_p.h"

#include "base/basetesting.h"

#include <type_traits>

namespace {

using namespace testing_base;
using Info = BluetoothDeviceInfo;
using Devices = BluetoothDeviceInfoList;

TEST(BluetoothDeviceInfo, isAStructOfTwoTexts)
{
    EXPECT_EQ(dumped(Info().toXmlRpcValue()), R"({"bt_address": "", "bt_name": ""})");
    const Info info("Velto", "00:11:22:33:44:55");
    EXPECT_EQ(dumped(info.toXmlRpcValue()), R"({"bt_address": "00:11:22:33:44:55", "bt_name": "Velto"})");
    const Info read(structOf({{"bt_name", "Velto"}, {"bt_address", "00:11:22:33:44:55"}, {"more", 1}}));
    EXPECT_EQ(read.name, "Velto");
    EXPECT_EQ(read.address, "00:11:22:33:44:55");
    EXPECT_EQ(read, info);
    EXPECT_NE(Info("Velta", "00:11:22:33:44:55"), info);
    EXPECT_NE(Info("Velto", "00:11:22:33:44:56"), info);
}

TEST(BluetoothDeviceInfo, isRefusedWithoutAMember)
{
    constexpr char ofValue[] = "BluetoothDeviceInfo::BluetoothDeviceInfo(const XmlRpc::XmlRpcValue&)";
    for (const Value &value : {Value(), Value("a"), arrayOf("a", "b"), structOf({{"bt_address", "b"}}),
                               structOf({{"bt_name", 1}, {"bt_address", 2}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE03031", "BluetoothDeviceInfo: expected name value", ofValue,
                      [&] { Info made(value); });
    }
    for (const Value &value :
         {structOf({{"bt_name", "a"}}), structOf({{"bt_name", "a"}, {"bt_address", 2}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE03032", "BluetoothDeviceInfo: expected address value", ofValue,
                      [&] { Info made(value); });
    }
    static_assert(!std::is_constructible_v<Info, int> && !std::is_constructible_v<Info, bool> &&
                  !std::is_constructible_v<Info, double> && !std::is_constructible_v<Info, const char *>);
}

TEST(BluetoothDeviceInfo, travelsInAVariant)
{
    const Info info("a", "b");
    EXPECT_STREQ(QVariant::fromValue(info).typeName(), "BluetoothDeviceInfo");
    EXPECT_EQ(QVariant(QVariantMap{{"bt_name", "a"}, {"bt_address", "b"}}).value<Info>(), info);
    EXPECT_EQ(QVariant::fromValue(info), QVariant::fromValue(Info("a", "b")));
    EXPECT_STREQ(QVariant::fromValue(Devices{info}).typeName(), "BluetoothDeviceInfoList");
    EXPECT_EQ(QVariant::fromValue(Devices{info}), QVariant::fromValue(Devices{Info("a", "b")}));
}

TEST(BluetoothDeviceInfoList, comparesDevicesInTheirOrder)
{
    const Info a("a", "1");
    const Info b("b", "2");
    EXPECT_EQ((Devices{a, b}), (Devices{a, b}));
    EXPECT_NE((Devices{a, b}), (Devices{b, a}));
    EXPECT_NE((Devices{a, b}), (Devices{a}));
    EXPECT_EQ(Devices(), Devices(QList<Info>()));
    EXPECT_EQ(Devices(QList<Info>{a, b}), (Devices{a, b}));
}

TEST(BluetoothDeviceInfoList, isAMemberOfRecords)
{
    const quv::FieldType &type = quv::fieldType<Devices>();
    const Info a("a", "1");
    const Info b("b", "2");
    Devices devices{a};
    const Value written = arrayOf(a.toXmlRpcValue(), b.toXmlRpcValue());
    EXPECT_EQ(type.read(written, &devices), quv::Decoded::Good);
    EXPECT_EQ(devices, (Devices{a, b}));
    EXPECT_EQ(type.read(Value(1), &devices), quv::Decoded::OtherType);
    Value value;
    type.write(&devices, value);
    EXPECT_EQ(dumped(value), R"([{"bt_address": "1", "bt_name": "a"}, {"bt_address": "2", "bt_name": "b"}])");

    EXPECT_EQ(dumped(EncodeXmlRpcVariant(QVariant::fromValue(devices))), dumped(value));

    EXPECT_TRUE(type.readVariant(QVariant::fromValue(Devices{b}), &devices));
    EXPECT_EQ(devices, Devices{b});
    EXPECT_TRUE(type.readVariant(QVariantList{QVariant::fromValue(a)}, &devices));
    EXPECT_EQ(devices, Devices{a});
    for (const QVariant &bad : {QVariant(), QVariant(1), QVariant(QVariantList{1})})
        EXPECT_FALSE(type.readVariant(bad, &devices));
    EXPECT_EQ(devices, Devices{a});
    const Devices same{a};
    EXPECT_TRUE(type.equal(&devices, &same));
    type.reset(&devices);
    EXPECT_FALSE(type.equal(&devices, &same));
    EXPECT_TRUE(devices.isEmpty());
}

} // namespace
