// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinefile.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_brush.h>
#include <QuvFramework/fw_brush2.h>
#include <QuvFramework/fw_bungholelocator.h>
#include <QuvFramework/fw_canpresencesensor.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_heater.h>
#include <QuvFramework/fw_humidifier.h>
#include <QuvFramework/fw_lineartable.h>
#include <QuvFramework/fw_lock.h>
#include <QuvFramework/fw_nozzlelight.h>
#include <QuvFramework/fw_nozzlevalve.h>
#include <QuvFramework/fw_offline.h>
#include <QuvFramework/fw_plcboard.h>
#include <QuvFramework/fw_shelf.h>
#include <QuvFramework/fw_temperaturesensor.h>
#include <QuvFramework/fw_turntable.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>
#include <QuvFramework/fw_version.h>

#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using quv::machineFileOf;
using quv::readMachineFile;

/// What a test changes of a dispenser, with a name.
struct Change
{
    const char *name;
    std::function<void(FW_Dispenser &)> apply;
};
using Changes = std::vector<Change>;

// Each makes a change by the setter and its arguments; a device or motor that is not there is made first.

template <class Set, class... Args>
auto onDispenser(Set set, Args... args)
{
    return [=](FW_Dispenser &dispenser) { std::invoke(set, dispenser, args...); };
}

template <class Set, class... Args>
auto onCanister(Set set, Args... args)
{
    return [=](FW_Dispenser &dispenser) { std::invoke(set, *dispenser.getCanisterById(1), args...); };
}

template <class Set, class... Args>
auto onLevelSensor(Set set, Args... args)
{
    return onCanister([=](FW_Canister &canister) {
        if (!canister.canisterLevelSensor())
            canister.setCanisterLevelSensor(1);
        std::invoke(set, *canister.canisterLevelSensor(), args...);
    });
}

template <class Set, class... Args>
auto onCircuit(Set set, Args... args)
{
    return [=](FW_Dispenser &dispenser) { std::invoke(set, *dispenser.getCircuitById(1), args...); };
}

template <class Set, class... Args>
auto onDosingMotor(Set set, Args... args)
{
    return onCircuit(
        [=](FW_Circuit &circuit) { std::invoke(set, circuit.changeableDosingMotor(), args...); });
}

/// A part that its owner gives by pointer and takes as a copy.
template <class Owner, class Part, class Set, class... Args>
void changePart(Owner &owner, const Part *(Owner::*get)() const, void (Owner::*give)(const Part &), Set set,
                Args... args)
{
    const Part *known = (owner.*get)();
    Part part = known ? *known : Part();
    std::invoke(set, part, args...);
    (owner.*give)(part);
}

template <class Set, class... Args>
auto onStirringMotor(Set set, Args... args)
{
    return onCircuit([=](FW_Circuit &circuit) {
        changePart(circuit, &FW_Circuit::firstStirringMotor, &FW_Circuit::setStirringMotor, set, args...);
    });
}

template <class Set, class... Args>
auto onRecirculationMotor(Set set, Args... args)
{
    return onCircuit([=](FW_Circuit &circuit) {
        changePart(circuit, &FW_Circuit::firstRecirculationMotor, &FW_Circuit::setRecirculationMotor, set,
                   args...);
    });
}

template <class Set, class... Args>
auto onCleaningMotor(Set set, Args... args)
{
    return onCircuit([=](FW_Circuit &circuit) {
        changePart(circuit, &FW_Circuit::firstCleaningMotor, &FW_Circuit::setCleaningMotor, set, args...);
    });
}

template <class Set, class... Args>
auto onRamp(Set set, Args... args)
{
    return onDosingMotor([=](FW_DosingMotor &motor) {
        changePart(motor, &FW_DosingMotor::ramp, &FW_DosingMotor::setRamp, set, args...);
    });
}

template <class Value>
auto onTransmission(Value FW_SingleTransmission::*member, Value value)
{
    return onDosingMotor([=](FW_DosingMotor &motor) {
        changePart(motor, &FW_DosingMotor::singleTransmission, &FW_DosingMotor::setSingleTransmission,
                   [=](FW_SingleTransmission &part) { part.*member = value; });
    });
}

template <class Value>
auto onCorrection(Value FW_FlowCorrection::*member, Value value)
{
    return onDosingMotor([=](FW_DosingMotor &motor) {
        changePart(motor, &FW_DosingMotor::flowCorrection, &FW_DosingMotor::setFlowCorrection,
                   [=](FW_FlowCorrection &part) { part.*member = value; });
    });
}

template <class Device, class Set, class... Args>
auto onDevice(Set set, Args... args)
{
    return [=](FW_Dispenser &dispenser) {
        const int kind = Device().kind();
        dispenser.createDevice(kind);
        std::invoke(set, dynamic_cast<Device &>(*dispenser.getDevice(kind)), args...);
    };
}

/// A dispenser with one canister and one circuit.
FW_Dispenser plainDispenser()
{
    FW_Dispenser dispenser;
    dispenser.addCanister(FW_Canister(1));
    dispenser.addNewCircuit(1, 1, 1);
    return dispenser;
}

// Every value of a dispenser, each other than its default.

