// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_dosingmotor.h>

bool FW_Motor::operator==(const FW_Motor &other) const
{
    return m_motorID == other.m_motorID && m_resolution == other.m_resolution;
}

bool FW_DosingMotor::operator==(const FW_DosingMotor &other) const
{
    return FW_Motor::operator==(other) && m_maxSpeed == other.m_maxSpeed &&
           m_stepsPerStroke == other.m_stepsPerStroke && m_gravimetricSw == other.m_gravimetricSw;
}
