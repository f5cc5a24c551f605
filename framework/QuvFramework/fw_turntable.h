// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>

#include <QtCore/QList>

/** The table of a rotating machine, which brings one circuit at a time to the dosing point. */
class QUVFRAMEWORK_EXPORT FW_Turntable : public FW_Device
{
public:
    FW_Turntable() : FW_Device(Turntable) {}
    FW_Turntable *clone() const override;

    int refillAngle() const { return m_refillAngle; } ///< degrees
    void setRefillAngle(int degrees) { m_refillAngle = degrees; }
    /** The circuits' positions in their order around the table. */
    const QList<int> &positions() const { return m_positions; }
    void setPositions(const QList<int> &positions) { m_positions = positions; }
    int stepTime() const { return m_stepTime; } ///< milliseconds from one position to the next
    void setStepTime(int milliseconds) { m_stepTime = milliseconds; }

    /** Positions between the two, the shorter way round; 0 when the table does not hold both. */
    int distance(int from, int to) const;

private:
    int m_refillAngle = 0;
    int m_stepTime = 1500;
    QList<int> m_positions;
};
