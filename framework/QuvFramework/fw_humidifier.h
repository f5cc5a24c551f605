// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>

#include <xmlrpcpp/XmlRpcValue.h>

#include <array>

/** The humidifier that keeps the nozzles from drying out. */
class QUVFRAMEWORK_EXPORT FW_Humidifier : public FW_Device
{
public:
    FW_Humidifier() : FW_Device(Humidifier) {}
    FW_Humidifier *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    int readingPeriod() const { return m_readingPeriod; } ///< seconds
    void setReadingPeriod(int seconds) { m_readingPeriod = seconds; }
    /** By how much the vaporizer's time is stretched. Vaporizers are 0 and 1; another has 0 and takes nothing. */
    int multiplierCoefficient(int vaporizer) const;
    void setMultiplierCoefficient(int coefficient, int vaporizer);
    int lowHumidityWarningThreshold() const { return m_lowHumidityWarningThreshold; } ///< percent
    void setLowHumidityWarningThreshold(int percent) { m_lowHumidityWarningThreshold = percent; }

    void setReadingPeriodValue(XmlRpc::XmlRpcValue &value) const; ///< writes "reading_period"
    /** Writes "multiplier_coefficient", the first vaporizer's. */
    void setMultiplierCoefficientValue(XmlRpc::XmlRpcValue &value) const;
    /** Writes "low_humidity_warning_threshold". */
    void setLowHumidityWarningThresholdValue(XmlRpc::XmlRpcValue &value) const;

private:
    bool hasVaporizer(int vaporizer) const;

    int m_readingPeriod = 60;
    std::array<int, 2> m_multiplierCoefficients = {10, 10};
    int m_lowHumidityWarningThreshold = 40;
};