Changes machineChanges()
{
    using D = FW_Dispenser;
    return {
        {"id", onDispenser(&D::setId, 7)},
        {"model", onDispenser(&D::setModel, MachineModel::Lumina)},
        {"model_name", onDispenser(&D::setModelName, QString("LUMINA 16"))},
        {"sid", onDispenser(&D::setSID, QString("00123"))},
        {"description", onDispenser(&D::setDescription, QString("a machine"))},
        {"product_code", onDispenser(&D::setProductCode, QString("P-1"))},
        {"serial_number", onDispenser(&D::setSerialNumber, QString("A12-4/5"))},
        {"connection_name", onDispenser(&D::setConnectionName, QString("ttyUSB0"))},
        {"conf_structure_name", onDispenser(&D::setConfStructureName, QString("structure 3"))},
        {"heads", onDispenser(&D::setHeadArrangement, D::HeadArrangement::Dual)},
        {"command_family", onDispenser(&D::setCommandFamily, D::CommandFamily2)},
        {"tinting_parallelism", onDispenser(&D::setTintingParallelism, 11)},
        {"nozzle_based_dosing", onDispenser(&D::setNozzleBasedDosing, true)},
        {"initial_working_mode", onDispenser(&D::setInitialWorkingMode, 12)},
        {"power_supply", onDispenser(&D::setPowerSupply, 13)},
        {"connectivity", onDispenser(&D::setConnectivity, 14, false)},
        {"recirculating_parallelism", onDispenser(&D::setRecirculatingParallelism, 15)},
        {"stirring_parallelism", onDispenser(&D::setStirringParallelism, 16)},
        {"power_off_delay", onDispenser(&D::setPowerOffDelay, 17)},
        {"post_tinting_time", onDispenser(&D::setPostTintingTime, 18)},
        {"modules", onDispenser(&D::setModulesID, QList<int>{31, 1})},
        {"rcs_pause", onDispenser(&D::setRCSProcessPause, 19, 2)},
        {"rcs_mask", onDispenser(&D::setRCSProcesses, 5)},
        {"led_management", onDispenser(&D::setLedManagement, 20)},
        {"timed_processes_mask", onDispenser(&D::setTimedProcessesStartupMask, 21)},
        {"reserve_sensor", onDispenser(&D::setReserveSensorTypeAndPolicyMask, 1, 22, false)},
        {"inv_type", onDispenser(&D::setINVTypeFromValve, 5)},
        {"global_stirring", onDispenser(&D::setGlobalStirring, true)},
        {"colorant", onDispenser(&D::addColorant, FW_Colorant("B", "Black"))},
        {"disabled colorant", onDispenser([](D &dispenser) {
             FW_Colorant colorant("C");
             colorant.setEnabled(false);
             dispenser.addColorant(colorant);
         })},
        {"numbered colorant", onDispenser([](D &dispenser) {
             FW_Colorant colorant("D");
             colorant.setSystemColorantID(26);
             dispenser.addColorant(colorant);
         })},
    };
}

Changes canisterChanges()
{
    using C = FW_Canister;
    using S = FW_CanisterLevelSensor;
    return {
        {"enabled", onCanister(&C::setEnabled, false)},
        {"colorant",
         [](FW_Dispenser &dispenser) {
             if (!dispenser.hasColorantCode("B"))
                 dispenser.addColorant(FW_Colorant("B"));
             dispenser.getCanisterById(1)->setColorantCode("B");
         }},
        {"maximum", onCanister(&C::setMaximumQuantity, 2500.5)},
        {"current", onCanister(&C::setCurrentQuantity, 0.1)},
        {"reserve", onCanister(&C::setReserveQuantity, 100.25)},
        {"warning", onCanister(&C::setWarningQuantity, 200.75)},
        {"activated", onCanister(&C::setActivationFlag, true)},
        {"layout_positions", onCanister(&C::setLayoutPositionsId, QList<int>{244, 3}, QString())},
        {"level_sensor", onCanister(&C::setCanisterLevelSensor, 1)},
        {"level_sensor.enabled", onLevelSensor(&S::setEnabled, false)},
        {"level_sensor.wire_board", onLevelSensor(&S::setWireBoardId, 23)},
        {"level_sensor.wire_connector", onLevelSensor(&S::setWireConnectorId, 24)},
        {"level_sensor.critical_level", onLevelSensor(&S::setCriticalLevel, 25)},
        {"level_sensor.check_frequency", onLevelSensor(&S::setCheckFrequency, 26, 1)},
        {"level_sensor.check_frequency_unit",
         onLevelSensor([](S &sensor) { sensor.setCheckFrequency(sensor.checkFrequency(), 0); })},
    };
}

Changes circuitChanges()
{
    using C = FW_Circuit;
    return {
        {"position_id", onCircuit([](C &circuit) { circuit.setPositionId(245); })},
        {"enabled", onCircuit(&C::setEnabled, false)},
        {"head", onCircuit(&C::setHeadId, 2)},
        {"queue_id", onCircuit(&C::setQueueID, 27)},
        {"wire_board", onCircuit(&C::setWireBoardId, 28)},
        {"wire_connector", onCircuit(&C::setWireConnectorId, 29)},
        {"nozzle_valves", onCircuit(&C::setNozzleValvesID, QList<int>{8, 9})},
        {"valve", onCircuit(&C::addValve, FW_Valve(30))},
        {"valve of a board and a type", onCircuit([](C &circuit) {
             FW_Valve valve(31);
             valve.setBoardID(32);
             valve.setValveType(5);
             circuit.addValve(valve);
         })},
        {"calibration",
         onCircuit(&C::setCalibration,
                   FW_Calibration({{12, 0.1, 40, 0}, {9007199254740992, 1e9, 2147483647, 8}}))},
    };
}

Changes dosingMotorChanges()
{
    using M = FW_DosingMotor;
    return {
        {"id", onDosingMotor(&M::setMotorId, 33)},
        {"resolution", onDosingMotor(&M::setResolution, 34)},
        {"supplying_current", onDosingMotor(&M::setSupplyingCurrent, 35)},
        {"max_speed", onDosingMotor([](M &motor) { motor.setMaxSpeed(36); })},
        {"max_speed_origin", onDosingMotor([](M &motor) { motor.setMaxSpeed(motor.maxSpeed(), 0); })},
        {"max_speed_limit", onDosingMotor(&M::setMaxSpeedLimit, 37)},
        {"steps_per_stroke", onDosingMotor(&M::setStepsPerStroke, 38)},
        {"pump_type", onDosingMotor(&M::setPumpType, 8, 0)},
        {"pump_value", onDosingMotor([](M &motor) { motor.setPumpType(motor.pumpType(), 39); })},
        {"stroke_value", onDosingMotor(&M::setStrokeValue, 40)},
        {"suction_speed", onDosingMotor(&M::setSuctionSpeed, 41)},
        {"zero_pump", onDosingMotor(&M::setZeroPump, true)},
        {"activation_time", onDosingMotor(&M::setActivationTime, 42)},
        {"delay", onDosingMotor(&M::setDelay, 43)},
        {"inter_dispensing_time", onDosingMotor(&M::setInterDispensingTime, -1.0)},
        {"dispensing_algorithm_mask", onDosingMotor(&M::setDispensingAlgorithmMask, -1)},
        {"smart_speed_reduction", onDosingMotor(&M::setSmartSpeedReduction, true)},
        {"temperature_group", onDosingMotor(&M::setSpeedThrTempReductionGroupID, 2)},
        {"speed_multipliers", onDosingMotor(&M::addSpeedMpxOffset, M::SpeedMpxOffset{44, 1.25, -0.5})},
        {"a second one", onDosingMotor(&M::addSpeedMpxOffset, M::SpeedMpxOffset())},
        {"gravimetric", onDosingMotor(&M::setGravimetricSw, true)},
        {"gravimetric_settings", onDosingMotor(&M::setGravimetricSettings, M::GravimetricSettings{0.45, 46})},
        {"head_reference", onDosingMotor(&M::setHeadRefID, 47)},
        {"pressure_sensor_wire_board", onDosingMotor(&M::setPressureSensorWireBoardId, 48)},
        {"pressure_sensor_wire_connector", onDosingMotor(&M::setPressureSensorWireConnectorId, 49)},
    };
}

