// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/acp_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {4,
                             "ACP_cdata",
                             "DE00197",
                             "Invalid Dispenser data",
                             "DE02790",
                             "DE00206",
                             "DE00208",
                             {
                                 {"Autocap Type", "DE00199"},
                                 {"Movement Type", "DE00382"},
                                 {"Opening Timeout", "DE00201"},
                                 {"Closing Timeout", "DE00202"},
                                 {"Closing Delay", "DE00203"},
                                 {"Power Off Delay", "DE00204"},
                                 {"Automatic Closure", "DE00205"},
                                 {"Movement Speed", "DE02202", Optional},
                                 {"Working Mode", "DE02204", Optional},
                                 {"Sliding Offline Positioning Time", "DE02603", Optional},
                             }};

FW_Autocap configured()
{
    FW_Autocap device;
    device.setType(3);
    device.setMovementType(2);
    device.setOpeningTimeout(21);
    device.setClosingTimeout(22);
    device.setClosingDelay(23);
    device.setPowerOffDelay(24);
    device.setAutomaticClosure(false);
    device.setMovementSpeed(500);
    device.setWorkingMode(4);
    device.setSlidingOfflinePosTime(25);
    return device;
}

} // namespace

TEST(ACP_cdata, readsTheFieldsOfItsTable)
{
    expectTable<ACP_cdata>(structure);
}

TEST(ACP_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { ACP_cdata row(machine); });
    expectDispenserWantedToApply<ACP_cdata>(structure);
}

TEST(ACP_cdata, carriesTheDevice)
{
    expectDeviceCarried<ACP_cdata>(configured(), "3,2,21,22,23,24,0,500,4,25", "1,1,10,10,5,2,1,50,1,3");
}

TEST(ACP_cdata, readsEveryValue)
{
    const ACP_cdata row(QStringLiteral("1,3,2,21,22,23,24,0,500,4,25"));
    EXPECT_EQ(row.device().type(), 3);
    EXPECT_EQ(row.device().movementType(), 2);
    EXPECT_EQ(row.device().openingTimeout(), 21);
    EXPECT_EQ(row.device().closingTimeout(), 22);
    EXPECT_EQ(row.device().closingDelay(), 23);
    EXPECT_EQ(row.device().powerOffDelay(), 24);
    EXPECT_FALSE(row.device().automaticClosure());
    EXPECT_EQ(row.device().movementSpeed(), 500);
    EXPECT_EQ(row.device().workingMode(), 4);
    EXPECT_EQ(row.device().slidingOfflinePosTime(), 25);
}

TEST(ACP_cdata, clearsToTheDefaults)
{
    ACP_cdata row(QStringLiteral("1,3,2,21,22,23,24,0,500,4,25"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_Autocap());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,3,2,21,22,23,24,0,500,4,25"));
}

TEST(ACP_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(ACP_cdata(QStringLiteral("1,3,2,21,22,23,24,0,500,4,25")).toXmlRpcValue()),
              R"({"autocap_type": 3, "cmd_enabled": 1, "movement_type": 2})");
}

TEST(ACP_cdata, closesByItselfOnlyForOne)
{
    EXPECT_TRUE(ACP_cdata(QStringLiteral("1,1,1,1,1,1,1,1")).device().automaticClosure());
    EXPECT_FALSE(ACP_cdata(QStringLiteral("1,1,1,1,1,1,1,2")).device().automaticClosure());
    EXPECT_FALSE(ACP_cdata(QStringLiteral("1,1,1,1,1,1,1,0")).device().automaticClosure());
}

TEST(ACP_cdata, keepsDefaultsOfFieldsThatTheFirmwareDoesNotHave)
{
    const ACP_cdata row(tokens("01 01 01 03 01 02 01 0A 01 0B 01 0C 01 0D 01 01 01 63 01 07 01 08"), 9);
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,3,2,10,11,12,13,1,99"));
    EXPECT_EQ(row.device().movementSpeed(), 99);
    EXPECT_EQ(row.device().workingMode(), 1);
    EXPECT_EQ(row.device().slidingOfflinePosTime(), 3);
}
