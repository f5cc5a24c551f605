// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/hea_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_Heater> &deviceStructure()
{
    using Device = FW_Heater;
    static const DeviceStructure<Device> structure = {
        17,
        FW_Device::Heater,
        {"DE01632", "Invalid Dispenser data", "DE02799", "DE01633", "DE01636", "DE01637", "DE01638"},
        [](Device &device) { device.setDefaults(true, -1); },
        Applied::AsCopy,
        {
            {"Low Temperature Threshold", "DE01634",
             byAccessors<Device, &Device::lowTemperatureThreshold, &Device::setLowTemperatureThreshold>},
            {"High Temperature Threshold", "DE01635",
             byAccessors<Device, &Device::highTemperatureThreshold, &Device::setHighTemperatureThreshold>},
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_Heater>;

HEA_cdata::HEA_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

HEA_cdata::HEA_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

HEA_cdata::HEA_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

HEA_cdata *HEA_cdata::clone() const
{
    return new HEA_cdata(*this);
}
