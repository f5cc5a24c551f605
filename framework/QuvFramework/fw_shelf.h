// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>
#include <QuvFramework/fw_modelnumber.h>
#include <QuvFramework/fw_version.h>

/** The shelf that carries the can to the nozzles, with the puncher that opens its lid. Offsets and heights are in steps. */
class QUVFRAMEWORK_EXPORT FW_Shelf : public FW_Device
{
public:
    FW_Shelf() : FW_Device(Shelf) {}
    FW_Shelf *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    // Which types there are is a matter of model and firmware; none is refused here, so that a new one can be stored.
    int type() const { return m_type; }
    void setType(int type, FW_ModelNumber /*model*/, const FW_Version & /*firmware*/) { m_type = type; }
    int puncher() const { return m_puncher; } ///< 0 for none
    void setPuncher(int type, FW_ModelNumber /*model*/, const FW_Version & /*firmware*/) { m_puncher = type; }

    int doorValue() const { return m_doorValue; }
    void setDoorValue(int value) { m_doorValue = value; }
    int moveOffset() const { return m_moveOffset; }
    void setMoveOffset(int steps) { m_moveOffset = steps; }
    int resolution() const { return m_resolution; } ///< steps per turn of the shelf's motor
    void setResolution(int stepsPerTurn) { m_resolution = stepsPerTurn; }
    int punchingTolerance() const { return m_punchingTolerance; }
    void setPunchingTolerance(int steps) { m_punchingTolerance = steps; }
    int punchingSpeed() const { return m_punchingSpeed; }
    void setPunchingSpeed(int speed) { m_punchingSpeed = speed; }
    int canPresenceSensorHigh() const { return m_canPresenceSensorHigh; }
    void setCanPresenceSensorHigh(int steps) { m_canPresenceSensorHigh = steps; }
    int punchingSensorHigh() const { return m_punchingSensorHigh; }
    void setPunchingSensorHigh(int steps) { m_punchingSensorHigh = steps; }
    int punchingMoveOffset() const { return m_punchingMoveOffset; }
    void setPunchingMoveOffset(int steps) { m_punchingMoveOffset = steps; }
    bool hasRollConveyor() const { return m_rollConveyor; }
    void setRollConveyor(bool rollConveyor) { m_rollConveyor = rollConveyor; }
    int rollConveyorHeight() const { return m_rollConveyorHeight; }
    void setRollConveyorHeight(int steps) { m_rollConveyorHeight = steps; }

private:
    int m_type = 1;
    int m_puncher = 0;
    int m_doorValue = 0;
    int m_moveOffset = 10;
    int m_resolution = 400;
    int m_punchingTolerance = 5;
    int m_punchingSpeed = 40;
    int m_canPresenceSensorHigh = 20;
    int m_punchingSensorHigh = 30;
    int m_punchingMoveOffset = 15;
    bool m_rollConveyor = false;
    int m_rollConveyorHeight = 0;
};
