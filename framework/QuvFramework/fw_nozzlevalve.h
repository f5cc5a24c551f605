// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>
#include <QuvFramework/fw_modelnumber.h>
#include <QuvFramework/fw_timespan.h>

/** The valve that closes all nozzles at once. */
class QUVFRAMEWORK_EXPORT FW_NozzleValve : public FW_Device
{
public:
    FW_NozzleValve() : FW_Device(NozzleValve) {}
    FW_NozzleValve *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(FW_ModelNumber model, bool enabled);

    int nozzleType() const { return m_nozzleType; }
    void setNozzleType(int type) { m_nozzleType = type; }
    // \a unit is one of FW_TimeSpan::Unit
    int timeout(int unit) const { return m_timeout.in(unit); }
    void setTimeout(int value, int unit) { m_timeout = FW_TimeSpan(value, unit); }

private:
    int m_nozzleType = 1;
    FW_TimeSpan m_timeout = FW_TimeSpan(20, FW_TimeSpan::Seconds);
};
