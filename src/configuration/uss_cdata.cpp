// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/uss_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_UltrasoundCleaning> &deviceStructure()
{
    using Device = FW_UltrasoundCleaning;
    static const DeviceStructure<Device> structure = {
        21,
        FW_Device::UltrasoundCleaning,
        {"DE02176", "Invalid Dispenser data", "DE02803", "DE02177", "DE02189", "DE02190", "DE02191"},
        [](Device &device) { device.setDefaults(true); },
        Applied::AsCopy,
        {
            {"Source Voltage", "DE02178",
             byAccessors<Device, &Device::sourceVoltageValue, &Device::setSourceVoltageValue>},
            {"Cleaning Policy", "DE02179",
             byAccessors<Device, &Device::cleaningPolicyValue, &Device::setCleaningPolicyValue>},
            {"Ultrasound Duration", "DE02180",
             byAccessors<Device, &Device::ultrasoundDuration, &Device::setUltrasoundDuration>},
            {"Ultrasound Pause", "DE02181",
             byAccessors<Device, &Device::ultrasoundPause, &Device::setUltrasoundPause>},
            {"Emptying Time", "DE02182", inTenths<Device, &Device::emptyingTime, &Device::setEmptyingTime>},
            {"Filling Time", "DE02183", inTenths<Device, &Device::fillingTime, &Device::setFillingTime>},
            {"Level Sensor Enabled", "DE02184",
             byAccessors<Device, &Device::levelSensorEnabledFwValue, &Device::setLevelSensorEnabledFwValue>},
            {"N Pumps", "DE02185", always<Device, 0>},
            {"Valve Enabled", "DE02186", always<Device, 0>},
            {"Pump 1 Speed", "DE02187", always<Device, 0>},
            {"Pump 2 Speed", "DE02188", always<Device, 0>},
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_UltrasoundCleaning>;

USS_cdata::USS_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

USS_cdata::USS_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

USS_cdata::USS_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

USS_cdata *USS_cdata::clone() const
{
    return new USS_cdata(*this);
}
