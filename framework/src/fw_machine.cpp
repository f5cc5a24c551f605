// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_machine.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>

FW_Machine::~FW_Machine() = default;

bool FW_Machine::checkSerialNumber(const QString &number)
{
    const auto allowed = [](QChar c) {
        const char16_t u = c.unicode();
        return (u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z') || (u >= '0' && u <= '9') || u == ' ' ||
               u == '.' || u == '/' || u == '-';
    };
    return !number.trimmed().isEmpty() && number.size() <= 20 &&
           std::all_of(number.cbegin(), number.cend(), allowed);
}

bool FW_Machine::isAFactorySID(const QString &SID)
{
    return std::all_of(SID.cbegin(), SID.cend(), [](QChar c) { return c == QLatin1Char('0'); });
}

int FW_Machine::getMachineType(MachineModel model)
{
    if (static_cast<int>(model) < 0)
        return 0;
    return static_cast<int>(model < MachineModel::GenericMixer ? SerialDeviceType::Dispenser
                                                               : SerialDeviceType::Mixer);
}

MachineModel FW_Machine::getMachineModelFromXmlRpcValue(const XmlRpc::XmlRpcValue &value)
{
    if (const XmlRpc::XmlRpcValue *member = FindXmlRpcMember(value, "machine_model")) {
        auto model = static_cast<int>(MachineModel::None);
        DecodeXmlRpcValue(*member, model);
        return static_cast<MachineModel>(model);
    }
    QString type;
    DecodeXmlRpcValue(value, "type", type);
    if (type == QLatin1String("dispenser"))
        return MachineModel::GenericDispenser;
    return type == QLatin1String("mixer") ? MachineModel::GenericMixer : MachineModel::None;
}

std::unique_ptr<FW_Machine> FW_Machine::fromXmlRpcValue(const XmlRpc::XmlRpcValue &value)
{
    switch (static_cast<SerialDeviceType>(getMachineType(getMachineModelFromXmlRpcValue(value)))) {
    case SerialDeviceType::Dispenser:
        return std::make_unique<FW_Dispenser>(value);
    case SerialDeviceType::Mixer:
        return std::make_unique<FW_Mixer>(value);
    case SerialDeviceType::Scale:
        break;
    }
    return nullptr;
}
