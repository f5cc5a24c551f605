// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/devicedata.h"

#include "base/record_p.h"
#include "masterdata/devicedata_p.h"

#include <QuvFramework/fw_metatype.h>

#include <utility>

namespace {

const bool isRegistered = RegisterTravellingType<DeviceData>("DeviceData");

const quv::Record<DeviceData> &record()
{
    using Data = DeviceData;
    static const quv::Record<Data> record({
        {Data::id_TAG, &Data::id, quv::noDeviceID},
        {Data::enabled_TAG, &Data::enabled, quv::noDeviceEnabled},
        {Data::description_TAG, &Data::description, quv::noDeviceDescription},
        {Data::acceptCommands_TAG, &Data::acceptCommands, quv::noAcceptCommands},
        {Data::type_TAG, &Data::type, quv::noDeviceType},
    });
    return record;
}

} // namespace

DeviceData::DeviceData(int device, bool isEnabled, QString text, bool acceptsCommands, int typeOfDevice)
    : id(device),
      enabled(isEnabled),
      description(std::move(text)),
      acceptCommands(acceptsCommands),
      type(typeOfDevice)
{}

DeviceData::DeviceData(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue DeviceData::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool DeviceData::operator==(const DeviceData &other) const
{
    return record().equal(*this, other);
}
