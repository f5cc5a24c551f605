// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/lck_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {25,
                             "LCK_cdata",
                             "DE02435",
                             "Invalid Dispenser data",
                             "DE02804",
                             "DE02438",
                             "DE02440",
                             {
                                 {"Manual Unlock Signal", "DE02437"},
                             }};

FW_Lock configured()
{
    FW_Lock device;
    device.setManualUnlockSignalMask(6);
    return device;
}

} // namespace

TEST(LCK_cdata, readsTheFieldsOfItsTable)
{
    expectTable<LCK_cdata>(structure);
}

TEST(LCK_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { LCK_cdata row(machine); });
    expectDispenserWantedToApply<LCK_cdata>(structure);
}

TEST(LCK_cdata, carriesTheDevice)
{
    expectDeviceCarried<LCK_cdata>(configured(), "6", "1");
}

TEST(LCK_cdata, readsEveryValue)
{
    const LCK_cdata row(QStringLiteral("1,6"));
    EXPECT_EQ(row.device().manualUnlockSignalMask(), 6);
}

TEST(LCK_cdata, clearsToTheDefaults)
{
    LCK_cdata row(QStringLiteral("1,6"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_Lock());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,6"));
}

TEST(LCK_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(LCK_cdata(QStringLiteral("1,6")).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}
