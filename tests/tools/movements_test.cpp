// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouringmachine.h"
#include "simulatedparts.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_shelf.h>

#include <gtest/gtest.h>

namespace {

//                           length, not read, status, masks 1 to 5, position, zone, masks 8 to 12
const char *const Ready = "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0";
const char *const NotAvailable = "refused 6 0 8 0 0 0 0";
const char *const WrongParameters = "refused 6 20 0 0 0 0 0";
const char *const OutOfRange = "refused 6 1 0 0 0 0 0";
const char *const WrongModule = "refused 6 10 0 0 0 0 0";

const QList<int> TintOfSixSeconds{1, 1, 1, 0, 50, 2, 16, 4}; // circuit 1 of the pouring machine

template <class Device>
FW_Dispenser withDevice(const Device &device)
{
    FW_Dispenser machine = pouringMachine();
    machine.setDevice(device);
    return machine;
}

// --- the shelf

TEST(SimulatedShelf, goesUpToTheCanInFiveSeconds)
{
    const char *const goingUp = "E 0 1 0 0 0 20 0 F5 F5 0 0 0 0 0";
    SimulatedParts machine(withDevice(FW_Shelf()));
    EXPECT_EQ(machine.ask("0072", {3}), "2 F5 F5"); // nobody knows where it stands
    EXPECT_EQ(machine.sensors(), "0 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(machine.ask("0071", {0, 54, 1}), "0"); // 300 mm
    EXPECT_EQ(machine.ask("0006"), goingUp);
    machine.now += 4999;
    EXPECT_EQ(machine.ask("0006"), goingUp);
    EXPECT_EQ(machine.ask("0072", {3}), "2 F5 F5");
    EXPECT_EQ(machine.sensors(), "0 0 0 0 0 0 0 0 0 0");
    machine.now += 1;
    EXPECT_EQ(machine.ask("0006"), Ready);
    EXPECT_EQ(machine.ask("0072", {3}), "2 36 1");
    EXPECT_EQ(machine.sensors(), "0 4 0 0 0 0 0 0 0 0"); // shelf_high
}

TEST(SimulatedShelf, goesDownToItsLowEndWhateverTheHeight)
{
    SimulatedParts machine(withDevice(FW_Shelf()), 10);
    machine.ask("0071", {0, 54, 1});
    machine.now += 500;
    EXPECT_EQ(machine.ask("0071", {1, 10, 0}), "0");
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 40 0 F5 F5 0 0 0 0 0");
    machine.now += 250;
    EXPECT_EQ(machine.ask("0072", {3}), "2 96 0"); // half way
    machine.now += 250;
    EXPECT_EQ(machine.ask("0072", {3}), "2 0 0");
    EXPECT_EQ(machine.sensors(), "0 8 0 0 0 0 0 0 0 0"); // shelf_low
}

TEST(SimulatedShelf, aResetBringsItDown)
{
    SimulatedParts machine(withDevice(FW_Shelf()));
    EXPECT_EQ(machine.ask("0001"), "0");
    EXPECT_EQ(machine.ask("0006"), "E 0 1 40 0 0 40 0 F5 F5 0 0 0 0 0");
    machine.now += 5999;
    EXPECT_EQ(machine.ask("0072", {3}), "2 F5 F5");
    machine.now += 1;
    EXPECT_EQ(machine.ask("0072", {3}), "2 0 0");
    EXPECT_EQ(machine.ask("0006"), Ready);
}

TEST(SimulatedShelf, stoppedItStandsWhereItHasCome)
{
    SimulatedParts machine(withDevice(FW_Shelf()));
    machine.ask("0001");
    machine.now += 6000;
    machine.ask("0071", {0, 54, 1});
    machine.now += 1000;
    machine.stop();
    EXPECT_EQ(machine.ask("0006"), Ready);
    EXPECT_EQ(machine.ask("0072", {3}), "2 3C 0"); // 60 mm
    machine.now += 10000;
    EXPECT_EQ(machine.ask("0072", {3}), "2 3C 0");

    SimulatedParts unknown(withDevice(FW_Shelf()));
    unknown.ask("0071", {0, 54, 1});
    unknown.now += 1000;
    unknown.stop();
    EXPECT_EQ(unknown.ask("0072", {3}), "2 F5 F5");
}

TEST(SimulatedShelf, refusesWhatItCannotDo)
{
    SimulatedParts machine(withDevice(FW_Shelf()));
    for (const QList<int> &wrong : {QList<int>{}, {0}, {0, 54}, {2, 0, 0}, {0, 246, 0}, {0, 54, 1, 0}})
        EXPECT_EQ(machine.ask("0071", wrong), WrongParameters);
    EXPECT_EQ(machine.ask("0071", {0, 17, 4}), OutOfRange); // 1001 mm
    EXPECT_EQ(machine.ask("0072"), WrongParameters);
    EXPECT_EQ(machine.ask("0072", {2}), WrongParameters);
    EXPECT_EQ(machine.ask("0071", {0, 16, 4}), "0");
    EXPECT_EQ(machine.ask("0071", {1, 0, 0}), NotAvailable); // it moves
    EXPECT_EQ(machine.ask("0017", TintOfSixSeconds), NotAvailable);
    machine.now += 5000;
    EXPECT_EQ(machine.ask("0017", TintOfSixSeconds), "0");
    EXPECT_EQ(machine.ask("0071", {1, 0, 0}), NotAvailable);
    EXPECT_EQ(machine.ask("0072", {3}), "2 10 4");
}

TEST(SimulatedShelf, thereMustBeOne)
{
    SimulatedParts none(pouringMachine());
    EXPECT_EQ(none.ask("0071", {0, 54, 1}), NotAvailable);
    EXPECT_EQ(none.ask("0072", {3}), NotAvailable);
    FW_Shelf shelf;
    shelf.setEnabled(false);
    SimulatedParts disabled(withDevice(shelf));
    EXPECT_EQ(disabled.ask("0071", {0, 54, 1}), NotAvailable);
}

// --- the cap

TEST(SimulatedCap, opensAndClosesInTwelveTenthsOfASecond)
{
    const char *const moving = "E 0 1 0 0 0 0 0 F5 F5 0 0 0 0 0";
    const char *const open = "E 0 1 0 2 0 0 0 F5 F5 4 0 0 0 0";
    SimulatedParts machine(withDevice(FW_Autocap()));
    EXPECT_EQ(machine.ask("0006"), Ready);
    EXPECT_EQ(machine.sensors(), "40 0 0 0 0 0 0 0 0 0"); // cap_close
    EXPECT_EQ(machine.ask("0041", {1}), "0");
    EXPECT_EQ(machine.sensors(), "0 0 0 10 0 0 0 0 0 0"); // autocap_active
    machine.now += 1199;
    EXPECT_EQ(machine.ask("0006"), moving);
    machine.now += 1;
    EXPECT_EQ(machine.ask("0006"), open);
    EXPECT_EQ(machine.sensors(), "20 0 0 0 0 0 0 0 0 0"); // cap_open

    EXPECT_EQ(machine.ask("0041", {0}), "0");
    machine.now += 1199;
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 2 0 0 0 F5 F5 0 0 0 0 0"); // open until it has closed
    machine.now += 1;
    EXPECT_EQ(machine.ask("0006"), Ready);
}

TEST(SimulatedCap, otherMovementsLeaveItAsItWas)
{
    SimulatedParts machine(withDevice(FW_Autocap()));
    for (const int movement : {2, 3}) {
        EXPECT_EQ(machine.ask("0041", {movement}), "0");
        EXPECT_EQ(machine.sensors(), "0 0 0 10 0 0 0 0 0 0");
        machine.now += 1200;
        EXPECT_EQ(machine.sensors(), "40 0 0 0 0 0 0 0 0 0");
    }
    EXPECT_EQ(machine.ask("0041", {4}), WrongParameters);
    FW_Dispenser zandor = withDevice(FW_Autocap());
    zandor.setModelName(QStringLiteral("Zandor"));
    SimulatedParts other(zandor);
    EXPECT_EQ(other.ask("0041", {6}), "0");
    other.now += 1200;
    EXPECT_EQ(other.ask("0041", {7}), WrongParameters);
}

TEST(SimulatedCap, aPourGoesThroughTheOpenCap)
{
    SimulatedParts machine(withDevice(FW_Autocap()));
    EXPECT_EQ(machine.ask("0017", TintOfSixSeconds), "0");
    EXPECT_EQ(machine.ask("0006"), "E 0 1 4 2 0 0 0 F5 F5 0 0 0 0 0");
    EXPECT_EQ(machine.sensors(), "20 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(machine.ask("0041", {0}), NotAvailable);
    machine.now += 6000;
    EXPECT_EQ(machine.ask("0006"), Ready);
}

TEST(SimulatedCap, stoppedItIsNeitherOpenNorClosedAndAResetClosesIt)
{
    SimulatedParts machine(withDevice(FW_Autocap()));
    machine.ask("0041", {1});
    machine.now += 600;
    machine.stop();
    EXPECT_EQ(machine.sensors(), "0 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 2 0 0 0 F5 F5 4 0 0 0 0"); // not closed
    EXPECT_EQ(machine.ask("0001"), "0");
    machine.now += 6000;
    EXPECT_EQ(machine.sensors(), "40 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(machine.ask("0006"), Ready);
}

TEST(SimulatedCap, refusesWhatItCannotDo)
{
    SimulatedParts none(pouringMachine());
    EXPECT_EQ(none.ask("0041", {1}), NotAvailable);
    EXPECT_EQ(none.sensors(), "0 0 0 0 0 0 0 0 0 0");
    SimulatedParts machine(withDevice(FW_Autocap()));
    for (const QList<int> &wrong : {QList<int>{}, {7}, {1, 1}})
        EXPECT_EQ(machine.ask("0041", wrong), WrongParameters);
    machine.ask("0041", {1});
    EXPECT_EQ(machine.ask("0017", TintOfSixSeconds), NotAvailable);
    EXPECT_EQ(machine.ask("0041", {0}), NotAvailable);
}

// --- the table: positions 3, 1, 2, 4 in this order, a second apart

const char *const AtThird = "E 0 1 0 0 0 0 0 3 0 4 0 0 0 0";
const char *const TableMoves = "E 0 1 0 0 0 0 4 F5 F5 0 0 0 0 0";

TEST(SimulatedTurntable, bringsACircuitToTheDosingPoint)
{
    SimulatedParts machine(rotatingMachine());
    EXPECT_EQ(machine.ask("0006"), AtThird);
    EXPECT_EQ(machine.askAt("0016", 2, {1, 2, 0, 0}), "0"); // two places on
    EXPECT_EQ(machine.ask("0006"), TableMoves);
    EXPECT_EQ(machine.sensors(), "0 0 0 0 4 0 0 0 0 0"); // rollbar_unlocked
    machine.now += 1999;
    EXPECT_EQ(machine.ask("0006"), TableMoves);
    machine.now += 1;
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 0 0 2 0 4 0 0 0 0");
    EXPECT_EQ(machine.sensors(), "0 0 0 0 0 0 0 0 0 0");
}

/// Milliseconds until the table stands.
qint64 turningTime(SimulatedParts &machine)
{
    const qint64 begun = machine.now;
    while (machine.ask("0006") == TableMoves)
        machine.now += 50;
    return machine.now - begun;
}

TEST(SimulatedTurntable, turnsTheWayThatItIsTold)
{
    SimulatedParts machine(rotatingMachine());
    machine.askAt("0016", 4, {1, 2, 0, 0}); // one place back
    EXPECT_EQ(turningTime(machine), 1000);
    machine.askAt("0016", 2, {1, 0, 0, 0}); // clockwise
    EXPECT_EQ(turningTime(machine), 3000);
    machine.askAt("0016", 3, {1, 1, 0, 0}); // counter-clockwise
    EXPECT_EQ(turningTime(machine), 2000);
    machine.askAt("0016", 1, {2, 2, 0, 0});
    EXPECT_EQ(machine.sensors(), "0 0 0 0 0 0 0 0 0 0"); // the rollbar stays locked
    EXPECT_EQ(turningTime(machine), 1000);
    machine.askAt("0016", 0, {0, 2, 0, 0, 50}); // the reference, at half of the speed
    EXPECT_EQ(turningTime(machine), 2000);
    EXPECT_EQ(machine.ask("0006"), AtThird);
    machine.askAt("0016", 3, {1, 2, 0, 0}); // there it is
    EXPECT_EQ(turningTime(machine), 0);
}

TEST(SimulatedTurntable, turnsACircuitToTheRefillPoint)
{
    SimulatedParts machine(rotatingMachine());
    EXPECT_EQ(machine.askAt("0016", 1, {1, 2, 90, 0}), "0"); // a quarter is one place
    EXPECT_EQ(turningTime(machine), 2000);
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 0 0 1 1 4 0 0 0 0");
    machine.askAt("0016", 2, {1, 2, 0, 0}); // which stands at the dosing point already
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 0 0 2 0 4 0 0 0 0");
    machine.askAt("0016", 2, {1, 2, 45, 1});
    EXPECT_EQ(turningTime(machine), 500);
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 0 0 2 1 4 0 0 0 0");
}

TEST(SimulatedTurntable, turnsBySteps)
{
    SimulatedParts machine(rotatingMachine());
    EXPECT_EQ(machine.ask("0018", {0, 245, 2, 2, 13}), "0"); // 3200 steps of 12800
    EXPECT_EQ(turningTime(machine), 1000);
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 0 0 1 0 4 0 0 0 0");
    EXPECT_EQ(machine.ask("0018", {1, 20, 2, 124, 6}), "0"); // 1600 back, at a fifth of the speed
    EXPECT_EQ(turningTime(machine), 2500);
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0"); // between two circuits
    machine.askAt("0016", 3, {1, 2, 0, 0});
    EXPECT_EQ(turningTime(machine), 500);
    EXPECT_EQ(machine.ask("0006"), AtThird);
}

TEST(SimulatedTurntable, tellsWhereItsCircuitsSit)
{
    SimulatedParts machine(rotatingMachine());
    // 0, 3200, 6400 and 9600 steps, each with a fin of 30
    EXPECT_EQ(machine.ask("0019"), "18 4 3 1 0 1 1E 1 2 2 D 1 1E 2 2 4 1A 1 1E 4 2 6 27 1 1E");
}

TEST(SimulatedTurntable, poursMoveTheSameTable)
{
    SimulatedParts machine(rotatingMachine());
    EXPECT_EQ(machine.ask("0017", {1, 2, 1, 0, 50, 2, 16, 4, 4, 0, 50, 2, 16, 4}), "0");
    EXPECT_EQ(machine.ask("0006"), "E 0 1 4 0 0 0 4 F5 F5 0 0 0 0 0"); // to circuit 1 for a second
    machine.now += 1000;
    EXPECT_EQ(machine.ask("0006"), "E 0 1 4 0 0 0 0 1 0 0 0 0 0 0"); // which pours for six
    EXPECT_EQ(machine.askAt("0016", 2, {1, 2, 0, 0}), NotAvailable);
    machine.now += 6000;
    EXPECT_EQ(machine.ask("0006"), "E 0 1 4 0 0 0 4 F5 F5 0 0 0 0 0"); // two seconds to circuit 4
    machine.now += 2000;
    EXPECT_EQ(machine.ask("0006"), "E 0 1 4 0 0 0 0 4 0 0 0 0 0 0");
    machine.now += 6000;
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 0 0 4 0 4 0 0 0 0");

    machine.askAt("0016", 2, {1, 2, 0, 0});
    machine.now += 1000;
    machine.ask("0017", {1, 1, 1, 0, 50, 2, 16, 4}); // from there it is one place
    machine.now += 999;
    EXPECT_EQ(machine.ask("0006"), "E 0 1 4 0 0 0 4 F5 F5 0 0 0 0 0");
    machine.now += 1;
    EXPECT_EQ(machine.ask("0006"), "E 0 1 4 0 0 0 0 1 0 0 0 0 0 0");
}

TEST(SimulatedTurntable, stoppedInAPourItGoesToNoFurtherCircuit)
{
    SimulatedParts machine(rotatingMachine());
    machine.ask("0017", {1, 2, 1, 0, 50, 2, 16, 4, 4, 0, 50, 2, 16, 4});
    machine.now += 3000; // circuit 1 pours
    machine.stop();
    machine.now += 20000;
    EXPECT_EQ(QString::fromStdString(machine.ask("0006")).section(QLatin1Char(' '), 8, 8).toStdString(), "1");
}

TEST(SimulatedTurntable, stoppedItStandsWhereItHasComeAndAResetBringsItBack)
{
    SimulatedParts machine(rotatingMachine());
    machine.askAt("0016", 2, {1, 2, 45, 0});
    machine.now += 500;
    machine.stop();
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0");
    machine.askAt("0016", 1, {1, 2, 0, 0});
    EXPECT_EQ(turningTime(machine), 500);
    EXPECT_EQ(machine.ask("0001"), "0");
    EXPECT_EQ(machine.ask("0006"), "E 0 1 40 0 0 0 4 F5 F5 0 0 0 0 0");
    machine.now += 6000;
    EXPECT_EQ(machine.ask("0006"), AtThird);
}

TEST(SimulatedTurntable, refusesWhatItCannotDo)
{
    SimulatedParts machine(rotatingMachine());
    for (const QList<int> &wrong : {QList<int>{},
                                    {1, 2, 0},
                                    {3, 2, 0, 0},
                                    {1, 3, 0, 0},
                                    {1, 2, 181, 0},
                                    {1, 2, 0, 2},
                                    {1, 2, 0, 0, 50},
                                    {0, 2, 0, 0},
                                    {0, 2, 0, 0, 0},
                                    {0, 2, 0, 0, 101}})
        EXPECT_EQ(machine.askAt("0016", 1, wrong), WrongParameters);
    for (const QList<int> &wrong : {QList<int>{}, {0, 245}, {0, 245, 0}, {3, 245, 1, 1}, {0, 101, 1, 1}})
        EXPECT_EQ(machine.ask("0018", wrong), WrongParameters);
    EXPECT_EQ(machine.ask("0018", {0, 245, 2, 9, 52}), OutOfRange); // 12801 steps
    EXPECT_EQ(machine.askAt("0016", 5, {1, 2, 0, 0}), WrongModule);
    EXPECT_EQ(machine.ask("0006"), AtThird);
    machine.askAt("0016", 1, {1, 2, 0, 0});
    EXPECT_EQ(machine.askAt("0016", 2, {1, 2, 0, 0}), NotAvailable);
    EXPECT_EQ(machine.ask("0018", {0, 245, 1, 1}), NotAvailable);
    EXPECT_EQ(machine.ask("0017", TintOfSixSeconds), NotAvailable);

    SimulatedParts none(pouringMachine());
    EXPECT_EQ(none.askAt("0016", 1, {1, 2, 0, 0}), NotAvailable);
    EXPECT_EQ(none.ask("0018", {0, 245, 1, 1}), NotAvailable);
    EXPECT_EQ(none.ask("0019"), NotAvailable);
}

} // namespace
