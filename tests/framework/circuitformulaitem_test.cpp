// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

#include <QuvFramework/circuitformulaitem.h>
#include <QuvFramework/fw_turntable.h>

namespace {

CircuitFormulaItem itemOf(int resolution, long long steps, int speed)
{
    FW_DosingMotor motor;
    motor.setResolution(resolution);
    FW_Circuit circuit(1, 1);
    circuit.setDosingMotor(motor);
    CircuitFormulaItem item(circuit);
    item.setSteps({steps, true});
    item.setSpeed({speed, true});
    return item;
}

/** Pours so many milliseconds: 60 turns a minute of 1000 steps are one step a millisecond. */
CircuitFormulaItem lasting(int milliseconds, int queue = 0, int position = 1)
{
    CircuitFormulaItem item = itemOf(1000, milliseconds, 60);
    item.setQueueID(queue);
    item.setPositionId(position);
    return item;
}

CircuitFormulaItemList listOf(int parallelism, std::initializer_list<CircuitFormulaItem> items)
{
    CircuitFormulaItemList list(items);
    list.setParallelism(parallelism);
    return list;
}

long long estimated(const CircuitFormulaItemList &items)
{
    long long time = -1;
    EXPECT_TRUE(items.getEstimatedDosingTime(time));
    return time;
}

long long estimated(const CircuitFormulaItemList &items, int position, const FW_Dispenser &machine)
{
    long long time = -1;
    EXPECT_TRUE(items.getEstimatedDosingTime(position, &machine, time));
    return time;
}

FW_Dispenser rotating()
{
    FW_Turntable table;
    table.setPositions({1, 2, 3, 4, 5, 6, 7, 8});
    table.setStepTime(1500);
    FW_Dispenser machine;
    machine.setDevice(table);
    return machine;
}

TEST(CircuitFormulaItem, isTheCircuit)
{
    const FW_Circuit circuit = pouring::circuit(5, 9, 3);
    const CircuitFormulaItem item(circuit);
    EXPECT_TRUE(static_cast<const FW_Circuit &>(item) == circuit);
    EXPECT_EQ(item.queueID(), 0); // that of the pour
    EXPECT_EQ(item.FW_Circuit::queueID(), 3);
}

TEST(CircuitFormulaItem, isBuiltOfStrokesAndSpeed)
{
    const CircuitFormulaItem item(pouring::circuit(5, 9, 3), 3, 40);
    bool ok = false;
    EXPECT_EQ(item.strokes(&ok), 3);
    EXPECT_TRUE(ok);
    ok = false;
    EXPECT_EQ(item.speed(&ok), 40);
    EXPECT_TRUE(ok);
    item.steps(&ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(item.positionId(), 9);
}

TEST(CircuitFormulaItem, nothingIsCalculatedAtFirst)
{
    const CircuitFormulaItem item;
    bool ok = true;
    EXPECT_EQ(item.steps(&ok), 0);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(item.strokes(&ok), 0);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(item.speed(&ok), 0);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(item.nozzleValveID(&ok), 0);
    EXPECT_FALSE(ok);
    EXPECT_EQ(item.currentCheckLevelSteps(), 0);
}

TEST(CircuitFormulaItem, tellsItsNumbers)
{
    CircuitFormulaItem item;
    item.setSteps({5000000000, true});
    item.setStrokes({7, true});
    item.setSpeed({60, false});
    item.setNozzleValveID({3, true});
    item.setCurrentCheckLevelSteps(99);
    bool ok = false;
    EXPECT_EQ(item.steps(&ok), 5000000000);
    EXPECT_TRUE(ok);
    EXPECT_EQ(item.strokes(), 7);
    EXPECT_EQ(item.speed(&ok), 60);
    EXPECT_FALSE(ok);
    EXPECT_EQ(item.nozzleValveID(&ok), 3);
    EXPECT_TRUE(ok);
    EXPECT_EQ(item.currentCheckLevelSteps(), 99);
}

TEST(CircuitFormulaItem, dosingTime)
{
    bool ok = false;
    EXPECT_EQ(itemOf(200, 1000, 50).dosingTime(&ok), 6000); // 10000 steps a minute
    EXPECT_TRUE(ok);
    EXPECT_EQ(itemOf(200, 1, 50).dosingTime(), 6);
    EXPECT_EQ(itemOf(200, 1, 7).dosingTime(), 43); // 42.857
    EXPECT_EQ(itemOf(400, 1000, 50).dosingTime(), 3000);
    EXPECT_EQ(itemOf(200, 0, 50).dosingTime(&ok), 0);
    EXPECT_TRUE(ok);
}

TEST(CircuitFormulaItem, dosingTimeThatNobodyKnows)
{
    CircuitFormulaItem withoutSteps = itemOf(200, 1000, 50);
    withoutSteps.setSteps({1000, false});
    CircuitFormulaItem withoutSpeed = itemOf(200, 1000, 50);
    withoutSpeed.setSpeed({50, false});
    for (const CircuitFormulaItem &item :
         {withoutSteps, withoutSpeed, itemOf(200, 1000, 0), itemOf(200, 1000, -1), itemOf(0, 1000, 50),
          itemOf(1, 9007199254740992, 1)}) {
        bool ok = true;
        EXPECT_EQ(item.dosingTime(&ok), 0);
        EXPECT_FALSE(ok);
    }
}

TEST(CircuitFormulaItemList, asManyPourAtOnceAsTheMachineCan)
{
    EXPECT_EQ(estimated(listOf(1, {})), 0);
    EXPECT_EQ(estimated(listOf(1, {lasting(300), lasting(100), lasting(200)})), 600);
    EXPECT_EQ(estimated(listOf(2, {lasting(300), lasting(100), lasting(200)})), 300);
    EXPECT_EQ(estimated(listOf(2, {lasting(100), lasting(100), lasting(500)})), 600);
    EXPECT_EQ(estimated(listOf(3, {lasting(100), lasting(100), lasting(500)})), 500);
    EXPECT_EQ(estimated(listOf(16, {lasting(100), lasting(300)})), 300);
}

TEST(CircuitFormulaItemList, parallelismOfAnyNumber)
{
    const auto items = {lasting(300), lasting(100)};
    EXPECT_EQ(CircuitFormulaItemList().parallelism(), 1);
    EXPECT_EQ(estimated(listOf(0, items)), 400);
    EXPECT_EQ(estimated(listOf(-5, items)), 400);
    EXPECT_EQ(estimated(listOf(2147483647, items)), 300);
}

TEST(CircuitFormulaItemList, circuitsOfOneQueueWaitForEachOther)
{
    EXPECT_EQ(estimated(listOf(4, {lasting(100, 1), lasting(200, 1), lasting(50, 1)})), 350);
    EXPECT_EQ(estimated(listOf(4, {lasting(100, 1), lasting(200, 2), lasting(150, 1)})), 250);
    // the second holds its place while it waits until 100; the third takes the first's
    EXPECT_EQ(estimated(listOf(2, {lasting(100, 1), lasting(200, 1), lasting(50, 2)})), 300);
    // both places are taken until 500
    EXPECT_EQ(estimated(listOf(2, {lasting(500, 1), lasting(100, 1), lasting(400, 2)})), 900);
    EXPECT_EQ(estimated(listOf(3, {lasting(500, 1), lasting(100, 1), lasting(400, 2)})), 600);
    // circuits without a queue wait for nobody
    EXPECT_EQ(estimated(listOf(2, {lasting(100, 0), lasting(200, 0)})), 200);
}

TEST(CircuitFormulaItemList, moreColorantTakesLonger)
{
    EXPECT_LT(estimated(listOf(2, {lasting(100), lasting(200)})),
              estimated(listOf(2, {lasting(100), lasting(201)})));
}

TEST(CircuitFormulaItemList, withoutAnItemsTimeThereIsNone)
{
    CircuitFormulaItemList items = listOf(2, {lasting(100), CircuitFormulaItem()});
    long long time = 77;
    EXPECT_FALSE(items.getEstimatedDosingTime(time));
    EXPECT_EQ(time, 77);
    const FW_Dispenser machine = rotating();
    EXPECT_FALSE(items.getEstimatedDosingTime(1, &machine, time));
    EXPECT_EQ(time, 77);
}

TEST(CircuitFormulaItemList, theTableTurnsBetweenPours)
{
    const FW_Dispenser machine = rotating();
    // 1 to 3 are 2 steps of 1500 ms, 3 to 8 are 3 the other way round
    EXPECT_EQ(estimated(listOf(4, {lasting(1000, 0, 3), lasting(2000, 0, 8)}), 1, machine), 10500);
    EXPECT_EQ(estimated(listOf(4, {lasting(1000, 0, 1)}), 1, machine), 1000);
    EXPECT_EQ(estimated(listOf(4, {lasting(1000, 0, 5)}), 1, machine), 7000);
    EXPECT_EQ(estimated(listOf(4, {lasting(1000, 0, 5)}), 0, machine), 1000); // nobody knows where it stands
    EXPECT_EQ(estimated(listOf(4, {}), 1, machine), 0);
}

TEST(CircuitFormulaItemList, withoutATableThereIsNoWay)
{
    const CircuitFormulaItemList items = listOf(1, {lasting(100)});
    const FW_Dispenser still;
    long long time = 77;
    EXPECT_FALSE(items.getEstimatedDosingTime(1, &still, time));
    EXPECT_FALSE(items.getEstimatedDosingTime(1, nullptr, time));
    EXPECT_EQ(time, 77);
}

TEST(CircuitFormulaItemList, knowsAnItemWithoutQueue)
{
    EXPECT_FALSE(listOf(1, {}).hasNullQueueID());
    EXPECT_FALSE(listOf(1, {lasting(1, 1), lasting(1, 2)}).hasNullQueueID());
    EXPECT_TRUE(listOf(1, {lasting(1, 1), lasting(1, 0)}).hasNullQueueID());
}

} // namespace
