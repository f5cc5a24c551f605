// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/cptmotor_p.h"

#include "configuration/cpt_cdata.h"

#include <QuvFramework/fw_calibrationprofiles.h>

namespace {

using Dosing = FW_DosingMotor;

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

} // namespace

FW_DosingMotor quv::appliedMotor(const CPT_cdata &data, const FW_DosingMotor *former, MachineModel model,
                                 const FW_CalibrationProfiles *profiles)
{
    Dosing motor = data.circuit().dosingMotor();
    if (former)
        keepUntold(motor, *former);
    if (motor.interDispensingTime() == -1.0)
        motor.setInterDispensingTime(Dosing::defaultInterDispensingTime(model));
    const int algorithms = algorithmMaskFor(motor, model); // as told, not those of the pump
    if (const Dosing *pump = pumpFor(motor, profiles))
        motor = setUp(*pump, motor);
    setPouring(motor, algorithms);

    const int ramp = data.rampReference();
    const int transmission = data.singleTransmissionReference();
    const int correction = data.flowCorrectionReference();
    ramp ? motor.setRamp(FW_Ramp(ramp)) : motor.removeRamp();
    transmission ? motor.setSingleTransmission(FW_SingleTransmission(transmission))
                 : motor.removeSingleTransmission();
    correction ? motor.setFlowCorrection(FW_FlowCorrection(correction)) : motor.removeFlowCorrection();
    return motor;
}
