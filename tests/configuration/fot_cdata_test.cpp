// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/fot_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {11,
                             "FOT_cdata",
                             "DE00277",
                             "Invalid Dispenser data",
                             "DE02794",
                             "DE00281",
                             "DE00283",
                             {
                                 {"Sensor Type", "DE00279"},
                                 {"Can Sensor Presence Check", "DE00280"},
                             }};

FW_CanPresenceSensor configured()
{
    FW_CanPresenceSensor device;
    device.setType(3);
    device.setCanPresenceCheckAndStatus(2);
    return device;
}

} // namespace

TEST(FOT_cdata, readsTheFieldsOfItsTable)
{
    expectTable<FOT_cdata>(structure);
}

TEST(FOT_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { FOT_cdata row(machine); });
    expectDispenserWantedToApply<FOT_cdata>(structure);
}

TEST(FOT_cdata, carriesTheDevice)
{
    expectDeviceCarried<FOT_cdata>(configured(), "3,2", "1,1");
}

TEST(FOT_cdata, readsEveryValue)
{
    const FOT_cdata row(QStringLiteral("1,3,2"));
    EXPECT_EQ(row.device().type(), 3);
    EXPECT_EQ(row.device().canPresenceCheckAndStatus(), 2);
}

TEST(FOT_cdata, clearsToTheDefaults)
{
    FOT_cdata row(QStringLiteral("1,3,2"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_CanPresenceSensor());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,3,2"));
}

TEST(FOT_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(FOT_cdata(QStringLiteral("1,3,2")).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}
