// SPDX-License-Identifier: LGPL-3.0-or-later
#include "fields.h"
#include "pouring.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_heater.h>

#include <gmock/gmock.h>

#include <memory>

using fields::expectField;
using pouring::dispenser;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kinds[] = {0, 1, 2, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19};

FW_DosingMotor motorOf(int ramp, int transmission, int correction)
{
    FW_DosingMotor motor;
    if (ramp)
        motor.setRamp(FW_Ramp(ramp));
    if (transmission)
        motor.setSingleTransmission(FW_SingleTransmission(transmission));
    if (correction)
        motor.setFlowCorrection(FW_FlowCorrection(correction));
    return motor;
}

/** The circuits of positions 1 and 3 share ramp 2, transmission 3 and correction 4, that of position 2 has others. */
FW_Dispenser sharingDispenser()
{
    FW_Dispenser machine = dispenser();
    machine.getCircuitByPosition(1)->setDosingMotor(motorOf(2, 3, 4));
    machine.getCircuitByPosition(2)->setDosingMotor(motorOf(5, 6, 7));
    machine.getCircuitByPosition(3)->setDosingMotor(motorOf(2, 3, 4));
    return machine;
}

TEST(FW_DispenserConfiguration, hasWorkingModesFrom0To8)
{
    for (int mode = 0; mode <= 8; ++mode)
        EXPECT_TRUE(FW_Dispenser::checkWorkingMode(mode)) << mode;
    for (const int mode : {-1, 9, 245})
        EXPECT_FALSE(FW_Dispenser::checkWorkingMode(mode)) << mode;
}

TEST(FW_DispenserConfiguration, fields)
{
    expectField<FW_Dispenser>("recirculatingParallelism", &FW_Dispenser::recirculatingParallelism,
                              &FW_Dispenser::setRecirculatingParallelism, 1, 4);
    expectField<FW_Dispenser>("stirringParallelism", &FW_Dispenser::stirringParallelism,
                              &FW_Dispenser::setStirringParallelism, 1, 5);
    expectField<FW_Dispenser>("initialWorkingMode", &FW_Dispenser::initialWorkingMode,
                              &FW_Dispenser::setInitialWorkingMode, 1, 2);
    expectField<FW_Dispenser>("powerSupply", &FW_Dispenser::powerSupply, &FW_Dispenser::setPowerSupply, 1, 3);
    expectField<FW_Dispenser>("powerOffDelay", &FW_Dispenser::powerOffDelay, &FW_Dispenser::setPowerOffDelay,
                              60, 61);
    expectField<FW_Dispenser>("postTintingTime", &FW_Dispenser::postTintingTime,
                              &FW_Dispenser::setPostTintingTime, 0, 7);
    expectField<FW_Dispenser>("ledManagement", &FW_Dispenser::ledManagement, &FW_Dispenser::setLedManagement,
                              0, 2);
    expectField<FW_Dispenser>("timedProcessesStartupMask", &FW_Dispenser::timedProcessesStartupMask,
                              &FW_Dispenser::setTimedProcessesStartupMask, 0, 5);
    expectField<FW_Dispenser>("RCSProcessesFwMask", &FW_Dispenser::RCSProcessesFwMask,
                              &FW_Dispenser::setRCSProcesses, 0, 6);
    expectField<FW_Dispenser>("hasGlobalStirring", &FW_Dispenser::hasGlobalStirring,
                              &FW_Dispenser::setGlobalStirring, false, true);
    expectField<FW_Dispenser>("tintingParallelism", &FW_Dispenser::tintingParallelism,
                              &FW_Dispenser::setTintingParallelism, 1, 2);
    expectField<FW_Dispenser>("hasNozzleBasedDosing", &FW_Dispenser::hasNozzleBasedDosing,
                              &FW_Dispenser::setNozzleBasedDosing, false, true);
}

TEST(FW_DispenserConfiguration, comparesTheMachineAndWhatItHolds)
{
    const FW_Dispenser machine = dispenser();
    EXPECT_TRUE(machine == dispenser());
    FW_Dispenser other = machine;
    other.setConfStructureName("structure 4");
    EXPECT_TRUE(other != machine);
    other = machine;
    other.addColorant(FW_Colorant("Z"));
    EXPECT_TRUE(other != machine);
    other = machine;
    other.getCircuitByPosition(1)->setWireBoardId(1);
    EXPECT_TRUE(other != machine);
    other = machine;
    other.setDevice(FW_Autocap());
    EXPECT_TRUE(other != machine);
    FW_Dispenser same = machine;
    same.setDevice(FW_Autocap());
    EXPECT_TRUE(other == same);
    same.getDevice(0)->setEnabled(false);
    EXPECT_TRUE(other != same);
    other = machine;
    other.setConnectivity(4, false);
    EXPECT_TRUE(other != machine);
}

