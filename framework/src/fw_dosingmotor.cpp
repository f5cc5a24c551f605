// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_dosingmotor.h>
#include <QuvFramework/fw_metatype.h>

#include <tuple>

namespace {

const bool isDosingMotorRegistered = RegisterTravellingType<FW_DosingMotor>("FW_DosingMotor");

// Pumps of type 8 are driven without a stepper, so they know no zero and need twice the current.
constexpr int transmissionPump = 8;
constexpr int maxTurnsPerMinute = 2000;

constexpr bool isSpeed(int speed)
{
    return speed >= 1 && speed <= maxTurnsPerMinute;
}

} // namespace

void FW_DosingMotor::setMaxSpeed(int speed, int origin)
{
    m_maxSpeed = speed;
    m_maxSpeedOrigin = origin;
}

bool FW_DosingMotor::checkMaxSpeed(int speed)
{
    return isSpeed(speed);
}

bool FW_DosingMotor::checkMaxSpeedLimit(int speed)
{
    return isSpeed(speed);
}

void FW_DosingMotor::setPumpType(int type, int pumpValue)
{
    m_details->pumpType = type;
    m_details->pumpValue = pumpValue;
}

int FW_DosingMotor::defaultPumpType(FW_ModelNumber model)
{
    return model == MachineModel::Rotan ? 2 : 1;
}

int FW_DosingMotor::defaultSupplyingCurrentForPump(int pumpType, int duty)
{
    const int running = defaultSupplyingCurrent(Dosing, -1) * (pumpType == transmissionPump ? 2 : 1);
    return duty == Holding ? running / 2 : running;
}

bool FW_DosingMotor::defaultZeroPump(int pumpType)
{
    return pumpType != transmissionPump;
}

double FW_DosingMotor::defaultInterDispensingTime(FW_ModelNumber model)
{
    return model == MachineModel::Rotan ? 1.0 : 0.5; // a turning table has to come to rest
}

bool FW_DosingMotor::checkDispensingAlgorithmMask(int mask)
{
    return mask > 0 && mask <= (Volumetric | Gravimetric | Continuous);
}

int FW_DosingMotor::defaultDispensingAlgorithmMask(FW_ModelNumber model)
{
    return model == MachineModel::Rotan ? Volumetric | Continuous : Volumetric;
}

bool FW_DosingMotor::checkSpeedThrTempReductionGroupID(int group)
{
    return group == -1 || group == 1 || group == 2;
}

bool FW_DosingMotor::SpeedMpxOffset::operator==(const SpeedMpxOffset &other) const
{
    return quv::haveSameMembers(*this, other);
}

FW_DosingMotor::FW_DosingMotor(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_DosingMotor::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_DosingMotor::operator==(const FW_DosingMotor &other) const
{
    return quv::haveSameMembers(*this, other);
}

void FW_Ramp::setDefaults()
{
    *this = FW_Ramp(m_configRef);
}

bool FW_Ramp::operator==(const FW_Ramp &other) const
{
    return quv::haveSameMembers(*this, other);
}

void FW_SingleTransmission::setDefaults()
{
    *this = FW_SingleTransmission(configRef);
}

bool FW_SingleTransmission::operator==(const FW_SingleTransmission &other) const
{
    return quv::haveSameMembers(*this, other);
}

void FW_FlowCorrection::setDefaults(FW_ModelNumber)
{
    *this = FW_FlowCorrection(configRef);
}

bool FW_FlowCorrection::operator==(const FW_FlowCorrection &other) const
{
    return quv::haveSameMembers(*this, other);
}

void FW_DosingMotor::removeGravimetricSettings()
{
    m_details->gravimetricSettings.reset();
}

void FW_DosingMotor::removeRamp()
{
    m_details->ramp.reset();
}

void FW_DosingMotor::removeSingleTransmission()
{
    m_details->singleTransmission.reset();
}

void FW_DosingMotor::removeFlowCorrection()
{
    m_details->flowCorrection.reset();
}
