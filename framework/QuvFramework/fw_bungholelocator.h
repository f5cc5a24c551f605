// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>

/** The light that shows where the bung hole of the can has to be. */
class QUVFRAMEWORK_EXPORT FW_BungHoleLocator : public FW_Device
{
public:
    FW_BungHoleLocator() : FW_Device(BungHoleLocator) {}
    FW_BungHoleLocator *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    int drivingMode() const { return m_drivingMode; } ///< when it is lit
    void setDrivingMode(int mode) { m_drivingMode = mode; }
    int deactivationDelay() const { return m_deactivationDelay; } ///< seconds
    void setDeactivationDelay(int seconds) { m_deactivationDelay = seconds; }

private:
    int m_drivingMode = 1;
    int m_deactivationDelay = 30;
};