Changes sharedPartChanges()
{
    using R = FW_Ramp;
    using T = FW_SingleTransmission;
    using C = FW_FlowCorrection;
    return {
        {"ramp", onRamp([](R &) {})},
        {"ramp.reference", onRamp(&R::setConfigRef, 50)},
        {"ramp.enabled", onRamp(&R::setEnabled, false)},
        {"ramp.initial_steps", onRamp(&R::setInitialSteps, 51)},
        {"ramp.final_steps", onRamp(&R::setFinalSteps, 52)},
        {"ramp.speed_threshold", onRamp(&R::setSpeedThreshold, 53)},
        {"ramp.slow_speed", onRamp(&R::setSlowSpeed, 54)},
        {"single_transmission.reference", onTransmission(&T::configRef, 55)},
        {"single_transmission.motor_rated_current", onTransmission(&T::motorRatedCurrent, 5.6)},
        {"single_transmission.inverter_rated_current", onTransmission(&T::inverterRatedCurrent, 5.7)},
        {"single_transmission.inverter_overload_multiplier",
         onTransmission(&T::inverterOverloadMultiplier, 5.8)},
        {"single_transmission.motor_current_multiplier", onTransmission(&T::motorCurrentMultiplier, 5.9)},
        {"single_transmission.motor_overload_timeout", onTransmission(&T::motorOverloadTimeout, 6.25)},
        {"single_transmission.motor_max_speed", onTransmission(&T::motorMaxSpeed, 6.5)},
        {"single_transmission.y1", onTransmission(&T::y1, 6.1)},
        {"single_transmission.y2", onTransmission(&T::y2, 6.2)},
        {"single_transmission.x1", onTransmission(&T::x1, 6.3)},
        {"single_transmission.x2", onTransmission(&T::x2, 6.4)},
        {"single_transmission.motor_speed_error_tolerance",
         onTransmission(&T::motorSpeedErrorTolerance, 6.6)},
        {"single_transmission.encoder_pulses", onTransmission(&T::encoderPulses, 6.7)},
        {"single_transmission.encoder_channels", onTransmission(&T::encoderChannels, 6.8)},
        {"single_transmission.encoder_step_fraction", onTransmission(&T::encoderStepFraction, 6.9)},
        {"single_transmission.inverter_current_max", onTransmission(&T::inverterCurrentMax, 70)},
        {"single_transmission.inverter_voltage_max", onTransmission(&T::inverterVoltageMax, 71)},
        {"flow_correction.reference", onCorrection(&C::configRef, 72)},
        {"flow_correction.overcharge_steps", onCorrection(&C::overchargeSteps, 73)},
        {"flow_correction.predispense_steps", onCorrection(&C::predispenseSteps, 74)},
        {"flow_correction.bottom_delay", onCorrection(&C::bottomDelay, 7.5)},
        {"flow_correction.top_delay", onCorrection(&C::topDelay, 7.6)},
        {"flow_correction.zonal_flow_correction_level", onCorrection(&C::zonalFlowCorrectionLevel, 77)},
        {"flow_correction.zonal_delay_level", onCorrection(&C::zonalDelayLevel, 78)},
    };
}

Changes motorChanges()
{
    using S = FW_StirringMotor;
    using R = FW_RecirculationMotor;
    using C = FW_CleaningMotor;
    return {
        {"stirring_motor", onCircuit(&FW_Circuit::setStirringMotor, S())},
        {"stirring_motor.id", onStirringMotor(&S::setMotorId, 80)},
        {"stirring_motor.resolution", onStirringMotor(&S::setResolution, 81)},
        {"stirring_motor.supplying_current", onStirringMotor(&S::setSupplyingCurrent, 82)},
        {"stirring_motor.enabled", onStirringMotor(&S::setEnabled, false)},
        {"stirring_motor.activity", onStirringMotor(&S::setStirringActivity, 83)},
        {"stirring_motor.pause", onStirringMotor(&S::setStirringPause, 84, 1)},
        {"stirring_motor.policy", onStirringMotor(&S::setStirringPolicy, 85)},
        {"stirring_motor.speed", onStirringMotor(&S::setSpeed, 86)},
        {"stirring_motor.wire_board", onStirringMotor(&S::setWireBoardId, 87)},
        {"stirring_motor.wire_connectors_mask", onStirringMotor(&S::setWireConnectorId, 31)},
        {"recirculation_motor", onCircuit(&FW_Circuit::setRecirculationMotor, R())},
        {"recirculation_motor.id", onRecirculationMotor(&R::setMotorId, 90)},
        {"recirculation_motor.resolution", onRecirculationMotor(&R::setResolution, 91)},
        {"recirculation_motor.supplying_current", onRecirculationMotor(&R::setSupplyingCurrent, 92)},
        {"recirculation_motor.enabled", onRecirculationMotor(&R::setEnabled, false)},
        {"recirculation_motor.speed", onRecirculationMotor(&R::setSpeed, 93)},
        {"recirculation_motor.suction_speed", onRecirculationMotor(&R::setSuctionSpeed, 94)},
        {"recirculation_motor.activity", onRecirculationMotor(&R::setRecirculationActivity, 95)},
        {"recirculation_motor.pause", onRecirculationMotor(&R::setRecirculationPause, 96, 0)},
        {"cleaning_motor", onCircuit(&FW_Circuit::setCleaningMotor, C())},
        {"cleaning_motor.id", onCleaningMotor(&C::setMotorId, 100)},
        {"cleaning_motor.resolution", onCleaningMotor(&C::setResolution, 101)},
        {"cleaning_motor.supplying_current", onCleaningMotor(&C::setSupplyingCurrent, 102)},
        {"cleaning_motor.cleaning_enabled", onCleaningMotor(&C::setCleaningEnabled, false)},
        {"cleaning_motor.timeout", onCleaningMotor(&C::setTimeout, 103, 2)},
        {"cleaning_motor.turntable_speed", onCleaningMotor(&C::setTurntableSpeed, 104)},
        {"cleaning_motor.schedule_mask", onCleaningMotor(&C::setScheduleMask, 6)},
        {"cleaning_motor.duration", onCleaningMotor(&C::setDuration, 105)},
        {"cleaning_motor.brush_type", onCleaningMotor(&C::setBrushType, 106)},
        {"cleaning_motor.target", onCleaningMotor(&C::setTarget, 2)},
        {"cleaning_motor.process", onCleaningMotor(&C::setProcess, 3)},
        {"a second one", onCircuit(&FW_Circuit::addCleaningMotor, C())},
    };
}

