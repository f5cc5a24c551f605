// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getdevicelistanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "masterdata/devicedata_p.h"

namespace quv {

template <>
const FieldType &fieldType<QList<DeviceData>>()
{
    static constexpr FieldType type = listedObjectsType<DeviceData>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal notMade = {"DE03386", "GetDeviceListAnswer: errors during DeviceData creation"};
constexpr quv::Refusal otherVariant = {"DE03392",
                                       "GetDeviceListAnswer decoding failed: invalid QVariant value"};

} // namespace

struct GetDeviceListAnswer::Description
{
    using Answer = GetDeviceListAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    deviceList_TAG, &Answer::m_devices,
                    {"DE03382", "GetDeviceListAnswer: Errors during DeviceData list creation"}, otherVariant)
                    .unmadeElement(notMade)
                    .meaning("of each device which it is, and whether it can be moved by command")};
    }
};

template class quv::DescribedAnswer<GetDeviceListAnswer, ConfProtoAnswer>;

GetDeviceListAnswer::GetDeviceListAnswer(const QList<DeviceData> &devices) : m_devices(devices) {}

GetDeviceListAnswer::GetDeviceListAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetDeviceListAnswer::GetDeviceListAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    const char *const function = Q_FUNC_INFO;
    for (const QVariant &variant : std::as_const(list)) {
        quv::madeOrRefused(notMade, function, [&] {
            m_devices.append(quv::decodedVariant<DeviceData>(variant, otherVariant, notMade, function));
        });
    }
}

GetDeviceListAnswer *GetDeviceListAnswer::clone() const
{
    return new GetDeviceListAnswer(*this);
}
