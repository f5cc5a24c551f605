// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/cleaning.h"
#include "firmware/parts/stirring.h"
#include "firmware/simulatedfirmware.h"

#include "pouringmachine.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_brush.h>
#include <QuvFramework/fw_brush2.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

using quv::FirmwareReply;
using quv::SimulatedFirmware;
using Numbers = QList<int>;

//                           length, not read, status, masks 1 to 5, position, zone, masks 8 to 12
const char *const Idle = "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0";
const char *const Stirs = "E 0 1 10 0 0 0 0 F5 F5 4 0 0 0 0";
const char *const StirsBusily = "E 0 1 10 0 0 0 0 F5 F5 0 0 0 0 0";
const char *const Recirculates = "E 0 1 8 0 0 0 0 F5 F5 4 0 0 0 0";
const char *const RecirculatesBusily = "E 0 1 8 0 0 0 0 F5 F5 0 0 0 0 0";
const char *const Tints = "E 0 1 4 0 0 0 0 F5 F5 0 0 0 0 0";
const char *const Cleans = "E 0 1 0 0 0 0 8 F5 F5 0 0 0 0 0";
const char *const CleansWithPump = "E 0 1 0 0 0 0 8 F5 F5 0 2 0 0 0";
// canister 14 is below its reserve, which its sensor tells
const char *const ReadsLevels = "E 0 1 0 0 0 0 0 F5 F5 0 40 8 0 0";
const char *const IdleWithLowLevel = "E 0 1 0 0 0 0 0 F5 F5 4 40 0 0 0";
const char *const Reserved = "E 0 1 0 0 0 1 0 F5 F5 0 0 0 0 0";

const char *const WrongModule = "refused 6 10 0 0 0 0 0";
const char *const WrongParameters = "refused 6 20 0 0 0 0 0";
const char *const NotAvailable = "refused 6 0 8 0 0 0 0";
const char *const WrongWorkingMode = "refused 6 0 10 0 0 0 0";

constexpr qint64 Second = 1000;

/**
 * A dispenser with four circuits, two of which stir or recirculate at once when each is told by itself. Those at 1, 2 and 3 are
 * stirred; 1 rests for 100 s and is stirred for 20 s, when it goes on by itself. Circuit 1 has a motor to recirculate as well, at
 * speed 25, which rests for 200 s and then is at it for 50 s.
 */
FW_Dispenser workingMachine()
{
    FW_Dispenser machine = pouringMachine();
    machine.setModel(MachineModel::Rotan); // counts strokes
    machine.setStirringParallelism(2);
    machine.setRecirculatingParallelism(2);
    FW_StirringMotor stirring;
    stirring.setStirringActivity(20);
    stirring.setStirringPause(100, FW_TimeSpan::Seconds);
    for (const int position : {1, 2, 3})
        machine.getCircuitByPosition(position)->setStirringMotor(stirring);
    FW_RecirculationMotor recirculation;
    recirculation.setSpeed(25);
    recirculation.setRecirculationActivity(50);
    recirculation.setRecirculationPause(200, FW_TimeSpan::Seconds);
    machine.getCircuitByPosition(1)->setRecirculationMotor(recirculation);
    return machine;
}

class SimulatedProcessesTest : public testing::Test
{
protected:
    std::unique_ptr<SimulatedFirmware> firmwareOf(const FW_Dispenser &machine, double speed = 1)
    {
        return std::make_unique<SimulatedFirmware>(machine, speed, [this] { return m_now; });
    }

    static std::string tell(SimulatedFirmware &firmware, const char *code, int module,
                            const Numbers &numbers = {})
    {
        const FirmwareReply reply = firmware.execute(QLatin1String(code), module, numbers);
        return (reply.refused ? "refused " : "") + reply.tokens.join(' ').toStdString();
    }
    static std::string status(SimulatedFirmware &firmware, int module = 0)
    {
        return tell(firmware, "0006", module);
    }
    /// Why it refuses.
    static std::string reason(SimulatedFirmware &firmware, const char *code, int module,
                              const Numbers &numbers)
    {
        const FirmwareReply reply = firmware.execute(QLatin1String(code), module, numbers);
        return reply.refused ? reply.reason.toStdString() : "not refused";
    }

    qint64 m_now = 5000;
};

// Stirring: seconds in two digits, busy.

TEST_F(SimulatedProcessesTest, stirringInTheBackgroundShowsAtItsCircuitUntilItEnds)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0004", 2, {54, 1, 0}), "0"); // 300 s
    EXPECT_EQ(status(*firmware), Idle);
    EXPECT_EQ(status(*firmware, 1), Idle);
    EXPECT_EQ(status(*firmware, 2), Stirs);
    m_now += 300 * Second - 1;
    EXPECT_EQ(status(*firmware, 2), Stirs);
    m_now += 1;
    EXPECT_EQ(status(*firmware, 2), Idle);
}

TEST_F(SimulatedProcessesTest, busyStirringShowsOnTheMachineAndKeepsAllElseFromBeginning)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0004", 2, {30, 0, 1}), "0");
    EXPECT_EQ(status(*firmware), StirsBusily);
    EXPECT_EQ(status(*firmware, 2), StirsBusily);
    EXPECT_EQ(status(*firmware, 1), "E 0 1 0 0 0 0 0 F5 F5 0 0 0 0 0");
    EXPECT_EQ(tell(*firmware, "0004", 1, {30, 0, 0}), NotAvailable);
    EXPECT_EQ(tell(*firmware, "0005", 1, {50, 30, 0, 0, 0}), NotAvailable);
    EXPECT_EQ(tell(*firmware, "0017", 0, {1, 1, 1, 0, 50, 2, 16, 4}), NotAvailable);
    m_now += 30 * Second;
    EXPECT_EQ(status(*firmware), Idle);
    EXPECT_EQ(tell(*firmware, "0004", 1, {30, 0, 1}), "0");
    EXPECT_EQ(tell(*firmware, "0001", 0), "0"); // a reset ends it
    EXPECT_EQ(status(*firmware), "E 0 1 40 0 0 0 0 F5 F5 0 0 0 0 0");
}