template <class Device>
Change disabled(const char *name)
{
    return {name, onDevice<Device>(&FW_Device::setEnabled, false)};
}

Changes deviceChanges()
{
    using Autocap = FW_Autocap;
    using Shelf = FW_Shelf;
    using Sensor = FW_TemperatureSensor;
    using Ultrasound = FW_UltrasoundCleaning;
    return {
        disabled<Autocap>("autocap.enabled"),
        {"autocap.type", onDevice<Autocap>(&Autocap::setType, 3)},
        {"autocap.movement_type", onDevice<Autocap>(&Autocap::setMovementType, 110)},
        {"autocap.opening_timeout", onDevice<Autocap>(&Autocap::setOpeningTimeout, 111)},
        {"autocap.closing_timeout", onDevice<Autocap>(&Autocap::setClosingTimeout, 112)},
        {"autocap.closing_delay", onDevice<Autocap>(&Autocap::setClosingDelay, 113)},
        {"autocap.power_off_delay", onDevice<Autocap>(&Autocap::setPowerOffDelay, 114)},
        {"autocap.automatic_closure", onDevice<Autocap>(&Autocap::setAutomaticClosure, false)},
        {"autocap.movement_speed", onDevice<Autocap>(&Autocap::setMovementSpeed, 115)},
        {"autocap.working_mode", onDevice<Autocap>(&Autocap::setWorkingMode, 116)},
        {"autocap.sliding_offline_time", onDevice<Autocap>(&Autocap::setSlidingOfflinePosTime, 117)},
        disabled<Shelf>("shelf.enabled"),
        {"shelf.type", onDevice<Shelf>(&Shelf::setType, 120, -1, FW_Version())},
        {"shelf.puncher", onDevice<Shelf>(&Shelf::setPuncher, 121, -1, FW_Version())},
        {"shelf.door_value", onDevice<Shelf>(&Shelf::setDoorValue, 122)},
        {"shelf.move_offset", onDevice<Shelf>(&Shelf::setMoveOffset, 123)},
        {"shelf.resolution", onDevice<Shelf>(&Shelf::setResolution, 124)},
        {"shelf.punching_tolerance", onDevice<Shelf>(&Shelf::setPunchingTolerance, 125)},
        {"shelf.punching_speed", onDevice<Shelf>(&Shelf::setPunchingSpeed, 126)},
        {"shelf.can_presence_sensor_high", onDevice<Shelf>(&Shelf::setCanPresenceSensorHigh, 127)},
        {"shelf.punching_sensor_high", onDevice<Shelf>(&Shelf::setPunchingSensorHigh, 128)},
        {"shelf.punching_move_offset", onDevice<Shelf>(&Shelf::setPunchingMoveOffset, 129)},
        {"shelf.roll_conveyor", onDevice<Shelf>(&Shelf::setRollConveyor, true)},
        {"shelf.roll_conveyor_height", onDevice<Shelf>(&Shelf::setRollConveyorHeight, 130)},
        disabled<FW_CanPresenceSensor>("can_presence_sensor.enabled"),
        {"can_presence_sensor.type", onDevice<FW_CanPresenceSensor>(&FW_CanPresenceSensor::setType, 131)},
        {"can_presence_sensor.check_and_status",
         onDevice<FW_CanPresenceSensor>(&FW_CanPresenceSensor::setCanPresenceCheckAndStatus, 132)},
        disabled<FW_Humidifier>("humidifier.enabled"),
        {"humidifier.reading_period", onDevice<FW_Humidifier>(&FW_Humidifier::setReadingPeriod, 133)},
        {"humidifier.multiplier_coefficient_1",
         onDevice<FW_Humidifier>(&FW_Humidifier::setMultiplierCoefficient, 134, 0)},
        {"humidifier.multiplier_coefficient_2",
         onDevice<FW_Humidifier>(&FW_Humidifier::setMultiplierCoefficient, 135, 1)},
        {"humidifier.low_humidity_warning_threshold",
         onDevice<FW_Humidifier>(&FW_Humidifier::setLowHumidityWarningThreshold, 136)},
        disabled<FW_Offline>("offline.enabled"),
        {"offline.easy_on_time", onDevice<FW_Offline>(&FW_Offline::setEasyOnTime, 137)},
        disabled<Sensor>("temperature_sensor.enabled"),
        {"temperature_sensor.reading_period", onDevice<Sensor>(&Sensor::setReadingPeriod, 138)},
        {"temperature_sensor.thresholds", onDevice<Sensor>(&Sensor::addTemperatureThreshold, -20)},
        {"temperature_sensor.speeds_group_1", onDevice<Sensor>(&Sensor::addErogationSpeed, 139, 1)},
        {"temperature_sensor.speeds_group_2", onDevice<Sensor>(&Sensor::clearErogationSpeeds, 2)},
        disabled<FW_BungHoleLocator>("bung_hole_locator.enabled"),
        {"bung_hole_locator.driving_mode",
         onDevice<FW_BungHoleLocator>(&FW_BungHoleLocator::setDrivingMode, 140)},
        {"bung_hole_locator.deactivation_delay",
         onDevice<FW_BungHoleLocator>(&FW_BungHoleLocator::setDeactivationDelay, 141)},
        disabled<FW_NozzleLight>("nozzle_light.enabled"),
        {"nozzle_light.driving_mode", onDevice<FW_NozzleLight>(&FW_NozzleLight::setDrivingMode, 142)},
        {"nozzle_light.deactivation_delay",
         onDevice<FW_NozzleLight>(&FW_NozzleLight::setDeactivationDelay, 143)},
        disabled<FW_Heater>("heater.enabled"),
        {"heater.low_threshold", onDevice<FW_Heater>(&FW_Heater::setLowTemperatureThreshold, -273)},
        {"heater.high_threshold", onDevice<FW_Heater>(&FW_Heater::setHighTemperatureThreshold, 144)},
        disabled<FW_NozzleValve>("nozzle_valve.enabled"),
        {"nozzle_valve.type", onDevice<FW_NozzleValve>(&FW_NozzleValve::setNozzleType, 145)},
        {"nozzle_valve.timeout", onDevice<FW_NozzleValve>(&FW_NozzleValve::setTimeout, 146, 1)},
        disabled<Ultrasound>("ultrasound_cleaning.enabled"),
        {"ultrasound_cleaning.source_voltage", onDevice<Ultrasound>(&Ultrasound::setSourceVoltageValue, 147)},
        {"ultrasound_cleaning.cleaning_policy",
         onDevice<Ultrasound>(&Ultrasound::setCleaningPolicyValue, 148)},
        {"ultrasound_cleaning.ultrasound_duration",
         onDevice<Ultrasound>(&Ultrasound::setUltrasoundDuration, 149)},
        {"ultrasound_cleaning.ultrasound_pause", onDevice<Ultrasound>(&Ultrasound::setUltrasoundPause, 150)},
        {"ultrasound_cleaning.emptying_time", onDevice<Ultrasound>(&Ultrasound::setEmptyingTime, 15.1)},
        {"ultrasound_cleaning.filling_time", onDevice<Ultrasound>(&Ultrasound::setFillingTime, 15.2)},
        {"ultrasound_cleaning.level_sensor",
         onDevice<Ultrasound>(&Ultrasound::setLevelSensorEnabledFwValue, 2)},
        disabled<FW_Lock>("lock.enabled"),
        {"lock.manual_unlock_signal_mask", onDevice<FW_Lock>(&FW_Lock::setManualUnlockSignalMask, 153)},
        disabled<FW_PLCBoard>("plc_board.enabled"),
        {"plc_board.signals_mask", onDevice<FW_PLCBoard>(&FW_PLCBoard::setPlcSignalsValue, 154)},
        {"plc_board.end_signal_time",
         onDevice<FW_PLCBoard>(&FW_PLCBoard::setEndDispSignalActivationTime, 15.5)},
        {"plc_board.error_signal_time",
         onDevice<FW_PLCBoard>(&FW_PLCBoard::setErrDispSignalActivationTime, 15.6)},
    };
}

