// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_turntable.h>

#include <QtCore/QSet>

#include <gmock/gmock.h>

#include <memory>

namespace {

using pouring::dispenser;
using testing::ElementsAre;
using testing::IsEmpty;

QList<int> ids(const QVector<const FW_Circuit *> &circuits)
{
    QList<int> ids;
    for (const FW_Circuit *circuit : circuits)
        ids.append(circuit->id());
    return ids;
}

TEST(FW_Dispenser, findsCanisters)
{
    const FW_Dispenser machine = dispenser();
    ASSERT_NE(machine.getCanisterById(2), nullptr);
    EXPECT_EQ(machine.getCanisterById(2)->currentQuantity(), 800);
    EXPECT_EQ(machine.getCanisterById(8), nullptr);
    EXPECT_TRUE(machine.hasCanisterID(7));
    EXPECT_FALSE(machine.hasCanisterID(0));
    ASSERT_NE(machine.getCanisterOfCircuitID(32), nullptr);
    EXPECT_EQ(machine.getCanisterOfCircuitID(32)->id(), 3);
    EXPECT_EQ(machine.getCanisterOfCircuitID(5), nullptr); // a position, no circuit
    EXPECT_EQ(FW_Dispenser().getCanisterById(1), nullptr);
}

TEST(FW_Dispenser, findsCircuitsByIdAndByPosition)
{
    const FW_Dispenser machine = dispenser();
    EXPECT_THAT(ids(machine.getCircuits()), ElementsAre(11, 12, 21, 31, 32, 41, 51, 71));
    EXPECT_THAT(ids(machine.getEnabledCircuits()), ElementsAre(11, 12, 21, 32, 41, 51, 71));
    ASSERT_NE(machine.getCircuitById(32), nullptr);
    EXPECT_EQ(machine.getCircuitById(32)->positionId(), 5);
    EXPECT_TRUE(machine.hasCircuitID(31));
    EXPECT_FALSE(machine.hasCircuitID(5));
    ASSERT_NE(machine.getCircuitByPosition(5), nullptr);
    EXPECT_EQ(machine.getCircuitByPosition(5)->id(), 32);
    EXPECT_EQ(machine.getCircuitByPosition(32), nullptr);
}

TEST(FW_Dispenser, positionsAscend)
{
    FW_Dispenser machine;
    FW_Circuit disabled = pouring::circuit(1, 9, 0);
    disabled.setEnabled(false);
    machine.addCanister(pouring::canister(1, "", 0, {pouring::circuit(3, 12, 0), disabled}));
    machine.addCanister(pouring::canister(2, "", 0, {pouring::circuit(2, 4, 0)}));
    EXPECT_THAT(machine.getPositionsIDList(false), ElementsAre(4, 9, 12));
    EXPECT_THAT(machine.getPositionsIDList(true), ElementsAre(4, 12));
    EXPECT_THAT(machine.getWireBoardsID(), ElementsAre(4, 9, 12))
        << "a board is there whether enabled or not";
    EXPECT_THAT(FW_Dispenser().getPositionsIDList(false), IsEmpty());
}

TEST(FW_Dispenser, tellsPositionsCanisterByCanister)
{
    FW_Dispenser machine;
    FW_Circuit disabled = pouring::circuit(1, 3, 0);
    disabled.setEnabled(false);
    machine.addCanister(pouring::canister(7, "", 0, {pouring::circuit(3, 1, 0)}));
    machine.addCanister(
        pouring::canister(2, "", 0, {pouring::circuit(4, 12, 0), disabled, pouring::circuit(5, 9, 0)}));
    EXPECT_THAT(machine.getPositionsIDSortedByCanister(false), ElementsAre(3, 9, 12, 1));
    EXPECT_THAT(machine.getPositionsIDSortedByCanister(true), ElementsAre(9, 12, 1));
    machine.getCanisterById(2)->setEnabled(false);
    EXPECT_THAT(machine.getPositionsIDSortedByCanister(false), ElementsAre(3, 9, 12, 1));
    EXPECT_THAT(machine.getPositionsIDSortedByCanister(true), ElementsAre(1));
    EXPECT_THAT(FW_Dispenser().getPositionsIDSortedByCanister(false), IsEmpty());
}

TEST(FW_Dispenser, choosesCircuitsByChance)
{
    FW_Dispenser machine = dispenser(); // of which 11, 12, 21, 32 and 51 can pour
    for (int count = -1; count <= 0; ++count)
        EXPECT_THAT(machine.getRandomCircuitsID(count), IsEmpty());
    for (int count = 1; count <= 4; ++count) {
        const QList<int> chosen = machine.getRandomCircuitsID(count);
        EXPECT_EQ(chosen.size(), count);
        EXPECT_EQ(QSet<int>(chosen.begin(), chosen.end()).size(), count) << "each once";
        EXPECT_THAT(chosen, testing::Each(testing::AnyOf(11, 12, 21, 32, 51)));
    }
    for (const int count : {5, 6, 2147483647})
        EXPECT_THAT(machine.getRandomCircuitsID(count), testing::UnorderedElementsAre(11, 12, 21, 32, 51));
    QSet<int> first;
    for (int i = 0; i < 500; ++i)
        first.insert(machine.getRandomCircuitsID(1).constFirst());
    EXPECT_EQ(first.size(), 5) << "each may come first";

    machine.getCircuitById(21)->removeDosingMotor();
    EXPECT_THAT(machine.getRandomCircuitsID(9), testing::UnorderedElementsAre(11, 12, 32, 51));
}

TEST(FW_Dispenser, asksForPositions)
{
    const FW_Dispenser machine = dispenser();
    EXPECT_TRUE(machine.hasCircuitPosition(4, false));
    EXPECT_FALSE(machine.hasCircuitPosition(4, true)); // disabled
    EXPECT_FALSE(machine.hasCircuitPosition(9, false));
    EXPECT_TRUE(machine.hasCircuitPositions({1, 4}, false));
    EXPECT_FALSE(machine.hasCircuitPositions({1, 4}, true));
    EXPECT_FALSE(machine.hasCircuitPositions({1, 9}, false));
    EXPECT_TRUE(machine.hasCircuitPositions({}, true));
}

TEST(FW_Dispenser, findsColorantsByTheirWholeCode)
{
    const FW_Dispenser machine = dispenser();
    EXPECT_EQ(machine.colorants().size(), 6);
    ASSERT_NE(machine.getColorantByColCode("KX"), nullptr);
    EXPECT_EQ(machine.getColorantByColCode("KX")->code(), "KX");
    EXPECT_FALSE(machine.hasColorantCode("kx"));
    EXPECT_FALSE(machine.hasColorantCode("K"));
    EXPECT_FALSE(machine.hasColorantCode(""));
}

TEST(FW_Dispenser, findsColorantsByTheirNumberInTheSystem)
{
    FW_Dispenser machine = dispenser();
    FW_Colorant numbered("N");
    numbered.setSystemColorantID(5);
    machine.addColorant(numbered);
    numbered.setSystemColorantID(6);
    numbered.setEnabled(false);
    machine.addColorant(numbered);
    ASSERT_NE(machine.getColorantBySystemColorantID(5, true), nullptr);
    EXPECT_EQ(machine.getColorantBySystemColorantID(5, true)->code(), "N");
    EXPECT_EQ(machine.getColorantBySystemColorantID(6, true), nullptr);
    ASSERT_NE(machine.getColorantBySystemColorantID(6, false), nullptr);
    EXPECT_EQ(machine.getColorantBySystemColorantID(6, false)->systemColorantID(), 6);
    for (const int id : {5, 6})
        EXPECT_TRUE(machine.hasSystemColorantID(id)) << id;
    for (const int id : {0, 7, -1}) // 0 is no number, though colorants have it
        EXPECT_FALSE(machine.hasSystemColorantID(id)) << id;
}

TEST(FW_Dispenser, findsTheColorantsThatItHolds)
{
    const FW_Dispenser machine = dispenser();
    const auto codes = [](const QVector<const FW_Colorant *> &colorants) {
        QStringList found;
        for (const FW_Colorant *colorant : colorants)
            found.append(colorant->code());
        return found;
    };
    EXPECT_EQ(codes(machine.getRealColorants(false)), (QStringList{"B", "KX", "R", "V", "OFF"}));
    EXPECT_EQ(codes(machine.getRealColorants(true)), (QStringList{"B", "KX", "R", "V"}));
}

TEST(FW_Dispenser, findsTheCanistersInUse)
{
    FW_Dispenser machine = dispenser();
    const auto canisterIds = [](const QVector<const FW_Canister *> &canisters) {
        QList<int> found;
        for (const FW_Canister *canister : canisters)
            found.append(canister->id());
        return found;
    };
    EXPECT_THAT(canisterIds(machine.getEnabledCanisters(false)), ElementsAre(1, 2, 3, 5, 6, 7));
    EXPECT_THAT(canisterIds(machine.getEnabledCanisters(true)), ElementsAre(1, 2, 3, 5, 7));
    machine.getCircuitById(32)->setEnabled(false); // the last of canister 3
    EXPECT_THAT(canisterIds(machine.getEnabledCanisters(true)), ElementsAre(1, 2, 5, 7));
}

TEST(FW_Colorant, isWhereItsCanistersAre)
{
    const FW_Dispenser machine = dispenser();
    EXPECT_THAT(FW_Colorant("B").getPositionsID(machine, true), ElementsAre(1, 2, 3));
    EXPECT_THAT(FW_Colorant("KX").getPositionsID(machine, false), ElementsAre(4, 5));
    EXPECT_THAT(FW_Colorant("KX").getPositionsID(machine, true), ElementsAre(5));
    EXPECT_THAT(FW_Colorant("R").getPositionsID(machine, false), ElementsAre(6));
    EXPECT_THAT(FW_Colorant("R").getPositionsID(machine, true), IsEmpty()); // its canister is closed
    EXPECT_THAT(FW_Colorant("EMPTY").getPositionsID(machine, false), IsEmpty());
}

/** The positions 3 and 1 stir for 30 and 10 seconds, 2 has a motor that is off, 5 none. */
FW_Dispenser stirred()
{
    FW_Dispenser machine = dispenser();
    const auto setMotor = [&](int position, int activity, bool enabled) {
        FW_StirringMotor motor;
        motor.setStirringActivity(activity);
        motor.setEnabled(enabled);
        machine.getCircuitByPosition(position)->setStirringMotor(motor);
    };
    setMotor(3, 30, true);
    setMotor(1, 10, true);
    setMotor(2, 20, false);
    return machine;
}

TEST(FW_Dispenser, findsTheMotorThatStirsAPosition)
{
    const FW_Dispenser machine = stirred();
    ASSERT_NE(machine.getFirstStirringMotorOfCircuitPosition(3, true), nullptr);
    EXPECT_EQ(machine.getFirstStirringMotorOfCircuitPosition(3, true)->stirringActivity(), 30);
    EXPECT_EQ(machine.getFirstStirringMotorOfCircuitPosition(2, true), nullptr);
    ASSERT_NE(machine.getFirstStirringMotorOfCircuitPosition(2, false), nullptr);
    EXPECT_EQ(machine.getFirstStirringMotorOfCircuitPosition(2, false)->stirringActivity(), 20);
    EXPECT_EQ(machine.getFirstStirringMotorOfCircuitPosition(5, false), nullptr);
    EXPECT_EQ(machine.getFirstStirringMotorOfCircuitPosition(99, false), nullptr);
}

TEST(FW_Dispenser, findsThePositionsThatAreStirred)
{
    FW_Dispenser machine = stirred();
    EXPECT_THAT(machine.getPositionsIDListOfStirringMotors(true, true), ElementsAre(1, 3));
    EXPECT_THAT(machine.getPositionsIDListOfStirringMotors(true, false), ElementsAre(1, 2, 3));
    machine.getCircuitByPosition(1)->setEnabled(false);
    EXPECT_THAT(machine.getPositionsIDListOfStirringMotors(true, true), ElementsAre(3));
    EXPECT_THAT(machine.getPositionsIDListOfStirringMotors(false, true), ElementsAre(1, 3));
    EXPECT_THAT(dispenser().getPositionsIDListOfStirringMotors(false, false), IsEmpty());
}

TEST(FW_Dispenser, tellsForHowLongPositionsAreStirred)
{
    const FW_Dispenser machine = stirred();
    EXPECT_THAT(machine.getStirringActivitiesForPositions({3, 2, 5, 1, 99}, true), ElementsAre(30, 10));
    EXPECT_THAT(machine.getStirringActivitiesForPositions({3, 2, 5, 1, 99}, false), ElementsAre(30, 20, 10));
    EXPECT_THAT(machine.getStirringActivitiesForPositions({}, true), IsEmpty());
}

TEST(FW_Dispenser, knowsWhetherAMotorStirs)
{
    FW_Dispenser machine = stirred();
    EXPECT_TRUE(machine.areStirringMotorsEnabled());
    for (const int position : {1, 3})
        machine.getCircuitByPosition(position)->removeStirringMotors();
    EXPECT_FALSE(machine.areStirringMotorsEnabled()); // the one left is off
    EXPECT_FALSE(dispenser().areStirringMotorsEnabled());
}

TEST(FW_Dispenser, whatChangesInPlaceStaysInTheMachine)
{
    FW_Dispenser machine = dispenser();
    const FW_Dispenser copy = machine;
    const std::unique_ptr<FW_Dispenser> clone(machine.clone());
    machine.getCanisterById(1)->setCurrentQuantity(7);
    machine.getCircuitByPosition(5)->setQueueID(9);
    EXPECT_EQ(machine.getCircuitByPosition(99), nullptr);
    EXPECT_EQ(machine.getCanisterById(99), nullptr);

    const FW_Dispenser &changed = machine;
    EXPECT_EQ(changed.getCanisterById(1)->currentQuantity(), 7);
    EXPECT_EQ(changed.getCircuitById(32)->queueID(), 9);
    for (const FW_Dispenser *untouched : {&copy, const_cast<const FW_Dispenser *>(clone.get())}) {
        EXPECT_EQ(untouched->getCanisterById(1)->currentQuantity(), 500);
        EXPECT_EQ(untouched->getCircuitById(32)->queueID(), 0);
    }
}

TEST(FW_Dispenser, knowsAScaleDosedCircuit)
{
    FW_Dispenser machine = dispenser();
    EXPECT_FALSE(machine.hasGravimetricSwDosingMotors());
    EXPECT_TRUE(machine.canEstimateDosingCmdExecution());
    FW_DosingMotor motor;
    motor.setGravimetricSw(true);
    machine.getCircuitByPosition(8)->setDosingMotor(motor);
    EXPECT_TRUE(machine.hasGravimetricSwDosingMotors());
    EXPECT_FALSE(machine.canEstimateDosingCmdExecution());
}

TEST(FW_Dispenser, poursOneCircuitAtATimeUnlessToldOtherwise)
{
    EXPECT_EQ(FW_Dispenser().tintingParallelism(), 1);
    EXPECT_FALSE(FW_Dispenser().hasNozzleBasedDosing());
    EXPECT_EQ(dispenser().tintingParallelism(), 3);
}

TEST(FW_Dispenser, hasOneDeviceOfAKind)
{
    FW_Dispenser machine;
    EXPECT_FALSE(machine.hasDevice(FW_Device::Turntable));
    EXPECT_EQ(machine.getDevice(FW_Device::Turntable), nullptr);
    FW_Turntable table;
    table.setRefillAngle(90);
    machine.setDevice(table);
    const FW_Dispenser copy = machine;
    table.setRefillAngle(180); // the machine has a copy
    EXPECT_EQ(dynamic_cast<const FW_Turntable &>(*machine.getDevice(10)).refillAngle(), 90);
    machine.setDevice(table);
    EXPECT_EQ(dynamic_cast<const FW_Turntable &>(*machine.getDevice(10)).refillAngle(), 180);
    EXPECT_EQ(dynamic_cast<const FW_Turntable &>(*copy.getDevice(10)).refillAngle(), 90);
    EXPECT_FALSE(machine.hasDevice(FW_Device::Autocap));
}

TEST(FW_Dispenser, movesEnabledDevicesByCommand)
{
    FW_Dispenser machine;
    EXPECT_FALSE(machine.acceptCommands(0));
    FW_Autocap autocap;
    machine.setDevice(autocap);
    EXPECT_TRUE(machine.acceptCommands(0));
    autocap.setEnabled(false);
    machine.setDevice(autocap);
    EXPECT_FALSE(machine.acceptCommands(0));
    EXPECT_TRUE(machine.hasDevice(0));
    EXPECT_FALSE(machine.acceptCommands(1));
}

TEST(FW_Colorant, anyChangeMakesItAnother)
{
    const FW_Colorant original("B", "Black");
    FW_Colorant changed = original;
    EXPECT_TRUE(changed == original);
    changed.setEnabled(false);
    EXPECT_TRUE(changed != original);
    changed = original;
    EXPECT_EQ(changed.systemColorantID(), 0);
    changed.setSystemColorantID(5);
    EXPECT_EQ(changed.systemColorantID(), 5);
    EXPECT_TRUE(changed != original);
    EXPECT_TRUE(FW_Colorant("C", "Black") != original);
    EXPECT_TRUE(FW_Colorant("B") != original);
}

} // namespace
