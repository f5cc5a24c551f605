// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/ram_cdata.h"

#include "sharedparttesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {10,
                             "RAM_cdata",
                             "DE00266",
                             "Invalid data",
                             "DE02806",
                             "DE00274",
                             "DE00276",
                             {
                                 {"Ramp ID", "DE00269"},
                                 {"Slow speed steps after valve open", "DE00270"},
                                 {"Slow speed steps before valve close", "DE00271"},
                                 {"Ramp speed threshold", "DE00272"},
                                 {"Ramp slow speed", "DE00273"},
                             }};

FW_Ramp configured(bool enabled)
{
    FW_Ramp ramp(7);
    ramp.setEnabled(enabled);
    ramp.setInitialSteps(300);
    ramp.setFinalSteps(31);
    ramp.setSpeedThreshold(120);
    ramp.setSlowSpeed(25);
    return ramp;
}

/** Circuits 1 and 3 share ramp 7, circuit 2 has ramp 8. */
FW_Dispenser machineWith(const FW_Ramp &ramp)
{
    FW_Dispenser machine = dispenserOf({1, 2, 3});
    motorOf(machine, 1).setRamp(ramp);
    motorOf(machine, 2).setRamp(FW_Ramp(8));
    motorOf(machine, 3).setRamp(ramp);
    return machine;
}

} // namespace

TEST(RAM_cdata, readsTheFieldsOfItsTable)
{
    expectTable<RAM_cdata>(structure);
}

TEST(RAM_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "int, const FW_Machine*",
                          [](const FW_Machine *machine) { RAM_cdata(7, machine); });
    expectDispenserWantedToApply<RAM_cdata>(structure);
}

TEST(RAM_cdata, isWrittenFromTheRamp)
{
    const FW_Dispenser enabled = machineWith(configured(true));
    EXPECT_EQ(RAM_cdata(7, &enabled).configurationParamsStr(), QStringLiteral("1,7,300,31,120,25"));
    EXPECT_EQ(RAM_cdata(8, &enabled).configurationParamsStr(), QStringLiteral("1,8,20,20,60,15"));
    EXPECT_EQ(RAM_cdata(7, &enabled).reference(), 7);
    const FW_Dispenser disabled = machineWith(configured(false));
    EXPECT_EQ(RAM_cdata(7, &disabled).configurationParamsStr(), QStringLiteral("2,7,300,31,120,25"));
}

TEST(RAM_cdata, keepsTheReferenceThatNoMotorHas)
{
    const FW_Dispenser machine = machineWith(configured(true));
    for (const int reference : {9, 0, -1}) {
        SCOPED_TRACE(reference);
        const RAM_cdata row(reference, &machine);
        EXPECT_EQ(row.commandEnable(), 0);
        EXPECT_EQ(row.reference(), reference);
        EXPECT_EQ(row.parameters(), (QList<int>{reference, 20, 20, 60, 15}));
    }
}

TEST(RAM_cdata, readsEveryValue)
{
    const RAM_cdata row(QStringLiteral("2,7,300,31,120,25"));
    EXPECT_EQ(row.reference(), 7);
    EXPECT_EQ(row.ramp().initialSteps(), 300);
    EXPECT_EQ(row.ramp().finalSteps(), 31);
    EXPECT_EQ(row.ramp().speedThreshold(), 120);
    EXPECT_EQ(row.ramp().slowSpeed(), 25);
}

TEST(RAM_cdata, clearsToTheDefaults)
{
    RAM_cdata row(QStringLiteral("1,7,300,31,120,25"));
    row.clear();
    EXPECT_EQ(row.reference(), 0);
    EXPECT_TRUE(row.ramp() == FW_Ramp());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,7,300,31,120,25"));
}

TEST(RAM_cdata, isGivenToAllMotorsOfTheReference)
{
    const FW_Dispenser source = machineWith(configured(true));
    FW_Dispenser target = machineWith(FW_Ramp(7));
    EXPECT_TRUE(applied(sentAndReceived(RAM_cdata(7, &source)), target));
    EXPECT_TRUE(target == source);
    EXPECT_TRUE(applied(RAM_cdata(QStringLiteral("2,7,300,31,120,25")), target));
    EXPECT_TRUE(target == machineWith(configured(false)));
}

TEST(RAM_cdata, isNotGivenWithoutAMotorOfTheReference)
{
    FW_Dispenser target = machineWith(configured(true));
    EXPECT_FALSE(applied(RAM_cdata(QStringLiteral("1,9,300,31,120,25")), target));
    EXPECT_TRUE(applied(RAM_cdata(QStringLiteral("0,7,1,2,3,4")), target));
    EXPECT_TRUE(target == machineWith(configured(true)));
}

TEST(RAM_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(RAM_cdata(QStringLiteral("2,7,300,31,120,25")).toXmlRpcValue()),
              R"({"cmd_enabled": 2})");
}
