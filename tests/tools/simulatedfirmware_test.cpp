// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/simulatedfirmware.h"

#include "pouringmachine.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

using quv::FirmwareReply;
using quv::SimulatedFirmware;

//                           length, not read, status, masks 1 to 5, position, zone, masks 8 to 12
const char *const Idle = "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0";
const char *const IdleDual = "E 0 1 0 0 0 0 0 F5 F5 C 0 0 0 0";
const char *const Resetting = "E 0 1 40 0 0 0 0 F5 F5 0 0 0 0 0";

class SimulatedFirmwareTest : public testing::Test
{
protected:
    SimulatedFirmware::Clock clock()
    {
        return [this] { return m_now; };
    }

    static std::string tokens(const FirmwareReply &reply) { return reply.tokens.join(' ').toStdString(); }
    static std::string ask(SimulatedFirmware &firmware, const char *code)
    {
        return tokens(firmware.execute(QLatin1String(code), 0, {}));
    }

    FW_Dispenser m_dispenser;
    qint64 m_now = 1000;
};

TEST_F(SimulatedFirmwareTest, anIdleDispenserIsReadyToDispenseAndHasNoPosition)
{
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    const FirmwareReply reply = firmware.execute(QStringLiteral("0006"), 3, {});
    EXPECT_FALSE(reply.refused);
    EXPECT_EQ(tokens(reply), Idle);
}

TEST_F(SimulatedFirmwareTest, bothHeadsOfADispenserAreReady)
{
    m_dispenser.setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    EXPECT_EQ(ask(firmware, "0006"), IdleDual);
}

TEST_F(SimulatedFirmwareTest, aResetShowsInTheStatusUntilItsSixSecondsAreOver)
{
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    const FirmwareReply begun = firmware.execute(QStringLiteral("0001"), 0, {});
    EXPECT_FALSE(begun.refused);
    EXPECT_EQ(tokens(begun), "0");
    EXPECT_EQ(ask(firmware, "0006"), Resetting);
    m_now += 5999;
    EXPECT_EQ(ask(firmware, "0006"), Resetting);
    m_now += 1;
    EXPECT_EQ(ask(firmware, "0006"), Idle);
}

TEST_F(SimulatedFirmwareTest, speedShortensAReset)
{
    SimulatedFirmware firmware(m_dispenser, 4, clock());
    ask(firmware, "0001");
    m_now += 1499;
    EXPECT_EQ(ask(firmware, "0006"), Resetting);
    m_now += 1;
    EXPECT_EQ(ask(firmware, "0006"), Idle);
}

TEST_F(SimulatedFirmwareTest, noSecondResetBeginsDuringTheFirst)
{
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    ask(firmware, "0001");
    m_now += 3000;
    const FirmwareReply second = firmware.execute(QStringLiteral("0001"), 0, {});
    EXPECT_TRUE(second.refused);
    EXPECT_EQ(tokens(second), "6 0 8 0 0 0 0");
    m_now += 3000; // the refused one did not prolong it
    EXPECT_FALSE(firmware.execute(QStringLiteral("0001"), 0, {}).refused);
}

TEST_F(SimulatedFirmwareTest, refusalsTellTheirReason)
{
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    const FirmwareReply unknown = firmware.execute(QStringLiteral("0099"), 0, {});
    EXPECT_TRUE(unknown.refused);
    EXPECT_EQ(tokens(unknown), "6 8 0 0 0 0 0");
    for (const int module : {-1, 256}) {
        const FirmwareReply refused = firmware.execute(QStringLiteral("0006"), module, {});
        EXPECT_TRUE(refused.refused) << module;
        EXPECT_EQ(tokens(refused), "6 10 0 0 0 0 0") << module;
    }
    EXPECT_FALSE(firmware.execute(QStringLiteral("0006"), 255, {}).refused);
    const FirmwareReply parameters = firmware.execute(QStringLiteral("0006"), 0, {1});
    EXPECT_TRUE(parameters.refused);
    EXPECT_EQ(tokens(parameters), "6 20 0 0 0 0 0");
}

