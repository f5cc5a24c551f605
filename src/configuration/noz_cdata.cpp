// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/noz_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_NozzleValve> &deviceStructure()
{
    using Device = FW_NozzleValve;
    static const DeviceStructure<Device> structure = {
        18,
        FW_Device::NozzleValve,
        {"DE01632", "Invalid Dispenser data", "DE02801", "DE01934", "DE01937", "DE01938", "DE01939"},
        [](Device &device) { device.setDefaults(-1, true); },
        Applied::AsCopy,
        {
            {"Nozzle Valve Type", "DE01935",
             byAccessors<Device, &Device::nozzleType, &Device::setNozzleType>},
            {"Nozzle Valve Timeout",
             "DE01936",
             {[](const Device &device) { return device.timeout(1); },
              [](Device &device, int value) { device.setTimeout(value, 1); }}},
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_NozzleValve>;

NOZ_cdata::NOZ_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

NOZ_cdata::NOZ_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

NOZ_cdata::NOZ_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

NOZ_cdata *NOZ_cdata::clone() const
{
    return new NOZ_cdata(*this);
}
