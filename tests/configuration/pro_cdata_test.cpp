// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/pro_cdata.h"

#include "sharedparttesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {22,
                             "PRO_cdata",
                             "DE02299",
                             "Invalid Dispenser data",
                             "DE02810",
                             "DE02308",
                             "DE02310",
                             {
                                 {"Profile ID", "DE02302"},
                                 {"Overcharge Steps", "DE02303"},
                                 {"Predispense Steps", "DE02304"},
                                 {"Bottom Delay", "DE02305"},
                                 {"Top Delay", "DE02312"},
                                 {"Zonal Flow Correction Level", "DE02306"},
                                 {"Zonal Delay Level", "DE02307"},
                             }};

FW_FlowCorrection configured()
{
    FW_FlowCorrection correction(7);
    correction.overchargeSteps = 300;
    correction.predispenseSteps = 31;
    correction.bottomDelay = 0.3;
    correction.topDelay = 40.7;
    correction.zonalFlowCorrectionLevel = 2;
    correction.zonalDelayLevel = 3;
    return correction;
}

/** Circuits 1 and 3 share correction 7, circuit 2 has correction 8. */
FW_Dispenser machineWith(const FW_FlowCorrection &correction)
{
    FW_Dispenser machine = dispenserOf({1, 2, 3});
    motorOf(machine, 1).setFlowCorrection(correction);
    motorOf(machine, 2).setFlowCorrection(FW_FlowCorrection(8));
    motorOf(machine, 3).setFlowCorrection(correction);
    return machine;
}

} // namespace

TEST(PRO_cdata, readsTheFieldsOfItsTable)
{
    expectTable<PRO_cdata>(structure);
}

TEST(PRO_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "int, const FW_Machine*",
                          [](const FW_Machine *machine) { PRO_cdata(7, machine); });
    expectDispenserWantedToApply<PRO_cdata>(structure);
}

TEST(PRO_cdata, refusesNoReferenceBeforeTheMachine)
{
    const FW_Dispenser machine = machineWith(configured());
    const FW_Mixer mixer;
    for (const FW_Machine *any :
         {static_cast<const FW_Machine *>(&machine), static_cast<const FW_Machine *>(&mixer),
          static_cast<const FW_Machine *>(nullptr)}) {
        SCOPED_TRACE(any ? "with a machine" : "without a machine");
        expectRefusal("DE02298", "Invalid flow correction configuration reference",
                      "PRO_cdata::PRO_cdata(int, const FW_Machine*)", [&] { PRO_cdata(-1, any); });
    }
}

TEST(PRO_cdata, isWrittenFromTheFlowCorrection)
{
    const FW_Dispenser machine = machineWith(configured());
    EXPECT_EQ(PRO_cdata(7, &machine).configurationParamsStr(), QStringLiteral("1,7,300,31,3,407,2,3"));
    EXPECT_EQ(PRO_cdata(8, &machine).configurationParamsStr(), QStringLiteral("1,8,10,5,5,5,1,1"));
    EXPECT_EQ(PRO_cdata(9, &machine).configurationParamsStr(), QStringLiteral("0,9,10,5,5,5,1,1"));
    EXPECT_EQ(PRO_cdata(0, &machine).configurationParamsStr(), QStringLiteral("0,0,10,5,5,5,1,1"));
}

TEST(PRO_cdata, cutsDelaysOffAtTenths)
{
    FW_FlowCorrection correction = configured();
    correction.bottomDelay = 0.39;
    correction.topDelay = 1e12;
    const FW_Dispenser machine = machineWith(correction);
    EXPECT_EQ(PRO_cdata(7, &machine).configurationParamsStr(), QStringLiteral("1,7,300,31,3,2147483647,2,3"));
}

TEST(PRO_cdata, readsEveryValue)
{
    const PRO_cdata row(QStringLiteral("1,7,300,31,3,407,2,3"));
    EXPECT_EQ(row.reference(), 7);
    EXPECT_EQ(row.flowCorrection().overchargeSteps, 300);
    EXPECT_EQ(row.flowCorrection().predispenseSteps, 31);
    EXPECT_EQ(row.flowCorrection().bottomDelay, 0.3);
    EXPECT_EQ(row.flowCorrection().topDelay, 40.7);
    EXPECT_EQ(row.flowCorrection().zonalFlowCorrectionLevel, 2);
    EXPECT_EQ(row.flowCorrection().zonalDelayLevel, 3);
}

TEST(PRO_cdata, clearsToTheDefaults)
{
    PRO_cdata row(QStringLiteral("1,7,300,31,3,407,2,3"));
    row.clear();
    EXPECT_EQ(row.reference(), 0);
    EXPECT_TRUE(row.flowCorrection() == FW_FlowCorrection());
}

TEST(PRO_cdata, isGivenToAllMotorsOfTheReference)
{
    const FW_Dispenser source = machineWith(configured());
    FW_Dispenser target = machineWith(FW_FlowCorrection(7));
    EXPECT_TRUE(applied(sentAndReceived(PRO_cdata(7, &source)), target));
    EXPECT_TRUE(target == source);
    EXPECT_TRUE(applied(PRO_cdata(QStringLiteral("2,8,300,31,3,407,2,3")), target));
    EXPECT_EQ(PRO_cdata(8, &target).configurationParamsStr(), QStringLiteral("1,8,300,31,3,407,2,3"));
}

TEST(PRO_cdata, isNotGivenWithoutAMotorOfTheReference)
{
    FW_Dispenser target = machineWith(configured());
    EXPECT_FALSE(applied(PRO_cdata(QStringLiteral("1,9,300,31,3,407,2,3")), target));
    EXPECT_TRUE(applied(PRO_cdata(QStringLiteral("0,7,1,2,3,4,5,6")), target));
    EXPECT_TRUE(target == machineWith(configured()));
}

TEST(PRO_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(PRO_cdata(QStringLiteral("1,7,300,31,3,407,2,3")).toXmlRpcValue()),
              R"({"cmd_enabled": 1})");
}