TEST(FW_DispenserConfiguration, connectivity)
{
    FW_Dispenser machine;
    EXPECT_EQ(machine.connectivity(), 1);
    machine.setConnectivity(4, 0);
    EXPECT_EQ(machine.connectivity(), 4);
    machine.setConnectivity(2, true);
    EXPECT_EQ(machine.connectivity(), 6);
}

TEST(FW_DispenserConfiguration, processPauseInUnits)
{
    FW_Dispenser machine;
    EXPECT_EQ(machine.RCSProcessPause(2), 30);
    machine.setRCSProcessPause(7, 2);
    EXPECT_EQ(machine.RCSProcessPause(2), 7);
    EXPECT_EQ(machine.RCSProcessPause(1), 420);
    EXPECT_TRUE(machine != FW_Dispenser());
}

TEST(FW_DispenserConfiguration, modulesAndTheirMask)
{
    FW_Dispenser machine;
    EXPECT_EQ(machine.getFirmwareConfModulesID(), 0);
    machine.setModulesID({1, 3, 31, 32, 0});
    EXPECT_EQ(machine.getFirmwareConfModulesID(), 0x40000005);
    EXPECT_TRUE(machine != FW_Dispenser());
    machine.setFirmwareConfModulesID(10);
    EXPECT_THAT(machine.modulesID(), ElementsAre(2, 4));
    machine.setFirmwareConfModulesID(0x7FFFFFFF);
    EXPECT_EQ(machine.modulesID().size(), 31);
    EXPECT_EQ(machine.getFirmwareConfModulesID(), 0x7FFFFFFF);
}

TEST(FW_DispenserConfiguration, processesCanBeConfiguredWithAMotorForThem)
{
    FW_Dispenser machine = dispenser();
    EXPECT_FALSE(machine.canConfigureRCSProcess());
    machine.getCircuitByPosition(8)->setRecirculationMotor(FW_RecirculationMotor());
    EXPECT_TRUE(machine.canConfigureRCSProcess());
    machine = dispenser();
    machine.getCircuitByPosition(8)->setStirringMotor(FW_StirringMotor());
    EXPECT_TRUE(machine.canConfigureRCSProcess());
    machine = dispenser();
    machine.getCircuitByPosition(8)->setCleaningMotor(FW_CleaningMotor());
    EXPECT_TRUE(machine.canConfigureRCSProcess());
}

TEST(FW_DispenserConfiguration, reserveSensor)
{
    FW_Dispenser machine;
    int type = 8;
    int policy = 9;
    EXPECT_FALSE(machine.getReserveSensorTypeAndPolicyMask(type, policy));
    EXPECT_EQ(type, 8);
    EXPECT_EQ(policy, 9);
    machine.setReserveSensorTypeAndPolicyMask(1, 3, 0);
    ASSERT_TRUE(machine.getReserveSensorTypeAndPolicyMask(type, policy));
    EXPECT_EQ(type, 1);
    EXPECT_EQ(policy, 3);
    machine.setReserveSensorTypeAndPolicyMask(1, 2, true);
    machine.getReserveSensorTypeAndPolicyMask(type, policy);
    EXPECT_EQ(policy, 3);
    machine.setReserveSensorTypeAndPolicyMask(0, 2, false);
    machine.getReserveSensorTypeAndPolicyMask(type, policy);
    EXPECT_EQ(type, 0);
    EXPECT_EQ(policy, 2);
    EXPECT_TRUE(machine != FW_Dispenser());
}

TEST(FW_DispenserConfiguration, masterPositionIsTheLowestOfTheCanister)
{
    FW_Dispenser machine;
    machine.addCanister(pouring::canister(1, "", 0, {pouring::circuit(1, 9, 0), pouring::circuit(2, 4, 0)}));
    machine.addCanister(FW_Canister(2));
    EXPECT_EQ(machine.getCLS_MasterPositionID(1), 4);
    EXPECT_EQ(machine.getCLS_MasterPositionID(2), 0);
    EXPECT_EQ(machine.getCLS_MasterPositionID(3), 0);
}

