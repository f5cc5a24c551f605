// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>

/** What lets the machine go on without a computer. */
class QUVFRAMEWORK_EXPORT FW_Offline : public FW_Device
{
public:
    FW_Offline() : FW_Device(Offline) {}
    FW_Offline *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    /** Seconds without the computer after which the machine switches itself off. */
    int easyOnTime() const { return m_easyOnTime; }
    void setEasyOnTime(int seconds) { m_easyOnTime = seconds; }

private:
    int m_easyOnTime = 90;
};
