// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>

/** The light above the nozzles. */
class QUVFRAMEWORK_EXPORT FW_NozzleLight : public FW_Device
{
public:
    FW_NozzleLight() : FW_Device(NozzleLight) {}
    FW_NozzleLight *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    int drivingMode() const { return m_drivingMode; } ///< when it is lit
    void setDrivingMode(int mode) { m_drivingMode = mode; }
    int deactivationDelay() const { return m_deactivationDelay; } ///< seconds
    void setDeactivationDelay(int seconds) { m_deactivationDelay = seconds; }

private:
    int m_drivingMode = 1;
    int m_deactivationDelay = 60;
};
