// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "bluetoothsettingsbase.h"

/** The answer to GET_BT_SETTINGS: the driver's Bluetooth. */
class QUVPROTOCOL_EXPORT BluetoothSettingsAnswer
    : public quv::DescribedAnswer<BluetoothSettingsAnswer, ConfProtoAnswer>,
      public BluetoothSettingsBase
{
public:
    struct Description;

    BluetoothSettingsAnswer() = default;
    BluetoothSettingsAnswer(bool enabled, const BluetoothDeviceInfoList &targetDevices,
                            const BluetoothDeviceInfoList &bannedDevices);
    // As BluetoothSettingsBase, with its refusals.
    explicit BluetoothSettingsAnswer(const XmlRpc::XmlRpcValue &value);
    explicit BluetoothSettingsAnswer(QList<QVariant> &list);

    BluetoothSettingsAnswer *clone() const override;

    using DescribedAnswer::operator==;
    using DescribedAnswer::operator!=;
};
