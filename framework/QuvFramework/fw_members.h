// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_brush.h>
#include <QuvFramework/fw_brush2.h>
#include <QuvFramework/fw_bungholelocator.h>
#include <QuvFramework/fw_calibrationprofiles.h>
#include <QuvFramework/fw_canpresencesensor.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_heater.h>
#include <QuvFramework/fw_humidifier.h>
#include <QuvFramework/fw_lineartable.h>
#include <QuvFramework/fw_lock.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_nozzlelight.h>
#include <QuvFramework/fw_nozzlevalve.h>
#include <QuvFramework/fw_offline.h>
#include <QuvFramework/fw_plcboard.h>
#include <QuvFramework/fw_shelf.h>
#include <QuvFramework/fw_temperaturesensor.h>
#include <QuvFramework/fw_timespan.h>
#include <QuvFramework/fw_turntable.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>
#include <QuvFramework/fw_utils.h>
#include <QuvFramework/fw_version.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <optional>
#include <type_traits>

// What a machine holds, a line a member. This one description is what machine files, the structs of XML-RPC and comparison are made
// of: each is an archive that runs it.
//
//   constant(key, text)               a member that is always there and says always the same
//   required(key, get, set, range)    a member that has to be there
//   optional(key, get, set, range)    one that has the default of its object when it is not there; get may give a
//                                     std::optional, for what the object can do without
//   removable(key, get, set, remove)  as optional, with a sign for an object that is without what it has by default
//   group(key, describeGroup)         members of the object that stand in an object of their own
//   modelKey                          under which a machine's model stands

namespace quv {

/// What a number may be; one with a fraction is MaxQuantity at most.
struct Range
{
    long long min = 0;
    long long max = std::numeric_limits<int>::max();
};

constexpr int MaxInt = std::numeric_limits<int>::max();
constexpr int MaxPosition = 245; // addresses beyond it are not one parameter on the serial link
constexpr int MaxLayoutPosition = 244;
constexpr int MaxModule = 31; // of as many bits as a mask has
constexpr int MaxQuantity = 1000000000;
constexpr int AbsoluteZero = -273; // degrees Celsius

/// A time as it is told: in the greatest unit that leaves nothing over.
struct MachineTime
{
    int value = 0;
    int unit = FW_TimeSpan::Milliseconds;

    bool operator==(const MachineTime &other) const { return value == other.value && unit == other.unit; }
};

/// As "30 min", "90 s" or "1500 ms".
QUVFRAMEWORK_EXPORT QString toText(MachineTime time);
QUVFRAMEWORK_EXPORT std::optional<MachineTime> machineTimeFromText(const QString &text);

/// What is wrong with a member, and the member's way from the object that was to be read: "canisters[3].circuits[0].head".
struct MemberFault
{
    QString path;
    QString text;
};

inline QString memberPath(const QString &object, const QString &key)
{
    return object.isEmpty() ? key : object + QLatin1Char('.') + key;
}

inline QString elementPath(const QString &list, int index)
{
    return QStringLiteral("%1[%2]").arg(list).arg(index);
}

// What a member must be, for people.
QUVFRAMEWORK_EXPORT QString mustBeInteger(Range range);
QUVFRAMEWORK_EXPORT QString mustBeNumber(Range range);
QUVFRAMEWORK_EXPORT QString mustBeTime();
QUVFRAMEWORK_EXPORT QString mustBeText();
QUVFRAMEWORK_EXPORT QString mustBeFlag();
QUVFRAMEWORK_EXPORT QString mustBeArray();

// By which archives tell how a member is read and written.
template <class T>
struct IsOptional : std::false_type
{};
template <class T>
struct IsOptional<std::optional<T>> : std::true_type
{};

template <class T>
struct IsList : std::false_type
{};
template <class T>
struct IsList<QList<T>> : std::true_type
{};
template <class T>
struct IsList<QVector<T>> : std::true_type
{};

/// How a machine tells that a canister has fallen to its reserve, FW_Dispenser::setReserveSensorTypeAndPolicyMask.
struct ReserveSensor
{
    int type = 0;
    int policy = 0;

