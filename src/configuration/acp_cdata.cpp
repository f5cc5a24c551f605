// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/acp_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_Autocap> &deviceStructure()
{
    using Device = FW_Autocap;
    static const DeviceStructure<Device> structure = {
        4,
        FW_Device::Autocap,
        {"DE00197", "Invalid Dispenser data", "DE02790", "DE00198", "DE00206", "DE00207", "DE00208"},
        [](Device &device) { device.setDefaults(true); },
        Applied::InPlace,
        {
            {"Autocap Type", "DE00199", byAccessors<Device, &Device::type, &Device::setType>},
            {"Movement Type", "DE00382",
             byAccessors<Device, &Device::movementType, &Device::setMovementType>},
            {"Opening Timeout", "DE00201",
             byAccessors<Device, &Device::openingTimeout, &Device::setOpeningTimeout>},
            {"Closing Timeout", "DE00202",
             byAccessors<Device, &Device::closingTimeout, &Device::setClosingTimeout>},
            {"Closing Delay", "DE00203",
             byAccessors<Device, &Device::closingDelay, &Device::setClosingDelay>},
            {"Power Off Delay", "DE00204",
             byAccessors<Device, &Device::powerOffDelay, &Device::setPowerOffDelay>},
            {"Automatic Closure",
             "DE00205",
             {[](const Device &device) { return int(device.automaticClosure()); },
              [](Device &device, int value) { device.setAutomaticClosure(value == 1); }}},
            {"Movement Speed", "DE02202",
             byAccessors<Device, &Device::movementSpeed, &Device::setMovementSpeed>, 8},
            {"Working Mode", "DE02204", byAccessors<Device, &Device::workingMode, &Device::setWorkingMode>,
             9},
            {"Sliding Offline Positioning Time", "DE02603",
             byAccessors<Device, &Device::slidingOfflinePosTime, &Device::setSlidingOfflinePosTime>, 10},
        },
        -1,
        [](const Device &device, XmlRpc::XmlRpcValue &value) {
            device.setTypeValue(value);
            device.setMovementTypeValue(value);
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_Autocap>;

ACP_cdata::ACP_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

ACP_cdata::ACP_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

ACP_cdata::ACP_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

ACP_cdata *ACP_cdata::clone() const
{
    return new ACP_cdata(*this);
}
