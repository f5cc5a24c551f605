// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_motor.h>

/** The motor that moves the pump of a circuit. Its speed is in turns per minute. */
class QUVFRAMEWORK_EXPORT FW_DosingMotor : public FW_Motor
{
public:
    FW_DosingMotor() = default;

    int maxSpeed() const { return m_maxSpeed; }
    void setMaxSpeed(int speed) { m_maxSpeed = speed; }
    /** Steps of one full stroke of the pump; 0 when it is not known. */
    int stepsPerStroke() const { return m_stepsPerStroke; }
    void setStepsPerStroke(int steps) { m_stepsPerStroke = steps; }
    /** Steps of so many strokes. */
    long long stepsFromStrokes(int strokes) const
    {
        return static_cast<long long>(strokes) * m_stepsPerStroke;
    }
    /** True when the driver doses this circuit by a scale, weighing as it pours. */
    bool isGravimetricSw() const { return m_gravimetricSw; }
    void setGravimetricSw(bool gravimetric) { m_gravimetricSw = gravimetric; }

    bool operator==(const FW_DosingMotor &other) const;
    bool operator!=(const FW_DosingMotor &other) const { return !(*this == other); }

private:
    int m_maxSpeed = 50;
    int m_stepsPerStroke = 0;
    bool m_gravimetricSw = false;
};
