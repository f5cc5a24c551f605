// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/gmc_cdata.h"

#include "structuretesting.h"

#include <QuvFramework/fw_offline.h>

using namespace testing_configuration;

namespace {

const Structure structure = {3,
                             "GMC_cdata",
                             "DE00185",
                             "Invalid data",
                             "DE02789",
                             "DE00194",
                             "DE00196",
                             {
                                 {"Working Mode", "DE00187"},
                                 {"Power Supplied", "DE00188"},
                                 {"Connectivity", "DE00189"},
                                 {"Tinting Parallelism", "DE00190"},
                                 {"Recirculation Parallelism", "DE00191"},
                                 {"Stirring Parallelism", "DE00192"},
                                 {"Motor Power Off Delay", "DE00193"},
                                 {"Post Tinting Time", "DE01546", Optional},
                                 {"Layout Module Mask", "DE01547", Optional},
                                 {"Extra Param", "DE01929", Optional},
                                 {"RCS Process Pause", "DE01931", Optional},
                                 {"Easy-on Timeout", "DE02151", Optional},
                                 {"RCS Policy", "DE02152", Optional},
                                 {"INV O-C Times", "DE02850", Optional},
                                 {"Led Management", "DE02851", Optional},
                                 {"Reserve Sensor Type & Policy", "DE02852", Optional},
                                 {"Timed Processes Startup Mask", "DE02864", Optional},
                             }};

constexpr char configuredRow[] = "1,2,3,4,5,6,7,80,9,21,0,45,120,3,0,13,18,14";

void addStirredCircuit(FW_Dispenser &dispenser)
{
    FW_Circuit circuit(1, 1);
    circuit.setStirringMotor(FW_StirringMotor());
    FW_Canister canister(1);
    canister.addCircuit(circuit);
    dispenser.addCanister(canister);
}

/** A machine on which no value is the one that a new machine has. */
FW_Dispenser configured()
{
    FW_Dispenser dispenser;
    dispenser.setInitialWorkingMode(2);
    dispenser.setPowerSupply(3);
    dispenser.setConnectivity(4, false);
    dispenser.setTintingParallelism(5);
    dispenser.setRecirculatingParallelism(6);
    dispenser.setStirringParallelism(7);
    dispenser.setPowerOffDelay(80);
    dispenser.setPostTintingTime(9);
    dispenser.setModulesID({1, 3, 5});
    dispenser.setRCSProcessPause(45, FW_TimeSpan::Minutes);
    FW_Offline offline;
    offline.setEasyOnTime(120);
    dispenser.setDevice(offline);
    dispenser.setRCSProcesses(3);
    dispenser.setLedManagement(13);
    dispenser.setReserveSensorTypeAndPolicyMask(1, 2, false);
    dispenser.setTimedProcessesStartupMask(14);
    addStirredCircuit(dispenser);
    return dispenser;
}

QString rowOf(const FW_Dispenser &dispenser)
{
    return GMC_cdata(&dispenser).configurationParamsStr();
}

int reserveSensorOf(int type, int policy)
{
    FW_Dispenser dispenser;
    dispenser.setReserveSensorTypeAndPolicyMask(type, policy, false);
    return GMC_cdata(&dispenser).parameters().at(15);
}

int easyOnTimeOf(const FW_Dispenser &dispenser)
{
    const auto *offline = dynamic_cast<const FW_Offline *>(dispenser.getDevice(FW_Device::Offline));
    return offline ? offline->easyOnTime() : -1;
}

} // namespace

TEST(GMC_cdata, readsTheFieldsOfItsTable)
{
    expectTable<GMC_cdata>(structure);
}

TEST(GMC_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { GMC_cdata row(machine); });
    expectDispenserWantedToApply<GMC_cdata>(structure);
}

TEST(GMC_cdata, writesTheMachine)
{
    EXPECT_EQ(rowOf(configured()), QLatin1String(configuredRow));
    EXPECT_EQ(rowOf(FW_Dispenser()), QStringLiteral("1,1,1,1,1,1,1,60,0,0,0,30,90,0,0,0,0,0"));
}

