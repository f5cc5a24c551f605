// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_rack.h>

#include <QtCore/QList>

/** The table of a rotating machine, which brings one circuit at a time to the dosing point. */
class QUVFRAMEWORK_EXPORT FW_Turntable : public FW_Rack
{
public:
    FW_Turntable() : FW_Rack(Turntable) {}
    FW_Turntable *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    int roundSteps() const { return m_roundSteps; } ///< steps of a full round
    void setRoundSteps(int steps) { m_roundSteps = steps; }
    int perimeter() const { return m_perimeter; } ///< millimetres
    void setPerimeter(int millimetres) { m_perimeter = millimetres; }
    int internalPerimeter() const
    {
        return m_internalPerimeter;
    } ///< of the inner row of circuits; 0 for none
    void setInternalPerimeter(int millimetres) { m_internalPerimeter = millimetres; }
    int refillAngle() const { return m_refillAngle; } ///< degrees
    void setRefillAngle(int degrees) { m_refillAngle = degrees; }
    int serviceAngle() const { return m_serviceAngle; } ///< degrees
    void setServiceAngle(int degrees) { m_serviceAngle = degrees; }
    /** The circuits' positions in their order around the table. */
    const QList<int> &positions() const { return m_positions; }
    void setPositions(const QList<int> &positions) { m_positions = positions; }
    int stepTime() const { return m_stepTime; } ///< milliseconds from one position to the next
    void setStepTime(int milliseconds) { m_stepTime = milliseconds; }

    /** Positions between the two, the shorter way round; 0 when the table does not hold both. */
    int distance(int from, int to) const;

private:
    int m_roundSteps = 12800;
    int m_perimeter = 2400;
    int m_internalPerimeter = 0;
    int m_refillAngle = 0;
    int m_serviceAngle = 0;
    int m_stepTime = 1500;
    QList<int> m_positions;
};
