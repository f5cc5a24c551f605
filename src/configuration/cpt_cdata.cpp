// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/cpt_cdata.h"

#include "configuration/confrow_p.h"

#include <QuvFramework/fw_calibrationprofiles.h>

namespace {

constexpr int code = 5;

constexpr quv::ConfCodes codes = {
    "DE00209", "Invalid Dispenser data", "DE02808", "DE00213", "DE00231", "DE00232", "DE00233"};

constexpr int notSet = 245; // the highest digit
constexpr int activated = 2;
constexpr int notActivated = 1;
constexpr int quantityUnit = 100; // of a canister's size
constexpr int hundredth = 100;    // of a stroke
constexpr int transmissionPump = 8;
constexpr int layoutPositions = 6;
constexpr int lastLayoutPosition = 29; // the place in the row

/** All that a row tells, while it is read or written. */
struct CircuitRow
{
    int canisterID = 0;
    int canisterSize = 0;
    int positionID = 0;
    bool activationFlag = false;
    FW_Valve valve;
    FW_DosingMotor motor;
    bool hasRecirculation = false;
    FW_RecirculationMotor recirculation;
    bool hasCleaning = false;
    FW_CleaningMotor cleaning;
    bool hasSensor = false;
    FW_CanisterLevelSensor sensor;
    int wireBoardID = 0;
    int wireConnectorID = 0;
    int rampReference = 0;
    int singleTransmissionReference = 0;
    int flowCorrectionReference = 0;
    QList<int> layoutPositionsId;
};

using Row = CircuitRow;
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
    return row.hasSensor ? static_cast<int>(qint64(row.motor.strokeValue()) * hundredths / hundredth) : 0;
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

// What is missing stays as a row begins, so only what differs from that is told.
constexpr quv::ConfField<Row> fields[] = {
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
    {"Layout Position ID", "DE00873", layoutPosition<0>, lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<1>, lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<2>, lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<3>, lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<4>, lastLayoutPosition},
    {"Layout Position ID", "DE00873", layoutPosition<5>, lastLayoutPosition},
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
};

/** What the firmware is told of a circuit without a dosing motor. */
Dosing motorOfNone(FW_ModelNumber model)
{
    Dosing motor;
    const int pump = Dosing::defaultPumpType(model);
    motor.setPumpType(pump, 0);
    motor.setSupplyingCurrent(Dosing::defaultSupplyingCurrentForPump(pump, Dosing::Running));
    motor.setZeroPump(!Dosing::defaultZeroPump(pump));
    motor.setInterDispensingTime(Dosing::defaultInterDispensingTime(model));
    motor.setDispensingAlgorithmMask(Dosing::defaultDispensingAlgorithmMask(model));
    motor.setStrokeValue(0);
    return motor;
}

/** The row of a machine's circuit. */
Row rowOf(const CPT_cdata &data, FW_ModelNumber model)
{
    const FW_Circuit &circuit = data.circuit();
    Row row;
    row.canisterID = data.canisterID();
    row.canisterSize = data.canisterSize();
    row.positionID = circuit.positionId();
    row.activationFlag = data.activationFlag();
    if (const FW_Valve *valve = circuit.firstValve())
        row.valve = *valve;
    const bool hasMotor = data.commandEnable() != ConfData::Absent && circuit.hasDosingMotor();
    row.motor = hasMotor ? circuit.dosingMotor() : motorOfNone(model);
    if (const Recirculation *motor = circuit.firstRecirculationMotor()) {
        row.hasRecirculation = true;
        row.recirculation = *motor;
    }
    const Cleaning *cleaning = circuit.firstCleaningMotor();
    row.hasCleaning = cleaning != nullptr;
    row.cleaning = cleaning ? *cleaning : Cleaning(model);
    if (const Sensor *sensor = data.levelSensor()) {
        row.hasSensor = true;
        row.sensor = *sensor;
    }
    row.wireBoardID = circuit.wireBoardId();
    row.wireConnectorID = circuit.wireConnectorId();
    row.rampReference = data.rampReference();
    row.singleTransmissionReference = data.singleTransmissionReference();
    row.flowCorrectionReference = data.flowCorrectionReference();
    row.layoutPositionsId = data.layoutPositionsId();
    return row;
}

QList<int> written(const Row &row)
{
    QList<int> parameters = quv::writtenConfParameters(fields, row);
    // a canister that takes more places has them all in the row
    for (int i = layoutPositions; i < row.layoutPositionsId.size(); ++i)
        parameters.insert(lastLayoutPosition + i - layoutPositions, row.layoutPositionsId.at(i));
    return parameters;
}

/** What \a local tells beyond that which makes a pump becomes what \a pump tells. */
Dosing setUp(Dosing pump, const Dosing &local)
{
    pump.setResolution(local.resolution());
    pump.setSuctionSpeed(local.suctionSpeed());
    pump.setSupplyingCurrent(local.supplyingCurrent());
    pump.setZeroPump(local.zeroPump());
    pump.setActivationTime(local.activationTime());
    pump.setDelay(local.delay());
    pump.setInterDispensingTime(local.interDispensingTime());
    if (local.maxSpeed() > 0)
        pump.setMaxSpeed(local.maxSpeed(), local.maxSpeedOrigin());
    if (local.maxSpeedLimit() > 0)
        pump.setMaxSpeedLimit(local.maxSpeedLimit());
    pump.setHeadRefID(local.headRefID());
    pump.setPressureSensorWireBoardId(local.pressureSensorWireBoardId());
    pump.setPressureSensorWireConnectorId(local.pressureSensorWireConnectorId());
    pump.setSpeedThrTempReductionGroupID(local.speedThrTempReductionGroupID());
    pump.setSmartSpeedReduction(local.hasSmartSpeedReduction());
    return pump;
}

/** No row tells how long a stroke is, or whether a scale doses the circuit: that stays as it was. */
void keepUntold(Dosing &motor, const Dosing &former)
{
    motor.setStepsPerStroke(former.stepsPerStroke());
    motor.setStrokeValue(former.strokeValue());
    motor.setGravimetricSw(former.isGravimetricSw());
}

const Dosing *pumpFor(const Dosing &local, const FW_CalibrationProfiles *profiles)
{
    if (!profiles || !profiles->hasPumps())
        return nullptr;
    const Dosing *pump = profiles->getPumpByID(local.motorID());
    return pump ? pump : profiles->getDefaultPumpByType(local.pumpType(), local.pumpValue(), 0);
}

/** The machines of one model pour in their own way, whatever they are told. */
int algorithmMaskFor(const Dosing &local, MachineModel model)
{
    const int mask = local.dispensingAlgorithmMask();
    return mask == -1 || model == MachineModel::Rotan ? Dosing::defaultDispensingAlgorithmMask(model) : mask;
}

void setPouring(Dosing &motor, int algorithms)
{
    motor.setDispensingAlgorithmMask(algorithms);
    motor.removeGravimetricSettings();
    if (algorithms & Dosing::Gravimetric)
        motor.setDefaultGravimetricSettings();
}

// What "@GMC" tells of all level sensors: their policy, and 16 for those of type 1.
constexpr int sensorTypeBits = 112;
constexpr int typeOne = 16;
constexpr int sensorPolicyBits = 15;
constexpr int sensorPolicies = 4;

void updateReserveSensor(FW_Dispenser &dispenser, const QList<int> &extra)
{
    if (extra.isEmpty())
        return;
    const int policy = extra.first() & sensorPolicyBits;
    if ((extra.first() & sensorTypeBits) == typeOne && policy < sensorPolicies)
        dispenser.setReserveSensorTypeAndPolicyMask(1, policy, false);
}

/** Types of valves that close the nozzle as well. */
constexpr bool isNozzleValve(int valveType)
{
    return valveType == 3 || valveType == 5;
}

} // namespace

