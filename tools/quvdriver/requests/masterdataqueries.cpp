// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/masterdataqueries.h"

#include "requests/driverqueries.h"

#include "masterdata/getcanisterlistanswer.h"
#include "masterdata/getcircuitlistanswer.h"
#include "masterdata/getcolorantlistanswer.h"
#include "masterdata/getdatalistcmd.h"
#include "masterdata/getdevicelistanswer.h"

namespace quv {
namespace {

struct DeviceName
{
    FW_Device::Kind kind;
    const char *name;
};

constexpr DeviceName deviceNames[] = {{FW_Device::Autocap, "Automatic cap"},
                                      {FW_Device::Shelf, "Shelf"},
                                      {FW_Device::CanPresenceSensor, "Can presence sensor"},
                                      {FW_Device::Humidifier, "Humidifier"},
                                      {FW_Device::Offline, "Offline button"},
                                      {FW_Device::TemperatureSensor, "Temperature sensor"},
                                      {FW_Device::BungHoleLocator, "Bung hole locator"},
                                      {FW_Device::NozzleLight, "Nozzle light"},
                                      {FW_Device::Turntable, "Turntable"},
                                      {FW_Device::Heater, "Heater"},
                                      {FW_Device::Brush, "Brush"},
                                      {FW_Device::NozzleValve, "Nozzle valve"},
                                      {FW_Device::Lineartable, "Linear table"},
                                      {FW_Device::UltrasoundCleaning, "Ultrasound cleaning"},
                                      {FW_Device::Lock, "Lock"},
                                      {FW_Device::Brush2, "Second brush"},
                                      {FW_Device::PLCBoard, "PLC board"}};

/// The dispenser as it is now, and whether all that it has is asked for.
struct AskedList
{
    AskedList(const ProtoCommand &command, const DriverKnowledge &knowledge)
        : machine(knowledge.machine->copy()),
          dispenser(dynamic_cast<const FW_Dispenser &>(*machine)),
          isOfAll(!dynamic_cast<const GetDataListCmd &>(command).option())
    {}

    bool holds(bool isEnabled) const { return isOfAll || isEnabled; }

    std::unique_ptr<const FW_Machine> machine;
    const FW_Dispenser &dispenser;
    bool isOfAll;
};

int numberOfColorant(const QString &code, const FW_Dispenser &dispenser)
{
    const FW_Colorant *colorant = dispenser.getColorantByColCode(code);
    return colorant ? colorant->systemColorantID() : 0;
}

} // namespace

std::unique_ptr<ProtoAnswer> canisterList(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const AskedList asked(command, knowledge);
    QList<CanisterData> canisters;
    for (const FW_Canister &canister : asked.dispenser.canisters())
        if (asked.holds(canister.isEnabled()))
            canisters.append(
                CanisterData(canister, numberOfColorant(canister.colorantCode(), asked.dispenser)));
    return std::make_unique<GetCanisterListAnswer>(canisters);
}

std::unique_ptr<ProtoAnswer> circuitList(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const AskedList asked(command, knowledge);
    QList<CircuitData> circuits;
    for (const FW_Circuit *circuit : asked.dispenser.getCircuits()) {
        if (!asked.holds(circuit->isEnabled()))
            continue;
        const FW_Canister *canister = asked.dispenser.getCanisterOfCircuitID(circuit->id());
        CircuitData data(*circuit, canister ? canister->id() : 0);
        data.colorantID = canister ? numberOfColorant(canister->colorantCode(), asked.dispenser) : 0;
        circuits.append(data);
    }
    return std::make_unique<GetCircuitListAnswer>(circuits);
}

std::unique_ptr<ProtoAnswer> colorantList(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const AskedList asked(command, knowledge);
    QList<FW_Colorant> colorants;
    for (const FW_Colorant &colorant : asked.dispenser.colorants())
        if (asked.holds(colorant.isEnabled()))
            colorants.append(colorant);
    return std::make_unique<GetColorantListAnswer>(colorants);
}

std::unique_ptr<ProtoAnswer> deviceList(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const AskedList asked(command, knowledge);
    QList<DeviceData> devices;
    for (const DeviceName &each : deviceNames) {
        const FW_Device *device = asked.dispenser.getDevice(each.kind);
        if (device && asked.holds(device->isEnabled()))
            devices.append(DeviceData(each.kind, device->isEnabled(), QLatin1String(each.name),
                                      asked.dispenser.acceptCommands(each.kind), each.kind));
    }
    return std::make_unique<GetDeviceListAnswer>(devices);
}

} // namespace quv
