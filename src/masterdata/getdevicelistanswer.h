// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "devicedata.h"

#include <QtCore/QList>

/** The answer to GET_DEVICE_LIST: the devices of a dispenser, the member "device_list" of a struct. */
class QUVPROTOCOL_EXPORT GetDeviceListAnswer
    : public quv::DescribedAnswer<GetDeviceListAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char deviceList_TAG[] = "device_list";

    GetDeviceListAnswer() = default;
    explicit GetDeviceListAnswer(const QList<DeviceData> &devices);
    /** Throws DE03382 without an array, DE03386 for an element that cannot be made, and as DeviceData does. */
    explicit GetDeviceListAnswer(const XmlRpc::XmlRpcValue &value);
    /** Each element a device. Throws DE03392 for another type, DE03386 for one that cannot be made, and as DeviceData does. */
    explicit GetDeviceListAnswer(QList<QVariant> &list);

    GetDeviceListAnswer *clone() const override;

    const QList<DeviceData> &deviceList() const { return m_devices; }

private:
    QList<DeviceData> m_devices;
};