template <class Device>
Changes brushChanges(int first)
{
    using Brush = FW_BrushBase;
    return {
        disabled<Device>("brush.enabled"),
        {"brush.cleaning_enabled", onDevice<Device>(&Brush::setCleaningEnabled, false)},
        {"brush.timeout", onDevice<Device>(&Brush::setTimeout, first, 1)},
        {"brush.turntable_speed", onDevice<Device>(&Brush::setTurntableSpeed, first + 1)},
        {"brush.schedule_mask", onDevice<Device>(&Brush::setScheduleMask, first + 2)},
        {"brush.position", onDevice<Device>(&Brush::setPosition, first + 3)},
        {"brush.self_cleaning_time", onDevice<Device>(&Brush::setSelfCleaningTime, first + 4)},
    };
}

template <class Device>
Changes rackChanges(int first)
{
    return {
        disabled<Device>("table.enabled"),
        {"table.id", onDevice<Device>(&FW_Rack::setMotorId, first)},
        {"table.resolution", onDevice<Device>(&FW_Rack::setResolution, first + 1)},
        {"table.supplying_current", onDevice<Device>(&FW_Rack::setSupplyingCurrent, first + 2)},
        {"table.zero_ref_pin_size", onDevice<Device>(&FW_Rack::setZeroRefPinSize, first + 3)},
        {"table.circuit_pin_size", onDevice<Device>(&FW_Rack::setCircuitPinSize, first + 4)},
        {"table.positioning_tolerance", onDevice<Device>(&FW_Rack::setPositioningTolerance, first + 5)},
        {"table.high_speed", onDevice<Device>(&FW_Rack::setHighSpeed, first + 6)},
        {"table.low_speed", onDevice<Device>(&FW_Rack::setLowSpeed, first + 7)},
        {"table.zero_ref_search_speed", onDevice<Device>(&FW_Rack::setZeroRefSearchSpeed, first + 8)},
    };
}

Changes tableChanges()
{
    using Turntable = FW_Turntable;
    using Lineartable = FW_Lineartable;
    const auto setPosition = [](FW_Dispenser &dispenser) {
        const int position = dispenser.getCircuitById(1)->positionId();
        onDevice<Turntable>(&Turntable::setPositions, QList<int>{position})(dispenser);
    };
    return {
        {"turntable.round_steps", onDevice<Turntable>(&Turntable::setRoundSteps, 190)},
        {"turntable.perimeter", onDevice<Turntable>(&Turntable::setPerimeter, 191)},
        {"turntable.internal_perimeter", onDevice<Turntable>(&Turntable::setInternalPerimeter, 192)},
        {"turntable.refill_angle", onDevice<Turntable>(&Turntable::setRefillAngle, 193)},
        {"turntable.service_angle", onDevice<Turntable>(&Turntable::setServiceAngle, 194)},
        {"turntable.step_time", onDevice<Turntable>(&Turntable::setStepTime, 195)},
        {"turntable.positions", setPosition},
        {"linear_table.linear_steps", onDevice<Lineartable>(&Lineartable::setLinearSteps, 196)},
        {"linear_table.length", onDevice<Lineartable>(&Lineartable::setLength, 197)},
        {"linear_table.free_slot_position", onDevice<Lineartable>(&Lineartable::setFreeSlotPosition, 198)},
        {"linear_table.service_position", onDevice<Lineartable>(&Lineartable::setServicePosition, 199)},
    };
}

Changes allChanges()
{
    Changes all;
    for (const Changes &changes :
         {machineChanges(), canisterChanges(), circuitChanges(), dosingMotorChanges(), sharedPartChanges(),
          motorChanges(), deviceChanges(), brushChanges<FW_Brush>(160), brushChanges<FW_Brush2>(165),
          rackChanges<FW_Turntable>(170), rackChanges<FW_Lineartable>(180), tableChanges()})
        all.insert(all.end(), changes.begin(), changes.end());
    return all;
}

FW_Dispenser fullDispenser()
{
    FW_Dispenser dispenser = plainDispenser();
    for (const Change &change : allChanges())
        change.apply(dispenser);
    return dispenser;
}

