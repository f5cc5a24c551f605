// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"
#include "bluetoothdeviceinfo.h"

#include <QuvFramework/fw_global.h>

#include <QtCore/QMetaType>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

class FW_Machine;
class FW_SerialPort;

/**
 * What the driver knows of a machine: which it is, and how it is reached. Travels in a QVariant under its name, also as the map
 * that its struct is.
 */
class QUVPROTOCOL_EXPORT MachineInfo
{
public:
    static constexpr char SID_TAG[] = "sid";
    static constexpr char enabled_TAG[] = "enabled";
    static constexpr char serialPort_TAG[] = "serial_port";
    static constexpr char btConnName_TAG[] = "bt_conn_name";
    static constexpr char btConnAddress_TAG[] = "bt_conn_address";
    static constexpr char connType_TAG[] = "conn_type";
    static constexpr char serialNumber_TAG[] = "serial_number";
    static constexpr char description_TAG[] = "description";
    static constexpr char model_TAG[] = "model";
    static constexpr char productCode_TAG[] = "product_code";
    static constexpr char keyCode_TAG[] = "key_code";
    static constexpr char deviceType_TAG[] = "device_type";

    MachineInfo() = default;
    MachineInfo(int systemID, bool isEnabled, QString serialName, const BluetoothDeviceInfo &bluetooth,
                QString connection, QString number, QString describedAs, QString modelName, QString product,
                QString key, SerialDeviceType device);
    /**
     * An enabled machine; the \a connection is of this type, by the name that FW_SerialPort::macroConnToString has for it. The SID
     * is -1 when that of the machine is no number. The machine does not tell its key code, which the driver sets. Of null nothing.
     */
    MachineInfo(const FW_Machine *machine, QString connection);
    /**
     * Throws DE00766 (enabled), DE00746 (sid), DE00747 (serial_number), DE00762 (description), DE00767 (model) or DE00768
     * (product_code) for the first of these members that is missing or of another type. The others may be missing.
     */
    explicit MachineInfo(const XmlRpc::XmlRpcValue &value);
    explicit MachineInfo(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit MachineInfo(int) = delete;
    explicit MachineInfo(double) = delete;
    explicit MachineInfo(const char *) = delete;
    MachineInfo(const MachineInfo &) = default;
    MachineInfo &operator=(const MachineInfo &) = default;

    virtual ~MachineInfo();
    virtual MachineInfo *clone() const; ///< owned by the caller
    virtual XmlRpc::XmlRpcValue toXmlRpcValue() const;
    /**
     * The same class and the same fields; without \a strict it may be reached in another way (serial_port, bt_conn_name,
     * bt_conn_address, conn_type).
     */
    virtual bool equalTo(const MachineInfo &other, bool strict) const;

    bool operator==(const MachineInfo &other) const { return equalTo(other, true); }
    bool operator!=(const MachineInfo &other) const { return !(*this == other); }

    // Both leave alone what a derived class adds.
    void clearMI(); ///< its device type becomes that of a dispenser, 1, also when it is a mixer's
    void copy_MI(const MachineInfo &other);

    bool isSerialConnection() const;
    bool isBluetoothConnection() const;
    bool isFtdiConnection() const;
    /** The serial port of a serial connection, the address of a Bluetooth one; empty for any other. */
    QString connectionName() const;
    bool hasConnectionName(QString name) const; ///< as serial port or as Bluetooth address
    // The name is a Bluetooth address, or for any other connection a serial port; the additional name is the other of the two.
    void setConnectionName(QString name);
    void addAdditionalConnection(QString name);
    /** The kind of connection and its names; those of the other kind stay. */
    void setConnectionData(const FW_SerialPort &port);

    /**
     * Writes SID, name of the connection, serial number and texts into the machine, if there is one. The machine keeps its SID
     * when that here is not known, -1.
     */
    void updateMachineConfiguration(FW_Machine *machine) const;
    /** Writes the members of this class into a struct. */
    void udpateXmlRpcValue(XmlRpc::XmlRpcValue &value) const;

    /** Reads "device_type", any number; \a type stays as it is without it. */
    static void decodeSerialDeviceType(const XmlRpc::XmlRpcValue &value, SerialDeviceType &type);

    int SID = -1;
    bool enabled = false;
    QString serialConnectionName;
    QString btConnectionName;
    QString btConnectionAddress;
    QString connectionType; ///< by the name that FW_SerialPort::macroConnToString has for it
    QString serialNumber;
    QString description;
    QString model;
    QString productCode;
    QString keyCode;
    SerialDeviceType serialDeviceType = SerialDeviceType::Dispenser;
};

Q_DECLARE_METATYPE(MachineInfo)
Q_DECLARE_METATYPE(QSharedPointer<MachineInfo>)
