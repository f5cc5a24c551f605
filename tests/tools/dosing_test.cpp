// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/dosing.h"
#include "firmware/parts/resetting.h"
#include "firmware/parts/stopping.h"
#include "pouringmachine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace {

using quv::FirmwareReply;
using quv::SimulatedMachine;

/// The pumps of a machine that can be stopped and reset: 100 steps a quantity of 1, 6 ms a step at speed 50.
class DosingTest : public testing::Test
{
protected:
    explicit DosingTest(const FW_Dispenser &dispenser = pouringMachine())
        : machine(dispenser, 1, [this] { return now; })
    {
        machine.add(std::make_unique<quv::Dosing>(machine));
        machine.add(std::make_unique<quv::Resetting>(machine));
        machine.add(std::make_unique<quv::Stopping>(machine));
    }

    std::string execute(const char *code, const QList<int> &numbers = {})
    {
        for (const auto &part : machine.parts())
            part->goOn();
        for (const auto &part : machine.parts()) {
            const auto codes = part->codes();
            const auto served = std::find_if(codes.begin(), codes.end(), [code](const auto &candidate) {
                return candidate.code == QLatin1String(code);
            });
            if (served != codes.end())
                return told(served->run(0, numbers));
        }
        throw std::logic_error("no such code");
    }
    /// Mask 1 and mask 5 of the status of the machine, or of a circuit.
    std::string masks(int module = 0) const
    {
        const QList<int> words = machine.status(module).words.numbers(1, 5);
        return QStringLiteral("%1 %2").arg(words[0]).arg(words[4]).toStdString();
    }

    qint64 now = 1000;
    SimulatedMachine machine;

private:
    static std::string told(const FirmwareReply &reply)
    {
        return (reply.refused ? "refused " : "") + reply.tokens.join(QLatin1Char(' ')).toStdString();
    }
};

const QList<int> Tint{1, 2, 1, 0, 50, 2, 16, 4, 2, 0, 50, 2, 16, 4}; // 1000 steps of 1, then 1000 of 2
const char *const Tinting = "4 0";
const char *const Idle = "0 0";
const char *const Interrupted = "0 16";
const char *const Resetting = "64 0";

TEST_F(DosingTest, aStopLeavesInTheCanisterWhatWasNotPoured)
{
    execute("0017", Tint);
    now += 1503; // 250.5 steps
    EXPECT_EQ(masks(), Tinting);
    EXPECT_EQ(execute("0003", {0}), "0");
    EXPECT_EQ(masks(), Interrupted);
    // 1000 and 250 steps of the one, 1000 and none of the other
    EXPECT_EQ(execute("0074"), "11 1 2 1 0 2 10 4 2 4 1 2 0 2 10 4 1 0");
    EXPECT_EQ(machine.content(11), 497.5);
    EXPECT_EQ(machine.content(12), 500);
    now += 100000;
    EXPECT_EQ(execute("0074"), "11 1 2 1 0 2 10 4 2 4 1 2 0 2 10 4 1 0");
    EXPECT_EQ(masks(), Interrupted);
}

TEST_F(DosingTest, aCanisterHoldsWhatHasNotLeftItYet)
{
    execute("0017", Tint);
    EXPECT_EQ(machine.content(11), 500);
    now += 1503; // 250.5 steps
    EXPECT_EQ(machine.content(11), 497.5);
    EXPECT_EQ(machine.content(12), 500);
    now += 7497;
    EXPECT_EQ(machine.content(11), 490);
    EXPECT_EQ(machine.content(12), 495);
    now += 3000;
    EXPECT_EQ(machine.content(12), 490);
}

TEST_F(DosingTest, whatIsFilledDuringAPourIsThereButForThePour)
{
    execute("0017", Tint);
    now += 3000;
    machine.setContent(11, 800);
    machine.setContent(12, 3);
    EXPECT_EQ(machine.content(11), 795);
    now += 6000;
    EXPECT_EQ(machine.content(11), 790);
    machine.setContent(11, 600); // it is through, and the pour is not
    EXPECT_EQ(machine.content(11), 590);
    EXPECT_EQ(machine.content(12), 0); // of 3, 5 have been poured
    now += 3000;
    EXPECT_EQ(machine.content(11), 590);
    machine.setContent(11, 600);
    EXPECT_EQ(machine.content(11), 600);
}

