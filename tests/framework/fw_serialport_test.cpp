// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_serialport.h>

#include <QtCore/QVariant>

#include <gtest/gtest.h>

#include <stdexcept>

#include "values.h"

namespace {

XmlRpc::XmlRpcValue radioValue()
{
    XmlRpc::XmlRpcValue value;
    value["conn_type"] = 1;
    value["conn_name"] = "Velto";
    value["conn_address"] = "00:11";
    return value;
}

TEST(FW_SerialPort, isACableOrARadio)
{
    const FW_SerialPort none;
    EXPECT_EQ(none.connectionType(), FW_SerialPort::SerialConnection);
    EXPECT_EQ(none.name(), "");
    EXPECT_EQ(none.address(), "");
    const FW_SerialPort cable(QStringLiteral("/dev/ttyS0"));
    EXPECT_EQ(cable.connectionType(), 0);
    EXPECT_EQ(cable.name(), "/dev/ttyS0");
    const FW_SerialPort radio(FW_SerialPort::BluetoothConnection, "Velto", "00:11");
    EXPECT_EQ(radio.connectionType(), 1);
    EXPECT_EQ(radio, FW_SerialPort(radioValue()));
    EXPECT_EQ(FW_SerialPort(radio.toXmlRpcValue()), radio);
    EXPECT_EQ(QVariant::fromValue(radio).toMap(),
              (QVariantMap{{"conn_type", 1}, {"conn_name", "Velto"}, {"conn_address", "00:11"}}));
    EXPECT_NE(radio, FW_SerialPort(FW_SerialPort::FtdiConnection, "Velto", "00:11"));
    EXPECT_NE(radio, FW_SerialPort(FW_SerialPort::BluetoothConnection, "Velta", "00:11"));
    EXPECT_NE(radio, FW_SerialPort(FW_SerialPort::BluetoothConnection, "Velto", "00:12"));
}

TEST(FW_SerialPort, isRefusedWithABadMember)
{
    for (const char *key : {"conn_type", "conn_name", "conn_address"}) {
        XmlRpc::XmlRpcValue value = radioValue();
        value[key] = true;
        EXPECT_THROW(FW_SerialPort{value}, std::invalid_argument) << key;
    }
    for (int type : {-1, 3}) {
        XmlRpc::XmlRpcValue value = radioValue();
        value["conn_type"] = type;
        EXPECT_THROW(FW_SerialPort{value}, std::invalid_argument) << type;
    }
    EXPECT_THROW(FW_SerialPort{XmlRpc::XmlRpcValue()}, std::invalid_argument);
}

TEST(FW_SerialPort, namesItsKinds)
{
    const char *const names[] = {"SERIAL", "BLUETOOTH", "FTDI"};
    for (int i = 0; i < 3; ++i) {
        const auto type = static_cast<FW_SerialPort::SerialPortConnType>(i);
        EXPECT_EQ(FW_SerialPort::macroConnToString(type), names[i]);
        FW_SerialPort::SerialPortConnType read{};
        EXPECT_TRUE(FW_SerialPort::stringToMacroConn(names[i], read));
        EXPECT_EQ(read, type);
    }
    EXPECT_EQ(FW_SerialPort::macroConnToString(static_cast<FW_SerialPort::SerialPortConnType>(3)), "");
    FW_SerialPort::SerialPortConnType kept = FW_SerialPort::FtdiConnection;
    EXPECT_FALSE(FW_SerialPort::stringToMacroConn("serial", kept));
    EXPECT_EQ(kept, FW_SerialPort::FtdiConnection);
}

TEST(FW_SerialPort, isMorePatientByRadio)
{
    using Port = FW_SerialPort;
    EXPECT_EQ(Port::getDefaultReadTimeout(0), 1000U);
    EXPECT_EQ(Port::getDefaultReadRetries(0, 0), 3U);
    EXPECT_EQ(Port::getDefaultReadRetriesInterval(0), 50U);
    EXPECT_EQ(Port::getDefaultWriteTimeout(0), 1000U);
    EXPECT_EQ(Port::getDefaultWriteRetries(0, 0), 3U);
    EXPECT_EQ(Port::getDefaultWriteRetriesInterval(0, 0), 100U);
    EXPECT_EQ(Port::getDefaultWriteReadInterval(0), 10U);
    EXPECT_EQ(Port::getDefaultReadWriteInterval(0), 10U);
    EXPECT_EQ(Port::getDefaultFirstWriteDelay(0), 0U);
    EXPECT_EQ(Port::getDefaultClearBeforeWrite(0), 1U);
    EXPECT_EQ(Port::getDefaultReadTimeout(1), 3000U);
    EXPECT_EQ(Port::getDefaultReadRetries(1), 3U);
    EXPECT_EQ(Port::getDefaultReadRetriesInterval(1), 200U);
    EXPECT_EQ(Port::getDefaultWriteTimeout(1), 3000U);
    EXPECT_EQ(Port::getDefaultWriteRetries(1), 3U);
    EXPECT_EQ(Port::getDefaultWriteRetriesInterval(1), 500U);
    EXPECT_EQ(Port::getDefaultWriteReadInterval(1), 30U);
    EXPECT_EQ(Port::getDefaultReadWriteInterval(1), 30U);
    EXPECT_EQ(Port::getDefaultFirstWriteDelay(1), 500U);
    EXPECT_EQ(Port::getDefaultClearBeforeWrite(1), 0U);
    EXPECT_EQ(Port::getDefaultReadTimeout(2), 1000U);
    EXPECT_EQ(Port::getDefaultBluetoothConnectionTimeout(), 60000U);
}

} // namespace
