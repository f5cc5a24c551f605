// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** GET_BT_SETTINGS: asks for the driver's Bluetooth; the answer is a BluetoothSettingsAnswer. */
class QUVPROTOCOL_EXPORT GetBluetoothSettingsCmd
    : public quv::DescribedCommand<GetBluetoothSettingsCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetBluetoothSettingsCmd() = default;
    explicit GetBluetoothSettingsCmd(const XmlRpc::XmlRpcValue &value); ///< takes no arguments
    explicit GetBluetoothSettingsCmd(QList<QVariant> list);
    explicit GetBluetoothSettingsCmd(int) = delete; // would be an XML-RPC value

    GetBluetoothSettingsCmd *clone() const override;
};