TEST(GMC_cdata, tellsNoProcessesThatNoMotorCarriesOut)
{
    FW_Dispenser dispenser;
    dispenser.setRCSProcesses(3);
    EXPECT_EQ(GMC_cdata(&dispenser).parameters().at(12), 0);
    addStirredCircuit(dispenser);
    EXPECT_EQ(GMC_cdata(&dispenser).parameters().at(12), 3);
}

TEST(GMC_cdata, writesPolicyAndTypeOfTheSensors)
{
    EXPECT_EQ(reserveSensorOf(1, 3), 19);
    EXPECT_EQ(reserveSensorOf(2, 3), 3);
    EXPECT_EQ(reserveSensorOf(0, 1), 1);
    EXPECT_EQ(reserveSensorOf(1, 0), 16);
}

TEST(GMC_cdata, readsEveryValue)
{
    const GMC_cdata row(QStringLiteral("1,2,3,4,5,6,7,80,9,21,99,45,120,3,98,13,18,14"));
    const FW_Dispenser &dispenser = row.dispenser();
    EXPECT_EQ(dispenser.initialWorkingMode(), 2);
    EXPECT_EQ(dispenser.powerSupply(), 3);
    EXPECT_EQ(dispenser.connectivity(), 4);
    EXPECT_EQ(dispenser.tintingParallelism(), 5);
    EXPECT_EQ(dispenser.recirculatingParallelism(), 6);
    EXPECT_EQ(dispenser.stirringParallelism(), 7);
    EXPECT_EQ(dispenser.powerOffDelay(), 80);
    EXPECT_EQ(dispenser.postTintingTime(), 9);
    EXPECT_EQ(dispenser.modulesID(), (QList<int>{1, 3, 5}));
    EXPECT_EQ(dispenser.RCSProcessPause(FW_TimeSpan::Minutes), 45);
    EXPECT_EQ(row.easyOnTimeout(), 120);
    EXPECT_EQ(dispenser.RCSProcessesFwMask(), 3);
    EXPECT_EQ(dispenser.ledManagement(), 13);
    EXPECT_EQ(row.reserveSensor(), 18);
    EXPECT_EQ(dispenser.timedProcessesStartupMask(), 14);
}

TEST(GMC_cdata, keepsItsDefaultsWithoutTheOptionalFields)
{
    const GMC_cdata row(QStringLiteral("1,2,3,4,5,6,7,80"));
    EXPECT_EQ(row.dispenser().postTintingTime(), 0);
    EXPECT_EQ(row.dispenser().modulesID(), QList<int>());
    EXPECT_EQ(row.dispenser().RCSProcessPause(FW_TimeSpan::Minutes), 30);
    EXPECT_EQ(row.easyOnTimeout(), -1);
    EXPECT_EQ(row.reserveSensor(), 0);
}

TEST(GMC_cdata, passesOverPauseAndTimeoutOfZero)
{
    const GMC_cdata none(QStringLiteral("1,2,3,4,5,6,7,80,9,21,0,0,0"));
    EXPECT_EQ(none.dispenser().RCSProcessPause(FW_TimeSpan::Minutes), 30);
    EXPECT_EQ(none.easyOnTimeout(), -1);
    const GMC_cdata least(QStringLiteral("1,2,3,4,5,6,7,80,9,21,0,1,1"));
    EXPECT_EQ(least.dispenser().RCSProcessPause(FW_TimeSpan::Minutes), 1);
    EXPECT_EQ(least.easyOnTimeout(), 1);
}

TEST(GMC_cdata, tellsTheLastFieldThatIsMissing)
{
    QString error;
    EXPECT_TRUE(GMC_cdata(QLatin1String(configuredRow)).updateLocalData(&error));
    EXPECT_EQ(error, QString());
    EXPECT_TRUE(GMC_cdata(QStringLiteral("1,2,3,4,5,6,7,80")).updateLocalData(&error));
    EXPECT_EQ(error, QStringLiteral("Timed Processes Startup Mask field not found in answer"));
    EXPECT_FALSE(GMC_cdata().updateLocalData(&error));
    EXPECT_EQ(error, QStringLiteral("Working Mode field not found in answer"));
}

