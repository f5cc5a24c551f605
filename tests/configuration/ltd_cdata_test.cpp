// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/ltd_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {20,
                             "LTD_cdata",
                             "DE01995",
                             "Invalid Dispenser data",
                             "DE02802",
                             "DE02010",
                             "DE02012",
                             {
                                 {"Linear Steps", "DE01997"},
                                 {"Length", "DE01998"},
                                 {"Zero Reference Pin Size", "DE01999"},
                                 {"Circuit Pin Size", "DE02001"},
                                 {"Positioning Tolerance", "DE02002"},
                                 {"High Speed", "DE02003"},
                                 {"Low Speed", "DE02004"},
                                 {"Zero Reference Search Speed", "DE02005"},
                                 {"Stepper Resolution", "DE02006"},
                                 {"Supplying Current", "DE02007"},
                                 {"Free Slot Position", "DE02008"},
                                 {"Service Position", "DE02009"},
                             }};

FW_Lineartable configured()
{
    FW_Lineartable device;
    device.setLinearSteps(70000);
    device.setLength(2500);
    device.setZeroRefPinSize(61);
    device.setCircuitPinSize(31);
    device.setPositioningTolerance(5);
    device.setHighSpeed(81);
    device.setLowSpeed(21);
    device.setZeroRefSearchSpeed(32);
    device.setResolution(800);
    device.setSupplyingCurrent(17);
    device.setFreeSlotPosition(90);
    device.setServicePosition(300);
    return device;
}

} // namespace

TEST(LTD_cdata, readsTheFieldsOfItsTable)
{
    expectTable<LTD_cdata>(structure);
}

TEST(LTD_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { LTD_cdata row(machine); });
    expectDispenserWantedToApply<LTD_cdata>(structure);
}

TEST(LTD_cdata, carriesTheDevice)
{
    expectDeviceCarried<LTD_cdata>(configured(), "70000,2500,61,31,5,81,21,32,800,17,90,300",
                                   "20000,1800,60,30,4,80,20,30,1600,30,0,100");
}

TEST(LTD_cdata, readsEveryValue)
{
    const LTD_cdata row(QStringLiteral("1,70000,2500,61,31,5,81,21,32,800,17,90,300"));
    EXPECT_EQ(row.device().linearSteps(), 70000);
    EXPECT_EQ(row.device().length(), 2500);
    EXPECT_EQ(row.device().zeroRefPinSize(), 61);
    EXPECT_EQ(row.device().circuitPinSize(), 31);
    EXPECT_EQ(row.device().positioningTolerance(), 5);
    EXPECT_EQ(row.device().highSpeed(), 81);
    EXPECT_EQ(row.device().lowSpeed(), 21);
    EXPECT_EQ(row.device().zeroRefSearchSpeed(), 32);
    EXPECT_EQ(row.device().resolution(), 800);
    EXPECT_EQ(row.device().supplyingCurrent(), 17);
    EXPECT_EQ(row.device().freeSlotPosition(), 90);
    EXPECT_EQ(row.device().servicePosition(), 300);
}

TEST(LTD_cdata, clearsToTheDefaults)
{
    LTD_cdata row(QStringLiteral("1,70000,2500,61,31,5,81,21,32,800,17,90,300"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_Lineartable());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,70000,2500,61,31,5,81,21,32,800,17,90,300"));
}

TEST(LTD_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(
        dumped(LTD_cdata(QStringLiteral("1,70000,2500,61,31,5,81,21,32,800,17,90,300")).toXmlRpcValue()),
        R"({"cmd_enabled": 1})");
}
