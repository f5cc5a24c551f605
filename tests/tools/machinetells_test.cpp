// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/simulatedfirmware.h"

#include "pouringmachine.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_brush.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_shelf.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using quv::FaultKind;
using quv::FaultSpan;
using quv::FirmwareReply;
using quv::SimulatedFirmware;

/// What a simulated machine tells of itself, and what becomes of it when something goes wrong.
class MachineTellsTest : public testing::Test
{
protected:
    std::unique_ptr<SimulatedFirmware> machine(const FW_Machine &made,
                                               const std::vector<FaultSpan> &faults = {}, double speed = 1)
    {
        auto firmware = std::make_unique<SimulatedFirmware>(made, speed, [this] { return m_now; });
        firmware->play(faults);
        return firmware;
    }
    static std::string ask(SimulatedFirmware &firmware, const char *code, const QList<int> &parameters = {},
                           int module = 0)
    {
        const FirmwareReply reply = firmware.execute(QLatin1String(code), module, parameters);
        return (reply.refused ? "refused " : "") + reply.tokens.join(' ').toStdString();
    }
    static std::string status(SimulatedFirmware &firmware, int module = 0)
    {
        return ask(firmware, "0006", {}, module);
    }
    /// Why it refuses.
    static std::string reason(SimulatedFirmware &firmware, const char *code,
                              const QList<int> &parameters = {}, int module = 0)
    {
        const FirmwareReply reply = firmware.execute(QLatin1String(code), module, parameters);
        return reply.refused ? reply.reason.toStdString() : "not refused";
    }
    void wait(qint64 milliseconds) { m_now += milliseconds; }

    static constexpr char NotAvailable[] = "refused 6 0 8 0 0 0 0";
    static constexpr char BadParameters[] = "refused 6 20 0 0 0 0 0";
    //                             length, not read, status, masks 1 to 5, position, zone, masks 8 to 12
    static constexpr char Idle[] = "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0";
    static constexpr char Resetting[] = "E 0 1 40 0 0 0 0 F5 F5 0 0 0 0 0";
    const QList<int> Tint1000OfCircuit1{1, 1, 1, 0, 50, 2, 16, 4}; // 6 s
    const QList<int> RowOutOfRange{7, 1, 1, 3};

    qint64 m_now = 5000;
};

TEST_F(MachineTellsTest, aMachineWithoutErrorsSaysSo)
{
    for (const auto &firmware : {machine(pouringMachine()), machine(FW_Mixer())}) {
        EXPECT_EQ(ask(*firmware, "000C", {245}), "3 0 0 0");
        EXPECT_EQ(ask(*firmware, "000C", {0}), "0");
        for (const QList<int> &wrong : {QList<int>{}, {1}, {244}, {-1}, {246}, {0, 0}, {245, 0}})
            EXPECT_EQ(ask(*firmware, "000C", wrong), BadParameters);
    }
}

TEST_F(MachineTellsTest, aCanisterThatRunsEmptyIsAnErrorUntilItIsCleared)
{
    FW_Dispenser made = pouringMachine();
    made.getCanisterById(11)->setCurrentQuantity(5); // 500 steps
    const auto firmware = machine(made);
    EXPECT_EQ(ask(*firmware, "0017", Tint1000OfCircuit1), "0");
    EXPECT_EQ(status(*firmware), "E 0 1 4 40 20 0 0 F5 F5 0 0 0 0 0");
    EXPECT_EQ(status(*firmware, 1), "E 0 1 4 40 20 0 0 F5 F5 0 0 0 0 0");
    EXPECT_EQ(status(*firmware, 2),
              "E 0 1 0 0 0 0 0 F5 F5 0 0 0 0 0"); // nothing is wrong with this one, and it does not pour
    wait(6000);
    EXPECT_EQ(ask(*firmware, "000C", {245}), "3 1 0 1");
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 20 0 0 F5 F5 4 0 0 0 0"); // new until it is read
    // hardware, first packet, one error: of position 1, code 2, value 0
    EXPECT_EQ(ask(*firmware, "000C", {1}), "8 1 1 1 1 2 0 0 0");
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 0 0 0 F5 F5 4 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "000C", {1}), "8 1 1 1 1 2 0 0 0"); // reading takes nothing away
    EXPECT_EQ(ask(*firmware, "000C", {2}), BadParameters);
    EXPECT_EQ(ask(*firmware, "000C", {0}), "0");
    EXPECT_EQ(status(*firmware), Idle);
    EXPECT_EQ(ask(*firmware, "000C", {245}), "3 0 0 0");
}

