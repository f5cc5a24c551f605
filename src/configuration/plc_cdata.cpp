// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/plc_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_PLCBoard> &deviceStructure()
{
    using Device = FW_PLCBoard;
    static const DeviceStructure<Device> structure = {
        26,
        FW_Device::PLCBoard,
        {"DE02909", "Invalid Dispenser data", "DE02910", "DE02911", "DE02915", "DE02916", "DE02917"},
        [](Device &device) { device.setDefaults(true); },
        Applied::AsCopy,
        {
            {"PLC Signals", "DE02912",
             byAccessors<Device, &Device::plcSignalsValue, &Device::setPlcSignalsValue>},
            {"End Disp Signal", "DE02913",
             inTenths<Device, &Device::endDispSignalActivationTime, &Device::setEndDispSignalActivationTime>},
            {"Err Disp Signal", "DE02914",
             inTenths<Device, &Device::errDispSignalActivationTime, &Device::setErrDispSignalActivationTime>},
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_PLCBoard>;

PLC_cdata::PLC_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

PLC_cdata::PLC_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

PLC_cdata::PLC_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

PLC_cdata *PLC_cdata::clone() const
{
    return new PLC_cdata(*this);
}
