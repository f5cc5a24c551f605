// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/noz_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {18,
                             "NOZ_cdata",
                             "DE01632",
                             "Invalid Dispenser data",
                             "DE02801",
                             "DE01937",
                             "DE01939",
                             {
                                 {"Nozzle Valve Type", "DE01935"},
                                 {"Nozzle Valve Timeout", "DE01936"},
                             }};

FW_NozzleValve configured()
{
    FW_NozzleValve device;
    device.setNozzleType(2);
    device.setTimeout(90, 1);
    return device;
}

} // namespace

TEST(NOZ_cdata, readsTheFieldsOfItsTable)
{
    expectTable<NOZ_cdata>(structure);
}

TEST(NOZ_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { NOZ_cdata row(machine); });
    expectDispenserWantedToApply<NOZ_cdata>(structure);
}

TEST(NOZ_cdata, carriesTheDevice)
{
    expectDeviceCarried<NOZ_cdata>(configured(), "2,90", "1,20");
}

TEST(NOZ_cdata, readsEveryValue)
{
    const NOZ_cdata row(QStringLiteral("1,2,90"));
    EXPECT_EQ(row.device().nozzleType(), 2);
    EXPECT_EQ(row.device().timeout(1), 90);
}

TEST(NOZ_cdata, clearsToTheDefaults)
{
    NOZ_cdata row(QStringLiteral("1,2,90"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_NozzleValve());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,2,90"));
}

TEST(NOZ_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(NOZ_cdata(QStringLiteral("1,2,90")).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}

TEST(NOZ_cdata, countsWholeSeconds)
{
    FW_NozzleValve valve;
    valve.setTimeout(2, 2);
    EXPECT_EQ(textOfDevice<NOZ_cdata>(valve, true), QStringLiteral("1,1,120"));
    valve.setTimeout(2999, 0);
    EXPECT_EQ(textOfDevice<NOZ_cdata>(valve, true), QStringLiteral("1,1,2"));
    EXPECT_EQ(NOZ_cdata(QStringLiteral("1,1,90")).device().timeout(0), 90000);
}

TEST(NOZ_cdata, givesAllThatItTookFromAMachine)
{
    FW_NozzleValve valve = configured();
    valve.setTimeout(2999, 0);
    FW_Dispenser source;
    source.setDevice(valve);
    FW_Dispenser target;
    EXPECT_TRUE(applied(NOZ_cdata(&source), target));
    EXPECT_TRUE(*target.getDevice(13) == valve);
}
