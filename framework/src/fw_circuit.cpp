// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_circuit.h>

#include <algorithm>

namespace {

/** What \a motor refers to becomes what \a former refers to. */
void takeReferences(FW_DosingMotor &motor, const FW_DosingMotor &former)
{
    former.ramp() ? motor.setRamp(*former.ramp()) : motor.removeRamp();
    former.singleTransmission() ? motor.setSingleTransmission(*former.singleTransmission())
                                : motor.removeSingleTransmission();
    former.flowCorrection() ? motor.setFlowCorrection(*former.flowCorrection())
                            : motor.removeFlowCorrection();
}

} // namespace

void FW_Circuit::setDosingMotor(const FW_DosingMotor &motor, int replacement)
{
    FW_DosingMotor replacing = motor;
    if (replacement == KeepReferences)
        takeReferences(replacing, m_dosingMotor);
    m_dosingMotor = replacing;
    m_hasDosingMotor = true;
}

void FW_Circuit::removeDosingMotor()
{
    m_dosingMotor = FW_DosingMotor();
    m_hasDosingMotor = false;
}

void FW_Circuit::addValve(const FW_Valve &valve)
{
    const auto former = std::find_if(m_valves.begin(), m_valves.end(),
                                     [&](const FW_Valve &other) { return other.id() == valve.id(); });
    if (former == m_valves.end())
        m_valves.append(valve);
    else
        *former = valve;
}

bool FW_Circuit::getStepsAndSpeed(double quantity, long long &steps, int &speed) const
{
    bool hasSteps = false;
    bool hasSpeed = false;
    const long long toldSteps = m_calibration.steps(quantity, &hasSteps);
    const int toldSpeed = m_calibration.speed(quantity, &hasSpeed);
    if (!hasSteps || !hasSpeed)
        return false;
    steps = toldSteps;
    speed = toldSpeed;
    return true;
}

bool FW_Circuit::operator==(const FW_Circuit &other) const
{
    return m_id == other.m_id && m_positionId == other.m_positionId && m_enabled == other.m_enabled &&
           m_headId == other.m_headId && m_queueID == other.m_queueID &&
           m_wireBoardId == other.m_wireBoardId && m_wireConnectorId == other.m_wireConnectorId &&
           m_hasDosingMotor == other.m_hasDosingMotor && m_dosingMotor == other.m_dosingMotor &&
           m_stirringMotors == other.m_stirringMotors &&
           m_recirculationMotors == other.m_recirculationMotors &&
           m_cleaningMotors == other.m_cleaningMotors && m_valves == other.m_valves &&
           m_nozzleValvesID == other.m_nozzleValvesID && m_calibration == other.m_calibration;
}
