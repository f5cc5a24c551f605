// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_rack.h>

/** The table that moves along a line. Positions are in steps from its zero. */
class QUVFRAMEWORK_EXPORT FW_Lineartable : public FW_Rack
{
public:
    FW_Lineartable() : FW_Rack(Lineartable) {}
    FW_Lineartable *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    int linearSteps() const { return m_linearSteps; } ///< steps of the whole way
    void setLinearSteps(int steps) { m_linearSteps = steps; }
    int length() const { return m_length; } ///< millimetres
    void setLength(int millimetres) { m_length = millimetres; }
    int freeSlotPosition() const { return m_freeSlotPosition; }
    void setFreeSlotPosition(int position) { m_freeSlotPosition = position; }
    int servicePosition() const { return m_servicePosition; }
    void setServicePosition(int position) { m_servicePosition = position; }

private:
    int m_linearSteps = 20000;
    int m_length = 1800;
    int m_freeSlotPosition = 0;
    int m_servicePosition = 100;
};
