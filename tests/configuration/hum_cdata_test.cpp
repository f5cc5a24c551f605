// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/hum_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {7,
                             "HUM_cdata",
                             "DE00246",
                             "Invalid Dispenser data",
                             "DE02791",
                             "DE00251",
                             "DE00253",
                             {
                                 {"Sensor Reading Period", "DE00248"},
                                 {"Multiplier Coefficient", "DE00249"},
                                 {"Low Humidity Warning Threshold", "DE00250"},
                             }};

FW_Humidifier configured()
{
    FW_Humidifier device;
    device.setReadingPeriod(300);
    device.setMultiplierCoefficient(12, 0);
    device.setLowHumidityWarningThreshold(45);
    return device;
}

} // namespace

TEST(HUM_cdata, readsTheFieldsOfItsTable)
{
    expectTable<HUM_cdata>(structure);
}

TEST(HUM_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { HUM_cdata row(machine); });
    expectDispenserWantedToApply<HUM_cdata>(structure);
}

TEST(HUM_cdata, carriesTheDevice)
{
    expectDeviceCarried<HUM_cdata>(configured(), "300,12,45", "60,10,40");
}

TEST(HUM_cdata, readsEveryValue)
{
    const HUM_cdata row(QStringLiteral("1,300,12,45"));
    EXPECT_EQ(row.device().readingPeriod(), 300);
    EXPECT_EQ(row.device().multiplierCoefficient(0), 12);
    EXPECT_EQ(row.device().lowHumidityWarningThreshold(), 45);
}

TEST(HUM_cdata, clearsToTheDefaults)
{
    HUM_cdata row(QStringLiteral("1,300,12,45"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_Humidifier());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,300,12,45"));
}

TEST(HUM_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(
        dumped(HUM_cdata(QStringLiteral("1,300,12,45")).toXmlRpcValue()),
        R"({"cmd_enabled": 1, "low_humidity_warning_threshold": 45, "multiplier_coefficient": 12, "reading_period": 300})");
}

TEST(HUM_cdata, leavesTheSecondVaporizer)
{
    FW_Humidifier present;
    present.setMultiplierCoefficient(77, 1);
    FW_Dispenser machine;
    machine.setDevice(present);
    EXPECT_TRUE(applied(HUM_cdata(QStringLiteral("1,300,12,45")), machine));
    const auto *humidifier = dynamic_cast<const FW_Humidifier *>(machine.getDevice(5));
    ASSERT_NE(humidifier, nullptr);
    EXPECT_EQ(humidifier->multiplierCoefficient(0), 12);
    EXPECT_EQ(humidifier->multiplierCoefficient(1), 77);
}
