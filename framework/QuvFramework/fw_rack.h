// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>
#include <QuvFramework/fw_motor.h>

/** What moves circuits or cans to their places by a motor that finds a pin at zero and one at each circuit. */
class QUVFRAMEWORK_EXPORT FW_Rack : public FW_Device, public FW_Motor
{
public:
    // Pins and tolerance are in steps.
    int zeroRefPinSize() const { return m_zeroRefPinSize; }
    void setZeroRefPinSize(int steps) { m_zeroRefPinSize = steps; }
    int circuitPinSize() const { return m_circuitPinSize; }
    void setCircuitPinSize(int steps) { m_circuitPinSize = steps; }
    int positioningTolerance() const { return m_positioningTolerance; }
    void setPositioningTolerance(int steps) { m_positioningTolerance = steps; }
    int highSpeed() const { return m_highSpeed; }
    void setHighSpeed(int speed) { m_highSpeed = speed; }
    int lowSpeed() const { return m_lowSpeed; }
    void setLowSpeed(int speed) { m_lowSpeed = speed; }
    int zeroRefSearchSpeed() const { return m_zeroRefSearchSpeed; }
    void setZeroRefSearchSpeed(int speed) { m_zeroRefSearchSpeed = speed; }

    using FW_Device::operator==;
    using FW_Device::operator!=;

protected:
    explicit FW_Rack(int kind) : FW_Device(kind), FW_Motor(Rack) {}

private:
    int m_zeroRefPinSize = 60;
    int m_circuitPinSize = 30;
    int m_positioningTolerance = 4;
    int m_highSpeed = 80;
    int m_lowSpeed = 20;
    int m_zeroRefSearchSpeed = 30;
};
