// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/bhl_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {13,
                             "BHL_cdata",
                             "DE00326",
                             "Invalid Dispenser data",
                             "DE02795",
                             "DE00702",
                             "DE00704",
                             {
                                 {"Driving Mode", "DE00329"},
                                 {"Deactivation Delay", "DE00521"},
                             }};

FW_BungHoleLocator configured()
{
    FW_BungHoleLocator device;
    device.setDrivingMode(2);
    device.setDeactivationDelay(600);
    return device;
}

} // namespace

TEST(BHL_cdata, readsTheFieldsOfItsTable)
{
    expectTable<BHL_cdata>(structure);
}

TEST(BHL_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { BHL_cdata row(machine); });
    expectDispenserWantedToApply<BHL_cdata>(structure);
}

TEST(BHL_cdata, carriesTheDevice)
{
    expectDeviceCarried<BHL_cdata>(configured(), "2,600", "1,30");
}

TEST(BHL_cdata, readsEveryValue)
{
    const BHL_cdata row(QStringLiteral("1,2,600"));
    EXPECT_EQ(row.device().drivingMode(), 2);
    EXPECT_EQ(row.device().deactivationDelay(), 600);
}

TEST(BHL_cdata, clearsToTheDefaults)
{
    BHL_cdata row(QStringLiteral("1,2,600"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_BungHoleLocator());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,2,600"));
}

TEST(BHL_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(BHL_cdata(QStringLiteral("1,2,600")).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}