TEST_F(SimulatedFirmwareTest, aDispenserOfFamily2HasTheStatusUnderItsOwnCodeAndNoReset)
{
    m_dispenser.setCommandFamily(FW_Dispenser::CommandFamily2);
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    EXPECT_EQ(ask(firmware, "I3"), Idle);
    EXPECT_TRUE(firmware.execute(QStringLiteral("0006"), 0, {}).refused);
    EXPECT_TRUE(firmware.execute(QStringLiteral("0001"), 0, {}).refused);
}

TEST_F(SimulatedFirmwareTest, aMixerResetsAndHasNoDispensersStatus)
{
    SimulatedFirmware firmware(FW_Mixer(), 1, clock());
    EXPECT_EQ(ask(firmware, "0001"), "0");
    EXPECT_TRUE(firmware.execute(QStringLiteral("0001"), 0, {}).refused);
    EXPECT_EQ(ask(firmware, "0006"), "6 8 0 0 0 0 0");
    m_now += 6000;
    EXPECT_FALSE(firmware.execute(QStringLiteral("0001"), 0, {}).refused);
}

/// A machine that pours: 100 steps a quantity of 1, 6 ms a step at speed 50.
class SimulatedPourTest : public SimulatedFirmwareTest
{
protected:
    std::string begin(SimulatedFirmware &firmware, const char *code, const QList<int> &parameters)
    {
        const FirmwareReply reply = firmware.execute(QLatin1String(code), 0, parameters);
        return (reply.refused ? "refused " : "") + tokens(reply);
    }
    /// Milliseconds until the pour that began just now is over.
    qint64 duration(SimulatedFirmware &firmware, const char *after = Idle,
                    const std::string &tinting = "E 0 1 4 0 0 0 ")
    {
        const qint64 begun = m_now;
        while (ask(firmware, "0006").rfind(tinting, 0) == 0)
            m_now += 100;
        EXPECT_EQ(ask(firmware, "0006"), after);
        return m_now - begun;
    }
    qint64 durationWithError(SimulatedFirmware &firmware)
    {
        return duration(firmware, "E 0 1 0 40 20 0 0 F5 F5 4 0 0 0 0", "E 0 1 4 40 20 0 ");
    }
    qint64 duration(const FW_Dispenser &machine, const char *code, const QList<int> &parameters)
    {
        SimulatedFirmware firmware(machine, 1, clock());
        EXPECT_EQ(begin(firmware, code, parameters), "0");
        return duration(firmware);
    }

    static constexpr char Tinting[] = "E 0 1 4 0 0 0 0 F5 F5 0 0 0 0 0";
};

TEST_F(SimulatedPourTest, aPourShowsInTheStatusUntilItIsOver)
{
    SimulatedFirmware firmware(pouringMachine(), 1, clock());
    EXPECT_EQ(begin(firmware, "0017", {1, 1, 1, 0, 50, 2, 16, 4}), "0"); // 1000 steps
    EXPECT_EQ(ask(firmware, "0006"), Tinting);
    m_now += 5999;
    EXPECT_EQ(ask(firmware, "0006"), Tinting);
    m_now += 1;
    EXPECT_EQ(ask(firmware, "0006"), Idle);
}

TEST_F(SimulatedPourTest, speedShortensAPour)
{
    SimulatedFirmware firmware(pouringMachine(), 10, clock());
    EXPECT_EQ(firmware.speed(), 10);
    begin(firmware, "0017", {1, 1, 1, 0, 50, 2, 16, 4});
    EXPECT_EQ(duration(firmware), 600);
}

TEST_F(SimulatedPourTest, slowerTurnsTakeLonger)
{
    EXPECT_EQ(duration(pouringMachine(), "0017", {1, 1, 1, 0, 25, 2, 16, 4}), 12000);
}

TEST_F(SimulatedPourTest, circuitsOverlapAsFarAsTheMachineCan)
{
    // 1000, 500 and 500 steps: 6, 3 and 3 s
    const QList<int> three{1, 3, 1, 0, 50, 2, 16, 4, 2, 0, 50, 2, 8, 2, 3, 0, 50, 2, 8, 2};
    EXPECT_EQ(duration(pouringMachine(1), "0017", three), 12000);
    EXPECT_EQ(duration(pouringMachine(2), "0017", three), 6000);
    EXPECT_EQ(duration(pouringMachine(3), "0017", three), 6000);
}