/// The same, with the names of a file.
constexpr char FullDispenser[] = R"({
    "type": "dispenser", "id": 7, "model": 20, "model_name": "LUMINA 16", "sid": "00123",
    "description": "a machine", "product_code": "P-1", "serial_number": "A12-4/5",
    "connection_name": "ttyUSB0", "conf_structure_name": "structure 3",
    "heads": 2, "command_family": 2, "tinting_parallelism": 11, "nozzle_based_dosing": true,
    "initial_working_mode": 12, "power_supply": 13, "connectivity": 14, "recirculating_parallelism": 15,
    "stirring_parallelism": 16, "power_off_delay": 17, "post_tinting_time": 18, "modules": [31, 1],
    "rcs_pause": "19 min", "rcs_mask": 5, "led_management": 20, "timed_processes_mask": 21,
    "reserve_sensor": {"type": 1, "policy": 22}, "inv_type": 2, "global_stirring": true,
    "colorants": [{"code": "B", "name": "Black"}, {"code": "C", "enabled": false}, {"code": "D", "system_id": 26}],
    "canisters": [{
        "id": 1, "enabled": false, "colorant": "B", "maximum": 2500.5, "current": 0.1, "reserve": 100.25,
        "warning": 200.75, "activated": true, "layout_positions": [244, 3],
        "level_sensor": {"enabled": false, "wire_board": 23, "wire_connector": 24, "critical_level": 25,
                         "check_frequency": 26, "check_frequency_unit": 0},
        "circuits": [{
            "id": 1, "position_id": 245, "enabled": false, "head": 2, "queue_id": 27, "wire_board": 28,
            "wire_connector": 29, "nozzle_valves": [8, 9],
            "valves": [{"id": 30}, {"id": 31, "board_id": 32, "type": 5}],
            "dosing_motor": {
                "id": 33, "resolution": 34, "supplying_current": 35, "max_speed": 36, "max_speed_origin": 0,
                "max_speed_limit": 37, "steps_per_stroke": 38, "pump_type": 8, "pump_value": 39,
                "stroke_value": 40, "suction_speed": 41, "zero_pump": true, "activation_time": 42,
                "delay": 43, "inter_dispensing_time": -1, "dispensing_algorithm_mask": -1,
                "smart_speed_reduction": true, "temperature_group": 2,
                "speed_multipliers": [{"speed": 44, "multiplier": 1.25, "offset": -0.5}, {}],
                "gravimetric": true, "gravimetric_settings": {"tolerance": 0.45, "max_corrections": 46},
                "head_reference": 47, "pressure_sensor_wire_board": 48, "pressure_sensor_wire_connector": 49,
                "ramp": {"reference": 50, "enabled": false, "initial_steps": 51, "final_steps": 52,
                         "speed_threshold": 53, "slow_speed": 54},
                "single_transmission": {
                    "reference": 55, "motor_rated_current": 5.6, "inverter_rated_current": 5.7,
                    "inverter_overload_multiplier": 5.8, "motor_current_multiplier": 5.9,
                    "motor_overload_timeout": 6.25, "motor_max_speed": 6.5, "y1": 6.1, "y2": 6.2, "x1": 6.3,
                    "x2": 6.4, "motor_speed_error_tolerance": 6.6, "encoder_pulses": 6.7,
                    "encoder_channels": 6.8, "encoder_step_fraction": 6.9, "inverter_current_max": 70,
                    "inverter_voltage_max": 71},
                "flow_correction": {
                    "reference": 72, "overcharge_steps": 73, "predispense_steps": 74, "bottom_delay": 7.5,
                    "top_delay": 7.6, "zonal_flow_correction_level": 77, "zonal_delay_level": 78}},
            "stirring_motor": {
                "id": 80, "resolution": 81, "supplying_current": 82, "enabled": false, "activity": 83,
                "pause": "84 s", "policy": 85, "speed": 86, "wire_board": 87,
                "wire_connectors_mask": 1073741824},
            "recirculation_motor": {
                "id": 90, "resolution": 91, "supplying_current": 92, "enabled": false, "speed": 93,
                "suction_speed": 94, "activity": 95, "pause": "96 ms"},
            "cleaning_motors": [{
                "id": 100, "resolution": 101, "supplying_current": 102, "cleaning_enabled": false,
                "timeout": "103 min", "turntable_speed": 104, "schedule_mask": 6, "duration": 105,
                "brush_type": 106, "target": 2, "process": 3}, {}],
            "calibration": [{"steps": 12, "quantity": 0.1, "speed": 40},
                            {"steps": 9007199254740992, "quantity": 1e9, "speed": 2147483647,
                             "nozzle_valve": 8}]}]}],
    "devices": {
        "autocap": {
            "enabled": false, "type": 3, "movement_type": 110, "opening_timeout": 111, "closing_timeout": 112,
            "closing_delay": 113, "power_off_delay": 114, "automatic_closure": false, "movement_speed": 115,
            "working_mode": 116, "sliding_offline_time": 117},
        "shelf": {
            "enabled": false, "type": 120, "puncher": 121, "door_value": 122, "move_offset": 123,
            "resolution": 124, "punching_tolerance": 125, "punching_speed": 126,
            "can_presence_sensor_high": 127, "punching_sensor_high": 128, "punching_move_offset": 129,
            "roll_conveyor": true, "roll_conveyor_height": 130},
        "can_presence_sensor": {"enabled": false, "type": 131, "check_and_status": 132},
        "humidifier": {
            "enabled": false, "reading_period": 133, "multiplier_coefficient_1": 134,
            "multiplier_coefficient_2": 135, "low_humidity_warning_threshold": 136},
        "offline": {"enabled": false, "easy_on_time": 137},
        "temperature_sensor": {
            "enabled": false, "reading_period": 138, "thresholds": [15, 10, 5, -20],
            "speeds_group_1": [0, 80, 60, 139], "speeds_group_2": []},
        "bung_hole_locator": {"enabled": false, "driving_mode": 140, "deactivation_delay": 141},
        "nozzle_light": {"enabled": false, "driving_mode": 142, "deactivation_delay": 143},
        "turntable": {
            "enabled": false, "id": 170, "resolution": 171, "supplying_current": 172,
            "zero_ref_pin_size": 173, "circuit_pin_size": 174, "positioning_tolerance": 175,
            "high_speed": 176, "low_speed": 177, "zero_ref_search_speed": 178, "round_steps": 190,
            "perimeter": 191, "internal_perimeter": 192, "refill_angle": 193, "service_angle": 194,
            "step_time": 195, "positions": [245]},
        "heater": {"enabled": false, "low_threshold": -273, "high_threshold": 144},
        "brush": {
            "enabled": false, "cleaning_enabled": false, "timeout": "160 s", "turntable_speed": 161,
            "schedule_mask": 162, "position": 163, "self_cleaning_time": 164},
        "nozzle_valve": {"enabled": false, "type": 145, "timeout": "146 s"},
        "linear_table": {
            "enabled": false, "id": 180, "resolution": 181, "supplying_current": 182,
            "zero_ref_pin_size": 183, "circuit_pin_size": 184, "positioning_tolerance": 185,
            "high_speed": 186, "low_speed": 187, "zero_ref_search_speed": 188, "linear_steps": 196,
            "length": 197, "free_slot_position": 198, "service_position": 199},
        "ultrasound_cleaning": {
            "enabled": false, "source_voltage": 147, "cleaning_policy": 148, "ultrasound_duration": 149,
            "ultrasound_pause": 150, "emptying_time": 15.1, "filling_time": 15.2, "level_sensor": 2},
        "lock": {"enabled": false, "manual_unlock_signal_mask": 153},
        "brush_2": {
            "enabled": false, "cleaning_enabled": false, "timeout": "165 s", "turntable_speed": 166,
            "schedule_mask": 167, "position": 168, "self_cleaning_time": 169},
        "plc_board": {
            "enabled": false, "signals_mask": 154, "end_signal_time": 15.5, "error_signal_time": 15.6}}})";

