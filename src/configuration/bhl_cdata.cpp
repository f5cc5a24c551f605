// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/bhl_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_BungHoleLocator> &deviceStructure()
{
    using Device = FW_BungHoleLocator;
    static const DeviceStructure<Device> structure = {
        13,
        FW_Device::BungHoleLocator,
        {"DE00326", "Invalid Dispenser data", "DE02795", "DE00328", "DE00702", "DE00703", "DE00704"},
        [](Device &device) { device.setDefaults(true); },
        Applied::InPlace,
        {
            {"Driving Mode", "DE00329", byAccessors<Device, &Device::drivingMode, &Device::setDrivingMode>},
            {"Deactivation Delay", "DE00521",
             byAccessors<Device, &Device::deactivationDelay, &Device::setDeactivationDelay>},
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_BungHoleLocator>;

BHL_cdata::BHL_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

BHL_cdata::BHL_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

BHL_cdata::BHL_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

BHL_cdata *BHL_cdata::clone() const
{
    return new BHL_cdata(*this);
}