TEST_F(SimulatedPourTest, circuitsOfAQueuePourOneAfterTheOther)
{
    const QList<int> sameQueue{2, 2, 1, 7, 50, 2, 16, 4, 2, 7, 50, 2, 16, 4};
    const QList<int> twoQueues{2, 2, 1, 7, 50, 2, 16, 4, 2, 8, 50, 2, 16, 4};
    const QList<int> noQueue{0, 2, 1, 0, 50, 2, 16, 4, 2, 0, 50, 2, 16, 4};
    EXPECT_EQ(duration(pouringMachine(4), "0017", sameQueue), 12000);
    EXPECT_EQ(duration(pouringMachine(4), "0017", twoQueues), 6000);
    EXPECT_EQ(duration(pouringMachine(4), "0017", noQueue), 6000);
}

TEST_F(SimulatedPourTest, criterion1KnowsNoQueuesButTellsThem)
{
    SimulatedFirmware firmware(pouringMachine(4), 1, clock());
    begin(firmware, "0024", {1, 2, 1, 7, 50, 1, 1, 2, 7, 50, 1, 1});
    EXPECT_EQ(duration(firmware), 2400); // 400 steps each
    EXPECT_EQ(ask(firmware, "0074"), "12 1 2 1 7 2 9A 1 2 9A 1 2 7 2 9A 1 2 9A 1");
}

TEST_F(SimulatedPourTest, aTurntableBringsOneCircuitAfterTheOther)
{
    // from 3 to 1 one step, from 1 to 4 two of them
    SimulatedFirmware firmware(rotatingMachine(), 1, clock());
    begin(firmware, "0017", {1, 2, 1, 0, 50, 2, 16, 4, 4, 0, 50, 2, 16, 4});
    EXPECT_EQ(duration(firmware, "E 0 1 0 0 0 0 0 4 0 4 0 0 0 0"), 1000 + 6000 + 2000 + 6000);
    begin(firmware, "0017", {1, 1, 3, 0, 50, 2, 16, 4}); // on from 4
    EXPECT_EQ(duration(firmware, "E 0 1 0 0 0 0 0 3 0 4 0 0 0 0"), 1000 + 6000);
}

TEST_F(SimulatedPourTest, beforeAnyPourTheReportIsEmpty)
{
    SimulatedFirmware firmware(pouringMachine(), 1, clock());
    EXPECT_EQ(ask(firmware, "0074"), "2 1 0");
}

TEST_F(SimulatedPourTest, theReportTellsWhatIsPouredByNow)
{
    SimulatedFirmware firmware(pouringMachine(1), 1, clock());
    begin(firmware, "0017", {2, 2, 1, 7, 50, 2, 16, 4, 2, 8, 50, 1, 100});
    EXPECT_EQ(ask(firmware, "0074"), "F 2 2 1 7 2 10 4 1 0 2 8 1 64 1 0");
    m_now += 3000; // half of the first
    EXPECT_EQ(ask(firmware, "0074"), "10 2 2 1 7 2 10 4 2 8 2 2 8 1 64 1 0");
    m_now += 3300; // half of the second
    EXPECT_EQ(ask(firmware, "0074"), "10 2 2 1 7 2 10 4 2 10 4 2 8 1 64 1 32");
    m_now += 300;
    EXPECT_EQ(ask(firmware, "0006"), Idle);
    EXPECT_EQ(ask(firmware, "0074"), "10 2 2 1 7 2 10 4 2 10 4 2 8 1 64 1 64");
}

TEST_F(SimulatedPourTest, anEmptyCanisterPoursOnlyWhatWasThere)
{
    FW_Dispenser machine = pouringMachine();
    machine.getCanisterById(11)->setCurrentQuantity(14); // 1400 steps
    SimulatedFirmware firmware(machine, 1, clock());
    begin(firmware, "0017", {1, 1, 1, 0, 50, 2, 16, 4});
    EXPECT_EQ(duration(firmware), 6000);
    EXPECT_EQ(ask(firmware, "0074"), "A 1 1 1 0 2 10 4 2 10 4");

    begin(firmware, "0017", {1, 1, 1, 0, 50, 2, 16, 4});
    m_now += 1200;
    EXPECT_EQ(ask(firmware, "0074"), "9 1 1 1 0 2 10 4 1 C8");
    EXPECT_EQ(durationWithError(firmware), 4800);                // the motor turns on for nothing
    EXPECT_EQ(ask(firmware, "0074"), "A 1 1 1 0 2 10 4 2 9A 1"); // 400

    begin(firmware, "0017", {1, 1, 1, 0, 50, 2, 16, 4});
    durationWithError(firmware);
    EXPECT_EQ(ask(firmware, "0074"), "9 1 1 1 0 2 10 4 1 0");

    firmware.canisterFilled(11, 500);
    begin(firmware, "0017", {1, 1, 1, 0, 50, 2, 16, 4});
    durationWithError(firmware); // it stays in the buffer until somebody clears that
    EXPECT_EQ(ask(firmware, "0074"), "A 1 1 1 0 2 10 4 2 10 4");
}

