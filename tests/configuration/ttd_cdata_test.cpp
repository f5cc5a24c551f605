// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/ttd_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {15,
                             "TTD_cdata",
                             "DE01603",
                             "Invalid Dispenser data",
                             "DE02797",
                             "DE01614",
                             "DE01617",
                             {
                                 {"Round Steps", "DE01605"},
                                 {"Perimeter", "DE01606"},
                                 {"Zero Reference Pin Size", "DE01607"},
                                 {"Circuit Pin Size", "DE01608"},
                                 {"Positioning Tolerance", "DE01609"},
                                 {"High Speed", "DE01610"},
                                 {"Low Speed", "DE01611"},
                                 {"Zero Reference Search Speed", "DE01612"},
                                 {"Stepper Resolution", "DE01613"},
                                 {"Supplying Current", "DE01640"},
                                 {"Refill Angle", "DE01641"},
                                 {"Service Angle", "DE01984", Optional},
                                 {"Internal Perimeter", "DE02829", Optional},
                             }};

FW_Turntable configured()
{
    FW_Turntable device;
    device.setRoundSteps(70000);
    device.setPerimeter(2500);
    device.setZeroRefPinSize(61);
    device.setCircuitPinSize(31);
    device.setPositioningTolerance(5);
    device.setHighSpeed(81);
    device.setLowSpeed(21);
    device.setZeroRefSearchSpeed(32);
    device.setResolution(800);
    device.setSupplyingCurrent(17);
    device.setRefillAngle(90);
    device.setServiceAngle(180);
    device.setInternalPerimeter(1200);
    return device;
}

} // namespace

TEST(TTD_cdata, readsTheFieldsOfItsTable)
{
    expectTable<TTD_cdata>(structure);
}

TEST(TTD_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { TTD_cdata row(machine); });
    expectDispenserWantedToApply<TTD_cdata>(structure);
}

TEST(TTD_cdata, carriesTheDevice)
{
    expectDeviceCarried<TTD_cdata>(configured(), "70000,2500,61,31,5,81,21,32,800,17,90,180,1200",
                                   "12800,2400,60,30,4,80,20,30,1600,30,0,0,0");
}

TEST(TTD_cdata, readsEveryValue)
{
    const TTD_cdata row(QStringLiteral("1,70000,2500,61,31,5,81,21,32,800,17,90,180,1200"));
    EXPECT_EQ(row.device().roundSteps(), 70000);
    EXPECT_EQ(row.device().perimeter(), 2500);
    EXPECT_EQ(row.device().zeroRefPinSize(), 61);
    EXPECT_EQ(row.device().circuitPinSize(), 31);
    EXPECT_EQ(row.device().positioningTolerance(), 5);
    EXPECT_EQ(row.device().highSpeed(), 81);
    EXPECT_EQ(row.device().lowSpeed(), 21);
    EXPECT_EQ(row.device().zeroRefSearchSpeed(), 32);
    EXPECT_EQ(row.device().resolution(), 800);
    EXPECT_EQ(row.device().supplyingCurrent(), 17);
    EXPECT_EQ(row.device().refillAngle(), 90);
    EXPECT_EQ(row.device().serviceAngle(), 180);
    EXPECT_EQ(row.device().internalPerimeter(), 1200);
}

TEST(TTD_cdata, clearsToTheDefaults)
{
    TTD_cdata row(QStringLiteral("1,70000,2500,61,31,5,81,21,32,800,17,90,180,1200"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_Turntable());
    EXPECT_EQ(row.configurationParamsStr(),
              QStringLiteral("1,70000,2500,61,31,5,81,21,32,800,17,90,180,1200"));
}

TEST(TTD_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(
        dumped(TTD_cdata(QStringLiteral("1,70000,2500,61,31,5,81,21,32,800,17,90,180,1200")).toXmlRpcValue()),
        R"({"cmd_enabled": 1})");
}

TEST(TTD_cdata, leavesWhatNoRowCarries)
{
    FW_Turntable present;
    present.setPositions({3, 1, 2});
    present.setStepTime(900);
    FW_Dispenser machine;
    machine.setDevice(present);
    EXPECT_TRUE(
        applied(TTD_cdata(QStringLiteral("1,70000,2500,61,31,5,81,21,32,800,17,90,180,1200")), machine));
    FW_Turntable expected = configured();
    expected.setPositions({3, 1, 2});
    expected.setStepTime(900);
    EXPECT_TRUE(*machine.getDevice(10) == expected);
}

TEST(TTD_cdata, givesDefaultsOfFieldsThatTheFirmwareDoesNotHave)
{
    FW_Dispenser machine;
    machine.setDevice(configured());
    const TTD_cdata received(numberedTokens(13), 12);
    EXPECT_EQ(received.configurationParamsStr(), QStringLiteral("1,11,12,13,14,15,16,17,18,19,20,21"));
    EXPECT_TRUE(applied(received, machine));
    EXPECT_EQ(TTD_cdata(&machine).configurationParamsStr(),
              QStringLiteral("1,11,12,13,14,15,16,17,18,19,20,21,0,0"));
}
