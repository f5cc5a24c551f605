// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_dosingmotor.h>

#include <tuple>

namespace {

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
    return speed == other.speed && multiplier == other.multiplier && offset == other.offset;
}

bool FW_DosingMotor::GravimetricSettings::operator==(const GravimetricSettings &other) const
{
    return tolerance == other.tolerance && maxCorrections == other.maxCorrections;
}

bool FW_DosingMotor::Details::operator==(const Details &other) const
{
    const auto fields = [](const Details &d) {
        return std::tie(d.pumpType, d.pumpValue, d.strokeValue, d.suctionSpeed, d.zeroPump, d.activationTime,
                        d.delay, d.maxSpeedLimit, d.interDispensingTime, d.dispensingAlgorithmMask,
                        d.smartSpeedReduction, d.speedThrTempReductionGroupID, d.speedMpxOffsets,
                        d.gravimetricSettings, d.headRefID, d.pressureSensorWireBoardId,
                        d.pressureSensorWireConnectorId, d.ramp, d.singleTransmission, d.flowCorrection);
    };
    return fields(*this) == fields(other);
}

bool FW_DosingMotor::operator==(const FW_DosingMotor &other) const
{
    return FW_Motor::operator==(other) && m_maxSpeed == other.m_maxSpeed &&
           m_maxSpeedOrigin == other.m_maxSpeedOrigin && m_stepsPerStroke == other.m_stepsPerStroke &&
           m_gravimetricSw == other.m_gravimetricSw &&
           (m_details == other.m_details || *m_details == *other.m_details);
}

void FW_Ramp::setDefaults()
{
    *this = FW_Ramp(m_configRef);
}

bool FW_Ramp::operator==(const FW_Ramp &other) const
{
    return m_configRef == other.m_configRef && m_enabled == other.m_enabled &&
           m_initialSteps == other.m_initialSteps && m_finalSteps == other.m_finalSteps &&
           m_speedThreshold == other.m_speedThreshold && m_slowSpeed == other.m_slowSpeed;
}

void FW_SingleTransmission::setDefaults()
{
    *this = FW_SingleTransmission(configRef);
}

bool FW_SingleTransmission::operator==(const FW_SingleTransmission &other) const
{
    const auto fields = [](const FW_SingleTransmission &t) {
        return std::tie(t.configRef, t.motorRatedCurrent, t.inverterRatedCurrent,
                        t.inverterOverloadMultiplier, t.motorCurrentMultiplier, t.motorOverloadTimeout,
                        t.motorMaxSpeed, t.y1, t.y2, t.x1, t.x2, t.motorSpeedErrorTolerance, t.encoderPulses,
                        t.encoderChannels, t.encoderStepFraction, t.inverterCurrentMax, t.inverterVoltageMax);
    };
    return fields(*this) == fields(other);
}

void FW_FlowCorrection::setDefaults(FW_ModelNumber)
{
    *this = FW_FlowCorrection(configRef);
}

bool FW_FlowCorrection::operator==(const FW_FlowCorrection &other) const
{
    const auto fields = [](const FW_FlowCorrection &c) {
        return std::tie(c.configRef, c.overchargeSteps, c.predispenseSteps, c.bottomDelay, c.topDelay,
                        c.zonalFlowCorrectionLevel, c.zonalDelayLevel);
    };
    return fields(*this) == fields(other);
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
