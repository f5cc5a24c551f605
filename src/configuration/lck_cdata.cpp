// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/lck_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_Lock> &deviceStructure()
{
    using Device = FW_Lock;
    static const DeviceStructure<Device> structure = {
        25,
        FW_Device::Lock,
        {"DE02435", "Invalid Dispenser data", "DE02804", "DE02436", "DE02438", "DE02439", "DE02440"},
        [](Device &device) { device.setDefaults(true, -1); },
        Applied::AsCopy,
        {
            {"Manual Unlock Signal", "DE02437",
             byAccessors<Device, &Device::manualUnlockSignalMask, &Device::setManualUnlockSignalMask>},
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_Lock>;

LCK_cdata::LCK_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

LCK_cdata::LCK_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

LCK_cdata::LCK_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

LCK_cdata *LCK_cdata::clone() const
{
    return new LCK_cdata(*this);
}
