// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/ttd_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_Turntable> &deviceStructure()
{
    using Device = FW_Turntable;
    static const DeviceStructure<Device> structure = {
        15,
        FW_Device::Turntable,
        {"DE01603", "Invalid Dispenser data", "DE02797", "DE01604", "DE01614", "DE01615", "DE01617"},
        [](Device &device) { device.setDefaults(true); },
        Applied::AsCopy,
        {
            {"Round Steps", "DE01605", byAccessors<Device, &Device::roundSteps, &Device::setRoundSteps>},
            {"Perimeter", "DE01606", byAccessors<Device, &Device::perimeter, &Device::setPerimeter>},
            {"Zero Reference Pin Size", "DE01607",
             byAccessors<Device, &Device::zeroRefPinSize, &Device::setZeroRefPinSize>},
            {"Circuit Pin Size", "DE01608",
             byAccessors<Device, &Device::circuitPinSize, &Device::setCircuitPinSize>},
            {"Positioning Tolerance", "DE01609",
             byAccessors<Device, &Device::positioningTolerance, &Device::setPositioningTolerance>},
            {"High Speed", "DE01610", byAccessors<Device, &Device::highSpeed, &Device::setHighSpeed>},
            {"Low Speed", "DE01611", byAccessors<Device, &Device::lowSpeed, &Device::setLowSpeed>},
            {"Zero Reference Search Speed", "DE01612",
             byAccessors<Device, &Device::zeroRefSearchSpeed, &Device::setZeroRefSearchSpeed>},
            {"Stepper Resolution", "DE01613",
             byAccessors<Device, &Device::resolution, &Device::setResolution>},
            {"Supplying Current", "DE01640",
             byAccessors<Device, &Device::supplyingCurrent, &Device::setSupplyingCurrent>},
            {"Refill Angle", "DE01641", byAccessors<Device, &Device::refillAngle, &Device::setRefillAngle>},
            {"Service Angle", "DE01984", byAccessors<Device, &Device::serviceAngle, &Device::setServiceAngle>,
             12},
            {"Internal Perimeter", "DE02829",
             byAccessors<Device, &Device::internalPerimeter, &Device::setInternalPerimeter>, 13},
        },
        -1,
        nullptr,
        [](Device &copy, const Device &present) {
            copy.setPositions(present.positions());
            copy.setStepTime(present.stepTime());
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_Turntable>;

TTD_cdata::TTD_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

TTD_cdata::TTD_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

TTD_cdata::TTD_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

TTD_cdata *TTD_cdata::clone() const
{
    return new TTD_cdata(*this);
}
