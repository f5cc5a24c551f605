// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>
#include <QuvFramework/fw_modelnumber.h>

#include <QtCore/QList>

#include <xmlrpcpp/XmlRpcValue.h>

/** The temperature sensor by which pours get slower when it is cold: below each threshold with the next speed. */
class QUVFRAMEWORK_EXPORT FW_TemperatureSensor : public FW_Device
{
public:
    FW_TemperatureSensor();
    FW_TemperatureSensor *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled, FW_ModelNumber model);

    int readingPeriod() const { return m_readingPeriod; } ///< seconds
    void setReadingPeriod(int seconds) { m_readingPeriod = seconds; }

    const QList<int> &temperatureThresholds() const { return m_thresholds; }        ///< degrees Celsius
    int temperatureThreshold(int index) const { return m_thresholds.value(index); } ///< 0 when there is none
    void clearTemperatureThresholds() { m_thresholds.clear(); }
    void addTemperatureThreshold(int degrees) { m_thresholds.append(degrees); }

    // Circuits belong to group 1 or 2, each with speeds of its own, of which the first is 0: nothing is reduced above the first
    // threshold. Another group has no speeds and takes none.
    QList<int> erogationSpeeds(int group) const;
    int erogationSpeed(int index, int group) const; ///< 0 when there is none
    void clearErogationSpeeds(int group);
    void addErogationSpeed(int speed, int group);

    void setReadingPeriodValue(XmlRpc::XmlRpcValue &value) const; ///< writes "reading_period"
    void setTemperatureThresholdValue(
        XmlRpc::XmlRpcValue &value) const; ///< writes "temperature_thresholds", an array
    /** Writes "erogation_speeds_group_1" or 2, an array; nothing for another group. */
    void setErogationSpeedsValue(XmlRpc::XmlRpcValue &value, int group) const;

private:
    static bool isGroup(int group) { return group == 1 || group == 2; }
    QList<int> &speeds(int group) { return group == 1 ? m_speedsOfGroup1 : m_speedsOfGroup2; }
    const QList<int> &speeds(int group) const { return group == 1 ? m_speedsOfGroup1 : m_speedsOfGroup2; }

    int m_readingPeriod = 60;
    QList<int> m_thresholds;
    QList<int> m_speedsOfGroup1;
    QList<int> m_speedsOfGroup2;
};
