// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/tem_cdata.h"

#include "configuration/deviceconfdata_p.h"

namespace {

using Sensor = FW_TemperatureSensor;

/** The first speed of a group that travels begins the group anew: the one before it is always 0. */
template <int group>
constexpr quv::ConfAccess<Sensor> firstSpeed = {
    [](const Sensor &sensor) { return sensor.erogationSpeed(1, group); },
    [](Sensor &sensor, int value) {
        sensor.clearErogationSpeeds(group);
        sensor.addErogationSpeed(0, group);
        sensor.addErogationSpeed(value, group);
    }};

template <int group>
constexpr quv::ConfAccess<Sensor> secondSpeed = {
    [](const Sensor &sensor) { return sensor.erogationSpeed(2, group); },
    [](Sensor &sensor, int value) { sensor.addErogationSpeed(value, group); }};

/** A row without the second group leaves it with the one speed that never travels. */
void emptySecondGroup(Sensor &sensor)
{
    sensor.clearErogationSpeeds(2);
    sensor.addErogationSpeed(0, 2);
}

} // namespace

namespace quv {

template <>
const DeviceStructure<FW_TemperatureSensor> &deviceStructure()
{
    using Device = FW_TemperatureSensor;
    static const DeviceStructure<Device> structure = {
        8,
        FW_Device::TemperatureSensor,
        {"DE00595", "Invalid Dispenser data", "DE02792", "DE00597", "DE00605", "DE00606", "DE00607"},
        [](Device &device) { device.setDefaults(true, -1); },
        Applied::AsCopy,
        {
            {"Sensor Reading Period", "DE00598",
             byAccessors<Device, &Device::readingPeriod, &Device::setReadingPeriod>},
            {"Temperature Threshold 1",
             "DE00599",
             {[](const Device &device) { return device.temperatureThreshold(0); },
              [](Device &device, int value) {
                  device.clearTemperatureThresholds();
                  device.addTemperatureThreshold(value);
              }}},
            {"Temperature Threshold 2",
             "DE00601",
             {[](const Device &device) { return device.temperatureThreshold(1); },
              [](Device &device, int value) { device.addTemperatureThreshold(value); }}},
            {"Temperature Threshold 3",
             "DE00602",
             {[](const Device &device) { return device.temperatureThreshold(2); },
              [](Device &device, int value) { device.addTemperatureThreshold(value); }}},
            {"Erogation Speed 2 (group 1)", "DE00603", firstSpeed<1>},
            {"Erogation Speed 3 (group 1)", "DE00604", secondSpeed<1>},
            {"Erogation Speed 2 (group 2)", "DE02830", firstSpeed<2>, 7, emptySecondGroup},
            {"Erogation Speed 3 (group 2)", "DE02831", secondSpeed<2>, 8},
        },
        -1,
        [](const Device &device, XmlRpc::XmlRpcValue &value) {
            device.setReadingPeriodValue(value);
            device.setTemperatureThresholdValue(value);
            device.setErogationSpeedsValue(value, 1);
            device.setErogationSpeedsValue(value, 2);
        },
    };
    return structure;
}

} // namespace quv

template class DeviceConfData<FW_TemperatureSensor>;

TEM_cdata::TEM_cdata(const FW_Machine *machine) : DeviceConfData(machine, Q_FUNC_INFO) {}

TEM_cdata::TEM_cdata(QStringList tokens, int fieldCount) : DeviceConfData(tokens, fieldCount, Q_FUNC_INFO) {}

TEM_cdata::TEM_cdata(QString row) : DeviceConfData(row, Q_FUNC_INFO) {}

TEM_cdata *TEM_cdata::clone() const
{
    return new TEM_cdata(*this);
}
