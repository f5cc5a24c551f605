// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_cleanjob.h>
#include <QuvFramework/fw_device.h>

/** A brush of a rotating machine, with the job of quick cleaning by it. */
class QUVFRAMEWORK_EXPORT FW_BrushBase : public FW_Device, public FW_CleanJob
{
public:
    int position() const { return m_position; } ///< where on the turntable it sits; 0 for nowhere
    void setPosition(int position) { m_position = position; }
    int selfCleaningTime() const { return m_selfCleaningTime; } ///< seconds
    void setSelfCleaningTime(int seconds) { m_selfCleaningTime = seconds; }
    static int defaultSelfCleaningTimeValue(FW_ModelNumber model);

    using FW_Device::operator==;
    using FW_Device::operator!=;

protected:
    explicit FW_BrushBase(int kind) : FW_Device(kind), FW_CleanJob(Quick) {}

private:
    int m_position = 0;
    int m_selfCleaningTime = defaultSelfCleaningTimeValue(-1);
};
