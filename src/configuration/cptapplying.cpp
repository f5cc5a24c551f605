// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/cptapplying_p.h"

#include "configuration/cpt_cdata.h"
#include "configuration/cptmotor_p.h"
#include "configuration/cptrow_p.h"

#include <QuvFramework/fw_dispenser.h>

namespace {

using Row = quv::CircuitRow;
using Sensor = FW_CanisterLevelSensor;

void makeCanister(const CPT_cdata &data, FW_Dispenser &dispenser)
{
    FW_Canister canister(data.canisterID());
    canister.setMaximumQuantity(double(data.canisterSize()) * Row::quantityUnit);
    canister.setAutoReserveWarning();
    canister.setAutoReserveQuantity();
    dispenser.addCanister(canister, -1, false);
}

void applyCanister(const CPT_cdata &data, FW_Dispenser &dispenser)
{
    FW_Canister &canister = *dispenser.getCanisterById(data.canisterID());
    if (data.layoutPositionsId().isEmpty())
        canister.autoSetLayoutPositionsId();
    else
        canister.setLayoutPositionsId(data.layoutPositionsId(), QString());
    canister.setActivationFlag(data.activationFlag());
}

void applyParts(const CPT_cdata &data, quv::CircuitSource source, FW_Circuit &circuit, MachineModel model,
                const FW_CalibrationProfiles *profiles)
{
    const FW_Circuit &told = data.circuit();
    circuit.setWireBoardId(told.wireBoardId());
    circuit.setWireConnectorId(told.wireConnectorId());
    if (const FW_Valve *valve = told.firstValve())
        circuit.addValve(*valve);
    if (told.hasDosingMotor()) {
        const FW_DosingMotor *former = source == quv::CircuitSource::Row ? &circuit.dosingMotor() : nullptr;
        circuit.setDosingMotor(quv::appliedMotor(data, former, model, profiles), FW_Circuit::ReplaceAll);
    }
    if (const FW_RecirculationMotor *motor = told.firstRecirculationMotor())
        circuit.setRecirculationMotor(*motor);
    if (const FW_CleaningMotor *motor = told.firstCleaningMotor())
        circuit.setCleaningMotor(*motor);
    circuit.setEnabled(data.commandEnable() == ConfData::Enabled);
}

void applyLevelSensor(const CPT_cdata &data, FW_Dispenser &dispenser, const FW_Circuit &circuit)
{
    const Sensor *told = data.levelSensor();
    if (!told || !circuit.hasDosingMotor())
        return;
    FW_Canister &canister = *dispenser.getCanisterById(data.canisterID());
    if (!canister.canisterLevelSensor())
        canister.setCanisterLevelSensor(1);
    Sensor &sensor = *canister.canisterLevelSensor();
    sensor.setEnabled(told->isEnabled());
    sensor.setWireBoardId(told->wireBoardId());
    sensor.setWireConnectorId(told->wireConnectorId());
    const bool isOfRow = told->checkFrequencyUnit() == Sensor::FirmwareUnit;
    const int stroke = circuit.dosingMotor().strokeValue();
    if (isOfRow && stroke == 0) // nobody can tell what the row's numbers mean
        return;
    const auto hundredths = [&](int value) {
        return isOfRow ? static_cast<int>(qint64(value) * Row::hundredths / stroke) : value;
    };
    sensor.setCriticalLevel(hundredths(told->criticalLevel()));
    sensor.setCheckFrequency(hundredths(told->checkFrequency()), Sensor::HundredthsOfStroke);
}

// What "@GMC" tells of all level sensors: their policy, and 16 for those of type 1.
constexpr int sensorTypeBits = 112;
constexpr int typeOne = 16;
constexpr int sensorPolicyBits = 15;
constexpr int sensorPolicies = 4;

void applyReserveSensor(FW_Dispenser &dispenser, const QList<int> &extra)
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

void applyNozzleValve(const FW_Valve *valve, FW_Dispenser &dispenser)
{
    if (valve && isNozzleValve(valve->valveType()) && !dispenser.hasIntegratedNozzleValveSystem())
        dispenser.setINVTypeFromValve(valve->valveType());
}

} // namespace

bool quv::applyCircuit(const CPT_cdata &data, CircuitSource source, FW_Dispenser &dispenser,
                       const FW_CalibrationProfiles *profiles, const QList<int> *extra)
{
    const int position = data.circuit().positionId();
    if (!dispenser.hasCanisterID(data.canisterID()))
        makeCanister(data, dispenser);
    if (!dispenser.hasCircuitPosition(position, false) &&
        !dispenser.addNewCircuit(data.canisterID(), position, 0))
        return false;
    applyCanister(data, dispenser);
    FW_Circuit &circuit = *dispenser.getCircuitByPosition(position);
    applyParts(data, source, circuit, dispenser.model(), profiles);
    applyLevelSensor(data, dispenser, circuit);
    applyNozzleValve(data.circuit().firstValve(), dispenser);
    if (extra)
        applyReserveSensor(dispenser, *extra);
    return true;
}