CPT_cdata::CPT_cdata() : ConfData(code) {}

CPT_cdata::CPT_cdata(int circuitID, const FW_Machine *machine) : ConfData(code, machine)
{
    const FW_Dispenser &dispenser = quv::confDispenser(machine, codes, Q_FUNC_INFO);
    m_cmdEnabled = Absent;
    m_canisterID = 1;
    m_canisterSize = 100;
    if (const FW_Circuit *circuit = dispenser.getCircuitById(circuitID))
        takeCircuit(*circuit, dispenser);
    m_parameters = written(rowOf(*this, dispenser.model()));
}

CPT_cdata::CPT_cdata(QStringList tokens, int fieldCount) : ConfData(code, tokens)
{
    FW_DriverError error;
    if (!parseConfigurationParams(tokens, fieldCount, m_enabledFieldLength + 1, error))
        throw FW_Exception(error, Q_FUNC_INFO);
    quv::updateLocalDataOrThrow(*this, codes.tokensData, Q_FUNC_INFO);
}

CPT_cdata::CPT_cdata(QString row) : ConfData(code, row)
{
    quv::updateLocalDataOrThrow(*this, codes.textData, Q_FUNC_INFO);
}

CPT_cdata *CPT_cdata::clone() const
{
    return new CPT_cdata(*this);
}

