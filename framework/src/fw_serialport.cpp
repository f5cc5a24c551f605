// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_serialport.h>

#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QLatin1String>

#include <array>
#include <stdexcept>

namespace {

const bool isRegistered = RegisterTravellingType<FW_SerialPort>("FW_SerialPort");

constexpr std::array<const char *, 3> connectionNames = {"SERIAL", "BLUETOOTH", "FTDI"};

/** The name of a kind of connection; null for none of them. */
const char *nameOf(int connection)
{
    const auto index = static_cast<std::size_t>(connection);
    return index < connectionNames.size() ? connectionNames[index] : nullptr;
}

/** How patient a link is; times in milliseconds. */
struct Patience
{
    unsigned int readTimeout;
    unsigned int readRetries;
    unsigned int readRetriesInterval;
    unsigned int writeTimeout;
    unsigned int writeRetries;
    unsigned int writeRetriesInterval;
    unsigned int writeReadInterval;
    unsigned int readWriteInterval;
    unsigned int firstWriteDelay;
    unsigned int clearBeforeWrite;
};

constexpr Patience cable = {1000, 3, 50, 1000, 3, 100, 10, 10, 0, 1};
constexpr Patience radio = {3000, 3, 200, 3000, 3, 500, 30, 30, 500, 0};
constexpr unsigned int radioConnectionTimeout = 60000;

const Patience &patienceOf(int connection)
{
    return connection == FW_SerialPort::BluetoothConnection ? radio : cable;
}

template <class T>
T required(const XmlRpc::XmlRpcValue &value, const char *key)
{
    T member{};
    if (!DecodeXmlRpcValue(value, QLatin1String(key), member))
        throw std::invalid_argument("a member of the serial port is missing or of another type");
    return member;
}

} // namespace

FW_SerialPort::FW_SerialPort(const QString &serialName) : m_name(serialName) {}

FW_SerialPort::FW_SerialPort(SerialPortConnType type, const QString &name, const QString &address)
    : m_type(type),
      m_name(name),
      m_address(address)
{}

FW_SerialPort::FW_SerialPort(const XmlRpc::XmlRpcValue &value)
    : m_name(required<QString>(value, connName_TAG)),
      m_address(required<QString>(value, connAddress_TAG))
{
    const int type = required<int>(value, connType_TAG);
    if (!nameOf(type))
        throw std::invalid_argument("the serial port is of no kind of connection");
    m_type = static_cast<SerialPortConnType>(type);
}

XmlRpc::XmlRpcValue FW_SerialPort::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    EncodeXmlRpcValue(value, connType_TAG, static_cast<int>(m_type));
    EncodeXmlRpcValue(value, connName_TAG, m_name);
    EncodeXmlRpcValue(value, connAddress_TAG, m_address);
    return value;
}

bool FW_SerialPort::operator==(const FW_SerialPort &other) const
{
    return m_type == other.m_type && m_name == other.m_name && m_address == other.m_address;
}

QString FW_SerialPort::macroConnToString(SerialPortConnType type)
{
    return QLatin1String(nameOf(type));
}

bool FW_SerialPort::stringToMacroConn(const QString &name, SerialPortConnType &type)
{
    for (std::size_t i = 0; i < connectionNames.size(); ++i) {
        if (name == QLatin1String(connectionNames[i])) {
            type = static_cast<SerialPortConnType>(i);
            return true;
        }
    }
    return false;
}

unsigned int FW_SerialPort::getDefaultReadTimeout(int connection, int)
{
    return patienceOf(connection).readTimeout;
}

unsigned int FW_SerialPort::getDefaultReadRetries(int connection, int)
{
    return patienceOf(connection).readRetries;
}

unsigned int FW_SerialPort::getDefaultReadRetriesInterval(int connection, int)
{
    return patienceOf(connection).readRetriesInterval;
}

unsigned int FW_SerialPort::getDefaultWriteTimeout(int connection, int)
{
    return patienceOf(connection).writeTimeout;
}

unsigned int FW_SerialPort::getDefaultWriteRetries(int connection, int)
{
    return patienceOf(connection).writeRetries;
}

unsigned int FW_SerialPort::getDefaultWriteRetriesInterval(int connection, int)
{
    return patienceOf(connection).writeRetriesInterval;
}

unsigned int FW_SerialPort::getDefaultWriteReadInterval(int connection, int)
{
    return patienceOf(connection).writeReadInterval;
}

unsigned int FW_SerialPort::getDefaultReadWriteInterval(int connection, int)
{
    return patienceOf(connection).readWriteInterval;
}

unsigned int FW_SerialPort::getDefaultFirstWriteDelay(int connection, int)
{
    return patienceOf(connection).firstWriteDelay;
}

unsigned int FW_SerialPort::getDefaultClearBeforeWrite(int connection, int)
{
    return patienceOf(connection).clearBeforeWrite;
}

unsigned int FW_SerialPort::getDefaultBluetoothConnectionTimeout()
{
    return radioConnectionTimeout;
}
