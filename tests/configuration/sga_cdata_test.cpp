// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/sga_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {9,
                             "SGA_cdata",
                             "DE00254",
                             "Invalid Dispenser data",
                             "DE02793",
                             "DE00263",
                             "DE00265",
                             {
                                 {"Shelf Type", "DE00256"},
                                 {"Puncher", "DE00257"},
                                 {"Door", "DE00258"},
                                 {"Move Offset", "DE00259"},
                                 {"Resolution", "DE00260"},
                                 {"Punching Tolerance", "DE00261"},
                                 {"Punching Speed", "DE00262"},
                                 {"Can Presence Sensor High", "DE00866"},
                                 {"Punching Sensor High", "DE00867"},
                                 {"Punching Move Offset", "DE02604", Optional},
                                 {"Roll Conveyor Enable", "DE02903", Optional},
                                 {"Roll Conveyor Height", "DE02904", Optional},
                             }};

FW_Shelf configured()
{
    FW_Shelf device;
    device.setType(5, -1, FW_Version());
    device.setPuncher(6, -1, FW_Version());
    device.setDoorValue(7);
    device.setMoveOffset(308);
    device.setResolution(800);
    device.setPunchingTolerance(9);
    device.setPunchingSpeed(41);
    device.setCanPresenceSensorHigh(42);
    device.setPunchingSensorHigh(43);
    device.setPunchingMoveOffset(44);
    return device;
}

} // namespace

TEST(SGA_cdata, readsTheFieldsOfItsTable)
{
    expectTable<SGA_cdata>(structure);
}

TEST(SGA_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { SGA_cdata row(machine); });
    expectDispenserWantedToApply<SGA_cdata>(structure);
}

TEST(SGA_cdata, carriesTheDevice)
{
    expectDeviceCarried<SGA_cdata>(configured(), "5,6,7,308,800,9,41,42,43,44,0,0",
                                   "1,0,0,10,400,5,40,20,30,15,0,0");
}

TEST(SGA_cdata, readsEveryValue)
{
    const SGA_cdata row(QStringLiteral("1,5,6,7,308,800,9,41,42,43,44,0,0"));
    EXPECT_EQ(row.device().type(), 5);
    EXPECT_EQ(row.device().puncher(), 6);
    EXPECT_EQ(row.device().doorValue(), 7);
    EXPECT_EQ(row.device().moveOffset(), 308);
    EXPECT_EQ(row.device().resolution(), 800);
    EXPECT_EQ(row.device().punchingTolerance(), 9);
    EXPECT_EQ(row.device().punchingSpeed(), 41);
    EXPECT_EQ(row.device().canPresenceSensorHigh(), 42);
    EXPECT_EQ(row.device().punchingSensorHigh(), 43);
    EXPECT_EQ(row.device().punchingMoveOffset(), 44);
    EXPECT_FALSE(row.device().hasRollConveyor());
    EXPECT_EQ(row.device().rollConveyorHeight(), 0);
}

TEST(SGA_cdata, clearsToTheDefaults)
{
    SGA_cdata row(QStringLiteral("1,5,6,7,308,800,9,41,42,43,44,0,0"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_Shelf());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,5,6,7,308,800,9,41,42,43,44,0,0"));
}

TEST(SGA_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(SGA_cdata(QStringLiteral("1,5,6,7,308,800,9,41,42,43,44,0,0")).toXmlRpcValue()),
              R"({"cmd_enabled": 1})");
}

TEST(SGA_cdata, tellsTheRollConveyorButDoesNotGiveIt)
{
    FW_Shelf shelf;
    shelf.setRollConveyor(true);
    shelf.setRollConveyorHeight(300);
    EXPECT_EQ(textOfDevice<SGA_cdata>(shelf, true), QStringLiteral("1,1,0,0,10,400,5,40,20,30,15,1,300"));

    FW_Dispenser machine;
    shelf.setRollConveyorHeight(450);
    machine.setDevice(shelf);
    EXPECT_TRUE(applied(SGA_cdata(QStringLiteral("1,5,6,7,308,800,9,41,42,43,44,0,0")), machine));
    EXPECT_EQ(SGA_cdata(&machine).configurationParamsStr(),
              QStringLiteral("1,5,6,7,308,800,9,41,42,43,44,1,450"));
}

TEST(SGA_cdata, hasARollConveyorForAnythingAboveZero)
{
    EXPECT_TRUE(SGA_cdata(QStringLiteral("1,5,6,7,8,9,10,11,12,13,14,2,300")).device().hasRollConveyor());
    EXPECT_EQ(SGA_cdata(QStringLiteral("1,5,6,7,8,9,10,11,12,13,14,2,300")).device().rollConveyorHeight(),
              300);
    EXPECT_TRUE(SGA_cdata(QStringLiteral("1,5,6,7,8,9,10,11,12,13,14,1")).device().hasRollConveyor());
    EXPECT_FALSE(SGA_cdata(QStringLiteral("1,5,6,7,8,9,10,11,12,13,14,-1")).device().hasRollConveyor());
}

TEST(SGA_cdata, stopsBeforeTheHeightThatTheFirmwareDoesNotCount)
{
    const QStringList received =
        tokens("01 01 01 05 01 06 01 07 01 08 01 09 01 0A 01 0B 01 0C 01 0D 01 0E 01 01 01 63");
    EXPECT_EQ(SGA_cdata(received, 12).configurationParamsStr(),
              QStringLiteral("1,5,6,7,8,9,10,11,12,13,14,1"));
    EXPECT_EQ(SGA_cdata(received, 12).device().rollConveyorHeight(), 0);
    EXPECT_EQ(SGA_cdata(received, 13).device().rollConveyorHeight(), 99);
}