QStringList CPT_cdata::labels()
{
    return quv::confLabels(fields);
}

void CPT_cdata::clear()
{
    m_circuit = FW_Circuit();
    m_levelSensor.reset();
    m_canisterID = 0;
    m_activationFlag = false;
    m_canisterSize = 0;
    m_rampReference = 0;
    m_singleTransmissionReference = 0;
    m_flowCorrectionReference = 0;
    m_layoutPositionsId.clear();
    m_isOfRow = false;
}

void CPT_cdata::takeCircuit(const FW_Circuit &circuit, const FW_Dispenser &dispenser)
{
    const FW_Canister &canister = *dispenser.getCanisterOfCircuitID(circuit.id());
    m_circuit = circuit;
    setCommandEnable(circuit.isEnabled());
    m_canisterID = canister.id();
    m_canisterSize = quv::scaled(canister.maximumQuantity(), 1) / quantityUnit;
    m_activationFlag = canister.activationFlag();
    m_layoutPositionsId = canister.layoutPositionsId();
    const Sensor *sensor = canister.canisterLevelSensor();
    if (sensor && dispenser.getCLS_MasterPositionID(canister.id()) == circuit.positionId())
        m_levelSensor = *sensor;
    m_rampReference = dispenser.getRampConfigRefByCircuitID(circuit.id());
    m_singleTransmissionReference = dispenser.getSingleTransmissionConfigRefByCircuitID(circuit.id());
    m_flowCorrectionReference = dispenser.getFlowCorrectionConfigRefByCircuitID(circuit.id());
}

bool CPT_cdata::parseConfigurationParams(QStringList tokens, int fieldCount, int position,
                                         FW_DriverError &error)
{
    m_parameters.clear();
    if (position < 0 || position > tokens.size())
        return FW_DriverError::D_E(codes.noData, "No data found in answer", error);
    try {
        quv::readConfFields(fields, codes.newData, tokens, position, fieldCount, m_parameters, Q_FUNC_INFO);
    } catch (const FW_Exception &missing) {
        return FW_DriverError::D_E(missing.code(), missing.text(), error);
    }
    return true;
}

bool CPT_cdata::updateLocalData(QString *error)
{
    Row row;
    if (!quv::readConfParameters(fields, m_parameters, row, error))
        return false;
    m_canisterID = row.canisterID;
    m_canisterSize = row.canisterSize;
    m_activationFlag = row.activationFlag;
    m_circuit.setPositionId(row.positionID, QString());
    m_circuit.setWireBoardId(row.wireBoardID);
    m_circuit.setWireConnectorId(row.wireConnectorID);
    if (row.valve.valveType() != 0)
        m_circuit.addValve(row.valve);
    m_circuit.setDosingMotor(row.motor, FW_Circuit::ReplaceAll);
    m_isOfRow = true;
    if (row.hasRecirculation)
        m_circuit.setRecirculationMotor(row.recirculation);
    if (row.hasCleaning)
        m_circuit.setCleaningMotor(row.cleaning);
    m_levelSensor.reset();
    if (row.hasSensor)
        m_levelSensor = row.sensor;
    m_rampReference = row.rampReference;
    m_singleTransmissionReference = row.singleTransmissionReference;
    m_flowCorrectionReference = row.flowCorrectionReference;
    m_layoutPositionsId = row.layoutPositionsId;
    return true;
}