TEST_F(SimulatedProcessesTest, allCircuitsAreStirredAtOnce)
{
    const auto firmware = firmwareOf(workingMachine(), 10);
    EXPECT_EQ(tell(*firmware, "0004", 0, {40, 0, 0}), "0");
    EXPECT_EQ(status(*firmware),
              Stirs); // of all, so that the machine tells it, but nothing is kept from beginning
    for (const int position : {1, 2, 3})
        EXPECT_EQ(status(*firmware, position), Stirs) << position;
    EXPECT_EQ(status(*firmware, 4), Idle); // has no motor
    EXPECT_EQ(tell(*firmware, "0017", 0, {1, 1, 1, 0, 50, 2, 16, 4}), "0");
    EXPECT_EQ(status(*firmware, 1), "E 0 1 14 0 0 0 0 F5 F5 0 0 0 0 0"); // is stirred and pours
    m_now += 4 * Second;
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(SimulatedProcessesTest, endlessStirringEndsBy0)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0004", 1, {245, 245, 0}), "0");
    EXPECT_EQ(tell(*firmware, "0004", 3, {245, 245, 0}), "0");
    m_now += 1000000 * Second;
    EXPECT_EQ(status(*firmware, 1), Stirs);
    EXPECT_EQ(tell(*firmware, "0004", 1, {0, 0, 0}), "0");
    EXPECT_EQ(status(*firmware, 1), Idle);
    EXPECT_EQ(status(*firmware, 3), Stirs);
    EXPECT_EQ(tell(*firmware, "0004", 0, {0, 0, 0}), "0");
    EXPECT_EQ(status(*firmware, 3), Idle);
}

TEST_F(SimulatedProcessesTest, busyStirringEndsBy0)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0004", 1, {245, 245, 1}), "0");
    EXPECT_EQ(status(*firmware), StirsBusily);
    EXPECT_EQ(tell(*firmware, "0004", 1, {0, 0, 1}), "0");
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(SimulatedProcessesTest, onlySoManyCanistersAreStirredEachByItself)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0004", 1, {30, 0, 0}), "0");
    EXPECT_EQ(tell(*firmware, "0004", 2, {30, 0, 0}), "0");
    EXPECT_EQ(tell(*firmware, "0004", 3, {30, 0, 0}), NotAvailable);
    m_now += 20 * Second;
    EXPECT_EQ(tell(*firmware, "0004", 2, {30, 0, 0}), "0"); // is stirred on, for 30 s from now
    m_now += 10 * Second;
    EXPECT_EQ(tell(*firmware, "0004", 3, {30, 0, 0}), "0"); // in the place of 1
    EXPECT_EQ(status(*firmware, 2), Stirs);
}

TEST_F(SimulatedProcessesTest, stirringThatThereIsNotIsRefused)
{
    const auto firmware = firmwareOf(workingMachine());
    for (const Numbers &numbers : {Numbers{}, Numbers{30, 0}, Numbers{30, 0, 2}, Numbers{30, 0, 0, 0},
                                   Numbers{246, 0, 0}, Numbers{0, -1, 0}})
        EXPECT_EQ(tell(*firmware, "0004", 1, numbers), WrongParameters);
    EXPECT_EQ(tell(*firmware, "0004", 9, {30, 0, 0}), WrongModule);
    EXPECT_EQ(tell(*firmware, "0004", 9, {0, 0, 0}), WrongModule);
    EXPECT_EQ(tell(*firmware, "0004", 4, {30, 0, 0}), WrongModule); // has no motor
    const auto without = firmwareOf(pouringMachine());
    EXPECT_EQ(tell(*without, "0004", 0, {30, 0, 0}), NotAvailable);
    FW_Dispenser disabled = workingMachine();
    disabled.getCircuitByPosition(1)->setEnabled(false);
    const auto withDisabled = firmwareOf(disabled);
    EXPECT_EQ(tell(*withDisabled, "0004", 1, {30, 0, 0}), WrongModule);
}

TEST_F(SimulatedProcessesTest, oneMotorStirsAll)
{
    FW_Dispenser machine = pouringMachine();
    machine.setGlobalStirring(true);
    const auto firmware = firmwareOf(machine);
    EXPECT_EQ(tell(*firmware, "0004", 3, {30, 0, 0}), "0");
    EXPECT_EQ(status(*firmware), Stirs);
    EXPECT_EQ(status(*firmware, 1), Stirs);
    EXPECT_EQ(tell(*firmware, "0004", 2, {0, 0, 0}), "0");
    EXPECT_EQ(status(*firmware, 1), Idle);
    EXPECT_EQ(tell(*firmware, "0004", 9, {30, 0, 0}), WrongModule);
}

TEST_F(SimulatedProcessesTest, aSola100StirsBothWays)
{
    FW_Dispenser machine = workingMachine();
    machine.setModelName(QStringLiteral("SOLA100"));
    const auto firmware = firmwareOf(machine);
    EXPECT_EQ(tell(*firmware, "0004", 0, {30, 0, 1}), "0");
    m_now += 70 * Second - 1;
    EXPECT_EQ(status(*firmware), StirsBusily);
    m_now += 1;
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(SimulatedProcessesTest, stirredCircuitsAreActive)
{
    quv::SimulatedMachine machine(workingMachine(), 1, [this] { return m_now; });
    quv::Stirring stirring(machine);
    EXPECT_FALSE(stirring.codes().front().run(0, {40, 0, 0}).refused);
    EXPECT_FALSE(stirring.codes().front().run(2, {0, 0, 0}).refused);
    const auto circuits = stirring.activeCircuits(3);
    ASSERT_EQ(circuits.size(), 2U);
    EXPECT_EQ(circuits[0].position, 1);
    EXPECT_EQ(circuits[0].state, 3); // told to, and at it
    EXPECT_EQ(circuits[1].position, 3);
    EXPECT_TRUE(stirring.activeCircuits(2).empty());
    EXPECT_TRUE(stirring.atWork().has(quv::Process::Stirring));
    EXPECT_TRUE(stirring.excluded().isEmpty());
    stirring.stop();
    EXPECT_TRUE(stirring.activeCircuits(3).empty());
    EXPECT_TRUE(stirring.atWork().isEmpty());
}

TEST_F(SimulatedProcessesTest, theEmergencyButtonEndsWhatTurns)
{
    quv::SimulatedMachine machine(workingMachine(), 1, [this] { return m_now; });
    quv::Stirring stirring(machine);
    EXPECT_FALSE(stirring.codes().front().run(0, {245, 245, 1}).refused);
    stirring.goOn();
    EXPECT_FALSE(stirring.atWork().isEmpty());
    machine.faults().emergencyPressed = true;
    stirring.goOn();
    EXPECT_TRUE(stirring.atWork().isEmpty());
    EXPECT_TRUE(stirring.excluded().isEmpty());
    EXPECT_TRUE(stirring.codes().front().run(0, {30, 0, 0}).refused);
}

// Recirculation: speed, seconds in two digits, strokes, busy.

TEST_F(SimulatedProcessesTest, recirculationShowsAtItsCircuitAndBusyOnTheMachine)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0005", 4, {50, 10, 0, 0, 0}), "0");
    EXPECT_EQ(status(*firmware), Idle);
    EXPECT_EQ(status(*firmware, 4), Recirculates);
    EXPECT_EQ(tell(*firmware, "0005", 2, {245, 5, 0, 0, 1}), "0");
    EXPECT_EQ(status(*firmware), RecirculatesBusily);
    m_now += 5 * Second;
    EXPECT_EQ(status(*firmware), Idle);
    EXPECT_EQ(status(*firmware, 4), Recirculates);
    m_now += 5 * Second;
    EXPECT_EQ(status(*firmware, 4), Idle);
}

