// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getdriversettingsanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

constexpr char invalid[] = "GetDriverSettingsAnswer decoding failed: invalid QVariant value";

DriverSettings settings()
{
    DriverSettings settings;
    settings.setAppProfile("SHOP");
    return settings;
}

GetDriverSettingsAnswer answer()
{
    List list = {QVariant::fromValue(settings())};
    return GetDriverSettingsAnswer(list);
}

TEST(GetDriverSettingsAnswer, holdsTheDriversSettings)
{
    EXPECT_EQ(GetDriverSettingsAnswer().driverSettings(), DriverSettings());
    EXPECT_EQ(GetDriverSettingsAnswer().protoType(), 2);
    EXPECT_EQ(answer().driverSettings(), settings());
    List ofMap = {QVariant::fromValue(settings()).toMap()};
    EXPECT_EQ(GetDriverSettingsAnswer(ofMap), answer());
}

TEST(GetDriverSettingsAnswer, travelsAsAStruct)
{
    const Value written = answer().toXmlRpcValue();
    EXPECT_EQ(written.size(), 1);
    EXPECT_EQ(dumped(written["driver_settings"]["AppProfile"]), R"("SHOP")");
    EXPECT_EQ(dumped(written["driver_settings"]["Logger"]["MaxNFile"]), "20");
    EXPECT_EQ(GetDriverSettingsAnswer(written), answer());
}

TEST(GetDriverSettingsAnswer, hasDefaultsForWhatIsNotTold)
{
    const GetDriverSettingsAnswer some(structOf({{"driver_settings", structOf({{"AppProfile", "SHOP"}})}}));
    EXPECT_EQ(some.driverSettings(), settings());
    const GetDriverSettingsAnswer none(structOf({{"driver_settings", structOf({})}}));
    EXPECT_EQ(none.driverSettings(), DriverSettings());
}

TEST(GetDriverSettingsAnswer, refusesWhatHoldsNone)
{
    for (List list : {List(), List{7}, List{"SHOP"}, List{QVariant()}, List{QVariantMap()}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE00974", invalid,
                      "GetDriverSettingsAnswer::GetDriverSettingsAnswer(QList<QVariant>&)",
                      [&] { GetDriverSettingsAnswer{list}; });
    }
    for (const Value &value :
         {Value(5), arrayOf(1), structOf({}), structOf({{"AppProfile", "SHOP"}}),
          structOf({{"driver_settings", 5}}), structOf({{"driver_settings", arrayOf(1)}})})
        expectRefusal("DE00974", invalid,
                      "GetDriverSettingsAnswer::GetDriverSettingsAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { GetDriverSettingsAnswer{value}; });
}

TEST(GetDriverSettingsAnswer, takesSettings)
{
    GetDriverSettingsAnswer other;
    other.setDriverSettings(QVariant::fromValue(settings()));
    EXPECT_EQ(other.driverSettings(), settings());
    for (const QVariant &value :
         {QVariant(), QVariant(7), QVariant(QVariantMap()), QVariant(QVariantMap{{"AppProfile", "MILL"}})})
        EXPECT_NO_THROW(other.setDriverSettings(value)) << shown({value});
    EXPECT_EQ(other.driverSettings(), settings());
}

TEST(GetDriverSettingsAnswer, clonesAndCompares)
{
    const std::unique_ptr<ProtoAnswer> copy(answer().clone());
    EXPECT_EQ(className(copy.get()), "GetDriverSettingsAnswer");
    EXPECT_TRUE(answer().equalTo(copy.get()));
    const GetDriverSettingsAnswer other;
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer().equalTo(&other));
    EXPECT_FALSE(answer().equalTo(&plain));
    EXPECT_FALSE(answer().equalTo(nullptr));
}

} // namespace
