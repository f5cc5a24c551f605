// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/cptfields_p.h"

namespace {

constexpr int notSet = 245; // the highest digit
constexpr int activated = 2;
constexpr int notActivated = 1;
constexpr int transmissionPump = 8;

using Row = quv::CircuitRow;
using Access = quv::ConfAccess<Row>;
using Dosing = FW_DosingMotor;
using Recirculation = FW_RecirculationMotor;
using Cleaning = FW_CleaningMotor;
using Sensor = FW_CanisterLevelSensor;

template <auto member>
constexpr Access ofRow = quv::byMember<Row, member>;

/** A value of one of the circuit's parts. */
template <auto part, auto get, auto set>
constexpr Access of = {[](const Row &row) { return std::invoke(get, row.*part); },
                       [](Row &row, int value) { std::invoke(set, row.*part, value); }};

/** The same of a part that may be missing: it is 0 then. */
template <auto part, auto hasPart, auto get, auto set>
constexpr Access ofOptional = {[](const Row &row) { return row.*hasPart ? std::invoke(get, row.*part) : 0; },
                               [](Row &row, int value) { std::invoke(set, row.*part, value); }};

/** Whether there is a part, and whether it is in use. */
template <auto part, auto hasPart, auto isEnabled, auto setEnabled>
constexpr Access presence = {
    [](const Row &row) {
        if (!(row.*hasPart))
            return static_cast<int>(ConfData::Absent);
        return static_cast<int>(std::invoke(isEnabled, row.*part) ? ConfData::Enabled : ConfData::Disabled);
    },
    [](Row &row, int value) {
        row.*hasPart = value != ConfData::Absent;
        std::invoke(setEnabled, row.*part, value == ConfData::Enabled);
    }};

constexpr Access activation = {[](const Row &row) { return row.activationFlag ? activated : notActivated; },
                               [](Row &row, int value) { row.activationFlag = value == activated; }};

constexpr Access pumpType = {[](const Row &row) { return row.motor.pumpType(); },
                             [](Row &row, int value) { row.motor.setPumpType(value, 0); }};

/** Older firmware tells no suction speed of the recirculation: it is that of the pour. */
constexpr Access suctionSpeed = {[](const Row &row) { return row.motor.suctionSpeed(); },
                                 [](Row &row, int value) {
                                     row.motor.setSuctionSpeed(value);
                                     row.recirculation.setSuctionSpeed(value);
                                 }};

constexpr Access recirculationPause = {
    [](const Row &row) { return row.recirculation.recirculationPause(FW_TimeSpan::Minutes); },
    [](Row &row, int value) { row.recirculation.setRecirculationPause(value, FW_TimeSpan::Minutes); }};

constexpr Access waitingForZero = {[](const Row &row) { return row.motor.zeroPump() ? 0 : 1; },
                                   [](Row &row, int value) { row.motor.setZeroPump(value == 0); }};

template <int index>
constexpr Access layoutPosition = {[](const Row &row) { return row.layoutPositionsId.value(index, 0); },
                                   [](Row &row, int value) {
                                       if (FW_Canister::checkLayoutPositionId(value, QString()) &&
                                           !row.layoutPositionsId.contains(value))
                                           row.layoutPositionsId.append(value);
                                   }};

void setNoMaxSpeed(Row &row)
{
    row.motor.setMaxSpeed(0, Dosing::PumpSpeed);
}

constexpr Access maxSpeed = {[](const Row &row) { return row.motor.maxSpeed(); },
                             [](Row &row, int value) {
                                 if (Dosing::checkMaxSpeed(value))
                                     row.motor.setMaxSpeed(value, Dosing::ConfiguredSpeed);
                                 else
                                     setNoMaxSpeed(row);
                             }};

constexpr Access cleaningTimeout = {
    [](const Row &row) { return row.cleaning.timeout(FW_TimeSpan::Minutes); },
    [](Row &row, int value) { row.cleaning.setTimeout(value, FW_TimeSpan::Minutes); }};

constexpr Access interDispensingTime = {
    [](const Row &row) { return quv::scaled(row.motor.interDispensingTime(), 2); },
    [](Row &row, int value) { row.motor.setInterDispensingTime(value * 0.5); }};

constexpr Access recirculationSuctionSpeed = {[](const Row &row) { return row.recirculation.suctionSpeed(); },
                                              [](Row &row, int value) {
                                                  if (value >= 1)
                                                      row.recirculation.setSuctionSpeed(value);
                                              }};

constexpr Access algorithmMask = {[](const Row &row) { return row.motor.dispensingAlgorithmMask(); },
                                  [](Row &row, int value) {
                                      row.motor.setDispensingAlgorithmMask(
                                          Dosing::checkDispensingAlgorithmMask(value) ? value : -1);
                                  }};

constexpr Access cleaningDuration = {
    [](const Row &row) { return row.hasCleaning ? row.cleaning.duration() : 0; },
    [](Row &row, int value) {
        if (Cleaning::checkDuration(value))
            row.cleaning.setDuration(value);
    }};

constexpr Access maxSpeedLimit = {
    [](const Row &row) { return row.motor.maxSpeedLimit(); },
    [](Row &row, int value) { row.motor.setMaxSpeedLimit(Dosing::checkMaxSpeedLimit(value) ? value : 0); }};

constexpr Access temperatureGroup = {[](const Row &row) {
                                         const int group = row.motor.speedThrTempReductionGroupID();
                                         return group == -1 ? notSet : group;
                                     },
                                     [](Row &row, int value) {
                                         const int group = value == notSet ? -1 : value;
                                         if (Dosing::checkSpeedThrTempReductionGroupID(group))
                                             row.motor.setSpeedThrTempReductionGroupID(group);
                                     }};

constexpr Access speedMultiplier = {
    [](const Row &row) { return quv::scaled(row.motor.getFirstSpeedMpxOffset().multiplier, 1); },
    [](Row &, int) {}};

/** Hundredths of a stroke in the row's units. */
int ofStroke(const Row &row, int hundredths)
{
    return row.hasSensor ? static_cast<int>(qint64(row.motor.strokeValue()) * hundredths / Row::hundredths)
                         : 0;
}

// Nobody knows the stroke yet when a row is read, so the numbers stay as they are until the motor is known.
constexpr Access criticalLevel = {[](const Row &row) { return ofStroke(row, row.sensor.criticalLevel()); },
                                  [](Row &row, int value) { row.sensor.setCriticalLevel(value); }};

constexpr Access checkFrequency = {
    [](const Row &row) { return ofStroke(row, row.sensor.checkFrequency()); },
    [](Row &row, int value) { row.sensor.setCheckFrequency(value, Sensor::FirmwareUnit); }};

constexpr Access smartSpeedReduction = {
    [](const Row &row) {
        return row.motor.hasSmartSpeedReduction() && row.motor.pumpType() != transmissionPump ? notSet : 0;
    },
    [](Row &row, int value) { row.motor.setSmartSpeedReduction(value == notSet); }};

} // namespace

