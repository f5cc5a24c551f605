// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

struct FormulaItem;

/** So many motor steps of the circuit at one position, at a speed of their own. */
class QUVFRAMEWORK_EXPORT FW_PositionIngredient
{
public:
    FW_PositionIngredient() = default;
    FW_PositionIngredient(int positionID, long long steps, int speed, int nozzleValveID = 0)
        : m_positionID(positionID),
          m_steps(steps),
          m_speed(speed),
          m_nozzleValveID(nozzleValveID)
    {}

    int positionID() const { return m_positionID; }
    long long steps() const { return m_steps; }
    int speed() const { return m_speed; }                 ///< turns per minute; 0 for the circuit's own
    int nozzleValveID() const { return m_nozzleValveID; } ///< 0 for none

    /** The line of a formula that is by circuit positions and in steps. */
    FormulaItem formulaItem() const;

private:
    int m_positionID = 0;
    long long m_steps = 0;
    int m_speed = 0;
    int m_nozzleValveID = 0;
};
