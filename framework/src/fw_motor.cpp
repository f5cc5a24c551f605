// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_motor.h>
#include <QuvFramework/fw_recirculationmotor.h>
#include <QuvFramework/fw_stirringmotor.h>

namespace {

const bool isStirringMotorRegistered = RegisterTravellingType<FW_StirringMotor>("FW_StirringMotor");
const bool isRecirculationMotorRegistered =
    RegisterTravellingType<FW_RecirculationMotor>("FW_RecirculationMotor");

} // namespace

FW_Motor::FW_Motor(MotorKind kind)
    : m_resolution(defaultResolution(kind)),
      m_supplyingCurrent(defaultSupplyingCurrent(kind, -1))
{}

int FW_Motor::defaultResolution(int motorKind)
{
    switch (motorKind) {
    case Stirring:
    case Recirculation:
        return 400;
    case Rack:
        return 1600;
    default:
        return 200;
    }
}

int FW_Motor::defaultSupplyingCurrent(int motorKind, FW_ModelNumber)
{
    switch (motorKind) {
    case Stirring:
        return 15;
    case Recirculation:
        return 18;
    case Cleaning:
        return 10;
    case Rack:
        return 30;
    default:
        return 20;
    }
}

bool FW_Motor::operator==(const FW_Motor &other) const
{
    return m_motorID == other.m_motorID && m_resolution == other.m_resolution &&
           m_supplyingCurrent == other.m_supplyingCurrent;
}

void FW_StirringMotor::setWireConnectorId(int connector)
{
    m_wireConnectorsIdBitMask =
        connector >= 1 && connector <= 31 ? static_cast<int>(1U << (connector - 1)) : 0;
}

FW_StirringMotor::FW_StirringMotor(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_StirringMotor::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_StirringMotor::operator==(const FW_StirringMotor &other) const
{
    return quv::haveSameMembers(*this, other);
}

int FW_RecirculationMotor::defaultRecirculationActivity(FW_ModelNumber)
{
    return 120;
}

int FW_RecirculationMotor::defaultRecirculationPause(int unit)
{
    return FW_TimeSpan(60, FW_TimeSpan::Minutes).in(unit);
}

FW_RecirculationMotor::FW_RecirculationMotor(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_RecirculationMotor::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_RecirculationMotor::operator==(const FW_RecirculationMotor &other) const
{
    return quv::haveSameMembers(*this, other);
}