TEST(FW_DispenserConfiguration, integratedNozzleValves)
{
    FW_Dispenser machine;
    EXPECT_FALSE(machine.hasIntegratedNozzleValveSystem());
    machine.setINVTypeFromValve(4);
    EXPECT_FALSE(machine.hasIntegratedNozzleValveSystem());
    machine.setINVTypeFromValve(3);
    EXPECT_TRUE(machine.hasIntegratedNozzleValveSystem());
    EXPECT_EQ(machine.INVType(), 1);
    machine.setINVTypeFromValve(5);
    EXPECT_EQ(machine.INVType(), 2);
    machine.setINVTypeFromValve(1);
    EXPECT_EQ(machine.INVType(), 2);
    EXPECT_TRUE(machine != FW_Dispenser());
}

TEST(FW_DispenserConfiguration, addsCanistersAtAPlace)
{
    FW_Dispenser machine;
    EXPECT_TRUE(machine.addCanister(FW_Canister(1), -1, 0));
    EXPECT_TRUE(machine.addCanister(FW_Canister(2), -1, 0));
    EXPECT_TRUE(machine.addCanister(FW_Canister(3), 1, 0));
    EXPECT_TRUE(machine.addCanister(FW_Canister(4), 9, 0));
    FW_Canister again(2);
    again.setMaximumQuantity(700);
    EXPECT_FALSE(machine.addCanister(again, -1, 0));
    ASSERT_EQ(machine.canisters().size(), 4);
    EXPECT_EQ(machine.canisters()[0].id(), 1);
    EXPECT_EQ(machine.canisters()[1].id(), 3);
    EXPECT_EQ(machine.canisters()[2].id(), 2);
    EXPECT_EQ(machine.canisters()[3].id(), 4);
    EXPECT_EQ(machine.canisters()[2].maximumQuantity(), 0);
    EXPECT_TRUE(machine.addCanister(again, 0, 1));
    ASSERT_EQ(machine.canisters().size(), 4);
    EXPECT_EQ(machine.canisters()[2].maximumQuantity(), 700);
}

TEST(FW_DispenserConfiguration, addsCircuits)
{
    FW_Dispenser machine;
    machine.addCanister(pouring::canister(1, "", 0, {pouring::circuit(1, 5, 0), pouring::circuit(3, 6, 0)}));
    machine.addCanister(FW_Canister(2));
    const FW_Circuit *added = machine.addNewCircuit(2, 7, 0);
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->id(), 2);
    EXPECT_EQ(added->positionId(), 7);
    EXPECT_TRUE(added->hasDosingMotor());
    ASSERT_NE(machine.getCanisterOfCircuitID(2), nullptr);
    EXPECT_EQ(machine.getCanisterOfCircuitID(2)->id(), 2);
    added = machine.addNewCircuit(FW_Canister(1), 8, 0);
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->id(), 4);
    added = machine.addNewCircuit(1, 9, 20);
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->id(), 20);
    EXPECT_EQ(machine.addNewCircuit(3, 10, 0), nullptr);  // no such canister
    EXPECT_EQ(machine.addNewCircuit(1, 0, 0), nullptr);   // no position
    EXPECT_EQ(machine.addNewCircuit(1, 5, 0), nullptr);   // another circuit's
    EXPECT_EQ(machine.addNewCircuit(1, 10, 20), nullptr); // another circuit's ID
    EXPECT_EQ(machine.getCircuits().size(), 5);
}

