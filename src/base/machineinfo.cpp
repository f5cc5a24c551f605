// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/machineinfo.h"

#include "base/machineinfo_p.h"

#include <QuvFramework/fw_machine.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_serialport.h>

#include <algorithm>
#include <iterator>
#include <typeinfo>
#include <utility>

namespace {

const bool isRegistered = RegisterTravellingType<MachineInfo>("MachineInfo");

/** How the machine is reached. */
constexpr QString MachineInfo::*links[] = {&MachineInfo::serialConnectionName, &MachineInfo::btConnectionName,
                                           &MachineInfo::btConnectionAddress, &MachineInfo::connectionType};

int numberOf(const QString &SID)
{
    bool isNumber = false;
    const int number = SID.toInt(&isNumber);
    return isNumber ? number : -1;
}

quv::Decoded readDevice(const XmlRpc::XmlRpcValue &value, void *field)
{
    int number = 0;
    if (!DecodeXmlRpcValue(value, number))
        return quv::Decoded::OtherType;
    *static_cast<SerialDeviceType *>(field) = static_cast<SerialDeviceType>(number);
    return quv::Decoded::Good;
}

void writeDevice(const void *field, XmlRpc::XmlRpcValue &value)
{
    value = static_cast<int>(*static_cast<const SerialDeviceType *>(field));
}

} // namespace

namespace quv {

template <>
const FieldType &fieldType<SerialDeviceType>()
{
    static constexpr FieldType type = {"int",
                                       FieldType::Other,
                                       readDevice,
                                       nullptr, // an info has no list form
                                       writeDevice,
                                       equalFields<SerialDeviceType>,
                                       resetField<SerialDeviceType>};
    return type;
}

const Record<MachineInfo> &machineInfoRecord()
{
    using Info = MachineInfo;
    constexpr unsigned uncompared = Read | Write; // links are compared apart
    static const Record<Info> record({
        {Info::enabled_TAG, &Info::enabled, noMachineEnabled},
        {Info::SID_TAG, &Info::SID, noMachineSID},
        {Info::serialNumber_TAG, &Info::serialNumber, noMachineSerialNumber},
        {Info::description_TAG, &Info::description, noMachineDescription},
        {Info::model_TAG, &Info::model, noMachineModel},
        {Info::productCode_TAG, &Info::productCode, noMachineProductCode},
        {Info::keyCode_TAG, &Info::keyCode},
        {Info::deviceType_TAG, &Info::serialDeviceType},
        Member<Info>(Info::serialPort_TAG, &Info::serialConnectionName).uses(uncompared),
        Member<Info>(Info::btConnName_TAG, &Info::btConnectionName).uses(uncompared),
        Member<Info>(Info::btConnAddress_TAG, &Info::btConnectionAddress).uses(uncompared),
        Member<Info>(Info::connType_TAG, &Info::connectionType).uses(uncompared),
    });
    return record;
}

} // namespace quv

MachineInfo::MachineInfo(int systemID, bool isEnabled, QString serialName,
                         const BluetoothDeviceInfo &bluetooth, QString connection, QString number,
                         QString describedAs, QString modelName, QString product, QString key,
                         SerialDeviceType device)
    : SID(systemID),
      enabled(isEnabled),
      serialConnectionName(std::move(serialName)),
      btConnectionName(bluetooth.name),
      btConnectionAddress(bluetooth.address),
      connectionType(std::move(connection)),
      serialNumber(std::move(number)),
      description(std::move(describedAs)),
      model(std::move(modelName)),
      productCode(std::move(product)),
      keyCode(std::move(key)),
      serialDeviceType(device)
{}

MachineInfo::MachineInfo(const FW_Machine *machine, QString connection)
{
    if (!machine)
        return;
    SID = numberOf(machine->SID());
    enabled = true;
    connectionType = std::move(connection);
    setConnectionName(machine->connectionName());
    serialNumber = machine->serialNumber();
    description = machine->description();
    model = machine->modelName();
    productCode = machine->productCode();
    serialDeviceType = machine->machineType();
}

MachineInfo::MachineInfo(const XmlRpc::XmlRpcValue &value)
{
    quv::machineInfoRecord().decode(value, *this, Q_FUNC_INFO);
}

MachineInfo::~MachineInfo() = default;

MachineInfo *MachineInfo::clone() const
{
    return new MachineInfo(*this);
}

XmlRpc::XmlRpcValue MachineInfo::toXmlRpcValue() const
{
    return quv::machineInfoRecord().encode(*this);
}

bool MachineInfo::equalTo(const MachineInfo &other, bool strict) const
{
    const auto isSame = [&](QString MachineInfo::*link) { return this->*link == other.*link; };
    return typeid(*this) == typeid(other) && quv::machineInfoRecord().equal(*this, other) &&
           (!strict || std::all_of(std::begin(links), std::end(links), isSame));
}

void MachineInfo::clearMI()
{
    copy_MI(MachineInfo());
}

void MachineInfo::copy_MI(const MachineInfo &other)
{
    MachineInfo::operator=(other);
}

bool MachineInfo::isSerialConnection() const
{
    return connectionType == FW_SerialPort::macroConnToString(FW_SerialPort::SerialConnection);
}

bool MachineInfo::isBluetoothConnection() const
{
    return connectionType == FW_SerialPort::macroConnToString(FW_SerialPort::BluetoothConnection);
}

bool MachineInfo::isFtdiConnection() const
{
    return connectionType == FW_SerialPort::macroConnToString(FW_SerialPort::FtdiConnection);
}

QString MachineInfo::connectionName() const
{
    if (isBluetoothConnection())
        return btConnectionAddress;
    return isSerialConnection() ? serialConnectionName : QString();
}

bool MachineInfo::hasConnectionName(QString name) const
{
    return name == serialConnectionName || name == btConnectionAddress;
}

void MachineInfo::setConnectionName(QString name)
{
    (isBluetoothConnection() ? btConnectionAddress : serialConnectionName) = std::move(name);
}

void MachineInfo::addAdditionalConnection(QString name)
{
    (isBluetoothConnection() ? serialConnectionName : btConnectionAddress) = std::move(name);
}

void MachineInfo::setConnectionData(const FW_SerialPort &port)
{
    connectionType = FW_SerialPort::macroConnToString(port.connectionType());
    if (isBluetoothConnection()) {
        btConnectionName = port.name();
        btConnectionAddress = port.address();
    } else {
        serialConnectionName = port.name();
    }
}

void MachineInfo::updateMachineConfiguration(FW_Machine *machine) const
{
    if (!machine)
        return;
    if (SID >= 0 && SID != numberOf(machine->SID())) // else its zeros stay, or what is no number
        machine->setSID(QString::number(SID));
    machine->setConnectionName(isBluetoothConnection() ? btConnectionAddress : serialConnectionName);
    machine->setSerialNumber(serialNumber);
    machine->setDescription(description);
    machine->setModelName(model);
    machine->setProductCode(productCode);
}

void MachineInfo::udpateXmlRpcValue(XmlRpc::XmlRpcValue &value) const
{
    quv::machineInfoRecord().encodeInto(*this, value);
}

void MachineInfo::decodeSerialDeviceType(const XmlRpc::XmlRpcValue &value, SerialDeviceType &type)
{
    if (const XmlRpc::XmlRpcValue *member = FindXmlRpcMember(value, deviceType_TAG))
        readDevice(*member, &type);
}
