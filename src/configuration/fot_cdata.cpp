// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/fot_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_CanPresenceSensor> &deviceStructure()
{
    using Device = FW_CanPresenceSensor;
    static const DeviceStructure<Device> structure = {
        11,
        FW_Device::CanPresenceSensor,
        {"DE00277", "Invalid Dispenser data", "DE02794", "DE00278", "DE00281", "DE00282", "DE00283"},
        [](Device &device) { device.setDefaults(true, -1); },
        Applied::InPlace,
        {
            {"Sensor Type", "DE00279", byAccessors<Device, &Device::type, &Device::setType>},
            {"Can Sensor Presence Check", "DE00280",
             byAccessors<Device, &Device::canPresenceCheckAndStatus, &Device::setCanPresenceCheckAndStatus>},
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_CanPresenceSensor>;

FOT_cdata::FOT_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

FOT_cdata::FOT_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

FOT_cdata::FOT_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

FOT_cdata *FOT_cdata::clone() const
{
    return new FOT_cdata(*this);
}
