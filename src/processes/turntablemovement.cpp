// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/turntablemovement.h"

#include "base/translation_p.h"
#include "base/wire_p.h"

TurntableMovement::TurntableMovement(int direction, int speed) : m_direction(direction), m_speed(speed) {}

QString TurntableMovement::directionString() const
{
    switch (m_direction) {
    case Clockwise:
        return QString::fromLatin1(QT_TRANSLATE_NOOP("QuvProtocol", "clockwise"));
    case CounterClockwise:
        return QString::fromLatin1(QT_TRANSLATE_NOOP("QuvProtocol", "counter-clockwise"));
    case Shortest:
        return QString::fromLatin1(QT_TRANSLATE_NOOP("QuvProtocol", "shortest"));
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
    return quv::serialBase - 1;
}
