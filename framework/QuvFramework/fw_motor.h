// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

/** A stepper motor of a machine. */
class QUVFRAMEWORK_EXPORT FW_Motor
{
public:
    FW_Motor() = default;

    int motorID() const { return m_motorID; }
    void setMotorId(int id) { m_motorID = id; }
    int resolution() const { return m_resolution; } ///< steps per turn
    void setResolution(int stepsPerTurn) { m_resolution = stepsPerTurn; }

    bool operator==(const FW_Motor &other) const;
    bool operator!=(const FW_Motor &other) const { return !(*this == other); }

private:
    int m_motorID = 0;
    int m_resolution = 200;
};