TEST_F(DosingTest, whatIsFilledDuringAPourThatIsStoppedIsThereButForWhatWasPoured)
{
    execute("0017", Tint);
    now += 1503;
    machine.setContent(11, 800);
    machine.setContent(12, 700);
    execute("0003", {0});
    EXPECT_EQ(machine.content(11), 797.5);
    EXPECT_EQ(machine.content(12), 700);
}

TEST_F(DosingTest, theNextPourBeginsWithACleanSheet)
{
    execute("0017", Tint);
    now += 3000;
    execute("0003", {3});
    EXPECT_EQ(execute("0017", {1, 1, 3, 0, 50, 1, 100}), "0");
    EXPECT_EQ(masks(), Tinting);
    now += 600;
    EXPECT_EQ(masks(), Idle);
    EXPECT_EQ(execute("0074"), "8 1 1 3 0 1 64 1 64");
    EXPECT_EQ(machine.content(11), 495);
    EXPECT_EQ(machine.content(13), 499);
}

TEST_F(DosingTest, aResetEndsAPourAndForgetsIt)
{
    execute("0017", Tint);
    now += 6600;
    EXPECT_EQ(execute("0001"), "0");
    EXPECT_EQ(masks(), Resetting);
    EXPECT_EQ(execute("0074"), "11 1 2 1 0 2 10 4 2 10 4 2 0 2 10 4 1 64");
    EXPECT_EQ(machine.content(11), 490);
    EXPECT_EQ(machine.content(12), 499);
    EXPECT_EQ(execute("0001"), "refused 6 0 8 0 0 0 0"); // one at a time
    EXPECT_EQ(execute("0003", {0}), "0");
    EXPECT_EQ(masks(), Idle);
}

TEST_F(DosingTest, aResetForgetsWhatWasStopped)
{
    execute("0017", Tint);
    execute("0003", {0});
    EXPECT_EQ(masks(), Interrupted);
    execute("0001");
    EXPECT_EQ(masks(), Resetting);
    now += 6000;
    EXPECT_EQ(masks(), Idle);
}

TEST_F(DosingTest, aStopWithoutAPourInterruptsNothing)
{
    EXPECT_EQ(execute("0003", {0}), "0");
    EXPECT_EQ(masks(), Idle);
    execute("0017", Tint);
    now += 12000;
    execute("0003", {0});
    EXPECT_EQ(masks(), Idle);
    EXPECT_EQ(machine.content(11), 490);
}

TEST_F(DosingTest, aStopHasFourKinds)
{
    for (const QList<int> &bad : {QList<int>{}, {4}, {-1}, {0, 0}})
        EXPECT_EQ(execute("0003", bad), "refused 6 20 0 0 0 0 0");
    for (const int kind : {0, 1, 2, 3})
        EXPECT_EQ(execute("0003", {kind}), "0");
}

TEST_F(DosingTest, aCircuitToldOfByItselfPoursWhenItsTurnHasCome)
{
    execute("0017", Tint);
    now += 5999;
    EXPECT_EQ(masks(1), Tinting);
    EXPECT_EQ(masks(2), Idle);
    now += 1;
    EXPECT_EQ(masks(1), Idle);
    EXPECT_EQ(masks(2), Tinting);
    EXPECT_EQ(masks(3), Idle);
}

TEST_F(DosingTest, aBlockedCircuitTurnsForNothing)
{
    machine.faults().blockedCircuits = {1};
    execute("0017", Tint);
    now += 6600;
    EXPECT_EQ(masks(), Tinting);
    EXPECT_EQ(execute("0074"), "10 1 2 1 0 2 10 4 1 0 2 0 2 10 4 1 64");
    EXPECT_EQ(machine.content(11), 500);
    now += 5400;
    EXPECT_EQ(masks(), Idle); // it has taken its time
    EXPECT_EQ(machine.content(12), 490);
}