TEST(FW_DispenserConfiguration, motorsOfAllCircuits)
{
    FW_Dispenser machine = dispenser();
    EXPECT_THAT(machine.stirringMotors(), IsEmpty());
    EXPECT_EQ(machine.firstStirringMotor(), nullptr);
    EXPECT_THAT(machine.cleaningMotors(), IsEmpty());
    EXPECT_EQ(machine.firstCleaningMotor(), nullptr);
    FW_StirringMotor stirring;
    stirring.setSpeed(5);
    machine.getCircuitByPosition(3)->setStirringMotor(stirring);
    ASSERT_NE(machine.firstStirringMotor(), nullptr);
    EXPECT_EQ(machine.firstStirringMotor()->speed(), 5);
    EXPECT_EQ(machine.stirringMotors().size(), 1);
    machine.setStirringMotor(FW_StirringMotor());
    EXPECT_EQ(machine.stirringMotors().size(), 8);
    EXPECT_EQ(machine.firstStirringMotor()->speed(), 100);
    FW_CleaningMotor cleaning;
    cleaning.setDuration(44);
    machine.getCircuitByPosition(1)->addCleaningMotor(FW_CleaningMotor());
    machine.setCleaningMotor(cleaning);
    EXPECT_EQ(machine.cleaningMotors().size(), 8);
    EXPECT_EQ(machine.firstCleaningMotor()->duration(), 44);
    const FW_Dispenser before = machine;
    for (FW_CleaningMotor *motor : machine.changeableCleaningMotors())
        motor->setDuration(55);
    for (const FW_CleaningMotor *motor : qAsConst(machine).cleaningMotors())
        EXPECT_EQ(motor->duration(), 55);
    EXPECT_EQ(before.firstCleaningMotor()->duration(), 44);
    machine.removeAllCleaningMotors();
    EXPECT_THAT(machine.cleaningMotors(), IsEmpty());
    EXPECT_EQ(before.cleaningMotors().size(), 8);
}

TEST(FW_DispenserConfiguration, referencesOfCircuits)
{
    const FW_Dispenser machine = sharingDispenser();
    EXPECT_EQ(machine.getRampConfigRefByCircuitID(11), 2);
    EXPECT_EQ(machine.getSingleTransmissionConfigRefByCircuitID(11), 3);
    EXPECT_EQ(machine.getFlowCorrectionConfigRefByCircuitID(11), 4);
    EXPECT_EQ(machine.getRampConfigRefByCircuitID(12), 5);
    for (const int without : {31, 99}) {
        EXPECT_EQ(machine.getRampConfigRefByCircuitID(without), 0);
        EXPECT_EQ(machine.getSingleTransmissionConfigRefByCircuitID(without), 0);
        EXPECT_EQ(machine.getFlowCorrectionConfigRefByCircuitID(without), 0);
    }
    EXPECT_TRUE(machine.existsRampConfigRef(2));
    EXPECT_TRUE(machine.existsSingleTransmissionConfigRef(3));
    EXPECT_TRUE(machine.existsFlowCorrectionConfigRef(4));
    for (const int none : {-1, 0, 1}) {
        EXPECT_FALSE(machine.existsRampConfigRef(none));
        EXPECT_FALSE(machine.existsSingleTransmissionConfigRef(none));
        EXPECT_FALSE(machine.existsFlowCorrectionConfigRef(none));
        EXPECT_EQ(machine.getRampByConfigRef(none), nullptr);
        EXPECT_EQ(machine.getSingleTransmissionByConfigRef(none), nullptr);
        EXPECT_EQ(machine.getFlowCorrectionByConfigRef(none), nullptr);
    }
}

TEST(FW_DispenserConfiguration, updatesThePartOfEveryMotorOfAReference)
{
    FW_Dispenser machine = sharingDispenser();
    const FW_Dispenser before = machine;
    FW_Ramp ramp(77);
    ramp.setSlowSpeed(9);
    EXPECT_TRUE(machine.updateRampData(2, ramp));
    EXPECT_EQ(machine.getRampByConfigRef(2)->slowSpeed(), 9);
    EXPECT_EQ(machine.getCircuitById(21)->dosingMotor().ramp()->slowSpeed(), 9);
    EXPECT_EQ(machine.getCircuitById(21)->dosingMotor().rampConfigRef(), 2);
    EXPECT_EQ(machine.getRampByConfigRef(5)->slowSpeed(), 15);
    FW_SingleTransmission transmission;
    transmission.y1 = 3.5;
    EXPECT_TRUE(machine.updateSingleTransmissionData(3, transmission));
    EXPECT_EQ(machine.getSingleTransmissionByConfigRef(3)->y1, 3.5);
    EXPECT_EQ(machine.getCircuitById(21)->dosingMotor().singleTransmission()->y1, 3.5);
    EXPECT_EQ(machine.getSingleTransmissionByConfigRef(6)->y1, 10);
    FW_FlowCorrection correction;
    correction.topDelay = 2.5;
    EXPECT_TRUE(machine.updateFlowCorrectionData(4, correction));
    EXPECT_EQ(machine.getFlowCorrectionByConfigRef(4)->topDelay, 2.5);
    EXPECT_EQ(machine.getCircuitById(21)->dosingMotor().flowCorrection()->topDelay, 2.5);
    EXPECT_EQ(machine.getFlowCorrectionByConfigRef(7)->topDelay, 0.5);
    EXPECT_EQ(before.getRampByConfigRef(2)->slowSpeed(), 15);
    EXPECT_EQ(before.getSingleTransmissionByConfigRef(3)->y1, 10);
    EXPECT_EQ(before.getFlowCorrectionByConfigRef(4)->topDelay, 0.5);
}

