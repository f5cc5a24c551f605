// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "bluetoothsettingsbase.h"

/** SET_BT_SETTINGS: switches the driver's Bluetooth on or off, and tells it which devices to connect to. */
class QUVPROTOCOL_EXPORT SetBluetoothSettingsCmd
    : public quv::DescribedCommand<SetBluetoothSettingsCmd, ConfProtoCommand>,
      public BluetoothSettingsBase
{
public:
    struct Description;

    SetBluetoothSettingsCmd() = default;
    SetBluetoothSettingsCmd(bool enabled, const BluetoothDeviceInfoList &targetDevices,
                            const BluetoothDeviceInfoList &bannedDevices);
    explicit SetBluetoothSettingsCmd(const BluetoothSettingsBase &settings);
    // A struct, or in a list its members in order: as BluetoothSettingsBase, with its refusals.
    explicit SetBluetoothSettingsCmd(const XmlRpc::XmlRpcValue &value);
    explicit SetBluetoothSettingsCmd(QList<QVariant> list);
    explicit SetBluetoothSettingsCmd(int) = delete; // would be an XML-RPC value

    SetBluetoothSettingsCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
};