TEST_F(MachineTellsTest, packetsHoldFiveErrorsOfOneKind)
{
    FW_Dispenser made = pouringMachine();
    made.getCanisterById(12)->setCurrentQuantity(0);
    const auto firmware = machine(made);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(ask(*firmware, "0065", RowOutOfRange), "refused 6 1 0 0 0 0 0");
    ask(*firmware, "0017", {1, 1, 2, 0, 50, 1, 100});
    wait(600);
    EXPECT_EQ(ask(*firmware, "0065", {3, 1, 1, 3}), "refused 6 1 0 0 0 0 0");
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 21 0 0 F5 F5 4 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "000C", {245}), "3 8 0 3");
    EXPECT_EQ(ask(*firmware, "000C", {1}), "8 1 1 1 2 2 0 0 0");
    // the value tells the structure
    EXPECT_EQ(ask(*firmware, "000C", {2}), "1C 2 2 5 0 5 0 0 7 0 5 0 0 7 0 5 0 0 7 0 5 0 0 7 0 5 0 0 7");
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 21 0 0 F5 F5 4 0 0 0 0"); // the third has not been read
    EXPECT_EQ(ask(*firmware, "000C", {3}), "D 2 3 2 0 5 0 0 7 0 5 0 0 3");
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 1 0 0 F5 F5 4 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "000C", {4}), BadParameters);
}

TEST_F(MachineTellsTest, aFullBufferKeepsTheFirstErrorsAndSaysThatOthersAreLost)
{
    const auto firmware = machine(pouringMachine());
    for (int i = 0; i < 49; ++i)
        ask(*firmware, "0065", RowOutOfRange);
    EXPECT_EQ(ask(*firmware, "000C", {245}), "3 31 0 A");
    ask(*firmware, "0065", RowOutOfRange);
    EXPECT_EQ(ask(*firmware, "000C", {245}), "3 32 0 B");
    for (int i = 0; i < 10; ++i)
        ask(*firmware, "0065", RowOutOfRange);
    EXPECT_EQ(ask(*firmware, "000C", {245}), "3 32 0 B");
    EXPECT_EQ(ask(*firmware, "000C", {1}), "8 1 1 1 0 6 0 0 0");
    EXPECT_EQ(ask(*firmware, "000C", {11}), "17 2 B 4 0 5 0 0 7 0 5 0 0 7 0 5 0 0 7 0 5 0 0 7");
}

TEST_F(MachineTellsTest, anEmergencyEndsWhatRunsAndLetsNothingBegin)
{
    const auto firmware = machine(pouringMachine(), {{FaultKind::Emergency, 0, 3000, 5000}});
    EXPECT_EQ(ask(*firmware, "0001"), "0");
    wait(2999);
    EXPECT_EQ(status(*firmware), Resetting);
    wait(1);
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 70 0 0 F5 F5 0 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "0043"), "B 46 10 0 20 1 0 0 0 0 0 0"); // the motors are without their 48 V
    for (const char *code : {"0001", "0067"})
        EXPECT_EQ(ask(*firmware, code), NotAvailable);
    EXPECT_EQ(ask(*firmware, "0017", Tint1000OfCircuit1), NotAvailable);
    wait(2000);
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 20 0 0 F5 F5 4 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "0043"), "B 46 0 0 60 1 0 0 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "000C", {1}), "8 1 1 1 0 1 0 0 0");
    EXPECT_EQ(ask(*firmware, "0001"), "0");
}

TEST_F(MachineTellsTest, aFaultThatNobodySawHasBeenThereAllTheSame)
{
    const auto firmware = machine(pouringMachine(), {{FaultKind::Emergency, 0, 3000, 4000}});
    ask(*firmware, "0001"); // would last until 6000
    wait(4500);
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 20 0 0 F5 F5 4 0 0 0 0");
}

