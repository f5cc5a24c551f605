// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/lit_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_NozzleLight> &deviceStructure()
{
    using Device = FW_NozzleLight;
    static const DeviceStructure<Device> structure = {
        14,
        FW_Device::NozzleLight,
        {"DE00705", "Invalid Dispenser data", "DE02796", "DE00707", "DE00709", "DE00710", "DE00711"},
        [](Device &device) { device.setDefaults(true); },
        Applied::InPlace,
        {
            {"Driving Mode", "DE00708", byAccessors<Device, &Device::drivingMode, &Device::setDrivingMode>},
            {"Deactivation Delay", "DE00522",
             byAccessors<Device, &Device::deactivationDelay, &Device::setDeactivationDelay>},
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_NozzleLight>;

LIT_cdata::LIT_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

LIT_cdata::LIT_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

LIT_cdata::LIT_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

LIT_cdata *LIT_cdata::clone() const
{
    return new LIT_cdata(*this);
}
