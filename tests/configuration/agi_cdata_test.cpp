// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/agi_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {6,
                             "AGI_cdata",
                             "DE00234",
                             "Invalid Dispenser data",
                             "DE02807",
                             "DE00243",
                             "DE00245",
                             {
                                 {"Canister ID", "DE00238"},
                                 {"Position ID", "DE00239"},
                                 {"Stirring Duration", "DE00240"},
                                 {"Stirring Pause", "DE00241"},
                                 {"Stirring Policy", "DE00242"},
                                 {"Stirring Motor Stepper Resolution", "DE00872", Optional},
                                 {"Stirring Motor Supplying Current", "DE00636", Optional},
                                 {"Stirring Speed", "DE01598", Optional},
                                 {"Stirring Wire Board ID", "DE01941", Optional},
                                 {"Stirring Wire Connectors ID", "DE01942", Optional},
                             }};

/** A motor on which no value is the one that a new motor has. */
FW_StirringMotor configured(bool enabled)
{
    FW_StirringMotor motor;
    motor.setEnabled(enabled);
    motor.setStirringActivity(75);
    motor.setStirringPause(20, FW_TimeSpan::Minutes);
    motor.setStirringPolicy(3);
    motor.setResolution(800);
    motor.setSupplyingCurrent(17);
    motor.setSpeed(130);
    motor.setWireBoardId(4);
    motor.setWireConnectorsIdBitMask(6);
    return motor;
}

/** Canister 3 with circuit 7 at position 12, canister 5 with circuit 8 at 15; no motors. */
FW_Dispenser machine()
{
    FW_Dispenser dispenser;
    FW_Canister third(3);
    third.addCircuit(FW_Circuit(7, 12));
    FW_Canister fifth(5);
    fifth.addCircuit(FW_Circuit(8, 15));
    dispenser.addCanister(third);
    dispenser.addCanister(fifth);
    return dispenser;
}

FW_Dispenser stirred(bool enabled)
{
    FW_Dispenser dispenser = machine();
    dispenser.getCircuitById(7)->setStirringMotor(configured(enabled));
    return dispenser;
}

QString rowOf(int circuitID, const FW_Dispenser &dispenser)
{
    return AGI_cdata(circuitID, &dispenser).configurationParamsStr();
}

} // namespace

TEST(AGI_cdata, readsTheFieldsOfItsTable)
{
    expectTable<AGI_cdata>(structure);
}

TEST(AGI_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "int, const FW_Machine*",
                          [](const FW_Machine *dispenser) { AGI_cdata row(1, dispenser); });
    expectDispenserWantedToApply<AGI_cdata>(structure);
}

TEST(AGI_cdata, writesTheMotorOfTheCircuit)
{
    EXPECT_EQ(rowOf(7, stirred(true)), QStringLiteral("1,3,12,75,20,3,800,17,130,4,6"));
    EXPECT_EQ(rowOf(7, stirred(false)), QStringLiteral("2,3,12,75,20,3,800,17,130,4,6"));
}

TEST(AGI_cdata, writesDefaultsForWhatIsNotThere)
{
    EXPECT_EQ(rowOf(8, stirred(true)), QStringLiteral("0,5,15,60,30,1,400,15,100,0,0"));
    EXPECT_EQ(rowOf(9, stirred(true)), QStringLiteral("0,1,111,60,30,1,400,15,100,0,0"));
}

TEST(AGI_cdata, writesTheOneMotorOfAGlobalMachine)
{
    FW_Dispenser dispenser = stirred(false);
    dispenser.setGlobalStirring(true);
    EXPECT_EQ(rowOf(8, dispenser), QStringLiteral("2,245,245,75,20,3,800,17,130,4,6"));
    EXPECT_EQ(rowOf(99, dispenser), QStringLiteral("2,245,245,75,20,3,800,17,130,4,6"));
    FW_Dispenser without = machine();
    without.setGlobalStirring(true);
    EXPECT_EQ(rowOf(8, without), QStringLiteral("0,5,15,60,30,1,400,15,100,0,0"));
}

TEST(AGI_cdata, readsEveryValue)
{
    const AGI_cdata row(QStringLiteral("1,3,12,75,20,3,800,17,130,4,6"));
    EXPECT_EQ(row.canisterID(), 3);
    EXPECT_EQ(row.positionID(), 12);
    EXPECT_EQ(row.stirringMotor().stirringActivity(), 75);
    EXPECT_EQ(row.stirringMotor().stirringPause(FW_TimeSpan::Seconds), 1200);
    EXPECT_EQ(row.stirringMotor().stirringPolicy(), 3);
    EXPECT_EQ(row.stirringMotor().resolution(), 800);
    EXPECT_EQ(row.stirringMotor().supplyingCurrent(), 17);
    EXPECT_EQ(row.stirringMotor().speed(), 130);
    EXPECT_EQ(row.stirringMotor().wireBoardId(), 4);
    EXPECT_EQ(row.stirringMotor().wireConnectorsIdBitMask(), 6);
}

