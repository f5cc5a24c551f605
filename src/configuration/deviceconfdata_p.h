// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "configuration/confrow_p.h"
#include "configuration/deviceconfdata.h"

#include <memory>
#include <utility>
#include <vector>

namespace quv {

/** How a device gets to the machine. */
enum class Applied { InPlace, AsCopy };

/** All that there is to a device structure. Its file specialises deviceStructure for its device. */
template <class Device>
struct DeviceStructure
{
    int code = 0;
    int kind = 0; ///< of the device
    ConfCodes codes;
    void (*setDefaults)(Device &device) = nullptr;
    Applied applied = Applied::InPlace;
    std::vector<ConfField<Device>> fields;
    int appliedFields = -1; ///< in place: so many of the first; -1 for all
    /** Members beside "cmd_enabled" in the XML-RPC form; null for none. */
    void (*writeMembers)(const Device &device, XmlRpc::XmlRpcValue &value) = nullptr;
    /** As copy: takes from the machine's own device what no row carries; null for nothing. */
    void (*keep)(Device &copy, const Device &present) = nullptr;
};

template <class Device>
const DeviceStructure<Device> &deviceStructure();

} // namespace quv

template <class Device>
DeviceConfData<Device>::DeviceConfData() : ConfData(quv::deviceStructure<Device>().code)
{
    clear();
}

template <class Device>
DeviceConfData<Device>::DeviceConfData(const FW_Machine *machine, const char *function) : DeviceConfData()
{
    const auto &structure = quv::deviceStructure<Device>();
    const FW_Dispenser &dispenser = quv::confDispenser(machine, structure.codes, function);
    m_cmdEnabled = Absent;
    if (const auto *device = dynamic_cast<const Device *>(dispenser.getDevice(structure.kind))) {
        m_device = *device;
        setCommandEnable(device->isEnabled());
    }
    m_parameters = quv::writtenConfParameters(structure.fields, m_device);
}

template <class Device>
DeviceConfData<Device>::DeviceConfData(QStringList tokens, int fieldCount, const char *function)
    : ConfData(quv::deviceStructure<Device>().code, tokens)
{
    clear();
    const auto &structure = quv::deviceStructure<Device>();
    quv::readConfTokens(structure.fields, structure.codes, tokens, m_enabledFieldLength, fieldCount,
                        m_parameters, function);
    quv::updateLocalDataOrThrow(*this, structure.codes.tokensData, function);
}

template <class Device>
DeviceConfData<Device>::DeviceConfData(QString row, const char *function)
    : ConfData(quv::deviceStructure<Device>().code, row)
{
    clear();
    quv::updateLocalDataOrThrow(*this, quv::deviceStructure<Device>().codes.textData, function);
}

template <class Device>
void DeviceConfData<Device>::clear()
{
    quv::deviceStructure<Device>().setDefaults(m_device);
}

template <class Device>
QStringList DeviceConfData<Device>::labels()
{
    return quv::confLabels(quv::deviceStructure<Device>().fields);
}

template <class Device>
bool DeviceConfData<Device>::updateLocalData(QString *error)
{
    return quv::readConfParameters(quv::deviceStructure<Device>().fields, m_parameters, m_device, error);
}

template <class Device>
bool DeviceConfData<Device>::updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *,
                                                 QList<int> *) const
{
    const auto &structure = quv::deviceStructure<Device>();
    if (m_cmdEnabled == Absent)
        return true;
    auto *dispenser = dynamic_cast<FW_Dispenser *>(machine);
    if (!dispenser)
        return false;
    if (structure.applied == quv::Applied::AsCopy) {
        Device device = m_device;
        device.setEnabled(m_cmdEnabled == Enabled);
        const auto *present =
            dynamic_cast<const Device *>(std::as_const(*dispenser).getDevice(structure.kind));
        if (structure.keep && present)
            structure.keep(device, *present);
        dispenser->setDevice(device);
        return true;
    }
    if (!dispenser->hasDevice(structure.kind))
        dispenser->createDevice(structure.kind);
    auto *device = dynamic_cast<Device *>(dispenser->getDevice(structure.kind));
    if (!device)
        return false;
    device->setEnabled(m_cmdEnabled == Enabled);
    int remaining = structure.appliedFields;
    for (const auto &field : structure.fields) {
        if (remaining-- == 0)
            break;
        field.access.read(*device, field.access.write(m_device));
    }
    return true;
}

template <class Device>
XmlRpc::XmlRpcValue DeviceConfData<Device>::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value = confData_toXmlRpcValue();
    if (const auto writeMembers = quv::deviceStructure<Device>().writeMembers)
        writeMembers(m_device, value);
    return value;
}
