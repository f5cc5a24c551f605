// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/bluetoothdeviceinfo.h"
#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

/** The driver's Bluetooth as clients see and set it: what SetBluetoothSettingsCmd and BluetoothSettingsAnswer share. */
class QUVPROTOCOL_EXPORT BluetoothSettingsBase
{
public:
    struct Description;

    static constexpr char enabled_TAG[] = "bt_enabled";
    static constexpr char targetDevices_TAG[] = "bt_target_devices";
    static constexpr char bannedDevices_TAG[] = "bt_banned_devices";

    BluetoothSettingsBase() = default;
    BluetoothSettingsBase(bool enabled, const BluetoothDeviceInfoList &targetDevices,
                          const BluetoothDeviceInfoList &bannedDevices);
    /**
     * A bool and two lists of devices. Throws DE02446 (enabled), DE02447 (target devices), DE02448 (banned devices) for one that
     * is missing or of another type.
     */
    explicit BluetoothSettingsBase(QList<QVariant> list);
    explicit BluetoothSettingsBase(const XmlRpc::XmlRpcValue &value); ///< the same from a struct
    explicit BluetoothSettingsBase(bool) = delete;                    // would be an XML-RPC value

    QList<QVariant> variantParameters() const;
    XmlRpc::XmlRpcValue xmlrpcvalue(bool *ok) const; ///< the struct; \a ok, when given, becomes true

    bool operator==(const BluetoothSettingsBase &other) const;
    bool operator!=(const BluetoothSettingsBase &other) const { return !(*this == other); }

    bool enabled() const { return m_enabled; }
    const BluetoothDeviceInfoList &targetDevices() const { return m_targetDevices; } ///< to connect to
    const BluetoothDeviceInfoList &bannedDevices() const { return m_bannedDevices; } ///< never to connect to

private:
    bool m_enabled = false;
    BluetoothDeviceInfoList m_targetDevices;
    BluetoothDeviceInfoList m_bannedDevices;
};
