// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_modelnumber.h>

/** A stepper motor of a machine. */
class QUVFRAMEWORK_EXPORT FW_Motor
{
public:
    /** What a motor moves, by the number with which its defaults are asked for. */
    enum MotorKind { Dosing = 0, Stirring = 1, Recirculation = 2, Cleaning = 3, Rack = 4 };

    FW_Motor() = default;

    int motorID() const { return m_motorID; }
    void setMotorId(int id) { m_motorID = id; }
    int resolution() const { return m_resolution; } ///< steps per turn
    void setResolution(int stepsPerTurn) { m_resolution = stepsPerTurn; }
    int supplyingCurrent() const { return m_supplyingCurrent; } ///< tenths of an ampere
    void setSupplyingCurrent(int current) { m_supplyingCurrent = current; }

    // Another kind's defaults are a dosing motor's.
    static int defaultResolution(int motorKind);
    static int defaultSupplyingCurrent(int motorKind, FW_ModelNumber model);

    bool operator==(const FW_Motor &other) const;
    bool operator!=(const FW_Motor &other) const { return !(*this == other); }

protected:
    explicit FW_Motor(MotorKind kind);

private:
    int m_motorID = 0;
    int m_resolution = defaultResolution(Dosing);
    int m_supplyingCurrent = defaultSupplyingCurrent(Dosing, -1);
};
