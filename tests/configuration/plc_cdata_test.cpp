// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/plc_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {26,
                             "PLC_cdata",
                             "DE02909",
                             "Invalid Dispenser data",
                             "DE02910",
                             "DE02915",
                             "DE02917",
                             {
                                 {"PLC Signals", "DE02912"},
                                 {"End Disp Signal", "DE02913"},
                                 {"Err Disp Signal", "DE02914"},
                             }};

FW_PLCBoard configured()
{
    FW_PLCBoard device;
    device.setPlcSignalsValue(5);
    device.setEndDispSignalActivationTime(0.3);
    device.setErrDispSignalActivationTime(40.7);
    return device;
}

} // namespace

TEST(PLC_cdata, readsTheFieldsOfItsTable)
{
    expectTable<PLC_cdata>(structure);
}

TEST(PLC_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { PLC_cdata row(machine); });
    expectDispenserWantedToApply<PLC_cdata>(structure);
}

TEST(PLC_cdata, carriesTheDevice)
{
    expectDeviceCarried<PLC_cdata>(configured(), "5,3,407", "3,15,25");
}

TEST(PLC_cdata, readsEveryValue)
{
    const PLC_cdata row(QStringLiteral("1,5,3,407"));
    EXPECT_EQ(row.device().plcSignalsValue(), 5);
    EXPECT_EQ(row.device().endDispSignalActivationTime(), 0.3);
    EXPECT_EQ(row.device().errDispSignalActivationTime(), 40.7);
}

TEST(PLC_cdata, clearsToTheDefaults)
{
    PLC_cdata row(QStringLiteral("1,5,3,407"));
    row.clear();
    EXPECT_TRUE(row.device() == FW_PLCBoard());
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,5,3,407"));
}

TEST(PLC_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(PLC_cdata(QStringLiteral("1,5,3,407")).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}

TEST(PLC_cdata, cutsTimesOffAtTenths)
{
    FW_PLCBoard board;
    board.setEndDispSignalActivationTime(1.19);
    board.setErrDispSignalActivationTime(0.29);
    EXPECT_EQ(textOfDevice<PLC_cdata>(board, true), QStringLiteral("1,3,11,2"));
}

TEST(PLC_cdata, givesAllThatItTookFromAMachine)
{
    FW_PLCBoard board = configured();
    board.setEndDispSignalActivationTime(1.19);
    FW_Dispenser source;
    source.setDevice(board);
    FW_Dispenser target;
    EXPECT_TRUE(applied(PLC_cdata(&source), target));
    EXPECT_TRUE(*target.getDevice(19) == board);
}
