// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>
#include <QuvFramework/fw_modelnumber.h>

/** The lock of the machine's door. */
class QUVFRAMEWORK_EXPORT FW_Lock : public FW_Device
{
public:
    FW_Lock() : FW_Device(Lock) {}
    FW_Lock *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled, FW_ModelNumber model);

    /** The signals on which somebody may unlock the door by hand. */
    int manualUnlockSignalMask() const { return m_manualUnlockSignalMask; }
    void setManualUnlockSignalMask(int mask) { m_manualUnlockSignalMask = mask; }

private:
    int m_manualUnlockSignalMask = 1;
};