bool CPT_cdata::updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                                    QList<int> *extra) const
{
    if (m_cmdEnabled == Absent)
        return true;
    auto *dispenser = dynamic_cast<FW_Dispenser *>(machine);
    if (!dispenser)
        return false;
    const int position = m_circuit.positionId();
    if (!dispenser->hasCanisterID(m_canisterID)) {
        FW_Canister canister(m_canisterID);
        canister.setMaximumQuantity(double(m_canisterSize) * quantityUnit);
        canister.setAutoReserveWarning();
        canister.setAutoReserveQuantity();
        dispenser->addCanister(canister, -1, false);
    }
    if (!dispenser->hasCircuitPosition(position, false) &&
        !dispenser->addNewCircuit(m_canisterID, position, 0))
        return false;
    updateCanister(*dispenser);

    FW_Circuit &circuit = *dispenser->getCircuitByPosition(position);
    circuit.setWireBoardId(m_circuit.wireBoardId());
    circuit.setWireConnectorId(m_circuit.wireConnectorId());
    const FW_Valve *valve = m_circuit.firstValve();
    if (valve)
        circuit.addValve(*valve);
    if (m_circuit.hasDosingMotor())
        circuit.setDosingMotor(dosingMotorFor(circuit, dispenser->model(), profiles), FW_Circuit::ReplaceAll);
    if (const Recirculation *motor = m_circuit.firstRecirculationMotor())
        circuit.setRecirculationMotor(*motor);
    if (const Cleaning *motor = m_circuit.firstCleaningMotor())
        circuit.setCleaningMotor(*motor);
    circuit.setEnabled(m_cmdEnabled == Enabled);

    updateLevelSensor(*dispenser, circuit);
    if (valve && isNozzleValve(valve->valveType()) && !dispenser->hasIntegratedNozzleValveSystem())
        dispenser->setINVTypeFromValve(valve->valveType());
    if (extra)
        updateReserveSensor(*dispenser, *extra);
    return true;
}

void CPT_cdata::updateCanister(FW_Dispenser &dispenser) const
{
    FW_Canister &canister = *dispenser.getCanisterById(m_canisterID);
    if (m_layoutPositionsId.isEmpty())
        canister.autoSetLayoutPositionsId();
    else
        canister.setLayoutPositionsId(m_layoutPositionsId, QString());
    canister.setActivationFlag(m_activationFlag);
}

FW_DosingMotor CPT_cdata::dosingMotorFor(const FW_Circuit &target, MachineModel model,
                                         const FW_CalibrationProfiles *profiles) const
{
    Dosing local = m_circuit.dosingMotor();
    if (m_isOfRow)
        keepUntold(local, target.dosingMotor());
    if (local.interDispensingTime() == -1.0)
        local.setInterDispensingTime(Dosing::defaultInterDispensingTime(model));
    const Dosing *pump = pumpFor(local, profiles);
    Dosing motor = pump ? setUp(*pump, local) : local;
    setPouring(motor, algorithmMaskFor(local, model));

    m_rampReference ? motor.setRamp(FW_Ramp(m_rampReference)) : motor.removeRamp();
    m_singleTransmissionReference
        ? motor.setSingleTransmission(FW_SingleTransmission(m_singleTransmissionReference))
        : motor.removeSingleTransmission();
    m_flowCorrectionReference ? motor.setFlowCorrection(FW_FlowCorrection(m_flowCorrectionReference))
                              : motor.removeFlowCorrection();
    return motor;
}

void CPT_cdata::updateLevelSensor(FW_Dispenser &dispenser, const FW_Circuit &circuit) const
{
    if (!m_levelSensor || !circuit.hasDosingMotor())
        return;
    FW_Canister &canister = *dispenser.getCanisterById(m_canisterID);
    if (!canister.canisterLevelSensor())
        canister.setCanisterLevelSensor(1);
    Sensor &sensor = *canister.canisterLevelSensor();
    sensor.setEnabled(m_levelSensor->isEnabled());
    sensor.setWireBoardId(m_levelSensor->wireBoardId());
    sensor.setWireConnectorId(m_levelSensor->wireConnectorId());
    const bool isOfRow = m_levelSensor->checkFrequencyUnit() == Sensor::FirmwareUnit;
    const int stroke = circuit.dosingMotor().strokeValue();
    if (isOfRow && stroke == 0) // nobody can tell what the row's numbers mean
        return;
    const auto hundredths = [&](int value) {
        return isOfRow ? static_cast<int>(qint64(value) * hundredth / stroke) : value;
    };
    sensor.setCriticalLevel(hundredths(m_levelSensor->criticalLevel()));
    sensor.setCheckFrequency(hundredths(m_levelSensor->checkFrequency()), Sensor::HundredthsOfStroke);
}

XmlRpc::XmlRpcValue CPT_cdata::toXmlRpcValue() const
{
    return confData_toXmlRpcValue();
}
