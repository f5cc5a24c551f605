// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/hum_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_Humidifier> &deviceStructure()
{
    using Device = FW_Humidifier;
    static const DeviceStructure<Device> structure = {
        7,
        FW_Device::Humidifier,
        {"DE00246", "Invalid Dispenser data", "DE02791", "DE00247", "DE00251", "DE00252", "DE00253"},
        [](Device &device) { device.setDefaults(true); },
        Applied::InPlace,
        {
            {"Sensor Reading Period", "DE00248",
             byAccessors<Device, &Device::readingPeriod, &Device::setReadingPeriod>},
            {"Multiplier Coefficient",
             "DE00249",
             {[](const Device &device) { return device.multiplierCoefficient(0); },
              [](Device &device, int value) { device.setMultiplierCoefficient(value, 0); }}},
            {"Low Humidity Warning Threshold", "DE00250",
             byAccessors<Device, &Device::lowHumidityWarningThreshold,
                         &Device::setLowHumidityWarningThreshold>},
        },
        -1,
        [](const Device &device, XmlRpc::XmlRpcValue &value) {
            device.setReadingPeriodValue(value);
            device.setMultiplierCoefficientValue(value);
            device.setLowHumidityWarningThresholdValue(value);
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_Humidifier>;

HUM_cdata::HUM_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

HUM_cdata::HUM_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

HUM_cdata::HUM_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

HUM_cdata *HUM_cdata::clone() const
{
    return new HUM_cdata(*this);
}
