// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/hea_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {17,
                             "HEA_cdata",
                             "DE01632",
                             "Invalid Dispenser data",
                             "DE02799",
                             "DE01636",
                             "DE01638",
                             {
                                 {"Low Temperature Threshold", "DE01634"},
                                 {"High Temperature Threshold", "DE01635"},
                             }};

FW_Heater configured()
{
    FW_Heater device;
    device.setLowTemperatureThreshold(12);
    device.setHighTemperatureThreshold(33);
    return device;
}

} // namespace

TEST(HEA_cdata, readsTheFieldsOfItsTable)
{
    expectTable<HEA_cdata>(structure);
}

TEST(HEA_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { HEA_cdata row(machine); });
    expectDispenserWantedToApply<HEA_cdata>(structure);
}

TEST(HEA_cdata, carriesTheDevice)
{
    expectDeviceCarried<HEA_cdata>(configured(), "12,33", "18,25");
}

TEST(HEA_cdata, readsEveryValue)
{
    const HEA_cdata row(QStringLiteral("1,12,33"));
    EXPECT_EQ(row.device().lowTemperatureThreshold(), 12);
    EXPECT_EQ(row.device().highTemperatureThreshold(), 33);
}

TEST(HEA_cdata, clearsToTheDefaults)
{
    HEA_cdata row(QStringLiteral("1,12,33"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_Heater());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,12,33"));
}

TEST(HEA_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(HEA_cdata(QStringLiteral("1,12,33")).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}

TEST(HEA_cdata, cannotBeSentBelowZero)
{
    FW_Heater heater;
    heater.setLowTemperatureThreshold(-5);
    FW_Dispenser machine;
    machine.setDevice(heater);
    const HEA_cdata row(&machine);
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,-5,25"));
    bool ok = true;
    row.serialParams(&ok);
    EXPECT_FALSE(ok);
}
