// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/machinedriverstatusanswer.h"

#include "status/dispenserstatusanswer.h"
#include "status/driverstatustesting.h"
#include "status/mixerstatusanswer.h"

namespace {

using namespace testing_status;
using Answer = MachineDriverStatusAnswer;

/** A machine at rest that takes all commands. */
DispenserStatusAnswer resting()
{
    DispenserStatusAnswer answer;
    answer.setStatus(1);
    return answer;
}

/** The four tests of what a machine is ready for, in the order of what they ask. */
struct Readiness
{
    bool commands;
    bool processes;
    bool available;
    bool ready;
};

void expectReadiness(const MachineStatus *status, const MachineStatusAnswer *machine,
                     const Readiness &expected)
{
    const Answer answer(status, machine);
    EXPECT_EQ(answer.acceptCommands(), expected.commands);
    EXPECT_EQ(answer.acceptProcessCommands(), expected.processes);
    EXPECT_EQ(answer.acceptPOScommands(), expected.available);
    EXPECT_EQ(answer.readyForPOScommands(), expected.ready);
}

TEST(MachineDriverStatusAnswer, startsWithoutBoth)
{
    const Answer answer;
    EXPECT_FALSE(answer.hasMachineStatus());
    EXPECT_EQ(answer.machineStatus(), nullptr);
    EXPECT_FALSE(answer.hasMachineStatusAnswer());
    EXPECT_EQ(answer.machineStatusAnswer(), nullptr);
}

TEST(MachineDriverStatusAnswer, holdsClonesOfBoth)
{
    const DispenserStatus status = filledDispenserStatus();
    const DispenserStatusAnswer machine = resting();
    Answer answer(&status, &machine);
    EXPECT_TRUE(answer.hasMachineStatus() && answer.hasMachineStatusAnswer());
    EXPECT_NE(answer.machineStatus(), &status);
    EXPECT_NE(answer.machineStatusAnswer(), &machine);
    EXPECT_EQ(*answer.machineStatus(), status);
    EXPECT_EQ(answer.machineStatusAnswer()->status(), 1);
    const Answer copy = answer;
    answer.setMachineStatus(answer.machineStatus()); // its own
    answer.setMachineStatusAnswer(answer.machineStatusAnswer());
    EXPECT_TRUE(answer == &copy);
    answer.setMachineStatus(nullptr);
    answer.setMachineStatusAnswer(nullptr);
    EXPECT_FALSE(answer.hasMachineStatus() || answer.hasMachineStatusAnswer());
    EXPECT_EQ(*copy.machineStatus(), status);
    answer = copy;
    EXPECT_TRUE(answer == &copy);
}

TEST(MachineDriverStatusAnswer, activatesItsMachine)
{
    const MachineStatus status;
    Answer answer(&status, nullptr);
    answer.setActiveMachine(true);
    EXPECT_TRUE(answer.machineStatus()->active);
    answer.setActiveMachine(false);
    EXPECT_FALSE(answer.machineStatus()->active);
    Answer none;
    none.setActiveMachine(true);
    EXPECT_FALSE(none.hasMachineStatus());
}

TEST(MachineDriverStatusAnswer, isReadyForNothingWithoutAnything)
{
    expectReadiness(nullptr, nullptr, {false, false, false, false});
}

TEST(MachineDriverStatusAnswer, isReadyWhenDriverAndMachineAre)
{
    const DispenserStatus status = activeDispenser();
    const DispenserStatusAnswer machine = resting();
    expectReadiness(&status, &machine, {true, true, true, true});
    expectReadiness(nullptr, &machine, {true, true, false, false});
}

TEST(MachineDriverStatusAnswer, isAvailableButNotReadyWithoutTheFirmwaresWord)
{
    const DispenserStatus status = activeDispenser();
    expectReadiness(&status, nullptr, {false, false, true, false});
}

TEST(MachineDriverStatusAnswer, isNotAvailableWhileTheDriverHasMoreUnderWay)
{
    const DispenserStatusAnswer machine = resting();
    for (const auto flag : {&MachineStatus::active, &MachineStatus::conf_mng, &MachineStatus::fw_update,
                            &MachineStatus::stats_mng}) {
        const DispenserStatus status = changed(activeDispenser(), flag);
        expectReadiness(&status, &machine, {true, true, false, false});
        expectReadiness(&status, nullptr, {false, false, false, false});
    }
    for (const auto flag :
         {&DispenserStatus::slave_scan, &DispenserStatus::grav_sw_dose, &DispenserStatus::scale_mngm}) {
        DispenserStatus status = activeDispenser();
        status.*flag = true;
        expectReadiness(&status, &machine, {true, true, true, true});
    }
}

TEST(MachineDriverStatusAnswer, acceptsNoProcessUnlessTheMachineIsAtRest)
{
    const DispenserStatus status = activeDispenser();
    for (int number : {2, 0, 3}) {
        DispenserStatusAnswer machine = resting();
        machine.setStatus(number);
        expectReadiness(&status, &machine, {true, false, true, false});
    }
}

TEST(MachineDriverStatusAnswer, acceptsNothingThatTheMachineDoesNot)
{
    const DispenserStatus status = activeDispenser();
    for (const auto flag :
         {&MachineStatusAnswer::board_not_initialized, &MachineStatusAnswer::dispenser_not_ready,
          &MachineStatusAnswer::emergency_pressed, &MachineStatusAnswer::offline_pressed}) {
        DispenserStatusAnswer machine = resting();
        machine.*flag = true;
        expectReadiness(&status, &machine, {false, false, true, false});
    }
}

TEST(MachineDriverStatusAnswer, isNotReadyInReservedModeOrInTheBootLoader)
{
    const DispenserStatus status = activeDispenser();
    DispenserStatusAnswer reserved = resting();
    reserved.normal_wm = false;
    expectReadiness(&status, &reserved, {true, true, true, false});
    DispenserStatusAnswer booting = resting();
    booting.BL_active = true;
    expectReadiness(&status, &booting, {true, true, true, false});
}

TEST(MachineDriverStatusAnswer, asksMixersLikewise)
{
    MixerStatus status(filledMixerInfo());
    status.active = true;
    MixerStatusAnswer machine;
    machine.setStatus(1);
    expectReadiness(&status, &machine, {true, true, true, true});
    machine.setStatus(2);
    expectReadiness(&status, &machine, {true, false, true, false});
}

TEST(MachineDriverStatusAnswer, comparesBothAsAWhole)
{
    const DispenserStatus status = activeDispenser();
    const DispenserStatusAnswer machine = resting();
    const Answer answer(&status, &machine);
    const Answer same = answer;
    EXPECT_TRUE(answer == &same);
    EXPECT_FALSE(answer != &same);
    EXPECT_TRUE(answer.mds_equalTo(&same));
    EXPECT_FALSE(answer == static_cast<const Answer *>(nullptr));
    EXPECT_FALSE(answer.mds_equalTo(nullptr));
    EXPECT_TRUE(answer != static_cast<const Answer *>(nullptr));

    const Answer none;
    const Answer noMachine(&status, nullptr);
    const Answer noStatus(nullptr, &machine);
    DispenserStatus scanning = status;
    scanning.slave_scan = true;
    const Answer ofScan(&scanning, &machine);
    DispenserStatusAnswer tinting = machine;
    tinting.tinting = true;
    const Answer ofTint(&status, &tinting);
    MixerStatusAnswer mixer;
    mixer.setStatus(1);
    const Answer ofMixer(&status, &mixer);
    for (const Answer *other : {&none, &noMachine, &noStatus, &ofScan, &ofTint, &ofMixer}) {
        EXPECT_FALSE(answer == other);
        EXPECT_FALSE(*other == &answer);
        EXPECT_FALSE(other->mds_equalTo(&answer));
        EXPECT_TRUE(*other == other);
    }
}

} // namespace
