// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>
#include <QuvFramework/fw_modelnumber.h>

/** The heater of the colorants. It is on below its low threshold and off above its high one. */
class QUVFRAMEWORK_EXPORT FW_Heater : public FW_Device
{
public:
    FW_Heater() : FW_Device(Heater) {}
    FW_Heater *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled, FW_ModelNumber model);

    int lowTemperatureThreshold() const { return m_lowTemperatureThreshold; } ///< degrees Celsius
    void setLowTemperatureThreshold(int degrees) { m_lowTemperatureThreshold = degrees; }
    int highTemperatureThreshold() const { return m_highTemperatureThreshold; } ///< degrees Celsius
    void setHighTemperatureThreshold(int degrees) { m_highTemperatureThreshold = degrees; }

private:
    int m_lowTemperatureThreshold = 18;
    int m_highTemperatureThreshold = 25;
};