TEST(AGI_cdata, takesTheDefaultsOfMissingFields)
{
    const AGI_cdata row(tokens("01 01 01 03 01 0C 01 4B 01 14 01 03 01 09"), 6);
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,3,12,75,20,3"));
    EXPECT_EQ(row.stirringMotor().resolution(), 400);
    EXPECT_EQ(row.stirringMotor().supplyingCurrent(), 15);
    EXPECT_EQ(row.stirringMotor().speed(), 100);
    EXPECT_EQ(row.stirringMotor().wireBoardId(), 0);
    EXPECT_EQ(row.stirringMotor().wireConnectorsIdBitMask(), 0);
}

TEST(AGI_cdata, tellsTheLastFieldThatIsMissing)
{
    QString error;
    EXPECT_TRUE(AGI_cdata(QStringLiteral("1,3,12,75,20,3")).updateLocalData(&error));
    EXPECT_EQ(error, QStringLiteral("Stirring Wire Connectors ID field not found in answer"));
    EXPECT_FALSE(AGI_cdata().updateLocalData(&error));
    EXPECT_EQ(error, QStringLiteral("Canister ID field not found in answer"));
}

TEST(AGI_cdata, carriesTheMotor)
{
    const FW_Dispenser source = stirred(true);
    FW_Dispenser target = machine();
    EXPECT_TRUE(applied(sentAndReceived(AGI_cdata(7, &source)), target));
    EXPECT_TRUE(target == source);
    EXPECT_TRUE(applied(AGI_cdata(QStringLiteral("2,3,12,75,20,3,800,17,130,4,6")), target));
    EXPECT_TRUE(target == stirred(false));
}

TEST(AGI_cdata, carriesTheMotorToAllCircuits)
{
    FW_Dispenser target = machine();
    EXPECT_TRUE(applied(AGI_cdata(QStringLiteral("1,245,245,75,20,3,800,17,130,4,6")), target));
    FW_Dispenser expected = machine();
    expected.getCircuitById(7)->setStirringMotor(configured(true));
    expected.getCircuitById(8)->setStirringMotor(configured(true));
    EXPECT_TRUE(target == expected);
}

TEST(AGI_cdata, hasNothingToStirOnAnEmptyMachine)
{
    const AGI_cdata row(QStringLiteral("1,245,245,75,20,3,800,17,130,4,6"));
    FW_Dispenser empty;
    EXPECT_TRUE(applied(row, empty));
    EXPECT_TRUE(empty == FW_Dispenser());
    empty.addCanister(FW_Canister(3));
    EXPECT_TRUE(applied(row, empty));
    EXPECT_EQ(empty.getCircuits().size(), 0);
}

TEST(AGI_cdata, makesCanisterAndCircuit)
{
    FW_Dispenser target;
    EXPECT_TRUE(applied(AGI_cdata(QStringLiteral("1,3,12,75,20,3,800,17,130,4,6")), target));
    FW_Circuit circuit(1, 12);
    circuit.setStirringMotor(configured(true));
    FW_Canister canister(3);
    canister.addCircuit(circuit);
    FW_Dispenser expected;
    expected.addCanister(canister);
    EXPECT_TRUE(target == expected);
}

TEST(AGI_cdata, goesByThePosition)
{
    FW_Dispenser target = machine();
    EXPECT_TRUE(applied(AGI_cdata(QStringLiteral("1,5,12,75,20,3,800,17,130,4,6")), target));
    EXPECT_TRUE(target == stirred(true));
}

TEST(AGI_cdata, failsForACircuitThatCannotBe)
{
    FW_Dispenser target = machine();
    EXPECT_FALSE(applied(AGI_cdata(QStringLiteral("1,3,0,75,20,3,800,17,130,4,6")), target));
    EXPECT_TRUE(target == machine());
}

TEST(AGI_cdata, clearsToTheDefaults)
{
    AGI_cdata row(QStringLiteral("1,3,12,75,20,3,800,17,130,4,6"));
    const std::unique_ptr<const AGI_cdata> copy(row.clone());
    row.clear();
    EXPECT_TRUE(row.stirringMotor() == FW_StirringMotor());
    EXPECT_EQ(row.canisterID(), 0);
    EXPECT_EQ(row.positionID(), 0);
    EXPECT_TRUE(copy->stirringMotor() == configured(true));
    EXPECT_EQ(copy->canisterID(), 3);
}

TEST(AGI_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(AGI_cdata(QStringLiteral("2,3,12,75,20,3")).toXmlRpcValue()), R"({"cmd_enabled": 2})");
}
