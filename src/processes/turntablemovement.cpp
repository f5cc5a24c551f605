// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/turntablemovement.h"

#include "base/wire_p.h"

TurntableMovement::TurntableMovement(int direction, int speed) : m_direction(direction), m_speed(speed) {}

QString TurntableMovement::directionString() const
{
    switch (m_direction) {
    case Clockwise:
        return QStringLiteral("clockwise");
    case CounterClockwise:
        return QStringLiteral("counter-clockwise");
    case Shortest:
        return QStringLiteral("shortest");
    default:
        return {};
    }
}

bool TurntableMovement::checkDirection(int direction)
{
    return direction >= Clockwise && direction <= Shortest;
}

bool TurntableMovement::checkSpeed(int speed)
{
    return speed >= 1 && speed <= 100;
}

int TurntableMovement::configurationSpeed()
{
    return quv::unsetDigit;
}
