// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * A Bluetooth device as the driver knows it. Over XML-RPC a struct of "bt_name" and "bt_address" (texts). It travels in a
 * QVariant under its name, also as the map that its struct is.
 */
struct QUVPROTOCOL_EXPORT BluetoothDeviceInfo
{
    static constexpr char btName_TAG[] = "bt_name";
    static constexpr char btAddress_TAG[] = "bt_address";

    BluetoothDeviceInfo() = default;
    BluetoothDeviceInfo(const QString &deviceName, const QString &deviceAddress);
    /** Throws DE03031 without a name, DE03032 without an address. */
    explicit BluetoothDeviceInfo(const XmlRpc::XmlRpcValue &value);
    explicit BluetoothDeviceInfo(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit BluetoothDeviceInfo(int) = delete;
    explicit BluetoothDeviceInfo(double) = delete;
    explicit BluetoothDeviceInfo(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const BluetoothDeviceInfo &other) const;
    bool operator!=(const BluetoothDeviceInfo &other) const { return !(*this == other); }

    QString name;
    QString address;
};

/** Devices in the order in which they are preferred. It travels in a QVariant under its name. */
class QUVPROTOCOL_EXPORT BluetoothDeviceInfoList : public QList<BluetoothDeviceInfo>
{
public:
    using QList<BluetoothDeviceInfo>::QList;
    BluetoothDeviceInfoList() = default;
    BluetoothDeviceInfoList(const QList<BluetoothDeviceInfo> &devices); // NOLINT(google-explicit-constructor)

    /** The same devices in the same order. */
    bool operator==(const BluetoothDeviceInfoList &other) const;
    bool operator!=(const BluetoothDeviceInfoList &other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(BluetoothDeviceInfo)
Q_DECLARE_METATYPE(BluetoothDeviceInfoList)