TEST_F(SimulatedProcessesTest, strokesTakeTheTimeOfThePump)
{
    const auto firmware = firmwareOf(workingMachine());
    // a stroke of 400 steps, 200 a turn, 50 turns a minute: 2.4 s
    EXPECT_EQ(tell(*firmware, "0005", 2, {50, 0, 0, 10, 1}), "0");
    m_now += 24 * Second - 1;
    EXPECT_EQ(status(*firmware), RecirculatesBusily);
    m_now += 1;
    EXPECT_EQ(status(*firmware), Idle);
    // at the configured speed 1 goes by its motor's 25 turns a minute, 4.8 s a stroke
    EXPECT_EQ(tell(*firmware, "0005", 1, {245, 0, 0, 10, 1}), "0");
    m_now += 48 * Second - 1;
    EXPECT_EQ(status(*firmware), RecirculatesBusily);
    m_now += 1;
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(SimulatedProcessesTest, strokesOfAllEndCircuitByCircuit)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0005", 0, {245, 0, 0, 10, 0}), "0");
    EXPECT_EQ(status(*firmware, 2), Recirculates);
    m_now += 24 * Second;
    EXPECT_EQ(status(*firmware, 2), Idle);
    EXPECT_EQ(status(*firmware, 1), Recirculates);
    EXPECT_EQ(status(*firmware), Recirculates);
}

TEST_F(SimulatedProcessesTest, endlessRecirculationEndsBy0)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0005", 0, {50, 245, 245, 0, 1}), "0");
    m_now += 1000000 * Second;
    EXPECT_EQ(status(*firmware), RecirculatesBusily);
    EXPECT_EQ(tell(*firmware, "0005", 0, {50, 0, 0, 0, 0}), "0");
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(SimulatedProcessesTest, aPourEndsTheRecirculationOfItsCircuits)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0005", 1, {50, 100, 0, 0, 0}), "0");
    EXPECT_EQ(tell(*firmware, "0005", 2, {50, 100, 0, 0, 0}), "0");
    EXPECT_EQ(tell(*firmware, "0017", 0, {1, 1, 1, 0, 50, 2, 16, 4}), "0"); // 6 s of circuit 1
    EXPECT_EQ(status(*firmware, 1), Tints);
    EXPECT_EQ(tell(*firmware, "0005", 1, {50, 10, 0, 0, 0}), NotAvailable);
    m_now += 6 * Second;
    EXPECT_EQ(status(*firmware, 1), Idle);
    EXPECT_EQ(status(*firmware, 2), Recirculates);
}

TEST_F(SimulatedProcessesTest, recirculationThatThereIsNotIsRefused)
{
    const auto firmware = firmwareOf(workingMachine());
    for (const Numbers &numbers :
         {Numbers{}, Numbers{50, 10, 0, 0}, Numbers{50, 10, 0, 0, 0, 0}, Numbers{0, 10, 0, 0, 0},
          Numbers{101, 10, 0, 0, 0}, Numbers{244, 10, 0, 0, 0}, Numbers{50, 10, 0, 3, 0},
          Numbers{50, 0, 0, 246, 0}, Numbers{50, 10, 0, 0, 2}})
        EXPECT_EQ(tell(*firmware, "0005", 1, numbers), WrongParameters);
    EXPECT_EQ(tell(*firmware, "0005", 9, {50, 10, 0, 0, 0}), WrongModule);
    FW_Dispenser machine = workingMachine();
    FW_RecirculationMotor disabled;
    disabled.setEnabled(false);
    machine.getCircuitByPosition(1)->setRecirculationMotor(disabled);
    machine.getCircuitByPosition(2)->removeDosingMotor();
    machine.getCircuitByPosition(3)->changeableDosingMotor().setStepsPerStroke(0);
    const auto poorer = firmwareOf(machine);
    EXPECT_EQ(tell(*poorer, "0005", 1, {50, 10, 0, 0, 0}), WrongModule);
    EXPECT_EQ(tell(*poorer, "0005", 2, {50, 10, 0, 0, 0}), WrongModule);
    EXPECT_EQ(tell(*poorer, "0005", 3, {50, 0, 0, 1, 0}), WrongParameters);
    EXPECT_EQ(tell(*poorer, "0005", 3, {50, 10, 0, 0, 0}), "0");
    const auto generic = firmwareOf(pouringMachine()); // its pumps do not count strokes
    EXPECT_EQ(tell(*generic, "0005", 3, {50, 0, 0, 1, 0}), WrongParameters);
    EXPECT_EQ(tell(*generic, "0005", 3, {50, 10, 0, 0, 0}), "0");
    EXPECT_EQ(tell(*generic, "0005", 4, {50, 10, 0, 0, 0}), NotAvailable); // one at a time
}

// Cleaning: speed, seconds in two digits, 1 all motors, 2 the brush, 3 the motor of the circuit, busy.

/// Circuits 1 and 3 have cleaning motors of 20 s.
FW_Dispenser brushingMachine()
{
    FW_Dispenser machine = workingMachine();
    FW_CleaningMotor motor;
    motor.setDuration(20);
    for (const int position : {1, 3})
        machine.getCircuitByPosition(position)->setCleaningMotor(motor);
    machine.setDevice(FW_Brush());
    return machine;
}

