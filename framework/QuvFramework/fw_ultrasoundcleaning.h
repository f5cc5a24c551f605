// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>

/** The bath in which the nozzles are cleaned by ultrasound. Times are in seconds. */
class QUVFRAMEWORK_EXPORT FW_UltrasoundCleaning : public FW_Device
{
public:
    // the names under which clients read and set the times
    static constexpr char ultrasoundDuration_TAG[] = "ultrasound_duration";
    static constexpr char emptyingTime_TAG[] = "emptying_time";
    static constexpr char fillingTime_TAG[] = "filling_time";

    FW_UltrasoundCleaning() : FW_Device(UltrasoundCleaning) {}
    FW_UltrasoundCleaning *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    int sourceVoltageValue() const { return m_sourceVoltageValue; }
    void setSourceVoltageValue(int value) { m_sourceVoltageValue = value; }
    int cleaningPolicyValue() const { return m_cleaningPolicyValue; }
    void setCleaningPolicyValue(int value) { m_cleaningPolicyValue = value; }
    int ultrasoundDuration() const { return m_ultrasoundDuration; }
    void setUltrasoundDuration(int seconds) { m_ultrasoundDuration = seconds; }
    int ultrasoundPause() const { return m_ultrasoundPause; }
    void setUltrasoundPause(int seconds) { m_ultrasoundPause = seconds; }
    double emptyingTime() const { return m_emptyingTime; }
    void setEmptyingTime(double seconds) { m_emptyingTime = seconds; }
    double fillingTime() const { return m_fillingTime; }
    void setFillingTime(double seconds) { m_fillingTime = seconds; }
    /** Whether the bath's level is watched, as the firmware has it: 0 no sensor, 1 watched, 2 not watched. */
    int levelSensorEnabledFwValue() const { return m_levelSensorEnabledFwValue; }
    void setLevelSensorEnabledFwValue(int value) { m_levelSensorEnabledFwValue = value; }

private:
    int m_sourceVoltageValue = 24;
    int m_cleaningPolicyValue = 1;
    int m_ultrasoundDuration = 30;
    int m_ultrasoundPause = 10;
    double m_emptyingTime = 5.0;
    double m_fillingTime = 8.0;
    int m_levelSensorEnabledFwValue = 1;
};
