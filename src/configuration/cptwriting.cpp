// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/cptwriting_p.h"

#include "configuration/cpt_cdata.h"
#include "configuration/cptfields_p.h"

namespace {

using Row = quv::CircuitRow;
using Dosing = FW_DosingMotor;

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
    if (const FW_RecirculationMotor *motor = circuit.firstRecirculationMotor()) {
        row.hasRecirculation = true;
        row.recirculation = *motor;
    }
    const FW_CleaningMotor *cleaning = circuit.firstCleaningMotor();
    row.hasCleaning = cleaning != nullptr;
    row.cleaning = cleaning ? *cleaning : FW_CleaningMotor(model);
    if (const FW_CanisterLevelSensor *sensor = data.levelSensor()) {
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

} // namespace

QList<int> quv::writtenCircuit(const CPT_cdata &data, FW_ModelNumber model)
{
    const Row row = rowOf(data, model);
    QList<int> parameters = writtenConfParameters(circuitFields, row);
    // a canister that takes more places has them all in the row
    for (int i = Row::layoutPositions; i < row.layoutPositionsId.size(); ++i)
        parameters.insert(Row::lastLayoutPosition + i - Row::layoutPositions, row.layoutPositionsId.at(i));
    return parameters;
}