TEST(GMC_cdata, carriesTheMachine)
{
    const FW_Dispenser source = configured();
    FW_Dispenser target;
    addStirredCircuit(target);
    target.setReserveSensorTypeAndPolicyMask(1, 2, false); // which the row only hands on
    const GMC_cdata row = sentAndReceived(GMC_cdata(&source));
    QList<int> extra;
    EXPECT_TRUE(row.updateConfiguration(&target, nullptr, &extra));
    EXPECT_TRUE(target == source);
    EXPECT_EQ(rowOf(target), QLatin1String(configuredRow));
    EXPECT_EQ(extra, (QList<int>{18}));
}

TEST(GMC_cdata, carriesTheMachineThatItWasMadeOf)
{
    const FW_Dispenser source = configured();
    FW_Dispenser target;
    QList<int> extra = {7};
    EXPECT_TRUE(GMC_cdata(&source).updateConfiguration(&target, nullptr, &extra));
    EXPECT_EQ(easyOnTimeOf(target), 120);
    EXPECT_EQ(extra, (QList<int>{7, 18}));
}

TEST(GMC_cdata, replacesTheWaysToTheMachine)
{
    FW_Dispenser target;
    target.setConnectivity(3, false);
    EXPECT_TRUE(applied(GMC_cdata(QStringLiteral("1,2,3,4,5,6,7,80")), target));
    EXPECT_EQ(target.connectivity(), 4);
}

TEST(GMC_cdata, changesNothingUnlessItIsEnabled)
{
    FW_Dispenser target;
    QList<int> extra;
    for (const char *row :
         {"0,2,3,4,5,6,7,80,9,21,0,45,120,3,0,13,18,14", "2,2,3,4,5,6,7,80,9,21,0,45,120,3,0,13,18,14"}) {
        SCOPED_TRACE(row);
        EXPECT_TRUE(GMC_cdata(QString::fromLatin1(row)).updateConfiguration(&target, nullptr, &extra));
    }
    EXPECT_TRUE(target == FW_Dispenser());
    EXPECT_EQ(extra, QList<int>());
    EXPECT_TRUE(GMC_cdata(QStringLiteral("2,2,3,4,5,6,7,80")).updateConfiguration(nullptr, nullptr, nullptr));
}

TEST(GMC_cdata, losesTheSensorsWithoutAPlaceForThem)
{
    FW_Dispenser target;
    EXPECT_TRUE(applied(GMC_cdata(QLatin1String(configuredRow)), target));
    int type = 0;
    int policy = 0;
    EXPECT_FALSE(target.getReserveSensorTypeAndPolicyMask(type, policy));
}

TEST(GMC_cdata, givesTheMachineAnEasyOnTime)
{
    FW_Dispenser target;
    EXPECT_TRUE(applied(GMC_cdata(QStringLiteral("1,2,3,4,5,6,7,80")), target));
    EXPECT_EQ(easyOnTimeOf(target), 90);
    EXPECT_TRUE(applied(GMC_cdata(QLatin1String(configuredRow)), target));
    EXPECT_EQ(easyOnTimeOf(target), 120);
    EXPECT_TRUE(applied(GMC_cdata(QStringLiteral("1,2,3,4,5,6,7,80,9,21,0,45,0")), target));
    EXPECT_EQ(easyOnTimeOf(target), 120);
}

TEST(GMC_cdata, clearsToTheDefaults)
{
    GMC_cdata row{QLatin1String(configuredRow)};
    const std::unique_ptr<const GMC_cdata> copy(row.clone());
    row.clear();
    EXPECT_TRUE(row.dispenser() == FW_Dispenser());
    EXPECT_EQ(row.easyOnTimeout(), -1);
    EXPECT_EQ(row.reserveSensor(), 0);
    EXPECT_EQ(copy->dispenser().powerOffDelay(), 80);
    EXPECT_EQ(copy->easyOnTimeout(), 120);
    EXPECT_EQ(copy->reserveSensor(), 18);
}

TEST(GMC_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(GMC_cdata(QLatin1String(configuredRow)).toXmlRpcValue()),
              R"({"cmd_enabled": 1, "working_mode": 2})");
}