TEST_F(SimulatedPourTest, circuitsOfOneCanisterShareWhatItHolds)
{
    FW_Dispenser machine = pouringMachine();
    FW_Circuit second = machine.getCanisterById(11)->circuits().constFirst();
    second.setId(29);
    second.setPositionId(9);
    machine.getCanisterById(11)->addCircuit(second);
    machine.getCanisterById(11)->setCurrentQuantity(1.5);
    SimulatedFirmware firmware(machine, 1, clock());
    begin(firmware, "0017", {1, 2, 9, 0, 50, 1, 100, 1, 0, 50, 1, 100});
    durationWithError(firmware);
    EXPECT_EQ(ask(firmware, "0074"), "E 1 2 9 0 1 64 1 64 1 0 1 64 1 32");
}

TEST_F(SimulatedPourTest, aCircuitWithoutCalibrationPoursOnAndOn)
{
    FW_Dispenser machine = pouringMachine();
    machine.getCircuitByPosition(1)->setCalibration({});
    machine.getCanisterById(11)->setCurrentQuantity(0);
    SimulatedFirmware firmware(machine, 1, clock());
    begin(firmware, "0017", {1, 1, 1, 0, 50, 1, 100});
    duration(firmware);
    EXPECT_EQ(ask(firmware, "0074"), "8 1 1 1 0 1 64 1 64");
}

TEST_F(SimulatedPourTest, aTint2IsPouredLikeATintAndItsPurgeIsMarked)
{
    SimulatedFirmware firmware(pouringMachine(), 1, clock());
    EXPECT_EQ(begin(firmware, "0035", {66, 1, 6, 1, 7, 50, 3, 2, 16, 4, 1, 90}), "0");
    EXPECT_EQ(duration(firmware), 6000);
    EXPECT_EQ(ask(firmware, "0074"), "A 42 1 1 7 2 10 4 2 10 4");
}

TEST_F(SimulatedPourTest, aPrimingCountsStrokes)
{
    SimulatedFirmware firmware(pouringMachine(), 1, clock());
    EXPECT_EQ(begin(firmware, "0017", {3, 1, 1, 0, 50, 1, 2}), "0");
    EXPECT_EQ(duration(firmware), 4800);
    EXPECT_EQ(ask(firmware, "0074"), "A 3 1 1 0 2 3E 3 2 3E 3"); // 800
    EXPECT_EQ(begin(firmware, "0024", {2, 1, 1, 7, 50, 1, 3}), "0");
    EXPECT_EQ(duration(firmware), 7200);
    EXPECT_EQ(ask(firmware, "0074"), "A 2 1 1 7 2 D8 4 2 D8 4"); // 1200
}

TEST_F(SimulatedPourTest, aPackMovesAPumpAndPoursNothing)
{
    SimulatedFirmware firmware(pouringMachine(), 1, clock());
    for (const int movement : {0, 1}) {
        EXPECT_EQ(begin(firmware, "0017", {3, 1, 1, 0, 50, 1, movement}), "0");
        EXPECT_EQ(duration(firmware), 2400);
        EXPECT_EQ(ask(firmware, "0074"), "8 3 1 1 0 1 0 1 0");
    }
    EXPECT_EQ(begin(firmware, "0023", {1, 1, 1, 0, 50}), "0");
    EXPECT_EQ(duration(firmware), 2400);
    EXPECT_EQ(begin(firmware, "0023", {9, 1, 1, 0, 50, 1, 2}), "0");
    EXPECT_EQ(duration(firmware), 4800);
    EXPECT_EQ(ask(firmware, "0074"), "8 9 1 1 0 1 0 1 0");
}

