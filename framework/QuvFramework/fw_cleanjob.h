// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_modelnumber.h>
#include <QuvFramework/fw_timespan.h>

/** When and how fast the machine cleans by itself. */
class QUVFRAMEWORK_EXPORT FW_CleanJob
{
public:
    /** Quick, by the brush that all circuits share, or accurate, by the cleaning motor of each. */
    enum CleaningType { Quick = 0, Accurate = 1 };
    /** When a job is due; the values are bits of a schedule mask. */
    enum Schedule { OnStartup = 1, BeforeTinting = 2, AfterTinting = 4, OnTimeout = 8 };

    explicit FW_CleanJob(CleaningType type = Quick, FW_ModelNumber model = -1);

    bool isCleaningEnabled() const { return m_cleaningEnabled; }
    void setCleaningEnabled(bool enabled) { m_cleaningEnabled = enabled; }
    /** The time from one cleaning to the next. \a unit is one of FW_TimeSpan::Unit. */
    int timeout(int unit) const { return m_timeout.in(unit); }
    void setTimeout(int value, int unit) { m_timeout = FW_TimeSpan(value, unit); }
    int turntableSpeed() const { return m_turntableSpeed; }
    void setTurntableSpeed(int speed) { m_turntableSpeed = speed; }
    int scheduleMask() const { return m_scheduleMask; }
    void setScheduleMask(int mask) { m_scheduleMask = mask; }

    static int defaultTimeoutValue(int cleaningType, FW_ModelNumber model); ///< minutes
    static int defaultScheduleMaskValue(int cleaningType, FW_ModelNumber model);
    static int defaultProcessTypeValue(FW_ModelNumber model);
    /**
     * True for what a machine of the model lets be configured. \a brush is 0 for the first or only brush, 1 for the second.
     * Quick cleaning needs the brush of a dispenser, so mixers have none, and never has the second brush to itself; accurate
     * cleaning any dispenser.
     */
    static bool canConfigureCleaningType(int cleaningType, int brush, FW_ModelNumber model);

    bool operator==(const FW_CleanJob &other) const;
    bool operator!=(const FW_CleanJob &other) const { return !(*this == other); }

private:
    bool m_cleaningEnabled = true;
    FW_TimeSpan m_timeout;
    int m_turntableSpeed = 50;
    int m_scheduleMask = 0;
};
