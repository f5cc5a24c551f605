// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/ltd_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_Lineartable> &deviceStructure()
{
    using Device = FW_Lineartable;
    static const DeviceStructure<Device> structure = {
        20,
        FW_Device::Lineartable,
        {"DE01995", "Invalid Dispenser data", "DE02802", "DE01996", "DE02010", "DE02011", "DE02012"},
        [](Device &device) { device.setDefaults(true); },
        Applied::AsCopy,
        {
            {"Linear Steps", "DE01997", byAccessors<Device, &Device::linearSteps, &Device::setLinearSteps>},
            {"Length", "DE01998", byAccessors<Device, &Device::length, &Device::setLength>},
            {"Zero Reference Pin Size", "DE01999",
             byAccessors<Device, &Device::zeroRefPinSize, &Device::setZeroRefPinSize>},
            {"Circuit Pin Size", "DE02001",
             byAccessors<Device, &Device::circuitPinSize, &Device::setCircuitPinSize>},
            {"Positioning Tolerance", "DE02002",
             byAccessors<Device, &Device::positioningTolerance, &Device::setPositioningTolerance>},
            {"High Speed", "DE02003", byAccessors<Device, &Device::highSpeed, &Device::setHighSpeed>},
            {"Low Speed", "DE02004", byAccessors<Device, &Device::lowSpeed, &Device::setLowSpeed>},
            {"Zero Reference Search Speed", "DE02005",
             byAccessors<Device, &Device::zeroRefSearchSpeed, &Device::setZeroRefSearchSpeed>},
            {"Stepper Resolution", "DE02006",
             byAccessors<Device, &Device::resolution, &Device::setResolution>},
            {"Supplying Current", "DE02007",
             byAccessors<Device, &Device::supplyingCurrent, &Device::setSupplyingCurrent>},
            {"Free Slot Position", "DE02008",
             byAccessors<Device, &Device::freeSlotPosition, &Device::setFreeSlotPosition>},
            {"Service Position", "DE02009",
             byAccessors<Device, &Device::servicePosition, &Device::setServicePosition>},
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_Lineartable>;

LTD_cdata::LTD_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

LTD_cdata::LTD_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

LTD_cdata::LTD_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

LTD_cdata *LTD_cdata::clone() const
{
    return new LTD_cdata(*this);
}