FW_Dispenser read(const QByteArray &text)
{
    const auto machine = readMachineFile(text);
    return dynamic_cast<const FW_Dispenser &>(*machine);
}

std::string refusalOf(const QByteArray &text)
{
    try {
        readMachineFile(text);
    } catch (const std::runtime_error &error) {
        return error.what();
    }
    return "accepted";
}

/// A dispenser whose circuits 1 and 2, one a canister, have these members beside their IDs.
QByteArray twoCircuits(const QByteArray &first, const QByteArray &second)
{
    return R"({"type": "dispenser", "canisters": [{"id": 1, "circuits": [{"id": 1, "position_id": 1, )" +
           first + R"(}]}, {"id": 2, "circuits": [{"id": 2, "position_id": 2, )" + second + "}]}]}";
}

TEST(MachineFile, namesEveryValue)
{
    EXPECT_TRUE(read(FullDispenser) == fullDispenser());
}

TEST(MachineFile, keepsFaultsApart)
{
    EXPECT_TRUE(read(R"({"type": "dispenser", "faults": [{"event": "nobody reads it here"}]})") ==
                FW_Dispenser());
    EXPECT_EQ(refusalOf(R"({"type": "dispenser", "faults": {}})"), "faults: must be an array");
}

TEST(MachineFile, keepsEveryValue)
{
    const FW_Dispenser dispenser = fullDispenser();
    EXPECT_TRUE(read(machineFileOf(dispenser)) == dispenser);
}

TEST(MachineFile, keepsEachValueByItself)
{
    const FW_Dispenser plain = plainDispenser();
    for (const Change &change : allChanges()) {
        FW_Dispenser dispenser = plain;
        change.apply(dispenser);
        EXPECT_TRUE(dispenser != plain) << change.name;
        EXPECT_TRUE(read(machineFileOf(dispenser)) == dispenser) << change.name;
        // as text, since comparison runs the description too
        EXPECT_EQ(machineFileOf(FW_Dispenser(dispenser.toXmlRpcValue())), machineFileOf(dispenser))
            << change.name;
    }
}

TEST(MachineFile, theVersionOfTheFirmwareStandsBesideTheMachine)
{
    const quv::DescribedMachine described = quv::readDescribedMachine(
        R"({"type": "mixer", "id": 3, "firmware_version": [63, 0, 245, 3, 4, 41]})");
    EXPECT_EQ(described.machine->id(), 3);
    EXPECT_EQ(described.firmwareVersion, FW_Version(63, 0, 245, 3, 4, 41));
    EXPECT_EQ(machineFileOf(*described.machine, described.firmwareVersion),
              QByteArray("{\"type\":\"mixer\",\"id\":3,\"firmware_version\":[63,0,245,3,4,41]}\n"));
    EXPECT_FALSE(quv::readDescribedMachine(R"({"type": "dispenser"})").firmwareVersion.isValid());
    EXPECT_EQ(readMachineFile(R"({"type": "mixer", "id": 3, "firmware_version": [1, 2, 3, 4, 5, 6]})")->id(),
              3);
    EXPECT_EQ(refusalOf(R"({"type": "mixer", "firmware_version": [1, 2, 3, 4, 5]})"),
              "firmware_version: must be an array of 6 integers");
    EXPECT_EQ(refusalOf(R"({"type": "mixer", "firmware_version": [1, 2, 3, 4, 5, 246]})"),
              "firmware_version[5]: must be an integer from 0 to 245");
    EXPECT_EQ(refusalOf(R"({"type": "mixer", "firmware_version": "1"})"),
              "firmware_version: must be an array");
}

TEST(MachineFile, survivesTheWayOverXmlRpc)
{
    const FW_Dispenser dispenser = read(FullDispenser);
    EXPECT_EQ(machineFileOf(FW_Dispenser(dispenser.toXmlRpcValue())), machineFileOf(fullDispenser()));
    const QByteArray mixer =
        "{\"type\":\"mixer\",\"id\":5,\"model\":120,\"model_name\":\"M\",\"sid\":\"9\",\"description\":\"d\","
        "\"product_code\":\"p\",\"serial_number\":\"s\",\"connection_name\":\"c\",\"conf_structure_name\":"
        "\"n\"}\n";
    const auto machine = FW_Machine::fromXmlRpcValue(readMachineFile(mixer)->toXmlRpcValue());
    ASSERT_TRUE(machine);
    EXPECT_EQ(QString::fromUtf8(machineFileOf(*machine)).remove(QRegularExpression(QStringLiteral("\\s"))),
              QString::fromUtf8(mixer).trimmed());
}

TEST(MachineFile, keepsADeviceWithItsDefaults)
{
    for (const int kind : {0, 1, 2, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19}) {
        FW_Dispenser dispenser;
        ASSERT_TRUE(dispenser.createDevice(kind)) << kind;
        EXPECT_TRUE(read(machineFileOf(dispenser)) == dispenser) << kind;
    }
}

TEST(MachineFile, aCircuitCanBeWithoutADosingMotor)
{
    FW_Dispenser dispenser = plainDispenser();
    dispenser.getCircuitById(1)->removeDosingMotor();
    EXPECT_TRUE(read(machineFileOf(dispenser)) == dispenser);
    const FW_Dispenser one = read(twoCircuits(R"("dosing_motor": null)", R"("dosing_motor": {})"));
    EXPECT_FALSE(one.getCircuitById(1)->hasDosingMotor());
    EXPECT_TRUE(*one.getCircuitById(2) == FW_Circuit(2, 2));
    // what nothing has unless told so is left out instead
    EXPECT_EQ(refusalOf(twoCircuits(R"("stirring_motor": null)", R"("head": 1)")),
              "canisters[0].circuits[0].stirring_motor: must be an object");
    EXPECT_EQ(refusalOf(R"({"type": "dispenser", "model": null})"),
              "model: must be an integer from 0 to 2147483647");
}