TEST_F(SimulatedPourTest, aPackWithStrokesForOneOfTwoCircuitsIsReadByTheCircuitsThatThereAre)
{
    SimulatedFirmware firmware(pouringMachine(), 1, clock());
    EXPECT_EQ(begin(firmware, "0023", {1, 2, 2, 1, 50, 1, 1, 50, 1, 5}), "0");
    EXPECT_EQ(ask(firmware, "0074"), "E 1 2 2 1 1 0 1 0 1 1 1 0 1 0");
}

TEST_F(SimulatedPourTest, whatIsNoRequestIsRefused)
{
    SimulatedFirmware firmware(pouringMachine(), 1, clock());
    for (const char *code : {"0017", "0035", "0023", "0024"}) {
        EXPECT_EQ(begin(firmware, code, {}), "refused 6 20 0 0 0 0 0") << code;
        EXPECT_EQ(begin(firmware, code, {1, 1, 1, 0, 50, 1, 246}), "refused 6 20 0 0 0 0 0") << code;
    }
    EXPECT_EQ(begin(firmware, "0074", {1}), "refused 6 20 0 0 0 0 0");
    EXPECT_EQ(ask(firmware, "0006"), Idle);
    EXPECT_EQ(ask(firmware, "0074"), "2 1 0");
}

TEST_F(SimulatedPourTest, unknownAndDisabledPositionsAreRefused)
{
    FW_Dispenser machine = pouringMachine();
    machine.getCircuitByPosition(2)->setEnabled(false);
    SimulatedFirmware firmware(machine, 1, clock());
    for (const int position : {2, 5})
        EXPECT_EQ(begin(firmware, "0017", {1, 2, 1, 0, 50, 1, 10, position, 0, 50, 1, 10}),
                  "refused 6 10 0 0 0 0 0");
    EXPECT_EQ(ask(firmware, "0006"), Idle);
}

TEST_F(SimulatedPourTest, strokesOfUnknownLengthAreRefusedButAPackIsNot)
{
    FW_Dispenser machine = pouringMachine();
    FW_DosingMotor motor;
    motor.setStepsPerStroke(0);
    machine.getCircuitByPosition(1)->setDosingMotor(motor);
    SimulatedFirmware firmware(machine, 1, clock());
    EXPECT_EQ(begin(firmware, "0017", {3, 1, 1, 0, 50, 1, 2}), "refused 6 20 0 0 0 0 0");
    EXPECT_EQ(begin(firmware, "0024", {1, 1, 1, 0, 50, 1, 2}), "refused 6 20 0 0 0 0 0");
    EXPECT_EQ(begin(firmware, "0017", {3, 1, 1, 0, 50, 1, 1}), "0");
    EXPECT_EQ(ask(firmware, "0006"), Idle); // over at once
}

TEST_F(SimulatedPourTest, oneProcessAtATime)
{
    SimulatedFirmware firmware(pouringMachine(), 1, clock());
    begin(firmware, "0017", {1, 1, 1, 0, 50, 2, 16, 4});
    EXPECT_EQ(begin(firmware, "0017", {1, 1, 2, 0, 50, 1, 10}), "refused 6 0 8 0 0 0 0");
    EXPECT_EQ(begin(firmware, "0024", {1, 1, 2, 0, 50, 1, 10}), "refused 6 0 8 0 0 0 0");
    EXPECT_EQ(begin(firmware, "0067", {}), "refused 6 0 8 0 0 0 0");
    EXPECT_EQ(duration(firmware), 6000); // as if nobody had asked
    EXPECT_EQ(begin(firmware, "0001", {}), "0");
    EXPECT_EQ(begin(firmware, "0017", {1, 1, 1, 0, 50, 1, 10}), "refused 6 0 8 0 0 0 0");
    m_now += 6000;
    EXPECT_EQ(begin(firmware, "0017", {1, 1, 1, 0, 50, 1, 10}), "0");
}

