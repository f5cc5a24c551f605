// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_circuit.h>
#include <QuvFramework/fw_metatype.h>

#include <algorithm>

namespace {

const bool isCircuitRegistered = RegisterTravellingType<FW_Circuit>("FW_Circuit");

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

FW_Circuit::FW_Circuit(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_Circuit::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_Circuit::operator==(const FW_Circuit &other) const
{
    return quv::haveSameMembers(*this, other);
}
