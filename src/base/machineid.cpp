// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/machineid.h"

#include "base/machineid_p.h"

#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_xmlrpc.h>

namespace {

const bool isRegistered = RegisterTravellingList<MachineID>("MachineID", "QList<MachineID>");

const char *wordOf(SerialDeviceType type)
{
    switch (type) {
    case SerialDeviceType::Dispenser:
        return "Dispenser";
    case SerialDeviceType::Mixer:
        return "Mixer";
    case SerialDeviceType::Scale:
        return "Scale";
    }
    return "";
}

} // namespace

MachineID::MachineID(const XmlRpc::XmlRpcValue &value)
{
    int number = 0;
    if (!DecodeXmlRpcValue(value, QLatin1String(id_TAG), id))
        quv::throwRefusal(quv::noMachineNumber, Q_FUNC_INFO);
    if (!DecodeXmlRpcValue(value, QLatin1String(machine_TAG), number))
        quv::throwRefusal(quv::noMachineType, Q_FUNC_INFO);
    type = static_cast<SerialDeviceType>(number);
}

XmlRpc::XmlRpcValue MachineID::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[id_TAG] = id;
    value[machine_TAG] = static_cast<int>(type);
    return value;
}

MachineID::operator QString() const
{
    return QStringLiteral("ID %1 - TYPE: %2").arg(QString::number(id), QLatin1String(wordOf(type)));
}