TEST_F(MachineTellsTest, speedBringsFaultsSooner)
{
    const auto firmware = machine(pouringMachine(), {{FaultKind::Offline, 0, 3000, 5000}}, 10);
    wait(299);
    EXPECT_EQ(status(*firmware), Idle);
    wait(1);
    EXPECT_NE(status(*firmware), Idle);
    wait(200);
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(MachineTellsTest, theFirstOfTwoFaultsThatEndsLeavesTheOther)
{
    const auto firmware =
        machine(pouringMachine(), {{FaultKind::Offline, 0, 0, 9000}, {FaultKind::Offline, 0, 2000, 4000}});
    wait(4000);
    EXPECT_NE(status(*firmware), Idle);
    wait(5000);
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(MachineTellsTest, theOfflineButtonDoesTheSameAndIsNoError)
{
    const auto firmware = machine(pouringMachine(), {{FaultKind::Offline, 0, 3000, {}}});
    ask(*firmware, "0001");
    wait(3000);
    EXPECT_EQ(status(*firmware), "E 0 1 1 0 10 0 0 F5 F5 0 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "0001"), NotAvailable);
    EXPECT_EQ(ask(*firmware, "0043"), "B 46 1 0 60 1 0 0 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "000C", {245}), "3 0 0 0");
}

TEST_F(MachineTellsTest, anOpenDoorKeepsStillWhatMovesInReach)
{
    FW_Dispenser made = pouringMachine();
    made.setModelName(QStringLiteral("ZANDOR"));
    const auto firmware = machine(made, {{FaultKind::DoorOpen, 0, 3000, 9000}});
    // the station beside it is at home
    EXPECT_EQ(ask(*firmware, "0043"), "B 46 0 0 60 1 0 0 48 55 24 0");
    ask(*firmware, "0001");
    wait(3000);
    EXPECT_EQ(status(*firmware), "E 0 1 0 0 0 0 40 F5 F5 0 0 0 0 8");
    EXPECT_EQ(ask(*firmware, "0043"), "B 46 0 0 60 1 0 0 48 55 14 0");
    EXPECT_EQ(ask(*firmware, "0017", Tint1000OfCircuit1), NotAvailable);
    EXPECT_EQ(ask(*firmware, "0067"), "0"); // nothing moves
    wait(6000);
    EXPECT_EQ(status(*firmware), "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 8");
    EXPECT_EQ(ask(*firmware, "0017", Tint1000OfCircuit1), "0");
}

TEST_F(MachineTellsTest, anOpenDoorRefusesAResetAndChangesNothing)
{
    FW_Dispenser made = pouringMachine();
    made.getCircuitByPosition(1)->setStirringMotor(FW_StirringMotor());
    const auto firmware = machine(made, {{FaultKind::DoorOpen, 0, 0, 1000}});
    EXPECT_EQ(ask(*firmware, "0004", {245, 245, 0}, 1), "0"); // without end
    EXPECT_EQ(ask(*firmware, "0001"), NotAvailable);
    EXPECT_EQ(status(*firmware, 1), "E 0 1 10 0 0 0 40 F5 F5 0 0 0 0 0");
    const auto mixer = machine(FW_Mixer(), {{FaultKind::DoorOpen, 0, 0, 1000}});
    EXPECT_EQ(ask(*mixer, "0001"), NotAvailable);
    EXPECT_EQ(ask(*mixer, "0033"), "F 0 1 0 0 0 0 40 10 0 0 0 0 0 9A 1");
    wait(1000);
    EXPECT_EQ(ask(*firmware, "0001"), "0");
    EXPECT_EQ(ask(*mixer, "0001"), "0");
}

TEST_F(MachineTellsTest, aHandThatStandsInTheWayIsNamed)
{
    const std::pair<FaultKind, const char *> hands[] = {
        {FaultKind::Emergency, "the emergency button is pressed"},
        {FaultKind::Offline, "the offline button is pressed"},
        {FaultKind::DoorOpen, "the door is open"}};
    for (const auto &[fault, expected] : hands) {
        const auto firmware = machine(pouringMachine(), {{fault, 0, 0, {}}});
        EXPECT_EQ(reason(*firmware, "0017", Tint1000OfCircuit1), expected);
        EXPECT_EQ(reason(*firmware, "0001"), expected);
        const auto mixer = machine(FW_Mixer(), {{fault, 0, 0, {}}});
        EXPECT_EQ(reason(*mixer, "0030", {1, 245, 245, 245, 0}), expected);
        EXPECT_EQ(reason(*mixer, "0001"), expected);
    }
}

/// A dispenser of the Zandor line that can do most of what there is.
FW_Dispenser ableMachine()
{
    FW_Dispenser made = pouringMachine();
    made.setModelName(QStringLiteral("ZANDOR"));
    made.setGlobalStirring(true);
    made.setDevice(FW_Autocap());
    made.setDevice(FW_Brush());
    made.setDevice(FW_Shelf());
    made.getCanisterById(11)->setCanisterLevelSensor(1);
    return made;
}

TEST_F(MachineTellsTest, whatTheMachineIsAtIsNamed)
{
    struct Work
    {
        const char *code;
        QList<int> parameters;
        const char *expected;
    };
    const Work works[] = {{"0001", {}, "the machine is resetting"},
                          {"0067", {}, "the machine is writing its configuration"},
                          {"0017", Tint1000OfCircuit1, "the machine is pouring"},
                          {"0004", {30, 0, 1}, "the machine is stirring"},
                          {"0005", {50, 30, 0, 0, 1}, "the machine is recirculating"},
                          {"0015", {50, 30, 0, 2, 0}, "the machine is cleaning"},
                          {"0071", {1, 0, 0}, "the machine is moving its shelf"},
                          {"0041", {1}, "the machine is moving its cap"},
                          {"0032", {0, 0, 0}, "the machine is moving its capping station"},
                          {"0029", {0}, "the machine is reading its level sensors"}};
    for (const Work &work : works) {
        const auto firmware = machine(ableMachine());
        EXPECT_EQ(reason(*firmware, work.code, work.parameters), "not refused") << work.code;
        EXPECT_EQ(reason(*firmware, "0017", Tint1000OfCircuit1), work.expected);
    }
    const auto rotating = machine(rotatingMachine());
    EXPECT_EQ(reason(*rotating, "0016", {1, 2, 0, 0}, 1), "not refused");
    EXPECT_EQ(reason(*rotating, "0017", Tint1000OfCircuit1), "the machine is turning its table");
    const QList<int> mix{0, 1, 5, 0, 50, 20, 30, 0};
    const auto mixer = machine(FW_Mixer());
    EXPECT_EQ(reason(*mixer, "0030", {1, 245, 245, 245, 0}), "not refused");
    EXPECT_EQ(reason(*mixer, "0031", mix), "the machine is moving its plates");
    wait(5000);
    EXPECT_EQ(reason(*mixer, "0031", mix), "not refused");
    EXPECT_EQ(reason(*mixer, "0031", mix), "the machine is mixing");
    EXPECT_EQ(reason(*mixer, "0030", {1, 245, 245, 245, 0}), "the machine is mixing");
    wait(5000);
    EXPECT_EQ(reason(*mixer, "0003", {0}), "not refused");
    EXPECT_EQ(reason(*mixer, "0031", mix), "the mixer must be reset");
    EXPECT_EQ(reason(*mixer, "0001"), "not refused");
    EXPECT_EQ(reason(*mixer, "0031", mix), "the machine is resetting");
}

TEST_F(MachineTellsTest, eachCommandThatIsRefusedSaysWhatIsInItsWay)
{
    const auto firmware = machine(ableMachine());
    EXPECT_EQ(ask(*firmware, "0017", Tint1000OfCircuit1), "0");
    const std::pair<const char *, QList<int>> commands[] = {{"0004", {30, 0, 0}},
                                                            {"0005", {50, 30, 0, 0, 0}},
                                                            {"0015", {50, 30, 0, 2, 0}},
                                                            {"0020", {2, 0, 0}},
                                                            {"0023", {1, 1, 1, 0, 50}},
                                                            {"0027", {1, 1, 0, 0, 0}},
                                                            {"0028", {100, 0}},
                                                            {"0029", {0}},
                                                            {"0032", {0, 0, 0}},
                                                            {"0035", {1, 1, 1, 0}},
                                                            {"0041", {1}},
                                                            {"0067", {}},
                                                            {"0071", {1, 0, 0}}};
    for (const auto &[code, parameters] : commands)
        EXPECT_EQ(reason(*firmware, code, parameters), "the machine is pouring") << code;
    wait(6000);
    EXPECT_EQ(ask(*firmware, "0067"), "0");
    EXPECT_EQ(reason(*firmware, "0065", {7, 1, 1, 1}), "the machine is writing its configuration");
    EXPECT_EQ(reason(*firmware, "0001"), "the machine is writing its configuration");
    wait(3000);
    EXPECT_EQ(ask(*firmware, "0001"), "0");
    EXPECT_EQ(reason(*firmware, "0001"), "the machine is resetting");
    const auto rotating = machine(rotatingMachine());
    EXPECT_EQ(ask(*rotating, "0017", Tint1000OfCircuit1), "0");
    EXPECT_EQ(reason(*rotating, "0016", {1, 2, 0, 0}, 1), "the machine is pouring");
    EXPECT_EQ(reason(*rotating, "0018", {0, 245, 1, 1}), "the machine is pouring");
}

TEST_F(MachineTellsTest, anEmergencyEndsTheReadingOfLevels)
{
    const auto firmware = machine(ableMachine(), {{FaultKind::Emergency, 0, 3000, 5000}});
    EXPECT_EQ(ask(*firmware, "0029", {0}), "4 1 1 C8 32");
    wait(2999);
    EXPECT_EQ(status(*firmware), "E 0 1 0 0 0 0 0 F5 F5 0 0 8 0 8");
    wait(1);
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 70 0 0 F5 F5 0 0 0 0 8");
    EXPECT_EQ(ask(*firmware, "0029", {0}), NotAvailable);
    wait(2000);
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 20 0 0 F5 F5 4 0 0 0 8"); // it does not go on
}

TEST_F(MachineTellsTest, aCanIsTold)
{
    const auto firmware = machine(pouringMachine(), {{FaultKind::CanPresent, 0, 0, 1000}});
    EXPECT_EQ(status(*firmware), "E 0 1 0 0 0 8 0 F5 F5 4 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "0043"), "B 46 2 0 60 1 0 0 0 0 0 0");
    wait(1000);
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(MachineTellsTest, aBlockedCircuitGivesNothingAndStalls)
{
    const auto firmware = machine(pouringMachine(), {{FaultKind::CircuitBlocked, 1, 0, 7000}});
    EXPECT_EQ(status(*firmware), "E 0 1 0 0 0 0 0 F5 F5 4 0 4 0 0");
    EXPECT_EQ(status(*firmware, 2), Idle);
    EXPECT_EQ(ask(*firmware, "001A", {10}), "4 1 2 1 2");
    EXPECT_EQ(ask(*firmware, "001A", {13}), "4 1 2 1 2");
    ask(*firmware, "0017", Tint1000OfCircuit1);
    EXPECT_EQ(status(*firmware), "E 0 1 4 40 20 0 0 F5 F5 0 0 4 0 0");
    wait(6000);
    EXPECT_EQ(ask(*firmware, "0074"), "9 1 1 1 0 2 10 4 1 0");
    EXPECT_EQ(ask(*firmware, "000C", {1}), "8 1 1 1 1 3 0 0 0");
    wait(1000);
    EXPECT_EQ(ask(*firmware, "001A", {10}), "2 0 2");
    ask(*firmware, "0017", Tint1000OfCircuit1);
    wait(6000);
    EXPECT_EQ(ask(*firmware, "0074"), "A 1 1 1 0 2 10 4 2 10 4");
}

TEST_F(MachineTellsTest, aCircuitThatBlocksInAPourKeepsTheRest)
{
    FW_Dispenser made = pouringMachine();
    made.getCanisterById(11)->setCurrentQuantity(14); // 1400 steps
    const auto firmware = machine(made, {{FaultKind::CircuitBlocked, 1, 3000, 5000}});
    ask(*firmware, "0017", Tint1000OfCircuit1);
    wait(6000);
    EXPECT_EQ(ask(*firmware, "0074"), "A 1 1 1 0 2 10 4 2 8 2"); // 500
    EXPECT_EQ(ask(*firmware, "000C", {245}), "3 1 0 1");
    EXPECT_EQ(ask(*firmware, "000C", {1}), "8 1 1 1 1 3 0 0 0");
    ask(*firmware, "0017", Tint1000OfCircuit1);
    wait(6000);
    EXPECT_EQ(ask(*firmware, "0074"), "A 1 1 1 0 2 10 4 2 A2 3"); // 900
}

/// The machine that pours, with sensors that fall below 5 strokes: 2000 steps, a quantity of 20.
FW_Dispenser machineWithSensors()
{
    FW_Dispenser made = pouringMachine();
    made.getCanisterById(11)->setCanisterLevelSensor(1);
    made.getCanisterById(12)->setCanisterLevelSensor(1);
    return made;
}

TEST_F(MachineTellsTest, aSensorFallsWhenItsCanisterRunsLow)
{
    FW_Dispenser made = machineWithSensors();
    made.getCanisterById(11)->setCurrentQuantity(25);
    made.getCanisterById(13)->setCurrentQuantity(1); // nobody sees it
    const auto firmware = machine(made);
    EXPECT_EQ(status(*firmware), Idle);
    EXPECT_EQ(ask(*firmware, "001A", {12}), "2 0 2");
    ask(*firmware, "0017", Tint1000OfCircuit1);
    wait(6000);
    EXPECT_EQ(status(*firmware), "E 0 1 0 0 0 0 0 F5 F5 4 40 0 0 0");
    EXPECT_EQ(status(*firmware, 1), "E 0 1 0 0 0 0 0 F5 F5 4 40 0 0 0");
    EXPECT_EQ(status(*firmware, 2), Idle);
    EXPECT_EQ(ask(*firmware, "001A", {12}), "4 1 2 1 2");
    firmware->canisterFilled(11, 500);
    EXPECT_EQ(status(*firmware), Idle);
}

TEST_F(MachineTellsTest, aSensorFallsInAPourWhenSoMuchHasLeft)
{
    FW_Dispenser made = machineWithSensors();
    made.getCanisterById(11)->setCurrentQuantity(25);
    const auto firmware = machine(made);
    ask(*firmware, "0017", Tint1000OfCircuit1);
    wait(3000); // 500 steps: 20 are left
    EXPECT_EQ(status(*firmware), "E 0 1 4 0 0 0 0 F5 F5 0 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "001A", {12}), "2 0 2");
    wait(12);
    EXPECT_EQ(status(*firmware), "E 0 1 4 0 0 0 0 F5 F5 0 40 0 0 0");
    EXPECT_EQ(ask(*firmware, "001A", {12}), "4 1 2 1 2");
}

TEST_F(MachineTellsTest, whereNobodyKnowsAStrokeTheReserveIsTheCriticalLevel)
{
    FW_Dispenser made = machineWithSensors();
    FW_DosingMotor motor;
    motor.setStepsPerStroke(0);
    made.getCircuitByPosition(1)->setDosingMotor(motor);
    made.getCanisterById(11)->setReserveQuantity(30);
    made.getCanisterById(11)->setCurrentQuantity(29);
    made.getCanisterById(12)->setCurrentQuantity(1);
    made.getCanisterById(12)->canisterLevelSensor()->setEnabled(false);
    const auto firmware = machine(made);
    EXPECT_EQ(ask(*firmware, "001A", {12}), "4 1 2 1 2");
    firmware->canisterFilled(11, 30);
    EXPECT_EQ(ask(*firmware, "001A", {12}), "2 0 2");
}

TEST_F(MachineTellsTest, aSensorThatLiesTellsTheOpposite)
{
    FW_Dispenser made = machineWithSensors();
    made.getCanisterById(12)->setCurrentQuantity(19.99);
    const auto firmware =
        machine(made, {{FaultKind::SensorLies, 11, 1000, 2000}, {FaultKind::SensorLies, 12, 1000, 2000}});
    EXPECT_EQ(ask(*firmware, "001A", {12}), "4 1 2 2 2");
    wait(1000);
    EXPECT_EQ(ask(*firmware, "001A", {12}), "4 1 2 1 2");
    wait(1000);
    EXPECT_EQ(ask(*firmware, "001A", {12}), "4 1 2 2 2");
}

TEST_F(MachineTellsTest, aBoardThatRefusesIsToldOnceAndRefusesAllThatIsItsOwn)
{
    const auto firmware = machine(pouringMachine(), {{FaultKind::BoardRefuses, 2, 0, 1000}});
    EXPECT_EQ(status(*firmware, 2), NotAvailable);
    EXPECT_EQ(firmware->execute(QStringLiteral("0006"), 2, {}).reason,
              QStringLiteral("the board at 2 refuses"));
    EXPECT_EQ(status(*firmware), "E 0 1 0 40 20 0 0 F5 F5 4 0 0 0 0");
    EXPECT_EQ(ask(*firmware, "000C", {245}), "3 1 0 1");
    EXPECT_EQ(ask(*firmware, "000C", {1}), "8 1 1 1 2 4 0 0 0");
    EXPECT_EQ(ask(*firmware, "0017", {1, 2, 1, 0, 50, 1, 10, 2, 0, 50, 1, 10}), NotAvailable);
    EXPECT_EQ(ask(*firmware, "0017", {1, 1, 1, 0, 50, 1, 10}), "0");
    wait(1000);
    EXPECT_EQ(ask(*firmware, "0017", {1, 1, 2, 0, 50, 1, 10}), "0");
}

TEST_F(MachineTellsTest, whatHappensAtOnceIsToldInTheOrderOfThePositions)
{
    const auto firmware = machine(pouringMachine(), {{FaultKind::BoardRefuses, 4, 0, {}},
                                                     {FaultKind::BoardRefuses, 2, 0, {}},
                                                     {FaultKind::BoardRefuses, 3, 0, {}},
                                                     {FaultKind::CircuitBlocked, 3, 0, {}},
                                                     {FaultKind::CircuitBlocked, 1, 0, {}},
                                                     {FaultKind::CircuitBlocked, 2, 0, {}}});
    EXPECT_EQ(ask(*firmware, "000C", {1}), "12 1 1 3 2 4 0 0 0 3 4 0 0 0 4 4 0 0 0");
    EXPECT_EQ(ask(*firmware, "001A", {10}), "8 3 2 1 2 2 2 3 2");
}

TEST_F(MachineTellsTest, aLostLinkGivesNoReplyWhileTheMachineGoesOn)
{
    const auto firmware = machine(pouringMachine(), {{FaultKind::LinkLost, 0, 1000, 7000}});
    ask(*firmware, "0017", Tint1000OfCircuit1);
    wait(1000);
    try {
        status(*firmware);
        FAIL();
    } catch (const std::runtime_error &error) {
        EXPECT_STREQ(error.what(), "the firmware gives no reply");
    }
    wait(5999);
    EXPECT_THROW(ask(*firmware, "0099"), std::runtime_error);
    wait(1);
    EXPECT_EQ(ask(*firmware, "0074"), "A 1 1 1 0 2 10 4 2 10 4");
}

TEST_F(MachineTellsTest, theCircuitsOfAPourAreToldUntilTheyAreThrough)
{
    const auto firmware = machine(pouringMachine(1));
    for (int process = 1; process <= 13; ++process)
        EXPECT_EQ(ask(*firmware, "001A", {process}), "2 0 2") << process;
    ask(*firmware, "0017", {1, 2, 1, 0, 50, 2, 16, 4, 2, 0, 50, 2, 16, 4});
    EXPECT_EQ(ask(*firmware, "001A", {1}), "6 2 2 1 3 2 1"); // the second waits
    wait(6000);
    EXPECT_EQ(ask(*firmware, "001A", {1}), "4 1 2 2 3");
    for (const int other : {2, 5, 6, 7, 11})
        EXPECT_EQ(ask(*firmware, "001A", {other}), "2 0 2") << other;
    wait(6000);
    EXPECT_EQ(ask(*firmware, "001A", {1}), "2 0 2");
    for (const QList<int> &wrong : {QList<int>{}, {0}, {14}, {1, 1}})
        EXPECT_EQ(ask(*firmware, "001A", wrong), BadParameters);
    EXPECT_EQ(ask(*machine(FW_Mixer()), "001A", {1}), "refused 6 8 0 0 0 0 0");
}

TEST_F(MachineTellsTest, eachKindOfPourIsAProcessOfItsOwn)
{
    const auto firmware = machine(pouringMachine());
    ask(*firmware, "0035", {66, 1, 6, 1, 7, 50, 3, 2, 16, 4, 1, 90}); // a purge through nozzle valve 3
    EXPECT_EQ(ask(*firmware, "001A", {5}), "4 1 2 1 3");
    EXPECT_EQ(ask(*firmware, "001A", {11}), "4 1 2 1 3");
    wait(6000);
    ask(*firmware, "0024", {2, 1, 1, 7, 50, 1, 3});
    EXPECT_EQ(ask(*firmware, "001A", {6}), "4 1 2 1 3");
    wait(7200);
    ask(*firmware, "0023", {1, 1, 1, 0, 50});
    EXPECT_EQ(ask(*firmware, "001A", {7}), "4 1 2 1 3");
    EXPECT_EQ(ask(*firmware, "001A", {6}), "2 0 2");
}

TEST_F(MachineTellsTest, packsUnderTheCodeOfTintsArePacks)
{
    const auto firmware = machine(pouringMachine());
    EXPECT_EQ(ask(*firmware, "0017", {3, 2, 1, 0, 50, 1, 1, 2, 0, 50, 1, 0}), "0");
    EXPECT_EQ(ask(*firmware, "001A", {7}), "6 2 2 1 3 2 1");
    EXPECT_EQ(ask(*firmware, "001A", {6}), "2 0 2");
    wait(4800);                                                                     // a stroke each
    EXPECT_EQ(ask(*firmware, "0017", {3, 2, 1, 0, 50, 1, 1, 2, 0, 50, 1, 2}), "0"); // one of them pours
    EXPECT_EQ(ask(*firmware, "001A", {7}), "2 0 2");
    EXPECT_EQ(ask(*firmware, "001A", {6}), "6 2 2 1 3 2 1");
}

TEST_F(MachineTellsTest, aStoppedPourEngagesNoCircuit)
{
    const auto firmware = machine(pouringMachine());
    const QList<int> purgeThroughValve3{66, 1, 6, 1, 7, 50, 3, 2, 16, 4, 1, 90};
    for (const char *ends : {"0003", "0001"}) {
        EXPECT_EQ(ask(*firmware, "0035", purgeThroughValve3), "0");
        wait(3000);
        EXPECT_EQ(ask(*firmware, ends, ends == std::string("0003") ? QList<int>{0} : QList<int>()), "0");
        EXPECT_EQ(ask(*firmware, "001A", {5}), "2 0 2") << ends;
        EXPECT_EQ(ask(*firmware, "001A", {11}), "2 0 2") << ends;
    }
}

TEST_F(MachineTellsTest, aResetEngagesAllCircuitsThatAreEnabled)
{
    FW_Dispenser made = pouringMachine();
    made.getCircuitByPosition(2)->setEnabled(false);
    const auto firmware = machine(made);
    ask(*firmware, "0001");
    wait(5999);
    EXPECT_EQ(ask(*firmware, "001A", {8}), "8 3 2 1 3 3 3 4 3");
    EXPECT_EQ(ask(*firmware, "001A", {1}), "2 0 2");
    wait(1);
    EXPECT_EQ(ask(*firmware, "001A", {8}), "2 0 2");
}

TEST_F(MachineTellsTest, aPositionThatTheMachineDoesNotHaveHasNoStatus)
{
    FW_Dispenser made = pouringMachine();
    made.getCircuitByPosition(4)->setEnabled(false);
    const auto firmware = machine(made);
    for (const int position : {5, 200})
        EXPECT_EQ(status(*firmware, position), "refused 6 10 0 0 0 0 0") << position;
    for (const int address : {1, 4, 201, 255}) // the later ones are boards without a circuit
        EXPECT_EQ(status(*firmware, address), Idle) << address;
}

TEST_F(MachineTellsTest, measuresMoveWithinTheHour)
{
    constexpr qint64 Minute = 60000;
    const auto firmware = machine(pouringMachine());
    EXPECT_EQ(ask(*firmware, "0060", {0, 0}), "7 0 0 84 8 0 0 0");   // 21.00 degrees
    EXPECT_EQ(ask(*firmware, "0060", {20, 0}), "7 14 0 F0 A 0 0 0"); // 27.00
    EXPECT_EQ(ask(*firmware, "0060", {0, 1}), "7 0 1 60 18 0 0 0");  // 60.00 %
    EXPECT_EQ(ask(*firmware, "0060", {3, 2}), "7 3 2 90 24 0 0 0");  // 90.00 %
    wait(15 * Minute);
    EXPECT_EQ(ask(*firmware, "0060", {0, 0}), "7 0 0 E8 8 0 0 0");  // 22.00
    EXPECT_EQ(ask(*firmware, "0060", {0, 1}), "7 0 1 8E 17 0 0 0"); // 58.00 %
    wait(15 * Minute);
    EXPECT_EQ(ask(*firmware, "0060", {0, 0}), "7 0 0 56 9 0 0 0"); // 23.00
    wait(30 * Minute);
    EXPECT_EQ(ask(*firmware, "0060", {0, 0}), "7 0 0 84 8 0 0 0");
    EXPECT_EQ(ask(*firmware, "0060", {3, 2}), "7 3 2 2C 24 0 0 0"); // 89.00 %
    wait(49 * 60 * Minute);
    EXPECT_EQ(ask(*firmware, "0060", {3, 2}), "7 3 2 90 24 0 0 0"); // filled anew
    for (const QList<int> &wrong : {QList<int>{}, {0}, {21, 0}, {-1, 0}, {0, 3}, {0, 0, 0}})
        EXPECT_EQ(ask(*firmware, "0060", wrong), BadParameters);
}

TEST_F(MachineTellsTest, workWarmsTheMachine)
{
    const auto firmware = machine(pouringMachine());
    ask(*firmware, "0017", {1, 1, 1, 0, 50, 2, 160, 40}); // a minute
    wait(30000);
    EXPECT_EQ(ask(*firmware, "0060", {0, 0}), "7 0 0 B9 8 0 0 0"); // 21.53, 0.03 of it the hour's
    wait(30000);
    EXPECT_EQ(ask(*firmware, "0060", {0, 0}), "7 0 0 EF 8 0 0 0"); // 22.07
    wait(60000);
    EXPECT_EQ(ask(*firmware, "0060", {0, 0}), "7 0 0 C3 8 0 0 0"); // 21.63, half of the warmth is gone
    wait(180000);
    EXPECT_EQ(ask(*firmware, "0060", {0, 0}), "7 0 0 A5 8 0 0 0"); // 21.33
}

TEST_F(MachineTellsTest, workWarmsWhetherSomebodyLooksOrNot)
{
    FW_Dispenser made = pouringMachine();
    made.setGlobalStirring(true);
    const auto seldom = machine(made, {}, 100);
    const auto often = machine(made, {}, 100);
    for (SimulatedFirmware *firmware : {seldom.get(), often.get()})
        ask(*firmware, "0004", {54, 1, 0}); // 300 s
    for (int look = 0; look < 36; ++look) { // until 6 minutes are over
        ask(*often, "0060", {0, 0});
        wait(100);
    }
    // 21.00, 0.40 of the hour, 5 of the work, of which half a degree is gone
    EXPECT_EQ(ask(*often, "0060", {0, 0}), "7 0 0 82 A 0 0 0");
    EXPECT_EQ(ask(*seldom, "0060", {0, 0}), "7 0 0 82 A 0 0 0");

    const auto looked = machine(made, {}, 100);
    ask(*looked, "0001"); // 6 s
    wait(30);
    EXPECT_EQ(status(*looked), Resetting);
    wait(3570);
    EXPECT_EQ(ask(*looked, "0060", {0, 0}), "7 0 0 AC 8 0 0 0"); // 21.40: what 6 s warm is gone in 12
}

} // namespace