TEST_F(DosingTest, aCircuitThatBlocksInAPourPoursNoMore)
{
    execute("0017", Tint);
    now += 1500;
    machine.faults().blockedCircuits = {1, 4}; // 4 does not pour at all
    execute("0074");
    now += 1500;
    machine.faults().blockedCircuits.clear(); // what is cut off stays so for this pour
    EXPECT_EQ(execute("0074"), "11 1 2 1 0 2 10 4 2 4 1 2 0 2 10 4 1 0");
    EXPECT_EQ(machine.content(11), 497.5);
    EXPECT_EQ(machine.content(14), 500);
    now += 9000;
    EXPECT_EQ(masks(), Idle);
    EXPECT_EQ(execute("0074"), "12 1 2 1 0 2 10 4 2 4 1 2 0 2 10 4 2 10 4");
}

TEST_F(DosingTest, theEmergencyButtonStopsAPour)
{
    execute("0017", Tint);
    now += 3000;
    machine.faults().emergencyPressed = true;
    EXPECT_EQ(execute("0074"), "11 1 2 1 0 2 10 4 2 8 2 2 0 2 10 4 1 0");
    EXPECT_EQ(masks(), Interrupted);
    EXPECT_EQ(machine.content(11), 495);
    EXPECT_EQ(execute("0001"), "refused 6 0 8 0 0 0 0");
    machine.faults().emergencyPressed = false;
    EXPECT_EQ(execute("0001"), "0");
}

/// With half a step in a canister, and less than a pour asks for in another.
class NearlyEmptyTest : public DosingTest
{
protected:
    NearlyEmptyTest() : DosingTest(nearlyEmpty()) {}

private:
    static FW_Dispenser nearlyEmpty()
    {
        FW_Dispenser dispenser = pouringMachine();
        dispenser.getCanisterById(11)->setCurrentQuantity(4.006);
        dispenser.getCanisterById(12)->setCurrentQuantity(0.004);
        return dispenser;
    }
};

TEST_F(NearlyEmptyTest, wholeStepsLeaveTheNozzleAndTheRestStays)
{
    execute("0017", Tint);
    now += 12000;
    EXPECT_EQ(execute("0074"), "11 1 2 1 0 2 10 4 2 9A 1 2 0 2 10 4 1 0"); // 400 steps
    EXPECT_NEAR(machine.content(11), 0.006, 1e-9);
    EXPECT_NEAR(machine.content(12), 0.004, 1e-9);
}

TEST_F(NearlyEmptyTest, aStopGivesBackNoMoreThanWasThere)
{
    execute("0017", Tint);
    now += 1800; // 300 steps
    execute("0003", {0});
    EXPECT_NEAR(machine.content(11), 1.006, 1e-9);
    EXPECT_NEAR(machine.content(12), 0.004, 1e-9);
}

/// On a turntable with the positions 3, 1, 2, 4, a second apart.
class TurningDosingTest : public DosingTest
{
protected:
    TurningDosingTest() : DosingTest(rotatingMachine()) {}
};

TEST_F(TurningDosingTest, theTableStandsWhereTheStopHasFoundIt)
{
    execute("0017", {1, 2, 1, 0, 50, 1, 100, 4, 0, 50, 1, 100});
    now += 1000 + 600 - 1; // the way to 1 and, but for a moment, its pour
    execute("0003", {0});
    EXPECT_EQ(machine.content(11), 499.01);
    EXPECT_EQ(machine.content(14), 500);
    execute("0017", {1, 1, 2, 0, 50, 1, 100}); // from 1 it is a second to 2
    now += 500;
    execute("0003", {0});
    execute("0017", {1, 1, 3, 0, 50, 1, 100}); // back to 1 half a second, and one more to 3
    now += 1500;
    EXPECT_EQ(masks(3), Tinting);
    now -= 1;
    EXPECT_EQ(masks(3), Idle);
}

} // namespace