TEST(FW_DispenserConfiguration, updatesNothingWithoutTheReference)
{
    FW_Dispenser machine = sharingDispenser();
    for (const int none : {-1, 0, 1}) {
        EXPECT_FALSE(machine.updateRampData(none, FW_Ramp()));
        EXPECT_FALSE(machine.updateSingleTransmissionData(none, FW_SingleTransmission()));
        EXPECT_FALSE(machine.updateFlowCorrectionData(none, FW_FlowCorrection()));
    }
    EXPECT_TRUE(machine == sharingDispenser());
}

TEST(FW_DispenserConfiguration, motorsOfATransmission)
{
    FW_Dispenser machine = sharingDispenser();
    const FW_Dispenser before = machine;
    EXPECT_EQ(before.getDosingMotorsBySingleTransmissionConfigRef(3).size(), 2);
    EXPECT_EQ(before.getDosingMotorsBySingleTransmissionConfigRef(6).size(), 1);
    EXPECT_THAT(before.getDosingMotorsBySingleTransmissionConfigRef(0), IsEmpty());
    EXPECT_THAT(machine.getDosingMotorsBySingleTransmissionConfigRef(0), IsEmpty());
    for (FW_DosingMotor *motor : machine.getDosingMotorsBySingleTransmissionConfigRef(3))
        motor->setSmartSpeedReduction(true);
    EXPECT_TRUE(machine.getCircuitById(11)->dosingMotor().hasSmartSpeedReduction());
    EXPECT_FALSE(machine.getCircuitById(12)->dosingMotor().hasSmartSpeedReduction());
    EXPECT_TRUE(machine.getCircuitById(21)->dosingMotor().hasSmartSpeedReduction());
    EXPECT_FALSE(before.getCircuitById(11)->dosingMotor().hasSmartSpeedReduction());
}

TEST(FW_DispenserConfiguration, createsDevicesOnce)
{
    FW_Dispenser machine;
    for (const int kind : kinds) {
        SCOPED_TRACE(kind);
        EXPECT_FALSE(machine.hasDevice(kind));
        EXPECT_EQ(machine.getDevice(kind), nullptr);
        EXPECT_TRUE(machine.createDevice(kind));
        ASSERT_TRUE(machine.hasDevice(kind));
        EXPECT_EQ(machine.getDevice(kind)->kind(), kind);
        machine.getDevice(kind)->setEnabled(false);
        EXPECT_FALSE(machine.createDevice(kind));
        EXPECT_FALSE(machine.getDevice(kind)->isEnabled());
    }
    for (const int kind : {-1, 3, 4, 14, 20}) {
        EXPECT_FALSE(machine.createDevice(kind));
        EXPECT_FALSE(machine.hasDevice(kind));
    }
}

TEST(FW_DispenserConfiguration, setsDevicesByTheirKind)
{
    FW_Dispenser machine;
    for (const int kind : kinds) {
        SCOPED_TRACE(kind);
        const std::unique_ptr<FW_Device> device = FW_Device::create(kind);
        machine.setDevice(*device);
        ASSERT_TRUE(machine.hasDevice(kind));
        EXPECT_TRUE(*machine.getDevice(kind) == *device);
        device->setEnabled(false);
        EXPECT_TRUE(machine.getDevice(kind)->isEnabled()); // a copy
        machine.setDevice(*device);
        EXPECT_FALSE(machine.getDevice(kind)->isEnabled());
    }
}

TEST(FW_DispenserConfiguration, aChangedDeviceLeavesCopiesOfTheMachine)
{
    FW_Dispenser machine;
    machine.setDevice(FW_Heater());
    const FW_Dispenser copy = machine;
    auto *heater = dynamic_cast<FW_Heater *>(machine.getDevice(11));
    ASSERT_NE(heater, nullptr);
    heater->setLowTemperatureThreshold(3);
    const auto lowest = [](const FW_Dispenser &m) {
        return dynamic_cast<const FW_Heater &>(*m.getDevice(11)).lowTemperatureThreshold();
    };
    EXPECT_EQ(lowest(machine), 3);
    EXPECT_EQ(lowest(copy), 18);
    EXPECT_EQ(machine.getDevice(11), heater); // not shared any more
}

