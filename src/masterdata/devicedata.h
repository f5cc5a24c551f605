// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

/** What a client learns of one device of a dispenser. Travels in a QVariant under its name, also as the map that its struct is. */
struct QUVPROTOCOL_EXPORT DeviceData
{
    static constexpr char id_TAG[] = "id";
    static constexpr char enabled_TAG[] = "enabled";
    static constexpr char description_TAG[] = "description";
    static constexpr char acceptCommands_TAG[] = "accept_commands";
    static constexpr char type_TAG[] = "type";

    DeviceData() = default;
    DeviceData(int device, bool isEnabled, QString text, bool acceptsCommands, int typeOfDevice);
    /**
     * Throws DE00419 (id), DE00420 (enabled), DE00421 (description), DE00659 (accept_commands) or DE00267 (type) for the first member
     * in this order that is missing or of another type.
     */
    explicit DeviceData(const XmlRpc::XmlRpcValue &value);
    explicit DeviceData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit DeviceData(int) = delete;
    explicit DeviceData(double) = delete;
    explicit DeviceData(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const DeviceData &other) const;
    bool operator!=(const DeviceData &other) const { return !(*this == other); }

    int id = 0;
    bool enabled = false;
    QString description;
    bool acceptCommands = false; ///< it can be moved by command
    int type = 0;                ///< an FW_Device::Kind
};

Q_DECLARE_METATYPE(DeviceData)
