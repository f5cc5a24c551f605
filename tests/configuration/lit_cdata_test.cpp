// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/lit_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {14,
                             "LIT_cdata",
                             "DE00705",
                             "Invalid Dispenser data",
                             "DE02796",
                             "DE00709",
                             "DE00711",
                             {
                                 {"Driving Mode", "DE00708"},
                                 {"Deactivation Delay", "DE00522"},
                             }};

FW_NozzleLight configured()
{
    FW_NozzleLight device;
    device.setDrivingMode(2);
    device.setDeactivationDelay(600);
    return device;
}

} // namespace

TEST(LIT_cdata, readsTheFieldsOfItsTable)
{
    expectTable<LIT_cdata>(structure);
}

TEST(LIT_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { LIT_cdata row(machine); });
    expectDispenserWantedToApply<LIT_cdata>(structure);
}

TEST(LIT_cdata, carriesTheDevice)
{
    expectDeviceCarried<LIT_cdata>(configured(), "2,600", "1,60");
}

TEST(LIT_cdata, readsEveryValue)
{
    const LIT_cdata row(QStringLiteral("1,2,600"));
    EXPECT_EQ(row.device().drivingMode(), 2);
    EXPECT_EQ(row.device().deactivationDelay(), 600);
}

TEST(LIT_cdata, clearsToTheDefaults)
{
    LIT_cdata row(QStringLiteral("1,2,600"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_NozzleLight());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,2,600"));
}

TEST(LIT_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(LIT_cdata(QStringLiteral("1,2,600")).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}
