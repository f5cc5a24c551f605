// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getconnectionsanswer.h"

#include "base/describedanswer_p.h"
#include "base/dispenserinfo.h"
#include "base/machineinfo_p.h"
#include "base/mixerinfo.h"
#include "base/objectfield_p.h"

#include <algorithm>

namespace {

using Info = QSharedPointer<MachineInfo>;
using Infos = QList<Info>;

constexpr quv::Refusal noList = {"DE03225", "GetConnectionsAnswer: expected connection_data_list value"};
constexpr quv::Refusal notMade = {"DE01884", "GetConnectionsAnswer: errors during MachineInfo creation"};
constexpr quv::Refusal otherElement = {"DE00937",
                                       "GetConnectionsAnswer decoding failed: invalid QVariant value"};

/** By the kind of device, as far as its own members are there: who scans may know no more than the connection. */
Info infoOf(const XmlRpc::XmlRpcValue &value)
{
    SerialDeviceType type = SerialDeviceType::Dispenser;
    MachineInfo::decodeSerialDeviceType(value, type);
    if (type == SerialDeviceType::Dispenser && FindXmlRpcMember(value, DispenserInfo::dispID_TAG))
        return Info(new DispenserInfo(value));
    if (type == SerialDeviceType::Mixer && FindXmlRpcMember(value, MixerInfo::mixerID_TAG))
        return Info(new MixerInfo(value));
    return Info(new MachineInfo(value));
}

/** Null for a variant that holds none. */
Info infoOf(const QVariant &variant)
{
    const int type = variant.userType();
    if (type == qMetaTypeId<Info>())
        return variant.value<Info>();
    if (type == qMetaTypeId<DispenserInfo>())
        return Info(variant.value<DispenserInfo>().clone());
    if (type == qMetaTypeId<MixerInfo>())
        return Info(variant.value<MixerInfo>().clone());
    if (type == qMetaTypeId<MachineInfo>())
        return Info(variant.value<MachineInfo>().clone());
    if (quv::holds<MachineInfo>(variant))
        return infoOf(EncodeXmlRpcObject(variant));
    return {};
}

quv::Decoded readInfos(const XmlRpc::XmlRpcValue &value, void *field)
{
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        return quv::Decoded::OtherType;
    Infos infos;
    for (int i = 0; i < value.size(); ++i) {
        if (!quv::fillField<Infos>(&infos, [&] { return infos << infoOf(value[i]); }))
            return quv::Decoded::BadElement;
    }
    *static_cast<Infos *>(field) = infos;
    return quv::Decoded::Good;
}

void writeInfos(const void *field, XmlRpc::XmlRpcValue &value)
{
    const auto &infos = *static_cast<const Infos *>(field);
    value.clear();
    value.setSize(infos.size());
    for (int i = 0; i < infos.size(); ++i)
        value[i] = infos.at(i)->toXmlRpcValue();
}

bool equalInfos(const void *left, const void *right)
{
    const auto &before = *static_cast<const Infos *>(left);
    const auto &after = *static_cast<const Infos *>(right);
    return std::equal(before.begin(), before.end(), after.begin(), after.end(),
                      [](const Info &a, const Info &b) { return *a == *b; });
}

} // namespace

namespace quv {

template <>
const FieldType &fieldType<QList<QSharedPointer<MachineInfo>>>()
{
    static constexpr FieldType type = {"array of structs",
                                       FieldType::Other,
                                       readInfos,
                                       nullptr, // a list is read by its elements
                                       writeInfos,
                                       equalInfos,
                                       resetField<Infos>,
                                       ownRefusals<MachineInfo>.data(),
                                       ownRefusals<MachineInfo>.size(),
                                       true};
    return type;
}

} // namespace quv

struct GetConnectionsAnswer::Description
{
    using Answer = GetConnectionsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(connectionDataList_TAG, &Answer::m_connections, noList, otherElement)
                    .unmadeElement(notMade)
                    .meaning("of each connection the machine behind it, a dispenser or a mixer that is known "
                             "with its ID")};
    }
};

template class quv::DescribedAnswer<GetConnectionsAnswer, ConfProtoAnswer>;

GetConnectionsAnswer::GetConnectionsAnswer(const QList<QSharedPointer<MachineInfo>> &connections)
    : m_connections(connections)
{
    m_connections.removeAll(Info());
}

GetConnectionsAnswer::GetConnectionsAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetConnectionsAnswer::GetConnectionsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    for (const QVariant &element : qAsConst(list)) {
        const bool isInfo = quv::madeOrRefused(notMade, Q_FUNC_INFO, [&] {
            const Info info = infoOf(element);
            if (info)
                m_connections.append(info);
            return !info.isNull();
        });
        if (!isInfo)
            quv::throwRefusal(otherElement, Q_FUNC_INFO);
    }
}

GetConnectionsAnswer *GetConnectionsAnswer::clone() const
{
    return new GetConnectionsAnswer(*this);
}

QList<QSharedPointer<MachineInfo>>
GetConnectionsAnswer::getFilteredConnectionsList(FW_SerialPort::SerialPortConnType type) const
{
    const QString name = FW_SerialPort::macroConnToString(type);
    Infos found;
    if (name.isEmpty()) // there is no such type, but connections of a type that nobody knows
        return found;
    std::copy_if(m_connections.begin(), m_connections.end(), std::back_inserter(found),
                 [&](const Info &info) { return info->connectionType == name; });
    return found;
}
