// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>
#include <QuvFramework/fw_modelnumber.h>

/** The sensor that sees whether a can stands under the nozzles. */
class QUVFRAMEWORK_EXPORT FW_CanPresenceSensor : public FW_Device
{
public:
    FW_CanPresenceSensor() : FW_Device(CanPresenceSensor) {}
    FW_CanPresenceSensor *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled, FW_ModelNumber model);

    int type() const { return m_type; }
    void setType(int type) { m_type = type; }
    /** Whether pours wait for a can, and what the sensor sees, in the one number that the firmware makes of both. */
    int canPresenceCheckAndStatus() const { return m_canPresenceCheckAndStatus; }
    void setCanPresenceCheckAndStatus(int value) { m_canPresenceCheckAndStatus = value; }

private:
    int m_type = 1;
    int m_canPresenceCheckAndStatus = 1;
};