TEST_F(SimulatedPourTest, onlyDispensersOfFamily1Pour)
{
    FW_Dispenser machine = pouringMachine();
    machine.setCommandFamily(FW_Dispenser::CommandFamily2);
    SimulatedFirmware family2(machine, 1, clock());
    SimulatedFirmware mixer(FW_Mixer(), 1, clock());
    for (const char *code : {"0017", "0035", "0023", "0024", "0074"}) {
        EXPECT_EQ(begin(family2, code, {}), "refused 6 8 0 0 0 0 0") << code;
        EXPECT_EQ(begin(mixer, code, {}), "refused 6 8 0 0 0 0 0") << code;
    }
}

const char *const Finalising = "E 0 1 0 20 0 0 0 F5 F5 0 0 0 0 0";

TEST_F(SimulatedFirmwareTest, rowsOfTheConfigurationAreReadAndWritten)
{
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    const auto exchange = [&firmware](const char *code, const QList<int> &parameters) {
        const FirmwareReply reply = firmware.execute(QLatin1String(code), 0, parameters);
        return (reply.refused ? "refused " : "") + tokens(reply);
    };
    EXPECT_EQ(exchange("0066", {7, 1}), "B 7 1 4 1 0 1 3C 1 A 1 28");
    EXPECT_EQ(exchange("0065", {7, 3, 1, 1, 1, 30, 2, 10, 1}), "0");
    EXPECT_EQ(exchange("0066", {7, 1}), "C 7 1 4 1 1 1 1E 2 A 1 1 28");
    EXPECT_EQ(exchange("0066", {0}).substr(0, 21), "31 2 0 17 1 1 2 2 3 1");
    EXPECT_EQ(exchange("0066", {0, 1}), exchange("0066", {0}));

    EXPECT_EQ(exchange("0065", {7, 1, 1, 3}), "refused 6 1 0 0 0 0 0"); // out of range
    EXPECT_EQ(exchange("0065", {7, 5, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}), "refused 6 20 0 0 0 0 0");
    for (const QList<int> &wrong : {QList<int>{}, {7}, {7, 1, 1}, {12, 1}, {7, 256}, {0, 1, 1}})
        EXPECT_EQ(exchange("0066", wrong), "refused 6 20 0 0 0 0 0");
    EXPECT_EQ(exchange("0067", {1}), "refused 6 20 0 0 0 0 0");
}

TEST_F(SimulatedFirmwareTest, finalisingTakesThreeSecondsInWhichNothingElseBegins)
{
    SimulatedFirmware firmware(pouringMachine(), 2, clock());
    EXPECT_EQ(ask(firmware, "0067"), "0");
    EXPECT_EQ(ask(firmware, "0006"), Finalising);
    m_now += 1499;
    EXPECT_EQ(ask(firmware, "0006"), Finalising);
    const QList<int> tint{0, 1, 1, 0, 50, 1, 100};
    for (const auto &[code, parameters] : {std::pair<const char *, QList<int>>{"0001", {}},
                                           {"0017", tint},
                                           {"0065", {7, 1, 1, 1}},
                                           {"0067", {}}})
        EXPECT_EQ(tokens(firmware.execute(QLatin1String(code), 0, parameters)), "6 0 8 0 0 0 0") << code;
    EXPECT_FALSE(firmware.execute(QStringLiteral("0066"), 0, {7, 1}).refused);
    m_now += 1;
    EXPECT_EQ(ask(firmware, "0006"), Idle);
    EXPECT_FALSE(firmware.execute(QStringLiteral("0065"), 0, {7, 1, 1, 1}).refused);
    EXPECT_FALSE(firmware.execute(QStringLiteral("0017"), 0, tint).refused);
    EXPECT_EQ(ask(firmware, "0067"), "6 0 8 0 0 0 0"); // not during a pour
}

TEST_F(SimulatedFirmwareTest, aMixerFinalisesAsADispenserDoes)
{
    SimulatedFirmware firmware(FW_Mixer(), 1, clock());
    EXPECT_EQ(tokens(firmware.execute(QStringLiteral("0066"), 0, {0})), "7 2 0 2 1 1 2 2");
    EXPECT_EQ(tokens(firmware.execute(QStringLiteral("0065"), 0, {2, 2, 1, 1, 1, 65})), "0");
    EXPECT_EQ(ask(firmware, "0067"), "0");
    EXPECT_EQ(tokens(firmware.execute(QStringLiteral("0066"), 0, {2, 1})), "7 2 1 2 1 1 1 41");
    m_now += 2999;
    // its door is unlocked, its plates are 400 mm apart
    EXPECT_EQ(ask(firmware, "0033"), "F 0 1 0 20 0 0 0 10 0 0 0 0 0 9A 1");
    EXPECT_EQ(ask(firmware, "0067"), "6 0 8 0 0 0 0");
    m_now += 1;
    EXPECT_EQ(ask(firmware, "0067"), "0");
}