TEST_F(SimulatedProcessesTest, cleaningShowsUntilItEnds)
{
    const auto firmware = firmwareOf(brushingMachine());
    EXPECT_EQ(tell(*firmware, "0015", 0, {245, 15, 0, 2, 1}), "0");
    EXPECT_EQ(status(*firmware), Cleans);
    EXPECT_EQ(status(*firmware, 4), Cleans);
    EXPECT_EQ(tell(*firmware, "0004", 1, {30, 0, 0}), NotAvailable);
    m_now += 15 * Second;
    EXPECT_EQ(status(*firmware), Idle);
    EXPECT_EQ(tell(*firmware, "0015", 3, {50, 15, 0, 3, 1}), "0");
    EXPECT_EQ(status(*firmware, 3), Cleans);
    EXPECT_EQ(status(*firmware, 1), "E 0 1 0 0 0 0 0 F5 F5 0 0 0 0 0");
    EXPECT_EQ(tell(*firmware, "0015", 1, {50, 0, 0, 3, 0}), "0"); // 1 is not being cleaned
    EXPECT_EQ(status(*firmware), Cleans);
    EXPECT_EQ(tell(*firmware, "0015", 3, {50, 0, 0, 3, 0}), "0");
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(SimulatedProcessesTest, cleaningInTheBackgroundLeavesStirringAlone)
{
    const auto firmware = firmwareOf(brushingMachine());
    EXPECT_EQ(tell(*firmware, "0015", 0, {50, 245, 245, 1, 0}), "0");
    m_now += 1000000 * Second;
    EXPECT_EQ(status(*firmware), Cleans);
    EXPECT_EQ(tell(*firmware, "0004", 1, {30, 0, 0}), "0");
    EXPECT_EQ(tell(*firmware, "0005", 2, {50, 30, 0, 0, 0}), "0");
    EXPECT_EQ(tell(*firmware, "0017", 0, {1, 1, 1, 0, 50, 2, 16, 4}), NotAvailable);
    EXPECT_EQ(tell(*firmware, "0015", 0, {50, 10, 0, 1, 0}), NotAvailable);
    EXPECT_EQ(tell(*firmware, "0015", 0, {50, 0, 0, 1, 0}), "0");
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(SimulatedProcessesTest, nozzlesAreCleanedOneAfterTheOther)
{
    const auto firmware = firmwareOf(brushingMachine());
    EXPECT_EQ(tell(*firmware, "002F", 0, {245, 245}), "0"); // 4 s to each, and its motor's 20 s
    EXPECT_EQ(status(*firmware, 1), Cleans);
    m_now += 24 * Second;
    EXPECT_EQ(status(*firmware, 1), "E 0 1 0 0 0 0 0 F5 F5 0 0 0 0 0");
    EXPECT_EQ(status(*firmware, 3), Cleans);
    m_now += 24 * Second - 1;
    EXPECT_EQ(status(*firmware), Cleans);
    m_now += 1;
    EXPECT_EQ(status(*firmware), Idle);
    EXPECT_EQ(tell(*firmware, "002F", 1, {10, 0}), "0");
    m_now += 14 * Second - 1;
    EXPECT_EQ(status(*firmware), Cleans);
    m_now += 1;
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(SimulatedProcessesTest, aBrushIsAmongTheOutputsWhileItTurns)
{
    const char *const without = "B 46 0 0 60 1 0 0 0 0 0 0";
    const char *const brushes = "B 46 0 0 60 21 0 0 0 0 0 0";
    FW_Dispenser machine = brushingMachine();
    const auto firmware = firmwareOf(machine);
    EXPECT_EQ(tell(*firmware, "0043", 0), without);
    EXPECT_EQ(tell(*firmware, "0015", 0, {245, 15, 0, 2, 0}), "0");
    EXPECT_EQ(tell(*firmware, "0043", 0), brushes);
    m_now += 15 * Second;
    EXPECT_EQ(tell(*firmware, "0043", 0), without);
    EXPECT_EQ(tell(*firmware, "0015", 0, {245, 15, 0, 1, 0}), "0"); // motors of circuits
    EXPECT_EQ(tell(*firmware, "0043", 0), without);
    EXPECT_EQ(tell(*firmware, "0003", 0, {0}), "0");
    EXPECT_EQ(tell(*firmware, "002F", 0, {245, 245}), "0");
    EXPECT_EQ(tell(*firmware, "0043", 0), brushes);

    machine.setDevice(FW_Brush2());
    const auto withTwo = firmwareOf(machine);
    EXPECT_EQ(tell(*withTwo, "0015", 0, {245, 15, 0, 2, 0}), "0");
    EXPECT_EQ(tell(*withTwo, "0043", 0), "B 46 0 0 60 21 8 0 0 0 0 0");
}

TEST_F(SimulatedProcessesTest, nozzlesThatWaitToBeCleanedAreActive)
{
    quv::SimulatedMachine machine(brushingMachine(), 1, [this] { return m_now; });
    quv::Cleaning cleaning(machine);
    EXPECT_FALSE(cleaning.codes().back().run(0, {245, 245}).refused);
    auto circuits = cleaning.activeCircuits(4);
    ASSERT_EQ(circuits.size(), 2U);
    EXPECT_EQ(circuits[0].position, 1);
    EXPECT_EQ(circuits[0].state, 3);
    EXPECT_EQ(circuits[1].position, 3);
    EXPECT_EQ(circuits[1].state, 1);
    m_now += 24 * Second;
    circuits = cleaning.activeCircuits(4);
    ASSERT_EQ(circuits.size(), 1U);
    EXPECT_EQ(circuits[0].position, 3);
    EXPECT_EQ(circuits[0].state, 3);
    EXPECT_EQ(cleaning.activeCircuits(9).size(), 1U); // of nozzles
    EXPECT_TRUE(cleaning.activeCircuits(3).empty());
    cleaning.stop();
    EXPECT_FALSE(cleaning.codes().front().run(0, {50, 30, 0, 1, 0}).refused);
    EXPECT_EQ(cleaning.activeCircuits(4).size(), 2U);
    EXPECT_TRUE(cleaning.activeCircuits(9).empty());
}

TEST_F(SimulatedProcessesTest, aCapThatRinsesCleansTheNozzles)
{
    FW_Dispenser machine = pouringMachine();
    FW_Autocap cap;
    machine.setDevice(cap);
    const auto sliding = firmwareOf(machine);
    EXPECT_EQ(tell(*sliding, "002F", 0, {245, 245}), NotAvailable);
    cap.setType(FW_Autocap::SlidingWithCleaning);
    machine.setDevice(cap);
    const auto rinsing = firmwareOf(machine);
    EXPECT_EQ(tell(*rinsing, "002F", 0, {245, 245}), "0");
    m_now += 15 * Second - 1;
    EXPECT_EQ(status(*rinsing), Cleans);
    m_now += 1;
    EXPECT_EQ(status(*rinsing), Idle);
}

TEST_F(SimulatedProcessesTest, aCapThatRinsesIsClosedMeanwhile)
{
    const char *const open = "E 0 1 0 2 0 0 0 F5 F5 4 0 0 0 0";
    FW_Dispenser machine = pouringMachine();
    FW_Autocap cap;
    cap.setType(FW_Autocap::SlidingWithCleaning);
    machine.setDevice(cap);
    const auto firmware = firmwareOf(machine);
    EXPECT_EQ(tell(*firmware, "0041", 0, {1}), "0");
    m_now += 1200;
    EXPECT_EQ(status(*firmware), open);
    EXPECT_EQ(tell(*firmware, "002F", 0, {3, 0}), "0");
    EXPECT_EQ(status(*firmware), Cleans);
    EXPECT_EQ(tell(*firmware, "0043", 0), "B 46 40 0 60 1 0 0 0 0 0 0"); // cap_close
    m_now += 3 * Second;
    EXPECT_EQ(status(*firmware), open);
}

TEST_F(SimulatedProcessesTest, theUltrasoundsBathIsFilledAndEmptied)
{
    FW_Dispenser machine = pouringMachine();
    machine.setDevice(FW_UltrasoundCleaning()); // 8 s to fill, 30 s of ultrasound, 5 s to empty
    for (const auto &[code, numbers] :
         {std::pair("0025", Numbers{1}), std::pair("002F", Numbers{245, 245})}) {
        const auto firmware = firmwareOf(machine);
        EXPECT_EQ(tell(*firmware, code, 0, numbers), "0");
        EXPECT_EQ(status(*firmware), CleansWithPump);
        EXPECT_EQ(status(*firmware, 2), Cleans);
        m_now += 8 * Second;
        EXPECT_EQ(status(*firmware), Cleans);
        m_now += 30 * Second;
        EXPECT_EQ(status(*firmware), CleansWithPump);
        m_now += 5 * Second - 1;
        EXPECT_EQ(status(*firmware), CleansWithPump);
        m_now += 1;
        EXPECT_EQ(status(*firmware), Idle);
    }
}

TEST_F(SimulatedProcessesTest, eachPhaseOfTheBathTakesItsTime)
{
    FW_Dispenser machine = pouringMachine();
    machine.setDevice(FW_UltrasoundCleaning());
    const auto firmware = firmwareOf(machine);
    const struct
    {
        Numbers numbers;
        const char *status;
        qint64 milliseconds;
    } phases[] = {
        {{2, 245, 245}, CleansWithPump, 5000}, {{2, 54, 1}, CleansWithPump, 30000}, // tenths of a second
        {{3, 245, 245}, CleansWithPump, 8000}, {{3, 100, 0}, CleansWithPump, 10000},
        {{4, 245, 245}, Cleans, 30000},        {{4, 54, 1}, Cleans, 300000},
    };
    for (const auto &phase : phases) {
        EXPECT_EQ(tell(*firmware, "0025", 0, phase.numbers), "0");
        EXPECT_EQ(status(*firmware), phase.status);
        m_now += phase.milliseconds - 1;
        EXPECT_EQ(status(*firmware), phase.status);
        m_now += 1;
        EXPECT_EQ(status(*firmware), Idle) << phase.milliseconds;
    }
    EXPECT_EQ(tell(*firmware, "0025", 0, {4, 245, 245}), "0");
    EXPECT_EQ(tell(*firmware, "0025", 0, {4, 0, 0}), "0");
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(SimulatedProcessesTest, theWatersUseIsCountedWhenTheUltrasoundHasDone)
{
    FW_Dispenser dispenser = pouringMachine();
    dispenser.setDevice(FW_UltrasoundCleaning());
    quv::SimulatedMachine machine(dispenser, 1, [this] { return m_now; });
    quv::Cleaning cleaning(machine);
    const auto useBath = cleaning.codes().at(1).run;
    EXPECT_FALSE(useBath(0, {1}).refused);
    m_now += 37 * Second;
    cleaning.goOn();
    EXPECT_EQ(machine.waterCycles(), 0);
    m_now += 1 * Second;
    cleaning.goOn();
    cleaning.goOn();
    EXPECT_EQ(machine.waterCycles(), 1);
    m_now += 5 * Second;
    cleaning.goOn();
    EXPECT_FALSE(useBath(0, {3, 10, 0}).refused); // a filling is no use
    m_now += 1000 * Second;
    cleaning.goOn();
    EXPECT_EQ(machine.waterCycles(), 1);
    EXPECT_FALSE(useBath(0, {4, 10, 0}).refused);
    cleaning.stop();
    m_now += 1000 * Second;
    cleaning.goOn();
    EXPECT_EQ(machine.waterCycles(), 1);
    EXPECT_FALSE(useBath(0, {4, 10, 0}).refused);
    m_now += 1000 * Second;
    cleaning.goOn();
    EXPECT_EQ(machine.waterCycles(), 2);
    EXPECT_FALSE(useBath(0, {4, 10, 0}).refused);
    machine.faults().emergencyPressed = true;
    cleaning.goOn();
    EXPECT_TRUE(cleaning.atWork().isEmpty());
}

TEST_F(SimulatedProcessesTest, cleaningThatThereIsNotIsRefused)
{
    const auto none = firmwareOf(pouringMachine());
    EXPECT_EQ(tell(*none, "0015", 0, {50, 10, 0, 1, 0}), NotAvailable);
    EXPECT_EQ(tell(*none, "0015", 0, {50, 10, 0, 2, 0}), NotAvailable);
    EXPECT_EQ(tell(*none, "0015", 1, {50, 10, 0, 3, 0}), WrongModule);
    EXPECT_EQ(tell(*none, "0025", 0, {1}), NotAvailable);
    EXPECT_EQ(tell(*none, "002F", 0, {10, 0}), NotAvailable);
    const auto firmware = firmwareOf(brushingMachine());
    for (const Numbers &numbers :
         {Numbers{}, Numbers{50, 10, 0, 1}, Numbers{0, 10, 0, 1, 0}, Numbers{101, 10, 0, 1, 0},
          Numbers{50, 10, 0, 0, 0}, Numbers{50, 10, 0, 4, 0}, Numbers{50, 10, 0, 1, 2},
          Numbers{50, 10, 0, 3, 0}})
        EXPECT_EQ(tell(*firmware, "0015", 0, numbers), WrongParameters);
    EXPECT_EQ(tell(*firmware, "0015", 2, {50, 10, 0, 3, 0}), WrongModule); // has no motor
    EXPECT_EQ(tell(*firmware, "0015", 9, {50, 10, 0, 2, 0}), WrongModule);
    EXPECT_EQ(tell(*firmware, "002F", 0, {10}), WrongParameters);
    EXPECT_EQ(tell(*firmware, "002F", 2, {10, 0}), WrongModule);
    for (const Numbers &numbers :
         {Numbers{}, Numbers{0}, Numbers{5, 1, 0}, Numbers{1, 10, 0}, Numbers{2, 10}})
        EXPECT_EQ(tell(*firmware, "0025", 0, numbers), WrongParameters);
}

TEST_F(SimulatedProcessesTest, aRefusalSaysWhatTheMachineLacks)
{
    FW_Dispenser machine = pouringMachine();
    FW_RecirculationMotor disabled;
    disabled.setEnabled(false);
    for (int position = 1; position <= 4; ++position)
        machine.getCircuitByPosition(position)->setRecirculationMotor(disabled);
    FW_Dispenser brushed = machine;
    brushed.setDevice(FW_Brush());
    const auto none = firmwareOf(machine);
    EXPECT_EQ(reason(*none, "0004", 0, {30, 0, 0}), "no circuit has an enabled stirring motor");
    EXPECT_EQ(reason(*none, "0005", 0, {50, 10, 0, 0, 0}), "no circuit has a motor that recirculates");
    EXPECT_EQ(reason(*none, "0015", 0, {50, 10, 0, 1, 0}), "the machine has no cleaning motors");
    EXPECT_EQ(reason(*none, "0015", 0, {50, 10, 0, 2, 0}), "the machine has no enabled brush");
    EXPECT_EQ(reason(*none, "0025", 0, {1}), "the machine has no enabled ultrasound bath");
    EXPECT_EQ(reason(*none, "002F", 0, {10, 0}),
              "the machine has no enabled ultrasound bath, brush or cap that rinses");
    EXPECT_EQ(reason(*firmwareOf(brushed), "002F", 0, {10, 0}), "the machine has no cleaning motors");
    const auto working = firmwareOf(workingMachine());
    for (const int position : {1, 2}) {
        EXPECT_EQ(tell(*working, "0004", position, {30, 0, 0}), "0");
        EXPECT_EQ(tell(*working, "0005", position, {50, 10, 0, 0, 0}), "0");
    }
    EXPECT_EQ(reason(*working, "0004", 3, {30, 0, 0}), "no more circuits than 2 are stirred at once");
    EXPECT_EQ(reason(*working, "0005", 3, {50, 10, 0, 0, 0}), "no more circuits than 2 recirculate at once");
}

// Working mode: the mode, and of mode 5 what it holds and for how many seconds.

TEST_F(SimulatedProcessesTest, aReservedModeShowsAndPoursNothing)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "0020", 0, {245, 0, 0}), "1 1"); // asks
    for (const int mode : {0, 2, 3, 4, 6, 7, 8}) {
        EXPECT_EQ(tell(*firmware, "0020", 0, {mode, 0, 0}), "1 " + std::to_string(mode));
        EXPECT_EQ(status(*firmware), Reserved) << mode;
        EXPECT_EQ(tell(*firmware, "0017", 0, {1, 1, 1, 0, 50, 2, 16, 4}), WrongWorkingMode) << mode;
        EXPECT_EQ(tell(*firmware, "0004", 1, {1, 0, 0}), "0") << mode;
        m_now += Second;
    }
    EXPECT_EQ(tell(*firmware, "0020", 0, {245, 0, 0}), "1 8");
    EXPECT_EQ(tell(*firmware, "0020", 0, {1, 0, 0}), "1 1");
    EXPECT_EQ(status(*firmware), Idle);
    EXPECT_EQ(tell(*firmware, "0017", 0, {1, 1, 1, 0, 50, 2, 16, 4}), "0");
    EXPECT_EQ(tell(*firmware, "0020", 0, {2, 0, 0}), NotAvailable); // not in the midst of a pour
    EXPECT_EQ(tell(*firmware, "0020", 0, {5, 0, 9}), "1 5");
}

TEST_F(SimulatedProcessesTest, aMachineBeginsInItsInitialMode)
{
    FW_Dispenser machine = workingMachine();
    machine.setInitialWorkingMode(3);
    const auto firmware = firmwareOf(machine);
    EXPECT_EQ(status(*firmware), Reserved);
    EXPECT_EQ(tell(*firmware, "0020", 0, {245, 0, 0}), "1 3");
}

TEST_F(SimulatedProcessesTest, modesThatThereAreNotAreRefused)
{
    const auto firmware = firmwareOf(workingMachine());
    for (const Numbers &numbers :
         {Numbers{}, Numbers{1}, Numbers{9, 0, 0}, Numbers{244, 0, 0}, Numbers{1, 1, 0}, Numbers{1, 0, 1},
          Numbers{5, 16, 0}, Numbers{5, 0, 246}, Numbers{1, 0, 0, 0}})
        EXPECT_EQ(tell(*firmware, "0020", 0, numbers), WrongParameters);
    EXPECT_EQ(tell(*firmware, "0020", 0, {245, 0, 0}), "1 1");
}

TEST_F(SimulatedProcessesTest, timedProcessesGoOnByThemselves)
{
    FW_Dispenser machine = workingMachine();
    machine.setTimedProcessesStartupMask(3);
    const auto firmware = firmwareOf(machine);
    m_now += 100 * Second - 1;
    EXPECT_EQ(status(*firmware, 1), Idle);
    m_now += 1; // the pause is over
    EXPECT_EQ(status(*firmware, 1), Stirs);
    EXPECT_EQ(status(*firmware, 3), Stirs);
    EXPECT_EQ(status(*firmware, 4), Idle);
    EXPECT_EQ(status(*firmware), Idle); // in the background
    m_now += 20 * Second;
    EXPECT_EQ(status(*firmware, 1), Idle);
    m_now += 80 * Second; // 200 s from the beginning
    EXPECT_EQ(status(*firmware, 1), Recirculates);
    EXPECT_EQ(status(*firmware, 2), Idle); // its pump alone does not
    m_now += 20 * Second;
    EXPECT_EQ(status(*firmware, 1), "E 0 1 18 0 0 0 0 F5 F5 4 0 0 0 0");
    EXPECT_EQ(tell(*firmware, "0017", 0, {1, 1, 1, 0, 50, 2, 16, 4}), "0"); // all give way
    EXPECT_EQ(status(*firmware, 1), Tints);
    m_now += 6 * Second;
    EXPECT_EQ(status(*firmware, 1), Stirs); // recirculation begins its pause
    EXPECT_EQ(tell(*firmware, "0004", 1, {0, 0, 0}), "0");
    EXPECT_EQ(status(*firmware, 1), Idle);
    EXPECT_EQ(status(*firmware, 2), Stirs);
    m_now += 100 * Second;
    EXPECT_EQ(status(*firmware, 1), Stirs);
}

TEST_F(SimulatedProcessesTest, timedProcessesAreHeldForATime)
{
    FW_Dispenser machine = workingMachine();
    machine.setTimedProcessesStartupMask(3);
    const auto firmware = firmwareOf(machine);
    m_now += 110 * Second;
    EXPECT_EQ(status(*firmware, 1), Stirs);
    EXPECT_EQ(tell(*firmware, "0020", 0, {5, 2, 60}), "1 5"); // stirring
    EXPECT_EQ(status(*firmware, 1), Idle);
    m_now += 60 * Second - 1;
    EXPECT_EQ(tell(*firmware, "0020", 0, {245, 0, 0}), "1 5");
    m_now += 1;
    EXPECT_EQ(tell(*firmware, "0020", 0, {245, 0, 0}), "1 1"); // each begins anew with its pause
    EXPECT_EQ(status(*firmware, 1), Idle);
    m_now += 100 * Second - 1;
    EXPECT_EQ(status(*firmware, 1), Idle);
    m_now += 1;
    EXPECT_EQ(status(*firmware, 1), Stirs);
    EXPECT_EQ(tell(*firmware, "0020", 0, {5, 1, 0}), "1 5"); // recirculation, until told otherwise
    EXPECT_EQ(status(*firmware, 1), Stirs);
    m_now += 210 * Second; // 480 s from the beginning: recirculation would be at it for the second time
    EXPECT_EQ(status(*firmware, 1), Idle);
    m_now += 30 * Second; // 340 s since stirring was let go: it is in its third turn
    EXPECT_EQ(status(*firmware, 1), Stirs);
    EXPECT_EQ(tell(*firmware, "0020", 0, {1, 0, 0}), "1 1");
    m_now += 205 * Second;
    EXPECT_EQ(status(*firmware, 1), Recirculates);
}

TEST_F(SimulatedProcessesTest, theTimedProcessThatIsNotHeldGoesOnAsItWas)
{
    FW_Dispenser machine = workingMachine();
    machine.setTimedProcessesStartupMask(3);
    const auto firmware = firmwareOf(machine);
    m_now += 220 * Second; // stirring is in its second turn, recirculation in its first
    EXPECT_EQ(status(*firmware, 1), "E 0 1 18 0 0 0 0 F5 F5 4 0 0 0 0");
    EXPECT_EQ(tell(*firmware, "0020", 0, {5, 2, 10}), "1 5"); // stirring, for 10 s
    EXPECT_EQ(status(*firmware, 1), Recirculates);
    m_now += 10 * Second; // stirring is let go
    EXPECT_EQ(tell(*firmware, "0020", 0, {1, 0, 0}), "1 1");
    m_now += 20 * Second - 1;
    EXPECT_EQ(status(*firmware, 1), Recirculates);
    m_now += 1; // 250 s
    EXPECT_EQ(status(*firmware, 1), Idle);
    m_now += 80 * Second; // 100 s since it was let go
    EXPECT_EQ(status(*firmware, 1), Stirs);
    EXPECT_EQ(tell(*firmware, "0003", 0, {0}), "0"); // all begin anew
    m_now += 120 * Second;                           // 450 s, where recirculation would be at it
    EXPECT_EQ(status(*firmware, 1), Idle);
    m_now += 80 * Second;
    EXPECT_EQ(status(*firmware, 1), Recirculates);
}

TEST_F(SimulatedProcessesTest, whatGoesOnByItselfDoesNotWarmTheMachine)
{
    FW_Dispenser machine = workingMachine();
    machine.setTimedProcessesStartupMask(3);
    const auto firmware = firmwareOf(machine);
    m_now += 110 * Second;
    EXPECT_EQ(status(*firmware, 1), Stirs);
    m_now += 3490 * Second;
    EXPECT_EQ(tell(*firmware, "0060", 0, {0, 0}),
              "7 0 0 84 8 0 0 0"); // 21.00, as at the beginning of each hour
}

TEST_F(SimulatedProcessesTest, normalModeLetsAllTimedProcessesGoAndAReservedOneNone)
{
    const auto firmware = firmwareOf(workingMachine());
    m_now += 110 * Second;
    EXPECT_EQ(status(*firmware, 1), Idle); // none is on from the start
    tell(*firmware, "0020", 0, {1, 0, 0});
    m_now += 110 * Second;
    EXPECT_EQ(status(*firmware, 1), Stirs);
    tell(*firmware, "0020", 0, {3, 0, 0});
    m_now += 110 * Second;
    EXPECT_EQ(status(*firmware, 1), Reserved);
}

TEST_F(SimulatedProcessesTest, family2HoldsAllTimedProcessesForTwoMinutes)
{
    FW_Dispenser machine = workingMachine();
    machine.setCommandFamily(FW_Dispenser::CommandFamily2);
    machine.setTimedProcessesStartupMask(2);
    const auto firmware = firmwareOf(machine);
    m_now += 110 * Second;
    EXPECT_EQ(tell(*firmware, "I3", 1), Stirs);
    EXPECT_EQ(tell(*firmware, "FR", 0, {1}), WrongParameters);
    EXPECT_EQ(tell(*firmware, "FR", 0), "1 5");
    EXPECT_EQ(tell(*firmware, "I3", 1), Idle);
    m_now += 220 * Second - 1; // 120 s held, and a pause of 100 s
    EXPECT_EQ(tell(*firmware, "I3", 1), Idle);
    m_now += 1;
    EXPECT_EQ(tell(*firmware, "I3", 1), Stirs);
    for (const char *code : {"0020", "0004", "0005", "0015", "0025", "0029", "002F"})
        EXPECT_EQ(tell(*firmware, code, 0, {1, 0, 0}), "refused 6 8 0 0 0 0 0") << code;
}

// Level sensors: 0, then positions.

/// Canisters 1 and 4 have sensors. A stroke of 400 steps pours 4, so that 500 is 125 strokes.
FW_Dispenser sensingMachine()
{
    FW_Dispenser machine = pouringMachine(2);
    machine.getCanisterById(11)->setCanisterLevelSensor(1);
    machine.getCanisterById(14)->setCanisterLevelSensor(1);
    machine.getCanisterById(14)->setCurrentQuantity(2);
    return machine;
}

TEST_F(SimulatedProcessesTest, levelSensorsTellWhatTheCanistersHold)
{
    const auto firmware = firmwareOf(sensingMachine());
    EXPECT_EQ(tell(*firmware, "0029", 0, {0, 1}), "4 1 1 C8 32"); // 12500 is 200 + 50 x 246
    EXPECT_EQ(status(*firmware), ReadsLevels);
    EXPECT_EQ(tell(*firmware, "0029", 0, {0, 1}), NotAvailable);
    EXPECT_EQ(tell(*firmware, "0017", 0, {1, 1, 1, 0, 50, 2, 16, 4}), NotAvailable);
    m_now += 8 * Second - 1;
    EXPECT_EQ(status(*firmware), ReadsLevels);
    m_now += 1;
    EXPECT_EQ(status(*firmware), IdleWithLowLevel);
    EXPECT_EQ(tell(*firmware, "0017", 0, {1, 1, 1, 0, 50, 2, 16, 4}), "0"); // 10 of 500
    EXPECT_EQ(tell(*firmware, "0029", 0, {0, 1}), NotAvailable);
    m_now += 6 * Second;
    EXPECT_EQ(tell(*firmware, "0029", 0, {0}), "7 2 1 C4 31 4 32 0"); // 12250 is 196 + 49 x 246, and 50
}

TEST_F(SimulatedProcessesTest, noLevelIsReadWhileNothingMayBegin)
{
    const auto firmware = firmwareOf(sensingMachine());
    EXPECT_EQ(tell(*firmware, "0001", 0), "0");
    EXPECT_EQ(tell(*firmware, "0029", 0, {0, 1}), NotAvailable);
    m_now += 6 * Second;
    EXPECT_EQ(tell(*firmware, "0067", 0), "0");
    EXPECT_EQ(tell(*firmware, "0029", 0, {0, 1}), NotAvailable);
    m_now += 3 * Second;
    EXPECT_EQ(tell(*firmware, "0005", 1, {50, 10, 0, 0, 1}), "0");
    EXPECT_EQ(tell(*firmware, "0029", 0, {0, 1}), NotAvailable);
    EXPECT_EQ(tell(*firmware, "0005", 1, {50, 10, 0, 0, 0}), NotAvailable);
    m_now += 10 * Second;
    EXPECT_EQ(tell(*firmware, "0005", 1, {50, 10, 0, 0, 0}), "0"); // in the background
    EXPECT_EQ(tell(*firmware, "0029", 0, {0, 1}), "4 1 1 C8 32");
    EXPECT_EQ(tell(*firmware, "0005", 1, {50, 10, 0, 0, 0}), "0"); // which a reading is as well
    EXPECT_EQ(tell(*firmware, "0001", 0), "0");                    // a reset ends it
    EXPECT_EQ(status(*firmware), "E 0 1 40 0 0 0 0 F5 F5 0 40 0 0 0");
}

TEST_F(SimulatedProcessesTest, aLevelIsAtMostTwoDigits)
{
    const auto firmware = firmwareOf(sensingMachine());
    firmware->canisterFilled(11, 1e6);
    EXPECT_EQ(tell(*firmware, "0029", 0, {0, 1}), "4 1 1 F5 F5");
}

TEST_F(SimulatedProcessesTest, asManySensorsAsPourAtOnceAreReadInEightSeconds)
{
    FW_Dispenser machine = sensingMachine();
    machine.getCanisterById(12)->setCanisterLevelSensor(1);
    const auto firmware = firmwareOf(machine, 10);
    EXPECT_EQ(tell(*firmware, "0029", 0, {0, 4, 1, 2}).substr(0, 3), "A 3");
    m_now += 1600 - 1;
    EXPECT_EQ(status(*firmware), ReadsLevels);
    m_now += 1;
    EXPECT_EQ(status(*firmware), IdleWithLowLevel);
}

TEST_F(SimulatedProcessesTest, levelsThatNobodyCanTellAreRefused)
{
    FW_Dispenser machine = sensingMachine();
    machine.getCanisterById(12)->setCanisterLevelSensor(1);
    machine.getCanisterById(12)->canisterLevelSensor()->setEnabled(false);
    machine.getCircuitByPosition(4)->setCalibration(FW_Calibration());
    const auto firmware = firmwareOf(machine);
    EXPECT_EQ(tell(*firmware, "0029", 0, {}), WrongParameters);
    EXPECT_EQ(tell(*firmware, "0029", 0, {1, 1}), WrongParameters);
    for (const int position : {2, 3, 4, 9})
        EXPECT_EQ(tell(*firmware, "0029", 0, {0, position}), WrongModule) << position;
    EXPECT_EQ(tell(*firmware, "0029", 0, {0}), "4 1 1 C8 32");
    const auto without = firmwareOf(pouringMachine());
    EXPECT_EQ(tell(*without, "0029", 0, {0}), "1 0");
    EXPECT_EQ(status(*without), Idle);
}

// What is handed through: the board, two bytes of the code, the parameters.

TEST_F(SimulatedProcessesTest, aCodeIsHandedThroughToABoard)
{
    const auto firmware = firmwareOf(workingMachine());
    EXPECT_EQ(tell(*firmware, "002C", 0, {2, 0x00, 0x04, 30, 0, 0}), "0");
    EXPECT_EQ(tell(*firmware, "002C", 0, {2, 0x00, 0x06}), Stirs);
    EXPECT_EQ(tell(*firmware, "002C", 2, {0, 0x00, 0x06}), Stirs);
    EXPECT_EQ(tell(*firmware, "002C", 0, {1, 0x00, 0x06}), Idle);
    EXPECT_EQ(tell(*firmware, "002C", 0, {4, 0x00, 0x04, 30, 0, 0}), WrongModule);
    EXPECT_EQ(tell(*firmware, "002C", 0, {2, 0x00, 0x2C, 2, 0, 6}), "refused 6 8 0 0 0 0 0");
    EXPECT_EQ(tell(*firmware, "002C", 0, {2, 0x00}), WrongParameters);
    EXPECT_EQ(tell(*firmware, "002C", 0, {256, 0x00, 0x06}), WrongParameters);
}

} // namespace