TEST(MachineFile, tellsATimeInTheUnitThatLeavesNothingOver)
{
    constexpr int Max = std::numeric_limits<int>::max();
    struct
    {
        int value;
        int unit;
        const char *text;
    } const times[] = {{0, 0, "0 min"},           {90, 1, "90 s"},          {120, 1, "2 min"},
                       {1500, 0, "1500 ms"},      {3000, 0, "3 s"},         {Max, 0, "2147483647 ms"},
                       {2147484, 1, "2147484 s"}, {Max, 1, "2147483647 s"}, {35791395, 2, "35791395 min"},
                       {Max, 2, "2147483647 min"}};
    for (const auto &time : times) {
        FW_Dispenser dispenser;
        dispenser.setRCSProcessPause(time.value, time.unit);
        const QByteArray text = machineFileOf(dispenser);
        EXPECT_TRUE(text.contains("\"rcs_pause\":\"" + QByteArray(time.text) + '"')) << text.constData();
        EXPECT_TRUE(read(text) == dispenser) << time.text;
    }
}

TEST(MachineFile, refusesWhatIsNoTime)
{
    for (const char *time : {"30", "\"\"", "\"30\"", "\"30min\"", "\"30 min \"", "\"30 h\"", "\"-1 s\"",
                             "\"+1 s\"", "\"1.5 s\"", "\"2147483648 ms\"", "null", "[]"})
        EXPECT_EQ(refusalOf(R"({"type": "dispenser", "rcs_pause": )" + QByteArray(time) + "}"),
                  "rcs_pause: must be a time, as \"30 min\", \"90 s\" or \"1500 ms\"")
            << time;
}

TEST(MachineFile, partsOfOneReferenceAreEqual)
{
    const std::pair<const char *, const char *> parts[] = {
        {"ramp", "slow_speed"}, {"single_transmission", "y1"}, {"flow_correction", "top_delay"}};
    for (const auto &[key, member] : parts) {
        const QByteArray begin = R"("dosing_motor": {")" + QByteArray(key) + R"(": {"reference": )";
        const QByteArray name = QByteArray(", \"") + member + "\": ";
        EXPECT_EQ(refusalOf(twoCircuits(begin + "3" + name + "9}}", begin + "3" + name + "9}}")), "accepted");
        EXPECT_EQ(refusalOf(twoCircuits(begin + "3" + name + "9}}", begin + "4" + name + "8}}")), "accepted");
        EXPECT_EQ(refusalOf(twoCircuits(begin + "0" + name + "9}}", begin + "0" + name + "8}}")), "accepted");
        EXPECT_EQ(refusalOf(twoCircuits(begin + "3" + name + "9}}", begin + "3" + name + "8}}")),
                  "canisters[1].circuits[0].dosing_motor." + std::string(key) +
                      ": is not equal to another of reference 3");
    }
}

TEST(MachineFile, whatASetUpIsRefusedFor)
{
    const std::pair<const char *, const char *> refusals[] = {
        {R"("power_supply": -1)", "power_supply: must be an integer from 0 to 2147483647"},
        {R"("modules": [1, 32])", "modules[1]: must be an integer from 1 to 31"},
        {R"("inv_type": 3)", "inv_type: must be an integer from 0 to 2"},
        {R"("reserve_sensor": {"type": 1})", "reserve_sensor.policy: is missing"},
        {R"("global_stirring": 1)", "global_stirring: must be true or false"},
        {R"("canisters": [{"id": 1, "layout_positions": [245]}])",
         "canisters[0].layout_positions[0]: must be an integer from 1 to 244"},
        {R"("canisters": [{"id": 1, "level_sensor": {"check_frequency_unit": 2}}])",
         "canisters[0].level_sensor.check_frequency_unit: must be an integer from 0 to 1"},
        {R"("devices": {"heater": {"low_threshold": -274}})",
         "devices.heater.low_threshold: must be an integer from -273 to 2147483647"},
        {R"("devices": {"temperature_sensor": {"thresholds": [5, "5"]}})",
         "devices.temperature_sensor.thresholds[1]: must be an integer from -273 to 2147483647"},
        {R"("devices": {"plc_board": {"end_signal_time": -0.1}})",
         "devices.plc_board.end_signal_time: must be a number from 0 to 1000000000"},
        {R"("devices": {"turntable": {"service_angle": 361}})",
         "devices.turntable.service_angle: must be an integer from 0 to 360"},
        {R"("devices": {"brush": {"timeout": 1}})",
         "devices.brush.timeout: must be a time, as \"30 min\", \"90 s\" or \"1500 ms\""},
        {R"("devices": {"autocap": {"speed": 1}})", "devices.autocap.speed: unknown member"},
    };
    for (const auto &[members, text] : refusals)
        EXPECT_EQ(refusalOf(R"({"type": "dispenser", )" + QByteArray(members) + "}"), text) << members;
}

TEST(MachineFile, whatAMotorIsRefusedFor)
{
    const std::pair<const char *, const char *> refusals[] = {
        {R"("dosing_motor": {"max_speed_origin": 2})",
         "dosing_motor.max_speed_origin: must be an integer from 0 to 1"},
        {R"("dosing_motor": {"dispensing_algorithm_mask": -2})",
         "dosing_motor.dispensing_algorithm_mask: must be an integer from -1 to 2147483647"},
        {R"("dosing_motor": {"inter_dispensing_time": -2})",
         "dosing_motor.inter_dispensing_time: must be a number from -1 to 1000000000"},
        {R"("dosing_motor": {"speed_multipliers": [{"offset": -1000000001}]})",
         "dosing_motor.speed_multipliers[0].offset: must be a number from -1000000000 to 1000000000"},
        {R"("dosing_motor": {"ramp": []})", "dosing_motor.ramp: must be an object"},
        {R"("stirring_motor": {"resolution": 0})",
         "stirring_motor.resolution: must be an integer from 1 to 2147483647"},
        {R"("cleaning_motors": [{}, {"target": true}])",
         "cleaning_motors[1].target: must be an integer from 0 to 2147483647"},
    };
    for (const auto &[members, text] : refusals)
        EXPECT_EQ(refusalOf(twoCircuits(members, R"("head": 1)")),
                  std::string("canisters[0].circuits[0].") + text)
            << members;
}

} // namespace
