// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/tem_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {8,
                             "TEM_cdata",
                             "DE00595",
                             "Invalid Dispenser data",
                             "DE02792",
                             "DE00605",
                             "DE00607",
                             {
                                 {"Sensor Reading Period", "DE00598"},
                                 {"Temperature Threshold 1", "DE00599"},
                                 {"Temperature Threshold 2", "DE00601"},
                                 {"Temperature Threshold 3", "DE00602"},
                                 {"Erogation Speed 2 (group 1)", "DE00603"},
                                 {"Erogation Speed 3 (group 1)", "DE00604"},
                                 {"Erogation Speed 2 (group 2)", "DE02830", Optional},
                                 {"Erogation Speed 3 (group 2)", "DE02831", Optional},
                             }};

FW_TemperatureSensor configured()
{
    FW_TemperatureSensor device;
    device.setReadingPeriod(300);
    device.clearTemperatureThresholds();
    device.addTemperatureThreshold(31);
    device.addTemperatureThreshold(32);
    device.addTemperatureThreshold(33);
    device.clearErogationSpeeds(1);
    device.addErogationSpeed(0, 1);
    device.addErogationSpeed(41, 1);
    device.addErogationSpeed(42, 1);
    device.clearErogationSpeeds(2);
    device.addErogationSpeed(0, 2);
    device.addErogationSpeed(51, 2);
    device.addErogationSpeed(52, 2);
    return device;
}

} // namespace

TEST(TEM_cdata, readsTheFieldsOfItsTable)
{
    expectTable<TEM_cdata>(structure);
}

TEST(TEM_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { TEM_cdata row(machine); });
    expectDispenserWantedToApply<TEM_cdata>(structure);
}

TEST(TEM_cdata, carriesTheDevice)
{
    expectDeviceCarried<TEM_cdata>(configured(), "300,31,32,33,41,42,51,52", "60,15,10,5,80,60,80,60");
}

TEST(TEM_cdata, readsEveryValue)
{
    const TEM_cdata row(QStringLiteral("1,300,31,32,33,41,42,51,52"));
    EXPECT_EQ(row.device().readingPeriod(), 300);
    EXPECT_EQ(row.device().temperatureThresholds(), (QList<int>{31, 32, 33}));
    EXPECT_EQ(row.device().erogationSpeeds(1), (QList<int>{0, 41, 42}));
    EXPECT_EQ(row.device().erogationSpeeds(2), (QList<int>{0, 51, 52}));
}

TEST(TEM_cdata, clearsToTheDefaults)
{
    TEM_cdata row(QStringLiteral("1,300,31,32,33,41,42,51,52"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_TemperatureSensor());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,300,31,32,33,41,42,51,52"));
}

TEST(TEM_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(
        dumped(TEM_cdata(QStringLiteral("1,300,31,32,33,41,42,51,52")).toXmlRpcValue()),
        R"({"cmd_enabled": 1, "erogation_speeds_group_1": [0, 41, 42], "erogation_speeds_group_2": [0, 51, 52], "reading_period": 300, "temperature_thresholds": [31, 32, 33]})");
}

TEST(TEM_cdata, hasASecondGroupOfOneSpeedWithoutItsFields)
{
    const TEM_cdata received(tokens("01 01 01 3C 01 0F 01 0A 01 05 01 50 01 46 01 01 01 02"), 7);
    EXPECT_EQ(received.configurationParamsStr(), QStringLiteral("1,60,15,10,5,80,70"));
    EXPECT_EQ(received.device().erogationSpeeds(1), (QList<int>{0, 80, 70}));
    EXPECT_EQ(received.device().erogationSpeeds(2), (QList<int>{0}));
    EXPECT_EQ(TEM_cdata(QStringLiteral("1,60,15,10,5,80,70")).device().erogationSpeeds(2), (QList<int>{0}));
    EXPECT_EQ(TEM_cdata(QStringLiteral("1,60,15,10,5,80,70,90")).device().erogationSpeeds(2),
              (QList<int>{0, 90}));
}

TEST(TEM_cdata, readsTheSameTwice)
{
    TEM_cdata row(QStringLiteral("1,60,15,10,5,80,70,90,91"));
    EXPECT_TRUE(row.updateLocalData(nullptr));
    EXPECT_EQ(row.device().temperatureThresholds(), (QList<int>{15, 10, 5}));
    EXPECT_EQ(row.device().erogationSpeeds(1), (QList<int>{0, 80, 70}));
    EXPECT_EQ(row.device().erogationSpeeds(2), (QList<int>{0, 90, 91}));
}

TEST(TEM_cdata, givesAllThatItTookFromAMachine)
{
    FW_TemperatureSensor sensor = configured();
    sensor.addTemperatureThreshold(34); // no row carries a fourth
    FW_Dispenser source;
    source.setDevice(sensor);
    FW_Dispenser target;
    EXPECT_TRUE(applied(TEM_cdata(&source), target));
    EXPECT_TRUE(*target.getDevice(7) == sensor);
}
