// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

/** How dosing motors begin and end a pour: slowly, when it is faster than a threshold. Motors share one by its reference. */
class QUVFRAMEWORK_EXPORT FW_Ramp
{
public:
    explicit FW_Ramp(int configRef = 0) : m_configRef(configRef) {}
    void setDefaults(); ///< keeps the reference

    int configRef() const { return m_configRef; } ///< 0 for none
    void setConfigRef(int reference) { m_configRef = reference; }
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    int initialSteps() const { return m_initialSteps; } ///< slow steps after the valve has opened
    void setInitialSteps(int steps) { m_initialSteps = steps; }
    int finalSteps() const { return m_finalSteps; } ///< slow steps before the valve closes
    void setFinalSteps(int steps) { m_finalSteps = steps; }
    int speedThreshold() const { return m_speedThreshold; }
    void setSpeedThreshold(int speed) { m_speedThreshold = speed; }
    int slowSpeed() const { return m_slowSpeed; }
    void setSlowSpeed(int speed) { m_slowSpeed = speed; }

    bool operator==(const FW_Ramp &other) const;
    bool operator!=(const FW_Ramp &other) const { return !(*this == other); }

private:
    int m_configRef = 0;
    bool m_enabled = true;
    int m_initialSteps = 20;
    int m_finalSteps = 20;
    int m_speedThreshold = 60;
    int m_slowSpeed = 15;
};
