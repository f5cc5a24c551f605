// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/bluetoothdeviceinfo.h"

#include "base/bluetoothdeviceinfo_p.h"
#include "base/record_p.h"

#include <QuvFramework/fw_metatype.h>

namespace {

using List = BluetoothDeviceInfoList;

bool registerTypes()
{
    qRegisterMetaType<List>("BluetoothDeviceInfoList");
    QMetaType::registerEqualsComparator<List>();
    QMetaType::registerConverter<List, QVariantList>([](const List &devices) {
        QVariantList variants;
        for (const BluetoothDeviceInfo &device : devices)
            variants.append(QVariant::fromValue(device));
        return variants;
    });
    return RegisterTravellingType<BluetoothDeviceInfo>("BluetoothDeviceInfo");
}

const bool areRegistered = registerTypes();

const quv::Record<BluetoothDeviceInfo> &record()
{
    using Info = BluetoothDeviceInfo;
    static const quv::Record<Info> record({
        {Info::btName_TAG, &Info::name, quv::noBluetoothName},
        {Info::btAddress_TAG, &Info::address, quv::noBluetoothAddress},
    });
    return record;
}

quv::Decoded readList(const XmlRpc::XmlRpcValue &value, void *field)
{
    QList<BluetoothDeviceInfo> devices;
    const quv::Decoded decoded = quv::readObjects<BluetoothDeviceInfo>(value, &devices);
    if (decoded == quv::Decoded::Good)
        *static_cast<List *>(field) = devices;
    return decoded;
}

bool readVariantList(const QVariant &variant, void *field)
{
    List &devices = *static_cast<List *>(field);
    if (variant.userType() != qMetaTypeId<List>())
        return quv::readObjectsVariant<BluetoothDeviceInfo>(
            variant, static_cast<QList<BluetoothDeviceInfo> *>(&devices));
    devices = variant.value<List>();
    return true;
}

void writeList(const void *field, XmlRpc::XmlRpcValue &value)
{
    const QList<BluetoothDeviceInfo> &devices = *static_cast<const List *>(field);
    quv::writeObjects<BluetoothDeviceInfo>(&devices, value);
}

} // namespace

namespace quv {

template <>
const FieldType &fieldType<BluetoothDeviceInfo>()
{
    static constexpr FieldType type = objectType<BluetoothDeviceInfo>();
    return type;
}

template <>
const FieldType &fieldType<BluetoothDeviceInfoList>()
{
    static constexpr FieldType type = {"array of structs",
                                       FieldType::Other,
                                       readList,
                                       readVariantList,
                                       writeList,
                                       equalFields<List>,
                                       resetField<List>,
                                       ownRefusals<BluetoothDeviceInfo>.data(),
                                       ownRefusals<BluetoothDeviceInfo>.size(),
                                       true};
    return type;
}

} // namespace quv

BluetoothDeviceInfo::BluetoothDeviceInfo(const QString &deviceName, const QString &deviceAddress)
    : name(deviceName),
      address(deviceAddress)
{}

BluetoothDeviceInfo::BluetoothDeviceInfo(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue BluetoothDeviceInfo::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool BluetoothDeviceInfo::operator==(const BluetoothDeviceInfo &other) const
{
    return record().equal(*this, other);
}

BluetoothDeviceInfoList::BluetoothDeviceInfoList(const QList<BluetoothDeviceInfo> &devices)
    : QList<BluetoothDeviceInfo>(devices)
{}

bool BluetoothDeviceInfoList::operator==(const BluetoothDeviceInfoList &other) const
{
    return QList<BluetoothDeviceInfo>::operator==(other);
}