TEST(FW_CircuitConfiguration, dosingMotorCanBeRemoved)
{
    FW_Circuit circuit(1, 1);
    EXPECT_TRUE(circuit.hasDosingMotor());
    FW_DosingMotor motor;
    motor.setMaxSpeed(77);
    circuit.setDosingMotor(motor, 2);
    EXPECT_EQ(circuit.maxSpeed(), 77);
    circuit.removeDosingMotor();
    EXPECT_FALSE(circuit.hasDosingMotor());
    EXPECT_EQ(circuit.maxSpeed(), 50);
    EXPECT_FALSE(circuit == FW_Circuit(1, 1));
    circuit.setDosingMotor(FW_DosingMotor());
    EXPECT_TRUE(circuit.hasDosingMotor());
    EXPECT_TRUE(circuit == FW_Circuit(1, 1));
}

TEST(FW_CircuitConfiguration, aNewDosingMotorMayKeepTheReferences)
{
    FW_Circuit circuit(1, 1);
    circuit.setDosingMotor(motorOf(2, 3, 0));
    circuit.setDosingMotor(motorOf(5, 0, 7), FW_Circuit::KeepReferences);
    EXPECT_EQ(circuit.dosingMotor().rampConfigRef(), 2);
    EXPECT_EQ(circuit.dosingMotor().singleTransmissionConfigRef(), 3);
    EXPECT_EQ(circuit.dosingMotor().flowCorrectionConfigRef(), 0);
    circuit.setDosingMotor(motorOf(5, 0, 7), 2);
    EXPECT_EQ(circuit.dosingMotor().rampConfigRef(), 5);
    EXPECT_EQ(circuit.dosingMotor().singleTransmissionConfigRef(), 0);
    EXPECT_EQ(circuit.dosingMotor().flowCorrectionConfigRef(), 7);

    circuit.setDosingMotor(motorOf(0, 0, 7), FW_Circuit::ReplaceAll);
    circuit.setDosingMotor(motorOf(2, 3, 0), FW_Circuit::KeepReferences);
    EXPECT_EQ(circuit.dosingMotor().rampConfigRef(), 0);
    EXPECT_EQ(circuit.dosingMotor().singleTransmissionConfigRef(), 0);
    EXPECT_EQ(circuit.dosingMotor().flowCorrectionConfigRef(), 7);
}

TEST(FW_CircuitConfiguration, valvesByTheirId)
{
    FW_Circuit circuit;
    EXPECT_EQ(circuit.firstValve(), nullptr);
    circuit.addValve(FW_Valve(4));
    circuit.addValve(FW_Valve(5));
    FW_Valve again(4);
    again.setValveType(3);
    circuit.addValve(again);
    ASSERT_EQ(circuit.valves().size(), 2);
    EXPECT_EQ(circuit.firstValve()->id(), 4);
    EXPECT_EQ(circuit.firstValve()->valveType(), 3);
}

TEST(FW_CircuitConfiguration, motorsAndWires)
{
    FW_Circuit circuit(1, 1);
    EXPECT_EQ(circuit.firstStirringMotor(), nullptr);
    EXPECT_EQ(circuit.firstRecirculationMotor(), nullptr);
    EXPECT_EQ(circuit.firstCleaningMotor(), nullptr);
    const auto expectEffect = [](auto change, auto undo) {
        FW_Circuit changed(1, 1);
        change(changed);
        EXPECT_FALSE(changed == FW_Circuit(1, 1));
        const FW_Circuit copy = changed;
        undo(changed);
        EXPECT_TRUE(changed == FW_Circuit(1, 1));
        EXPECT_FALSE(copy == changed);
    };
    expectEffect([](FW_Circuit &c) { c.setStirringMotor(FW_StirringMotor()); },
                 [](FW_Circuit &c) { c.removeStirringMotors(); });
    expectEffect([](FW_Circuit &c) { c.setRecirculationMotor(FW_RecirculationMotor()); },
                 [](FW_Circuit &c) { c.removeRecirculationMotors(); });
    expectEffect([](FW_Circuit &c) { c.setCleaningMotor(FW_CleaningMotor()); },
                 [](FW_Circuit &c) { c.removeCleaningMotors(); });
    expectEffect([](FW_Circuit &c) { c.setWireBoardId(3); }, [](FW_Circuit &c) { c.setWireBoardId(0); });
    expectEffect([](FW_Circuit &c) { c.setWireConnectorId(3); },
                 [](FW_Circuit &c) { c.setWireConnectorId(0); });
    expectEffect([](FW_Circuit &c) { c.setPositionId(9, ""); }, [](FW_Circuit &c) { c.setPositionId(1); });
    FW_StirringMotor motor;
    motor.setSpeed(3);
    circuit.setStirringMotor(FW_StirringMotor());
    circuit.setStirringMotor(motor);
    EXPECT_EQ(circuit.stirringMotors().size(), 1);
    EXPECT_EQ(circuit.firstStirringMotor()->speed(), 3);
}

