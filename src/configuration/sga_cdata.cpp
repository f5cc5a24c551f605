// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/sga_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace quv {

template <>
const DeviceStructure<FW_Shelf> &deviceStructure()
{
    using Device = FW_Shelf;
    static const DeviceStructure<Device> structure = {
        9,
        FW_Device::Shelf,
        {"DE00254", "Invalid Dispenser data", "DE02793", "DE00255", "DE00263", "DE00264", "DE00265"},
        [](Device &device) { device.setDefaults(true); },
        Applied::InPlace,
        {
            {"Shelf Type",
             "DE00256",
             {[](const Device &device) { return device.type(); },
              [](Device &device, int value) { device.setType(value, -1, FW_Version()); }}},
            {"Puncher",
             "DE00257",
             {[](const Device &device) { return device.puncher(); },
              [](Device &device, int value) { device.setPuncher(value, -1, FW_Version()); }}},
            {"Door", "DE00258", byAccessors<Device, &Device::doorValue, &Device::setDoorValue>},
            {"Move Offset", "DE00259", byAccessors<Device, &Device::moveOffset, &Device::setMoveOffset>},
            {"Resolution", "DE00260", byAccessors<Device, &Device::resolution, &Device::setResolution>},
            {"Punching Tolerance", "DE00261",
             byAccessors<Device, &Device::punchingTolerance, &Device::setPunchingTolerance>},
            {"Punching Speed", "DE00262",
             byAccessors<Device, &Device::punchingSpeed, &Device::setPunchingSpeed>},
            {"Can Presence Sensor High", "DE00866",
             byAccessors<Device, &Device::canPresenceSensorHigh, &Device::setCanPresenceSensorHigh>},
            {"Punching Sensor High", "DE00867",
             byAccessors<Device, &Device::punchingSensorHigh, &Device::setPunchingSensorHigh>},
            {"Punching Move Offset", "DE02604",
             byAccessors<Device, &Device::punchingMoveOffset, &Device::setPunchingMoveOffset>, 10},
            {"Roll Conveyor Enable",
             "DE02903",
             {[](const Device &device) { return int(device.hasRollConveyor()); },
              [](Device &device, int value) { device.setRollConveyor(value > 0); }},
             11},
            {"Roll Conveyor Height", "DE02904",
             byAccessors<Device, &Device::rollConveyorHeight, &Device::setRollConveyorHeight>, 12},
        },
        10, // the roll conveyor is not given to the machine
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_Shelf>;

SGA_cdata::SGA_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

SGA_cdata::SGA_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

SGA_cdata::SGA_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

SGA_cdata *SGA_cdata::clone() const
{
    return new SGA_cdata(*this);
}
