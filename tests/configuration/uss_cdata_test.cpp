// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/uss_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {21,
                             "USS_cdata",
                             "DE02176",
                             "Invalid Dispenser data",
                             "DE02803",
                             "DE02189",
                             "DE02191",
                             {
                                 {"Source Voltage", "DE02178"},
                                 {"Cleaning Policy", "DE02179"},
                                 {"Ultrasound Duration", "DE02180"},
                                 {"Ultrasound Pause", "DE02181"},
                                 {"Emptying Time", "DE02182"},
                                 {"Filling Time", "DE02183"},
                                 {"Level Sensor Enabled", "DE02184"},
                                 {"N Pumps", "DE02185"},
                                 {"Valve Enabled", "DE02186"},
                                 {"Pump 1 Speed", "DE02187"},
                                 {"Pump 2 Speed", "DE02188"},
                             }};

FW_UltrasoundCleaning configured()
{
    FW_UltrasoundCleaning device;
    device.setSourceVoltageValue(12);
    device.setCleaningPolicyValue(3);
    device.setUltrasoundDuration(400);
    device.setUltrasoundPause(15);
    device.setEmptyingTime(6.5);
    device.setFillingTime(30.1);
    device.setLevelSensorEnabledFwValue(2);
    return device;
}

} // namespace

TEST(USS_cdata, readsTheFieldsOfItsTable)
{
    expectTable<USS_cdata>(structure);
}

TEST(USS_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { USS_cdata row(machine); });
    expectDispenserWantedToApply<USS_cdata>(structure);
}

TEST(USS_cdata, carriesTheDevice)
{
    expectDeviceCarried<USS_cdata>(configured(), "12,3,400,15,65,301,2,0,0,0,0",
                                   "24,1,30,10,50,80,1,0,0,0,0");
}

TEST(USS_cdata, readsEveryValue)
{
    const USS_cdata row(QStringLiteral("1,12,3,400,15,65,301,2,0,0,0,0"));
    EXPECT_EQ(row.device().sourceVoltageValue(), 12);
    EXPECT_EQ(row.device().cleaningPolicyValue(), 3);
    EXPECT_EQ(row.device().ultrasoundDuration(), 400);
    EXPECT_EQ(row.device().ultrasoundPause(), 15);
    EXPECT_EQ(row.device().emptyingTime(), 6.5);
    EXPECT_EQ(row.device().fillingTime(), 30.1);
    EXPECT_EQ(row.device().levelSensorEnabledFwValue(), 2);
}

TEST(USS_cdata, clearsToTheDefaults)
{
    USS_cdata row(QStringLiteral("1,12,3,400,15,65,301,2,0,0,0,0"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_UltrasoundCleaning());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,12,3,400,15,65,301,2,0,0,0,0"));
}

TEST(USS_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(USS_cdata(QStringLiteral("1,12,3,400,15,65,301,2,0,0,0,0")).toXmlRpcValue()),
              R"({"cmd_enabled": 1})");
}

TEST(USS_cdata, cutsTimesOffAtTenths)
{
    FW_UltrasoundCleaning cleaning;
    cleaning.setEmptyingTime(0.69);
    cleaning.setFillingTime(0.7); // a double a little below
    EXPECT_EQ(textOfDevice<USS_cdata>(cleaning, true), QStringLiteral("1,24,1,30,10,6,7,1,0,0,0,0"));
}

TEST(USS_cdata, keepsPumpsAndValveInARowOnly)
{
    const USS_cdata received(
        tokens("01 01 01 0C 01 03 01 04 01 0F 01 05 01 06 01 02 01 02 01 01 01 32 01 33"), 12);
    EXPECT_EQ(received.configurationParamsStr(), QStringLiteral("1,12,3,4,15,5,6,2,2,1,50,51"));
    FW_Dispenser machine;
    EXPECT_TRUE(applied(received, machine));
    EXPECT_EQ(USS_cdata(&machine).configurationParamsStr(), QStringLiteral("1,12,3,4,15,5,6,2,0,0,0,0"));
}

TEST(USS_cdata, givesAllThatItTookFromAMachine)
{
    FW_UltrasoundCleaning cleaning = configured();
    cleaning.setEmptyingTime(0.69);
    FW_Dispenser source;
    source.setDevice(cleaning);
    FW_Dispenser target;
    EXPECT_TRUE(applied(USS_cdata(&source), target));
    EXPECT_TRUE(*target.getDevice(16) == cleaning);
}