TEST_F(SimulatedFirmwareTest, aFinalisedParallelismHoldsForThePour)
{
    SimulatedFirmware firmware(pouringMachine(1), 1, clock());
    const QList<int> tint{0, 2, 1, 0, 50, 2, 8, 2, 2, 0, 50, 2, 8, 2}; // two circuits, 500 steps each
    firmware.execute(QStringLiteral("0065"), 0, {3, 5, 1, 1, 1, 1, 1, 1, 1, 1, 1, 2});
    ask(firmware, "0067");
    m_now += 3000;
    firmware.execute(QStringLiteral("0017"), 0, tint);
    m_now += 2999; // 3 s each, at once
    EXPECT_NE(ask(firmware, "0006"), Idle);
    m_now += 1;
    EXPECT_EQ(ask(firmware, "0006"), Idle);
}

/// Firmware whose power comes and goes.
class PowerCycleTest : public SimulatedFirmwareTest
{
protected:
    std::unique_ptr<SimulatedFirmware> powered(quv::FirmwareAge age = quv::FirmwareAge::Equal)
    {
        return std::make_unique<SimulatedFirmware>(
            m_dispenser, 1, clock(),
            quv::SimulatedConfiguration{age, std::make_shared<quv::FirmwareState>(m_path)});
    }
    static std::string humidifier(SimulatedFirmware &firmware)
    {
        return tokens(firmware.execute(QStringLiteral("0066"), 0, {7, 1}));
    }

    QTemporaryDir m_folder{};
    QString m_path = m_folder.filePath(QStringLiteral("state.json"));
};

TEST_F(PowerCycleTest, whatWasFinalisedIsKeptAndWhatWasNotIsForgotten)
{
    auto firmware = powered();
    firmware->execute(QStringLiteral("0065"), 0, {7, 2, 1, 1, 1, 31});
    EXPECT_EQ(humidifier(*powered()), "B 7 1 4 1 0 1 3C 1 A 1 28"); // not yet finalised
    ask(*firmware, "0067");
    m_now += 3000;
    firmware->execute(QStringLiteral("0065"), 0, {7, 2, 1, 1, 1, 32});
    EXPECT_EQ(humidifier(*firmware), "B 7 1 4 1 1 1 20 1 A 1 28");
    firmware = powered();
    EXPECT_EQ(humidifier(*firmware), "B 7 1 4 1 1 1 1F 1 A 1 28");
    EXPECT_EQ(firmware->changedRows(), (quv::RowKeys{{7, 1}}));
}

TEST_F(PowerCycleTest, aStateThatCannotBeWrittenRefusesTheFinalisation)
{
    m_path = m_folder.filePath(QStringLiteral("nowhere/state.json"));
    const auto firmware = powered();
    EXPECT_EQ(ask(*firmware, "0067"), "6 0 2 0 0 0 0"); // writing the configuration failed
    EXPECT_EQ(ask(*firmware, "0006"), Idle);
}

TEST_F(PowerCycleTest, aNewerFirmwareTakesTheStateOfAnOlderOneAndNotTheOtherWayRound)
{
    auto firmware = powered(quv::FirmwareAge::Older);
    ask(*firmware, "0067");
    firmware = powered(quv::FirmwareAge::Newer);
    EXPECT_EQ(humidifier(*firmware), "D 7 1 5 1 0 1 3C 1 A 1 28 1 7");
    ask(*firmware, "0067");
    try {
        powered(quv::FirmwareAge::Older);
        FAIL() << "the state has fields that the firmware does not";
    } catch (const std::runtime_error &error) {
        EXPECT_EQ(error.what(), "State file \"" + m_path.toStdString() +
                                    "\": the firmware has no such row: structure 1 with 2 fields");
    }
}

} // namespace