    bool operator==(const ReserveSensor &other) const { return type == other.type && policy == other.policy; }
};

/// \a in gives the time in a unit, as FW_TimeSpan does.
template <class In>
MachineTime timeIn(In in)
{
    constexpr long long Second = 1000;
    constexpr long long Minute = 60 * Second;
    // none of the three is too much, and that of the unit in which the time was set is exact
    const long long milliseconds =
        std::max({1LL * in(FW_TimeSpan::Milliseconds), Second * in(FW_TimeSpan::Seconds),
                  Minute * in(FW_TimeSpan::Minutes)});
    if (milliseconds % Minute == 0)
        return {static_cast<int>(milliseconds / Minute), FW_TimeSpan::Minutes};
    if (milliseconds % Second == 0)
        return {static_cast<int>(milliseconds / Second), FW_TimeSpan::Seconds};
    return {static_cast<int>(milliseconds), FW_TimeSpan::Milliseconds};
}

template <class Archive, class Get, class Set>
void describeTime(Archive &object, const char *key, Get get, Set set)
{
    object.optional(
        key, [=](const auto &o) { return timeIn([&](int unit) { return std::invoke(get, o, unit); }); },
        [=](auto &o, MachineTime time) { std::invoke(set, o, time.value, time.unit); });
}

/// Sets a data member; getting it needs no more than its pointer.
template <class Object, class Value>
auto settingOf(Value Object::*member)
{
    return [member](Object &object, Value value) { object.*member = value; };
}

template <class Archive, class Object, class Value>
void describeField(Archive &object, const char *key, Value Object::*member, Range range = {})
{
    object.optional(key, member, settingOf(member), range);
}

// --- parts of a circuit

template <template <class> class Archive>
void describe(Archive<FW_CalibrationPoint> &point)
{
    using Point = FW_CalibrationPoint;
    point.required("steps", &Point::steps, settingOf(&Point::steps), {0, MaxWholeNumber});
    point.required("quantity", &Point::quantity, settingOf(&Point::quantity));
    point.required("speed", &Point::speed, settingOf(&Point::speed));
    describeField(point, "nozzle_valve", &Point::nozzleValveID);
}

template <template <class> class Archive>
void describe(Archive<FW_Calibration> &calibration)
{
    calibration.optional("points", &FW_Calibration::points, &FW_Calibration::setPoints);
}

template <class Archive>
void describeMotor(Archive &motor)
{
    motor.optional("id", &FW_Motor::motorID, &FW_Motor::setMotorId);
    motor.optional("resolution", &FW_Motor::resolution, &FW_Motor::setResolution, {1, MaxInt});
    motor.optional("supplying_current", &FW_Motor::supplyingCurrent, &FW_Motor::setSupplyingCurrent);
}

template <template <class> class Archive>
void describe(Archive<FW_DosingMotor::SpeedMpxOffset> &entry)
{
    using Entry = FW_DosingMotor::SpeedMpxOffset;
    describeField(entry, "speed", &Entry::speed);
    describeField(entry, "multiplier", &Entry::multiplier, {-MaxQuantity, MaxQuantity});
    describeField(entry, "offset", &Entry::offset, {-MaxQuantity, MaxQuantity});
}

template <template <class> class Archive>
void describe(Archive<GravimetricSettings> &settings)
{
    using Settings = GravimetricSettings;
    describeField(settings, "tolerance", &Settings::tolerance);
    describeField(settings, "max_corrections", &Settings::maxCorrections);
}

template <template <class> class Archive>
void describe(Archive<FW_Ramp> &ramp)
{
    ramp.optional("reference", &FW_Ramp::configRef, &FW_Ramp::setConfigRef);
    ramp.optional("enabled", &FW_Ramp::isEnabled, &FW_Ramp::setEnabled);
    ramp.optional("initial_steps", &FW_Ramp::initialSteps, &FW_Ramp::setInitialSteps);
    ramp.optional("final_steps", &FW_Ramp::finalSteps, &FW_Ramp::setFinalSteps);
    ramp.optional("speed_threshold", &FW_Ramp::speedThreshold, &FW_Ramp::setSpeedThreshold);
    ramp.optional("slow_speed", &FW_Ramp::slowSpeed, &FW_Ramp::setSlowSpeed);
}

template <template <class> class Archive>
void describe(Archive<FW_SingleTransmission> &part)
{
    using Part = FW_SingleTransmission;
    describeField(part, "reference", &Part::configRef);
    describeField(part, "motor_rated_current", &Part::motorRatedCurrent);
    describeField(part, "inverter_rated_current", &Part::inverterRatedCurrent);
    describeField(part, "inverter_overload_multiplier", &Part::inverterOverloadMultiplier);
    describeField(part, "motor_current_multiplier", &Part::motorCurrentMultiplier);
    describeField(part, "motor_overload_timeout", &Part::motorOverloadTimeout);
    describeField(part, "motor_max_speed", &Part::motorMaxSpeed);
    describeField(part, "y1", &Part::y1);
    describeField(part, "y2", &Part::y2);
    describeField(part, "x1", &Part::x1);
    describeField(part, "x2", &Part::x2);
    describeField(part, "motor_speed_error_tolerance", &Part::motorSpeedErrorTolerance);
    describeField(part, "encoder_pulses", &Part::encoderPulses);
    describeField(part, "encoder_channels", &Part::encoderChannels);
    describeField(part, "encoder_step_fraction", &Part::encoderStepFraction);
    describeField(part, "inverter_current_max", &Part::inverterCurrentMax);
    describeField(part, "inverter_voltage_max", &Part::inverterVoltageMax);
}

template <template <class> class Archive>
void describe(Archive<FW_FlowCorrection> &correction)
{
    using Correction = FW_FlowCorrection;
    describeField(correction, "reference", &Correction::configRef);
    describeField(correction, "overcharge_steps", &Correction::overchargeSteps);
    describeField(correction, "predispense_steps", &Correction::predispenseSteps);
    describeField(correction, "bottom_delay", &Correction::bottomDelay);
    describeField(correction, "top_delay", &Correction::topDelay);
    describeField(correction, "zonal_flow_correction_level", &Correction::zonalFlowCorrectionLevel);
    describeField(correction, "zonal_delay_level", &Correction::zonalDelayLevel);
}

/// A part that an object gives by pointer, null for none.
template <class Archive, class Object, class Part>
void describePart(Archive &object, const char *key, const Part *(Object::*get)() const,
                  void (Object::*set)(const Part &))
{
    object.optional(
        key,
        [get](const Object &o) {
            const Part *part = (o.*get)();
            return part ? std::make_optional(*part) : std::nullopt;
        },
        [set](Object &o, const std::optional<Part> &part) { (o.*set)(*part); });
}

template <template <class> class Archive>
void describe(Archive<FW_DosingMotor> &motor)
{
    using Motor = FW_DosingMotor;
    using Entries = QVector<Motor::SpeedMpxOffset>;
    const auto gravimetricSettings = [](const Motor &m) {
        return m.hasGravimetricSettings() ? std::make_optional(m.gravimetricSettings()) : std::nullopt;
    };
    const auto addSpeedMultipliers = [](Motor &m, const Entries &entries) {
        for (const Motor::SpeedMpxOffset &entry : entries)
            m.addSpeedMpxOffset(entry);
    };
    describeMotor(motor);
    motor.optional("max_speed", &Motor::maxSpeed,
                   [](Motor &m, int speed) { m.setMaxSpeed(speed, m.maxSpeedOrigin()); });
    motor.optional("max_speed_origin", &Motor::maxSpeedOrigin,
                   [](Motor &m, int origin) { m.setMaxSpeed(m.maxSpeed(), origin); }, {0, 1});
    motor.optional("max_speed_limit", &Motor::maxSpeedLimit, &Motor::setMaxSpeedLimit);
    motor.optional("steps_per_stroke", &Motor::stepsPerStroke, &Motor::setStepsPerStroke);
    motor.optional("pump_type", &Motor::pumpType,
                   [](Motor &m, int type) { m.setPumpType(type, m.pumpValue()); });
    motor.optional("pump_value", &Motor::pumpValue,
                   [](Motor &m, int value) { m.setPumpType(m.pumpType(), value); });
    motor.optional("stroke_value", &Motor::strokeValue, &Motor::setStrokeValue);
    motor.optional("suction_speed", &Motor::suctionSpeed, &Motor::setSuctionSpeed);
    motor.optional("zero_pump", &Motor::zeroPump, &Motor::setZeroPump);
    motor.optional("activation_time", &Motor::activationTime, &Motor::setActivationTime);
    motor.optional("delay", &Motor::delay, &Motor::setDelay);
    motor.optional("inter_dispensing_time", &Motor::interDispensingTime, &Motor::setInterDispensingTime,
                   {-1, MaxQuantity});
    motor.optional("dispensing_algorithm_mask", &Motor::dispensingAlgorithmMask,
                   &Motor::setDispensingAlgorithmMask, {-1, MaxInt});
    motor.optional("smart_speed_reduction", &Motor::hasSmartSpeedReduction, &Motor::setSmartSpeedReduction);
    motor.optional("temperature_group", &Motor::speedThrTempReductionGroupID,
                   &Motor::setSpeedThrTempReductionGroupID, {-1, MaxInt});
    motor.optional("speed_multipliers", &Motor::speedMpxOffsets, addSpeedMultipliers);
    motor.optional("gravimetric", &Motor::isGravimetricSw, &Motor::setGravimetricSw);
    motor.optional("gravimetric_settings", gravimetricSettings,
                   [](Motor &m, const std::optional<GravimetricSettings> &settings) {
                       m.setGravimetricSettings(*settings);
                   });
    motor.optional("head_reference", &Motor::headRefID, &Motor::setHeadRefID);
    motor.optional("pressure_sensor_wire_board", &Motor::pressureSensorWireBoardId,
                   &Motor::setPressureSensorWireBoardId);
    motor.optional("pressure_sensor_wire_connector", &Motor::pressureSensorWireConnectorId,
                   &Motor::setPressureSensorWireConnectorId);
    describePart(motor, "ramp", &Motor::ramp, &Motor::setRamp);
    describePart(motor, "single_transmission", &Motor::singleTransmission, &Motor::setSingleTransmission);
    describePart(motor, "flow_correction", &Motor::flowCorrection, &Motor::setFlowCorrection);
}

template <template <class> class Archive>
void describe(Archive<FW_StirringMotor> &motor)
{
    using Motor = FW_StirringMotor;
    describeMotor(motor);
    motor.optional("enabled", &Motor::isEnabled, &Motor::setEnabled);
    motor.optional("activity", &Motor::stirringActivity, &Motor::setStirringActivity);
    describeTime(motor, "pause", &Motor::stirringPause, &Motor::setStirringPause);
    motor.optional("policy", &Motor::stirringPolicy, &Motor::setStirringPolicy);
    motor.optional("speed", &Motor::speed, &Motor::setSpeed);
    motor.optional("wire_board", &Motor::wireBoardId, &Motor::setWireBoardId);
    motor.optional("wire_connectors_mask", &Motor::wireConnectorsIdBitMask,
                   &Motor::setWireConnectorsIdBitMask);
}

template <template <class> class Archive>
void describe(Archive<FW_RecirculationMotor> &motor)
{
    using Motor = FW_RecirculationMotor;
    describeMotor(motor);
    motor.optional("enabled", &Motor::isEnabled, &Motor::setEnabled);
    motor.optional("speed", &Motor::speed, &Motor::setSpeed);
    motor.optional("suction_speed", &Motor::suctionSpeed, &Motor::setSuctionSpeed);
    motor.optional("activity", &Motor::recirculationActivity, &Motor::setRecirculationActivity);
    describeTime(motor, "pause", &Motor::recirculationPause, &Motor::setRecirculationPause);
}

template <class Archive>
void describeCleanJob(Archive &job)
{
    job.optional("cleaning_enabled", &FW_CleanJob::isCleaningEnabled, &FW_CleanJob::setCleaningEnabled);
    describeTime(job, "timeout", &FW_CleanJob::timeout, &FW_CleanJob::setTimeout);
    job.optional("turntable_speed", &FW_CleanJob::turntableSpeed, &FW_CleanJob::setTurntableSpeed);
    job.optional("schedule_mask", &FW_CleanJob::scheduleMask, &FW_CleanJob::setScheduleMask);
}

template <template <class> class Archive>
void describe(Archive<FW_CleaningMotor> &motor)
{
    using Motor = FW_CleaningMotor;
    describeMotor(motor);
    describeCleanJob(motor);
    motor.optional("duration", &Motor::duration, &Motor::setDuration);
    motor.optional("brush_type", &Motor::brushType, &Motor::setBrushType);
    motor.optional("target", &Motor::target, &Motor::setTarget);
    motor.optional("process", &Motor::process, &Motor::setProcess);
}

template <template <class> class Archive>
void describe(Archive<FW_Valve> &valve)
{
    valve.required("id", &FW_Valve::id, &FW_Valve::setId);
    valve.optional("board_id", &FW_Valve::boardID, &FW_Valve::setBoardID);
    valve.optional("type", &FW_Valve::valveType, &FW_Valve::setValveType);
}

template <template <class> class Archive>
void describe(Archive<FW_Circuit> &circuit)
{
    using Motors = QList<FW_CleaningMotor>;
    const auto dosingMotor = [](const FW_Circuit &c) {
        return c.hasDosingMotor() ? std::make_optional(c.dosingMotor()) : std::nullopt;
    };
    const auto setDosingMotor = [](FW_Circuit &c, const std::optional<FW_DosingMotor> &motor) {
        c.setDosingMotor(*motor);
    };
    const auto addCleaningMotors = [](FW_Circuit &c, const Motors &motors) {
        for (const FW_CleaningMotor &motor : motors)
            c.addCleaningMotor(motor);
    };
    circuit.required("id", &FW_Circuit::id, &FW_Circuit::setId, {1, MaxInt});
    circuit.required("position_id", &FW_Circuit::positionId,
                     [](FW_Circuit &c, int position) { c.setPositionId(position); }, {1, MaxPosition});
    circuit.optional("enabled", &FW_Circuit::isEnabled, &FW_Circuit::setEnabled);
    circuit.optional("head", &FW_Circuit::headId, &FW_Circuit::setHeadId, {1, 2});
    circuit.optional("queue_id", &FW_Circuit::queueID, &FW_Circuit::setQueueID);
    circuit.optional("wire_board", &FW_Circuit::wireBoardId, &FW_Circuit::setWireBoardId);
    circuit.optional("wire_connector", &FW_Circuit::wireConnectorId, &FW_Circuit::setWireConnectorId);
    circuit.optional("nozzle_valves", &FW_Circuit::nozzleValvesID, &FW_Circuit::setNozzleValvesID,
                     {1, MaxInt});
    circuit.optional("valves", &FW_Circuit::valves, &FW_Circuit::setValves);
    circuit.removable("dosing_motor", dosingMotor, setDosingMotor, &FW_Circuit::removeDosingMotor);
    describePart(circuit, "stirring_motor", &FW_Circuit::firstStirringMotor, &FW_Circuit::setStirringMotor);
    describePart(circuit, "recirculation_motor", &FW_Circuit::firstRecirculationMotor,
                 &FW_Circuit::setRecirculationMotor);
    circuit.optional("cleaning_motors", &FW_Circuit::cleaningMotors, addCleaningMotors);
    circuit.optional(
        "calibration", [](const FW_Circuit &c) { return c.calibration().points(); },
        [](FW_Circuit &c, const QVector<FW_CalibrationPoint> &points) {
            c.setCalibration(FW_Calibration(points));
        });
}

// --- canisters and colorants

template <template <class> class Archive>
void describe(Archive<FW_CanisterLevelSensor> &sensor)
{
    using Sensor = FW_CanisterLevelSensor;
    sensor.optional("enabled", &Sensor::isEnabled, &Sensor::setEnabled);
    sensor.optional("wire_board", &Sensor::wireBoardId, &Sensor::setWireBoardId);
    sensor.optional("wire_connector", &Sensor::wireConnectorId, &Sensor::setWireConnectorId);
    sensor.optional("critical_level", &Sensor::criticalLevel, &Sensor::setCriticalLevel);
    sensor.optional("check_frequency", &Sensor::checkFrequency,
                    [](Sensor &s, int frequency) { s.setCheckFrequency(frequency, s.checkFrequencyUnit()); });
    sensor.optional("check_frequency_unit", &Sensor::checkFrequencyUnit,
                    [](Sensor &s, int unit) { s.setCheckFrequency(s.checkFrequency(), unit); }, {0, 1});
}

template <template <class> class Archive>
void describe(Archive<FW_Canister> &canister)
{
    using Circuits = QList<FW_Circuit>;
    const auto levelSensor = [](const FW_Canister &c) {
        const FW_CanisterLevelSensor *sensor = c.canisterLevelSensor();
        return sensor ? std::make_optional(*sensor) : std::nullopt;
    };
    const auto setLevelSensor = [](FW_Canister &c, const std::optional<FW_CanisterLevelSensor> &sensor) {
        c.setCanisterLevelSensor(1);
        *c.canisterLevelSensor() = *sensor;
    };
    canister.required("id", &FW_Canister::id, &FW_Canister::setId, {1, MaxInt});
    canister.optional("enabled", &FW_Canister::isEnabled, &FW_Canister::setEnabled);
    canister.optional("colorant", &FW_Canister::colorantCode, &FW_Canister::setColorantCode);
    canister.optional("maximum", &FW_Canister::maximumQuantity, &FW_Canister::setMaximumQuantity);
    canister.optional("current", &FW_Canister::currentQuantity, &FW_Canister::setCurrentQuantity);
    canister.optional("reserve", &FW_Canister::reserveQuantity, &FW_Canister::setReserveQuantity);
    canister.optional("warning", &FW_Canister::warningQuantity, &FW_Canister::setWarningQuantity);
    canister.optional("activated", &FW_Canister::activationFlag, &FW_Canister::setActivationFlag);
    canister.optional(
        "layout_positions", &FW_Canister::layoutPositionsId,
        [](FW_Canister &c, const QList<int> &positions) { c.setLayoutPositionsId(positions, QString()); },
        {1, MaxLayoutPosition});
    canister.optional("level_sensor", levelSensor, setLevelSensor);
    canister.optional(
        "circuits", [](const FW_Canister &c) { return c.circuits(); },
        [](FW_Canister &c, const Circuits &circuits) { c.circuits() = circuits; });
}

template <template <class> class Archive>
void describe(Archive<FW_Colorant> &colorant)
{
    colorant.required("code", &FW_Colorant::code, &FW_Colorant::setCode);
    colorant.optional("name", &FW_Colorant::name, &FW_Colorant::setName);
    colorant.optional("enabled", &FW_Colorant::isEnabled, &FW_Colorant::setEnabled);
    colorant.optional("system_id", &FW_Colorant::systemColorantID, &FW_Colorant::setSystemColorantID);
}

template <template <class> class Archive>
void describe(Archive<FW_CalibrationProfiles> &profiles)
{
    profiles.optional("pumps", &FW_CalibrationProfiles::pumps,
                      [](FW_CalibrationProfiles &p, const QList<FW_DosingMotor> &pumps) {
                          for (const FW_DosingMotor &pump : pumps)
                              p.addPump(pump);
                      });
}

// --- devices

template <class Archive>
void describeEnabled(Archive &device)
{
    device.optional("enabled", &FW_Device::isEnabled, &FW_Device::setEnabled);
}

template <template <class> class Archive>
void describe(Archive<FW_Autocap> &autocap)
{
    describeEnabled(autocap);
    autocap.optional("type", &FW_Autocap::type, &FW_Autocap::setType);
    autocap.optional("movement_type", &FW_Autocap::movementType, &FW_Autocap::setMovementType);
    autocap.optional("opening_timeout", &FW_Autocap::openingTimeout, &FW_Autocap::setOpeningTimeout);
    autocap.optional("closing_timeout", &FW_Autocap::closingTimeout, &FW_Autocap::setClosingTimeout);
    autocap.optional("closing_delay", &FW_Autocap::closingDelay, &FW_Autocap::setClosingDelay);
    autocap.optional("power_off_delay", &FW_Autocap::powerOffDelay, &FW_Autocap::setPowerOffDelay);
    autocap.optional("automatic_closure", &FW_Autocap::automaticClosure, &FW_Autocap::setAutomaticClosure);
    autocap.optional("movement_speed", &FW_Autocap::movementSpeed, &FW_Autocap::setMovementSpeed);
    autocap.optional("working_mode", &FW_Autocap::workingMode, &FW_Autocap::setWorkingMode);
    autocap.optional("sliding_offline_time", &FW_Autocap::slidingOfflinePosTime,
                     &FW_Autocap::setSlidingOfflinePosTime);
}

template <template <class> class Archive>
void describe(Archive<FW_Shelf> &shelf)
{
    describeEnabled(shelf);
    shelf.optional("type", &FW_Shelf::type, [](FW_Shelf &s, int type) { s.setType(type, -1, FW_Version()); });
    shelf.optional("puncher", &FW_Shelf::puncher,
                   [](FW_Shelf &s, int type) { s.setPuncher(type, -1, FW_Version()); });
    shelf.optional("door_value", &FW_Shelf::doorValue, &FW_Shelf::setDoorValue);
    shelf.optional("move_offset", &FW_Shelf::moveOffset, &FW_Shelf::setMoveOffset);
    shelf.optional("resolution", &FW_Shelf::resolution, &FW_Shelf::setResolution, {1, MaxInt});
    shelf.optional("punching_tolerance", &FW_Shelf::punchingTolerance, &FW_Shelf::setPunchingTolerance);
    shelf.optional("punching_speed", &FW_Shelf::punchingSpeed, &FW_Shelf::setPunchingSpeed);
    shelf.optional("can_presence_sensor_high", &FW_Shelf::canPresenceSensorHigh,
                   &FW_Shelf::setCanPresenceSensorHigh);
    shelf.optional("punching_sensor_high", &FW_Shelf::punchingSensorHigh, &FW_Shelf::setPunchingSensorHigh);
    shelf.optional("punching_move_offset", &FW_Shelf::punchingMoveOffset, &FW_Shelf::setPunchingMoveOffset);
    shelf.optional("roll_conveyor", &FW_Shelf::hasRollConveyor, &FW_Shelf::setRollConveyor);
    shelf.optional("roll_conveyor_height", &FW_Shelf::rollConveyorHeight, &FW_Shelf::setRollConveyorHeight);
}

template <template <class> class Archive>
void describe(Archive<FW_CanPresenceSensor> &sensor)
{
    using Sensor = FW_CanPresenceSensor;
    describeEnabled(sensor);
    sensor.optional("type", &Sensor::type, &Sensor::setType);
    sensor.optional("check_and_status", &Sensor::canPresenceCheckAndStatus,
                    &Sensor::setCanPresenceCheckAndStatus);
}

template <template <class> class Archive>
void describe(Archive<FW_Humidifier> &humidifier)
{
    using Humidifier = FW_Humidifier;
    const auto coefficient = [](int vaporizer) {
        return [vaporizer](const Humidifier &h) { return h.multiplierCoefficient(vaporizer); };
    };
    const auto setCoefficient = [](int vaporizer) {
        return [vaporizer](Humidifier &h, int value) { h.setMultiplierCoefficient(value, vaporizer); };
    };
    describeEnabled(humidifier);
    humidifier.optional("reading_period", &Humidifier::readingPeriod, &Humidifier::setReadingPeriod);
    humidifier.optional("multiplier_coefficient_1", coefficient(0), setCoefficient(0));
    humidifier.optional("multiplier_coefficient_2", coefficient(1), setCoefficient(1));
    humidifier.optional("low_humidity_warning_threshold", &Humidifier::lowHumidityWarningThreshold,
                        &Humidifier::setLowHumidityWarningThreshold);
}

template <template <class> class Archive>
void describe(Archive<FW_Offline> &offline)
{
    describeEnabled(offline);
    offline.optional("easy_on_time", &FW_Offline::easyOnTime, &FW_Offline::setEasyOnTime);
}

template <template <class> class Archive>
void describe(Archive<FW_TemperatureSensor> &sensor)
{
    using Sensor = FW_TemperatureSensor;
    const auto setThresholds = [](Sensor &s, const QList<int> &thresholds) {
        s.clearTemperatureThresholds();
        for (const int threshold : thresholds)
            s.addTemperatureThreshold(threshold);
    };
    const auto speeds = [](int group) {
        return [group](const Sensor &s) { return s.erogationSpeeds(group); };
    };
    const auto setSpeeds = [](int group) {
        return [group](Sensor &s, const QList<int> &list) {
            s.clearErogationSpeeds(group);
            for (const int speed : list)
                s.addErogationSpeed(speed, group);
        };
    };
    describeEnabled(sensor);
    sensor.optional("reading_period", &Sensor::readingPeriod, &Sensor::setReadingPeriod);
    sensor.optional("thresholds", &Sensor::temperatureThresholds, setThresholds, {AbsoluteZero, MaxInt});
    sensor.optional("speeds_group_1", speeds(1), setSpeeds(1));
    sensor.optional("speeds_group_2", speeds(2), setSpeeds(2));
}

template <template <class> class Archive>
void describe(Archive<FW_BungHoleLocator> &locator)
{
    using Locator = FW_BungHoleLocator;
    describeEnabled(locator);
    locator.optional("driving_mode", &Locator::drivingMode, &Locator::setDrivingMode);
    locator.optional("deactivation_delay", &Locator::deactivationDelay, &Locator::setDeactivationDelay);
}

template <template <class> class Archive>
void describe(Archive<FW_NozzleLight> &light)
{
    using Light = FW_NozzleLight;
    describeEnabled(light);
    light.optional("driving_mode", &Light::drivingMode, &Light::setDrivingMode);
    light.optional("deactivation_delay", &Light::deactivationDelay, &Light::setDeactivationDelay);
}

template <class Archive>
void describeRack(Archive &rack)
{
    describeEnabled(rack);
    describeMotor(rack);
    rack.optional("zero_ref_pin_size", &FW_Rack::zeroRefPinSize, &FW_Rack::setZeroRefPinSize);
    rack.optional("circuit_pin_size", &FW_Rack::circuitPinSize, &FW_Rack::setCircuitPinSize);
    rack.optional("positioning_tolerance", &FW_Rack::positioningTolerance, &FW_Rack::setPositioningTolerance);
    rack.optional("high_speed", &FW_Rack::highSpeed, &FW_Rack::setHighSpeed);
    rack.optional("low_speed", &FW_Rack::lowSpeed, &FW_Rack::setLowSpeed);
    rack.optional("zero_ref_search_speed", &FW_Rack::zeroRefSearchSpeed, &FW_Rack::setZeroRefSearchSpeed);
}

template <template <class> class Archive>
void describe(Archive<FW_Turntable> &table)
{
    using Table = FW_Turntable;
    describeRack(table);
    table.optional("round_steps", &Table::roundSteps, &Table::setRoundSteps);
    table.optional("perimeter", &Table::perimeter, &Table::setPerimeter);
    table.optional("internal_perimeter", &Table::internalPerimeter, &Table::setInternalPerimeter);
    table.optional("refill_angle", &Table::refillAngle, &Table::setRefillAngle, {0, 360});
    table.optional("service_angle", &Table::serviceAngle, &Table::setServiceAngle, {0, 360});
    table.optional("step_time", &Table::stepTime, &Table::setStepTime);
    table.optional("positions", &Table::positions, &Table::setPositions, {1, MaxPosition});
}

template <template <class> class Archive>
void describe(Archive<FW_Lineartable> &table)
{
    using Table = FW_Lineartable;
    describeRack(table);
    table.optional("linear_steps", &Table::linearSteps, &Table::setLinearSteps);
    table.optional("length", &Table::length, &Table::setLength);
    table.optional("free_slot_position", &Table::freeSlotPosition, &Table::setFreeSlotPosition);
    table.optional("service_position", &Table::servicePosition, &Table::setServicePosition);
}

template <template <class> class Archive>
void describe(Archive<FW_Heater> &heater)
{
    describeEnabled(heater);
    heater.optional("low_threshold", &FW_Heater::lowTemperatureThreshold,
                    &FW_Heater::setLowTemperatureThreshold, {AbsoluteZero, MaxInt});
    heater.optional("high_threshold", &FW_Heater::highTemperatureThreshold,
                    &FW_Heater::setHighTemperatureThreshold, {AbsoluteZero, MaxInt});
}

template <class Archive>
void describeBrush(Archive &brush)
{
    using Brush = FW_BrushBase;
    describeEnabled(brush);
    describeCleanJob(brush);
    brush.optional("position", &Brush::position, &Brush::setPosition);
    brush.optional("self_cleaning_time", &Brush::selfCleaningTime, &Brush::setSelfCleaningTime);
}

template <template <class> class Archive>
void describe(Archive<FW_Brush> &brush)
{
    describeBrush(brush);
}

template <template <class> class Archive>
void describe(Archive<FW_Brush2> &brush)
{
    describeBrush(brush);
}

template <template <class> class Archive>
void describe(Archive<FW_NozzleValve> &valve)
{
    using Valve = FW_NozzleValve;
    describeEnabled(valve);
    valve.optional("type", &Valve::nozzleType, &Valve::setNozzleType);
    describeTime(valve, "timeout", &Valve::timeout, &Valve::setTimeout);
}

template <template <class> class Archive>
void describe(Archive<FW_UltrasoundCleaning> &cleaning)
{
    using Cleaning = FW_UltrasoundCleaning;
    describeEnabled(cleaning);
    cleaning.optional("source_voltage", &Cleaning::sourceVoltageValue, &Cleaning::setSourceVoltageValue);
    cleaning.optional("cleaning_policy", &Cleaning::cleaningPolicyValue, &Cleaning::setCleaningPolicyValue);
    cleaning.optional("ultrasound_duration", &Cleaning::ultrasoundDuration, &Cleaning::setUltrasoundDuration);
    cleaning.optional("ultrasound_pause", &Cleaning::ultrasoundPause, &Cleaning::setUltrasoundPause);
    cleaning.optional("emptying_time", &Cleaning::emptyingTime, &Cleaning::setEmptyingTime);
    cleaning.optional("filling_time", &Cleaning::fillingTime, &Cleaning::setFillingTime);
    cleaning.optional("level_sensor", &Cleaning::levelSensorEnabledFwValue,
                      &Cleaning::setLevelSensorEnabledFwValue);
}

template <template <class> class Archive>
void describe(Archive<FW_Lock> &lock)
{
    describeEnabled(lock);
    lock.optional("manual_unlock_signal_mask", &FW_Lock::manualUnlockSignalMask,
                  &FW_Lock::setManualUnlockSignalMask);
}

template <template <class> class Archive>
void describe(Archive<FW_PLCBoard> &board)
{
    using Board = FW_PLCBoard;
    describeEnabled(board);
    board.optional("signals_mask", &Board::plcSignalsValue, &Board::setPlcSignalsValue);
    board.optional("end_signal_time", &Board::endDispSignalActivationTime,
                   &Board::setEndDispSignalActivationTime);
    board.optional("error_signal_time", &Board::errDispSignalActivationTime,
                   &Board::setErrDispSignalActivationTime);
}

/// A device of the dispenser, left out when it has none.
template <class Device, class Archive>
void describeDevice(Archive &dispenser, const char *key)
{
    const auto get = [](const FW_Dispenser &d) {
        const auto *device = dynamic_cast<const Device *>(d.getDevice(Device().kind()));
        return device ? std::make_optional(*device) : std::nullopt;
    };
    dispenser.optional(key, get,
                       [](FW_Dispenser &d, const std::optional<Device> &device) { d.setDevice(*device); });
}

template <class Archive>
void describeDevices(Archive &devices)
{
    describeDevice<FW_Autocap>(devices, "autocap");
    describeDevice<FW_Shelf>(devices, "shelf");
    describeDevice<FW_CanPresenceSensor>(devices, "can_presence_sensor");
    describeDevice<FW_Humidifier>(devices, "humidifier");
    describeDevice<FW_Offline>(devices, "offline");
    describeDevice<FW_TemperatureSensor>(devices, "temperature_sensor");
    describeDevice<FW_BungHoleLocator>(devices, "bung_hole_locator");
    describeDevice<FW_NozzleLight>(devices, "nozzle_light");
    describeDevice<FW_Turntable>(devices, "turntable");
    describeDevice<FW_Heater>(devices, "heater");
    describeDevice<FW_Brush>(devices, "brush");
    describeDevice<FW_NozzleValve>(devices, "nozzle_valve");
    describeDevice<FW_Lineartable>(devices, "linear_table");
    describeDevice<FW_UltrasoundCleaning>(devices, "ultrasound_cleaning");
    describeDevice<FW_Lock>(devices, "lock");
    describeDevice<FW_Brush2>(devices, "brush_2");
    describeDevice<FW_PLCBoard>(devices, "plc_board");
}

// --- machines

template <class Archive>
void describeShared(Archive &machine)
{
    // a machine without a model has no such member
    const auto model = [](const FW_Machine &m) {
        return m.model() == MachineModel::None ? std::nullopt : std::make_optional(m.model());
    };
    machine.optional("id", &FW_Machine::id, &FW_Machine::setId);
    machine.optional(Archive::modelKey, model,
                     [](FW_Machine &m, std::optional<MachineModel> number) { m.setModel(*number); });
    machine.optional("model_name", &FW_Machine::modelName, &FW_Machine::setModelName);
    machine.optional("sid", &FW_Machine::SID, &FW_Machine::setSID);
    machine.optional("description", &FW_Machine::description, &FW_Machine::setDescription);
    machine.optional("product_code", &FW_Machine::productCode, &FW_Machine::setProductCode);
    machine.optional("serial_number", &FW_Machine::serialNumber, &FW_Machine::setSerialNumber);
    machine.optional("connection_name", &FW_Machine::connectionName, &FW_Machine::setConnectionName);
    machine.optional("conf_structure_name", &FW_Machine::confStructureName,
                     &FW_Machine::setConfStructureName);
}

template <template <class> class Archive>
void describe(Archive<ReserveSensor> &sensor)
{
    sensor.required("type", &ReserveSensor::type, settingOf(&ReserveSensor::type));
    sensor.required("policy", &ReserveSensor::policy, settingOf(&ReserveSensor::policy));
}

/// How a dispenser as a whole is set up.
template <class Archive>
void describeSetup(Archive &dispenser)
{
    using D = FW_Dispenser;
    const auto reserveSensor = [](const D &d) {
        ReserveSensor sensor;
        return d.getReserveSensorTypeAndPolicyMask(sensor.type, sensor.policy) ? std::make_optional(sensor)
                                                                               : std::nullopt;
    };
    const auto setReserveSensor = [](D &d, const std::optional<ReserveSensor> &sensor) {
        d.setReserveSensorTypeAndPolicyMask(sensor->type, sensor->policy, false);
    };
    const auto setINVType = [](D &d, int type) {
        constexpr int Valves[] = {0, 3, 5}; // a dispenser takes its type from that of its valves
        d.setINVTypeFromValve(Valves[type]);
    };
    dispenser.optional("initial_working_mode", &D::initialWorkingMode, &D::setInitialWorkingMode);
    dispenser.optional("power_supply", &D::powerSupply, &D::setPowerSupply);
    dispenser.optional("connectivity", &D::connectivity,
                       [](D &d, int mask) { d.setConnectivity(mask, false); });
    dispenser.optional("recirculating_parallelism", &D::recirculatingParallelism,
                       &D::setRecirculatingParallelism);
    dispenser.optional("stirring_parallelism", &D::stirringParallelism, &D::setStirringParallelism);
    dispenser.optional("power_off_delay", &D::powerOffDelay, &D::setPowerOffDelay);
    dispenser.optional("post_tinting_time", &D::postTintingTime, &D::setPostTintingTime);
    dispenser.optional("modules", &D::modulesID, &D::setModulesID, {1, MaxModule});
    describeTime(dispenser, "rcs_pause", &D::RCSProcessPause, &D::setRCSProcessPause);
    dispenser.optional("rcs_mask", &D::RCSProcessesFwMask, &D::setRCSProcesses);
    dispenser.optional("led_management", &D::ledManagement, &D::setLedManagement);
    dispenser.optional("timed_processes_mask", &D::timedProcessesStartupMask,
                       &D::setTimedProcessesStartupMask);
    dispenser.optional("reserve_sensor", reserveSensor, setReserveSensor);
    dispenser.optional("inv_type", &D::INVType, setINVType, {0, 2});
    dispenser.optional("global_stirring", &D::hasGlobalStirring, &D::setGlobalStirring);
}

template <template <class> class Archive>
void describe(Archive<FW_Dispenser> &dispenser)
{
    const auto addCanisters = [](FW_Dispenser &d, const QList<FW_Canister> &canisters) {
        for (const FW_Canister &canister : canisters)
            d.addCanister(canister);
    };
    const auto addColorants = [](FW_Dispenser &d, const QList<FW_Colorant> &colorants) {
        for (const FW_Colorant &colorant : colorants)
            d.addColorant(colorant);
    };
    dispenser.constant("type", "dispenser");
    describeShared(dispenser);
    dispenser.optional("heads", &FW_Dispenser::headArrangement, &FW_Dispenser::setHeadArrangement, {1, 2});
    dispenser.optional("command_family", &FW_Dispenser::commandFamily, &FW_Dispenser::setCommandFamily,
                       {1, 2});
    dispenser.optional("tinting_parallelism", &FW_Dispenser::tintingParallelism,
                       &FW_Dispenser::setTintingParallelism, {1, MaxPosition});
    dispenser.optional("nozzle_based_dosing", &FW_Dispenser::hasNozzleBasedDosing,
                       &FW_Dispenser::setNozzleBasedDosing);
    describeSetup(dispenser);
    dispenser.optional("colorants", &FW_Dispenser::colorants, addColorants);
    dispenser.optional("canisters", &FW_Dispenser::canisters, addCanisters);
    dispenser.group("devices", [](auto &devices) { describeDevices(devices); });
}

template <template <class> class Archive>
void describe(Archive<FW_Mixer> &mixer)
{
    mixer.constant("type", "mixer");
    describeShared(mixer);
}

} // namespace quv
