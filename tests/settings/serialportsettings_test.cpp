// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/serialportsettings.h"

#include <QuvFramework/fw_serialport.h>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace {

using Port = SerialPortSettings;
using Type = SerialDeviceType;

void expectFieldsThatAreAlike(const Port &port)
{
    EXPECT_EQ(port.flowControl, 0);
    EXPECT_EQ(port.stopBits, 1);
    EXPECT_EQ(port.readTimeout, FW_SerialPort::getDefaultReadTimeout(0));
    EXPECT_EQ(port.readRetriesInterval, FW_SerialPort::getDefaultReadRetriesInterval(0));
    EXPECT_EQ(port.writeTimeout, FW_SerialPort::getDefaultWriteTimeout(0));
    EXPECT_EQ(port.writeReadInterval, FW_SerialPort::getDefaultWriteReadInterval(0));
    EXPECT_EQ(port.readWriteInterval, FW_SerialPort::getDefaultReadWriteInterval(0));
    EXPECT_EQ(port.firstWriteDelay, FW_SerialPort::getDefaultFirstWriteDelay(0));
    EXPECT_EQ(port.clearBeforeWrite, FW_SerialPort::getDefaultClearBeforeWrite(0) != 0);
}

void expectRetriesOfFramework(const Port &port)
{
    EXPECT_EQ(port.readRetries, FW_SerialPort::getDefaultReadRetries(0, 0));
    EXPECT_EQ(port.writeRetries, FW_SerialPort::getDefaultWriteRetries(0, 0));
    EXPECT_EQ(port.writeRetriesInterval, FW_SerialPort::getDefaultWriteRetriesInterval(0, 0));
}

TEST(SerialPortSettings, areADispensersAtFirst)
{
    const Port port;
    EXPECT_EQ(port.baudRate, 115200);
    EXPECT_EQ(port.dataBits, 8);
    EXPECT_EQ(port.parity, 0);
    EXPECT_EQ(port.portScanFilter, "");
    EXPECT_EQ(port.advancedPortScanFilter, "5G");
    EXPECT_EQ(port.serialScanLevel, 3);
    expectRetriesOfFramework(port);
    expectFieldsThatAreAlike(port);
    EXPECT_EQ(port, Port(Type::Dispenser));
}

TEST(SerialPortSettings, ofAMixer)
{
    const Port port(Type::Mixer);
    EXPECT_EQ(port.baudRate, 115200);
    EXPECT_EQ(port.dataBits, 8);
    EXPECT_EQ(port.parity, 0);
    EXPECT_EQ(port.portScanFilter, "VELTO");
    EXPECT_EQ(port.advancedPortScanFilter, "");
    EXPECT_EQ(port.serialScanLevel, 3);
    expectRetriesOfFramework(port);
    expectFieldsThatAreAlike(port);
}

TEST(SerialPortSettings, ofAScaleAndOfWhateverElse)
{
    for (const Type type : {Type::Scale, static_cast<Type>(0), static_cast<Type>(3)}) {
        const Port port(type);
        EXPECT_EQ(port.baudRate, 2400);
        EXPECT_EQ(port.dataBits, 7);
        EXPECT_EQ(port.parity, 3);
        EXPECT_EQ(port.portScanFilter, "");
        EXPECT_EQ(port.advancedPortScanFilter, "");
        EXPECT_EQ(port.serialScanLevel, 2);
        EXPECT_EQ(port.readRetries, 2);
        EXPECT_EQ(port.writeRetries, 1);
        EXPECT_EQ(port.writeRetriesInterval, 400);
        expectFieldsThatAreAlike(port);
    }
}

const std::vector<std::function<void(Port &)>> &changes()
{
    static const std::vector<std::function<void(Port &)>> changes = {
        [](Port &port) { port.baudRate = QSerialPort::Baud1200; },
        [](Port &port) { port.dataBits = QSerialPort::Data5; },
        [](Port &port) { port.flowControl = QSerialPort::SoftwareControl; },
        [](Port &port) { port.parity = QSerialPort::EvenParity; },
        [](Port &port) { port.stopBits = QSerialPort::TwoStop; },
        [](Port &port) { port.portScanFilter = "other"; },
        [](Port &port) { port.advancedPortScanFilter = "other"; },
        [](Port &port) { port.serialScanLevel = 1; },
        [](Port &port) { port.readTimeout += 1; },
        [](Port &port) { port.readRetries += 1; },
        [](Port &port) { port.readRetriesInterval += 1; },
        [](Port &port) { port.writeTimeout += 1; },
        [](Port &port) { port.writeRetries += 1; },
        [](Port &port) { port.writeRetriesInterval += 1; },
        [](Port &port) { port.writeReadInterval += 1; },
        [](Port &port) { port.readWriteInterval += 1; },
        [](Port &port) { port.firstWriteDelay += 1; },
        [](Port &port) { port.clearBeforeWrite = !port.clearBeforeWrite; },
    };
    return changes;
}

TEST(SerialPortSettings, differInEachField)
{
    ASSERT_EQ(changes().size(), 18U);
    for (std::size_t i = 0; i < changes().size(); ++i) {
        SCOPED_TRACE(i);
        Port port;
        changes()[i](port);
        EXPECT_TRUE(port != Port());
        EXPECT_FALSE(port == Port());
    }
}

TEST(SerialPortSettings, getEachDefaultBack)
{
    for (const Type type : {Type::Dispenser, Type::Mixer, Type::Scale}) {
        Port port(Type::Scale);
        for (const auto &change : changes())
            change(port);
        port.setDefaults(type);
        EXPECT_EQ(port, Port(type));
    }
}

} // namespace
