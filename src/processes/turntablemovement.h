// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QString>

/** What the commands share that turn the turntable: which way, and how fast. */
class QUVPROTOCOL_EXPORT TurntableMovement
{
public:
    enum Direction : int { Clockwise = 0, CounterClockwise = 1, Shortest = 2 };

    TurntableMovement() = default;
    TurntableMovement(int direction, int speed); ///< neither is checked

    int direction() const { return m_direction; }
    int speed() const { return m_speed; } ///< percent of the greatest, or configurationSpeed()
    QString directionString() const;      ///< not translated; empty for a direction that there is not

    static bool checkDirection(int direction); ///< 0 to 2
    static bool checkSpeed(int speed);         ///< 1 to 100
    static int configurationSpeed();           ///< 245: the firmware takes the speed of its own configuration

protected:
    int m_direction = Shortest;
    int m_speed = configurationSpeed();
};
