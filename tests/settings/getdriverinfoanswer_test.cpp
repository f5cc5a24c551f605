// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getdriverinfoanswer.h"

#include "base/basetesting.h"
#include "base/confprotocommand.h"

#include <memory>

namespace {

using namespace testing_base;

constexpr char invalid[] = "GetDriverInfoAnswer decoding failed: invalid QVariant value";

DriverInfo info()
{
    return {"nuadriver",
            "/usr/nua",
            QVersionNumber(3, 14, 2),
            "shop-1",
            "/etc/nua/configuration.xml",
            "/usr/nua/config_data/",
            "/var/nua/profiles/",
            "/etc/nua/settings"};
}

GetDriverInfoAnswer answer()
{
    List list = {QVariant::fromValue(info())};
    return GetDriverInfoAnswer(list);
}

TEST(GetDriverInfoAnswer, holdsTheDriversInfo)
{
    EXPECT_EQ(GetDriverInfoAnswer().driverInfo(), DriverInfo());
    EXPECT_EQ(GetDriverInfoAnswer().protoType(), 2);
    EXPECT_EQ(answer().driverInfo(), info());
    List ofMap = {QVariant::fromValue(info()).toMap()};
    EXPECT_EQ(GetDriverInfoAnswer(ofMap), answer());
    EXPECT_EQ(GetDriverInfoAnswer(structOf({{"driver_info", info().toXmlRpcValue()}})), answer());
}

TEST(GetDriverInfoAnswer, travelsAsAStruct)
{
    EXPECT_EQ(
        dumped(answer().toXmlRpcValue()),
        R"({"driver_info": {"config_file_path": "/etc/nua/configuration.xml", )"
        R"("custom_calib_file_path": "/var/nua/profiles/", "default_calib_file_path": "/usr/nua/config_data/", )"
        R"("driver_name": "nuadriver", "driver_path": "/usr/nua", "driver_version": "3.14.2", )"
        R"("host_name": "shop-1", "settings_path": "/etc/nua/settings"}})");
    EXPECT_EQ(GetDriverInfoAnswer(answer().toXmlRpcValue()), answer());
}

TEST(GetDriverInfoAnswer, refusesWhatHoldsNone)
{
    for (List list : {List(), List{7}, List{"nuadriver"}, List{QVariant()}, List{QVariantMap()}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE00448", invalid, "GetDriverInfoAnswer::GetDriverInfoAnswer(QList<QVariant>&)",
                      [&] { GetDriverInfoAnswer{list}; });
    }
    for (const Value &value : {Value(5), arrayOf(1), structOf({}), structOf({{"driver", 1}})})
        expectRefusal("DE00448", invalid,
                      "GetDriverInfoAnswer::GetDriverInfoAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { GetDriverInfoAnswer{value}; });
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { GetDriverInfoAnswer{Value()}; });
}

TEST(GetDriverInfoAnswer, passesOnWhatTheInfoIsRefusedWith)
{
    constexpr char function[] = "DriverInfo::DriverInfo(const XmlRpc::XmlRpcValue&)";
    for (const Value &value : {Value(5), structOf({})})
        expectRefusal("DE01311", "DriverInfo: expected driver name value", function, [&] {
            GetDriverInfoAnswer{structOf({{"driver_info", value}})};
        });
    List half = {QVariantMap{{"driver_name", "nuadriver"}}};
    expectRefusal("DE00354", "DriverInfo: expected driver path value", function,
                  [&] { GetDriverInfoAnswer{half}; });
}

TEST(GetDriverInfoAnswer, takesAnInfo)
{
    GetDriverInfoAnswer other;
    other.setDriverInfo(QVariant::fromValue(info()));
    EXPECT_EQ(other.driverInfo(), info());
    for (const QVariant &value :
         {QVariant(), QVariant(7), QVariant(QVariantMap()), QVariant(QVariantMap{{"driver_name", "other"}}),
          QVariant(QVariantMap{{"driver_name", 5}})})
        EXPECT_NO_THROW(other.setDriverInfo(value)) << shown({value});
    EXPECT_EQ(other.driverInfo(), info());
}

TEST(GetDriverInfoAnswer, clonesAndCompares)
{
    const std::unique_ptr<ProtoAnswer> copy(answer().clone());
    EXPECT_EQ(className(copy.get()), "GetDriverInfoAnswer");
    EXPECT_TRUE(answer().equalTo(copy.get()));
    const GetDriverInfoAnswer other;
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer().equalTo(&other));
    EXPECT_FALSE(answer().equalTo(&plain));
    EXPECT_FALSE(answer().equalTo(nullptr));
}

} // namespace