TEST(FW_CanisterConfiguration, automaticLevels)
{
    FW_Canister canister(3);
    canister.setMaximumQuantity(2500);
    canister.setAutoReserveQuantity();
    canister.setAutoReserveWarning();
    EXPECT_EQ(canister.reserveQuantity(), 250);
    EXPECT_EQ(canister.warningQuantity(), 500);
}

TEST(FW_CanisterConfiguration, layoutPositions)
{
    FW_Canister canister(3);
    EXPECT_THAT(canister.layoutPositionsId(), IsEmpty());
    canister.setLayoutPositionsId({4, 6}, "");
    EXPECT_THAT(canister.layoutPositionsId(), ElementsAre(4, 6));
    EXPECT_FALSE(canister == FW_Canister(3));
    for (const int position : {9, 0, 9, 245, 2})
        canister.addCircuit(FW_Circuit(position, position));
    canister.autoSetLayoutPositionsId();
    EXPECT_THAT(canister.layoutPositionsId(), ElementsAre(9, 2));
    EXPECT_FALSE(FW_Canister::checkLayoutPositionId(0, ""));
    EXPECT_TRUE(FW_Canister::checkLayoutPositionId(1, ""));
    EXPECT_TRUE(FW_Canister::checkLayoutPositionId(244, ""));
    EXPECT_FALSE(FW_Canister::checkLayoutPositionId(245, ""));
}

TEST(FW_CanisterConfiguration, activationFlag)
{
    expectField<FW_Canister>("activationFlag", &FW_Canister::activationFlag, &FW_Canister::setActivationFlag,
                             false, true);
}

TEST(FW_CanisterConfiguration, copiesHaveALevelSensorOfTheirOwn)
{
    FW_Canister canister(3);
    EXPECT_EQ(canister.canisterLevelSensor(), nullptr);
    canister.setCanisterLevelSensor(1);
    ASSERT_NE(canister.canisterLevelSensor(), nullptr);
    EXPECT_EQ(canister.canisterLevelSensor()->criticalLevel(), 500);
    EXPECT_FALSE(canister == FW_Canister(3));
    FW_Canister copy = canister;
    ASSERT_NE(copy.canisterLevelSensor(), nullptr);
    EXPECT_NE(copy.canisterLevelSensor(), canister.canisterLevelSensor());
    copy.canisterLevelSensor()->setCriticalLevel(7);
    EXPECT_EQ(canister.canisterLevelSensor()->criticalLevel(), 500);
    EXPECT_FALSE(copy == canister);
    canister.setCanisterLevelSensor(0);
    EXPECT_EQ(canister.canisterLevelSensor(), nullptr);
    EXPECT_NE(copy.canisterLevelSensor(), nullptr);
}

TEST(FW_CanisterConfiguration, copiesOfTheMachineHaveALevelSensorOfTheirOwn)
{
    FW_Dispenser machine = dispenser();
    machine.getCanisterById(1)->setCanisterLevelSensor(1);
    const std::unique_ptr<FW_Dispenser> clone(machine.clone());
    EXPECT_TRUE(*clone == machine);
    clone->getCanisterById(1)->canisterLevelSensor()->setCriticalLevel(7);
    EXPECT_EQ(machine.getCanisterById(1)->canisterLevelSensor()->criticalLevel(), 500);
    EXPECT_FALSE(*clone == machine);
}

} // namespace
