// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_global.h>

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * Which machine is meant: dispensers, mixers and scales each have numbers of their own. Travels in a QVariant under its name, also
 * as the map that its struct is; over XML-RPC "id" (int) and "machine" (int: 1 dispenser, 2 scale, 4 mixer).
 */
struct QUVPROTOCOL_EXPORT MachineID
{
    static constexpr char id_TAG[] = "id";
    static constexpr char machine_TAG[] = "machine";

    MachineID() = default;
    MachineID(int machineID, SerialDeviceType machineType) : id(machineID), type(machineType) {}
    /** Throws DE02679 without an ID, DE02680 without a type. Any number is taken for a type. */
    explicit MachineID(const XmlRpc::XmlRpcValue &value);
    explicit MachineID(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit MachineID(int) = delete;
    explicit MachineID(double) = delete;
    explicit MachineID(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    /** For people, in English: "ID 3 - TYPE: Mixer"; nothing stands for a type that there is not. */
    operator QString() const;

    bool operator==(const MachineID &other) const { return id == other.id && type == other.type; }
    bool operator!=(const MachineID &other) const { return !(*this == other); }

    int id = 0;
    SerialDeviceType type = SerialDeviceType::Dispenser;
};

Q_DECLARE_METATYPE(MachineID)
