// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_motor.h>
#include <QuvFramework/fw_recirculationmotor.h>
#include <QuvFramework/fw_stirringmotor.h>

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

bool FW_StirringMotor::operator==(const FW_StirringMotor &other) const
{
    return FW_Motor::operator==(other) && m_enabled == other.m_enabled &&
           m_stirringActivity == other.m_stirringActivity && m_stirringPause == other.m_stirringPause &&
           m_stirringPolicy == other.m_stirringPolicy && m_speed == other.m_speed &&
           m_wireBoardId == other.m_wireBoardId &&
           m_wireConnectorsIdBitMask == other.m_wireConnectorsIdBitMask;
}

int FW_RecirculationMotor::defaultRecirculationActivity(FW_ModelNumber)
{
    return 120;
}

int FW_RecirculationMotor::defaultRecirculationPause(int unit)
{
    return FW_TimeSpan(60, FW_TimeSpan::Minutes).in(unit);
}

bool FW_RecirculationMotor::operator==(const FW_RecirculationMotor &other) const
{
    return FW_Motor::operator==(other) && m_enabled == other.m_enabled && m_speed == other.m_speed &&
           m_suctionSpeed == other.m_suctionSpeed &&
           m_recirculationActivity == other.m_recirculationActivity &&
           m_recirculationPause == other.m_recirculationPause;
}