// What is missing stays as a row begins, so only what differs from that is told.
constexpr std::array<quv::ConfField<Row>, 52> quv::circuitFields = {{
    {"Canister ID", "DE00214", ofRow<&Row::canisterID>},
    {"Canister Size", "DE00324", ofRow<&Row::canisterSize>},
    {"Position ID", "DE00215", ofRow<&Row::positionID>},
    {"Activation Mode", "DE00216", activation},
    {"Valve ID", "DE00217", of<&Row::valve, &FW_Valve::id, &FW_Valve::setId>},
    {"Valve Board ID", "DE00218", of<&Row::valve, &FW_Valve::boardID, &FW_Valve::setBoardID>},
    {"Valve Type", "DE00219", of<&Row::valve, &FW_Valve::valveType, &FW_Valve::setValveType>},
    {"Erogation Motor Stepper Resolution", "DE00220",
     of<&Row::motor, &Dosing::resolution, &Dosing::setResolution>},
    {"Pump Type", "DE00221", pumpType},
    {"Stepper Motor Supplying Current", "DE00222",
     of<&Row::motor, &Dosing::supplyingCurrent, &Dosing::setSupplyingCurrent>},
    {"Suction Speed", "DE00223", suctionSpeed},
    {"Recirculation Enabled", "DE00224",
     presence<&Row::recirculation, &Row::hasRecirculation, &Recirculation::isEnabled,
              &Recirculation::setEnabled>},
    {"Recirculation Speed", "DE00325",
     of<&Row::recirculation, &Recirculation::speed, &Recirculation::setSpeed>},
    {"Recirculation Motor Stepper Resolution", "DE00225",
     of<&Row::recirculation, &Recirculation::resolution, &Recirculation::setResolution>},
    {"Recirculation Duration", "DE00226",
     of<&Row::recirculation, &Recirculation::recirculationActivity,
        &Recirculation::setRecirculationActivity>},
    {"Recirculation Pause", "DE00227", recirculationPause},
    {"Ramp ID", "DE00228", ofRow<&Row::rampReference>},
    {"Waiting Zero Pump Signal", "DE00229", waitingForZero},
    {"Motor Activation Time before Valve Opening", "DE00230",
     of<&Row::motor, &Dosing::activationTime, &Dosing::setActivationTime>},
    {"Delay Time before between suction and erogation", "DE00520",
     of<&Row::motor, &Dosing::delay, &Dosing::setDelay>},
    {"Pump Model ID", "DE01356", of<&Row::motor, &Dosing::motorID, &Dosing::setMotorId>, 21},
    {"Wire Board ID", "DE01459", ofRow<&Row::wireBoardID>, 22},
    {"Wire Connector ID", "DE00674", ofRow<&Row::wireConnectorID>, 23},
    // all six or none
    {"Layout Position ID", "DE00873", layoutPosition<0>, Row::lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<1>, Row::lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<2>, Row::lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<3>, Row::lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<4>, Row::lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<5>, Row::lastLayoutPosition},
    {"Max speed", "DE01599", maxSpeed, 30, setNoMaxSpeed},
    {"Accurate Cleaning Enable", "DE01601",
     presence<&Row::cleaning, &Row::hasCleaning, &Cleaning::isCleaningEnabled, &Cleaning::setCleaningEnabled>,
     31},
    {"Accurate Cleaning Timeout", "DE01602", cleaningTimeout, 32},
    {"Inter-dispensing time", "DE01932", interDispensingTime, 33,
     [](Row &row) { row.motor.setInterDispensingTime(-1.0); }},
    {"Motor ID", "DE01940", ofRow<&Row::singleTransmissionReference>, 34},
    {"Extra param", "DE02149", quv::always<Row, 0>, 35, nullptr, "Extra Param"},
    {"Recirculation suction speed", "DE02150", recirculationSuctionSpeed, 36},
    {"Dispensing algorithm", "DE02164", algorithmMask, 37,
     [](Row &row) { row.motor.setDispensingAlgorithmMask(-1); }},
    {"Accurate cleaning duration", "DE02201", cleaningDuration, 38},
    {"M Speed L", "DE02276", maxSpeedLimit, 39},
    {"Flow Correction ID", "DE02311", ofRow<&Row::flowCorrectionReference>, 40},
    {"Head ref ID", "DE02425", of<&Row::motor, &Dosing::headRefID, &Dosing::setHeadRefID>, 41},
    {"Pressure sensor wire board ID", "DE02824",
     of<&Row::motor, &Dosing::pressureSensorWireBoardId, &Dosing::setPressureSensorWireBoardId>, 42},
    {"Pressure sensor wire connector ID", "DE02825",
     of<&Row::motor, &Dosing::pressureSensorWireConnectorId, &Dosing::setPressureSensorWireConnectorId>, 43},
    {"Temperature control type", "DE02826", temperatureGroup, 44},
    {"Brush Type", "DE02663",
     ofOptional<&Row::cleaning, &Row::hasCleaning, &Cleaning::brushType, &Cleaning::setBrushType>, 45},
    {"Mpx", "DE02664", speedMultiplier, 46},
    {"Reserve Sensor Wire Board ID", "DE02843",
     ofOptional<&Row::sensor, &Row::hasSensor, &Sensor::wireBoardId, &Sensor::setWireBoardId>, 47},
    {"Reserve Sensor Wire Connector ID", "DE02844",
     ofOptional<&Row::sensor, &Row::hasSensor, &Sensor::wireConnectorId, &Sensor::setWireConnectorId>, 48},
    {"Reserve Critical Level", "DE02845", criticalLevel, 49},
    {"Reserve Level Check Frequency", "DE02846", checkFrequency, 50},
    {"Reserve Sensor Enable", "DE02849",
     presence<&Row::sensor, &Row::hasSensor, &Sensor::isEnabled, &Sensor::setEnabled>, 51},
    {"Smart Speed Reduction Enable", "DE02865", smartSpeedReduction, 52, nullptr,
     "Smart Speed Reduction Enabled"},
}};
