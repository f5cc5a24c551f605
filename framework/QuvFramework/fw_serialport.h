// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * The link to a machine: how it is connected, and where. Over XML-RPC a struct of "conn_type" (int), "conn_name" and
 * "conn_address" (texts). It travels in a QVariant under its name.
 */
class QUVFRAMEWORK_EXPORT FW_SerialPort
{
public:
    enum SerialPortConnType { SerialConnection = 0, BluetoothConnection = 1, FtdiConnection = 2 };

    static constexpr char connType_TAG[] = "conn_type";
    static constexpr char connName_TAG[] = "conn_name";
    static constexpr char connAddress_TAG[] = "conn_address";

    FW_SerialPort() = default;
    explicit FW_SerialPort(const QString &serialName); ///< a serial port of this name
    FW_SerialPort(SerialPortConnType type, const QString &name, const QString &address = QString());
    /** Throws std::invalid_argument when a member is missing, of another type, or no kind of connection. */
    explicit FW_SerialPort(const XmlRpc::XmlRpcValue &value);
    explicit FW_SerialPort(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FW_SerialPort(int) = delete;
    explicit FW_SerialPort(double) = delete;
    explicit FW_SerialPort(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    SerialPortConnType connectionType() const { return m_type; }
    void setConnectionType(SerialPortConnType type) { m_type = type; }
    /** Of the port ("/dev/ttyS0"), or of the Bluetooth device. */
    QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    QString address() const { return m_address; } ///< of the Bluetooth device; empty for a cable
    void setAddress(const QString &address) { m_address = address; }

    bool operator==(const FW_SerialPort &other) const;
    bool operator!=(const FW_SerialPort &other) const { return !(*this == other); }

    /** The name of a kind of connection: "SERIAL", "BLUETOOTH", "FTDI"; empty for none of them. */
    static QString macroConnToString(SerialPortConnType type);
    /** The reverse; false, and \a type left alone, for another text. */
    static bool stringToMacroConn(const QString &name, SerialPortConnType &type);

    /**
     * How patient a link is, by kind of connection (an FTDI cable is a serial one) and by profile, of which there is one, 0.
     * Times are in milliseconds.
     */
    static unsigned int getDefaultReadTimeout(int connection, int profile = 0);
    static unsigned int getDefaultReadRetries(int connection, int profile = 0);
    static unsigned int getDefaultReadRetriesInterval(int connection, int profile = 0);
    static unsigned int getDefaultWriteTimeout(int connection, int profile = 0);
    static unsigned int getDefaultWriteRetries(int connection, int profile = 0);
    static unsigned int getDefaultWriteRetriesInterval(int connection, int profile = 0);
    static unsigned int getDefaultWriteReadInterval(int connection, int profile = 0);
    static unsigned int getDefaultReadWriteInterval(int connection, int profile = 0);
    static unsigned int getDefaultFirstWriteDelay(int connection, int profile = 0);
    static unsigned int getDefaultClearBeforeWrite(int connection, int profile = 0); ///< 0 or 1
    static unsigned int getDefaultBluetoothConnectionTimeout();

private:
    SerialPortConnType m_type = SerialConnection;
    QString m_name;
    QString m_address;
};

Q_DECLARE_METATYPE(FW_SerialPort)
