// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_global.h>

#include <QtCore/QString>

#include <QtSerialPort/QSerialPort>

/** How the driver finds the serial port of a kind of device, and talks over it. Times are milliseconds. */
struct QUVPROTOCOL_EXPORT SerialPortSettings
{
    SerialPortSettings() : SerialPortSettings(SerialDeviceType::Dispenser) {}
    explicit SerialPortSettings(SerialDeviceType type) { setDefaults(type); }

    /** Those of a dispenser, of a mixer, and of a scale for whatever else. */
    void setDefaults(SerialDeviceType type);

    bool operator==(const SerialPortSettings &other) const;
    bool operator!=(const SerialPortSettings &other) const { return !(*this == other); }

    QSerialPort::BaudRate baudRate = QSerialPort::Baud115200;
    QSerialPort::DataBits dataBits = QSerialPort::Data8;
    QSerialPort::FlowControl flowControl = QSerialPort::NoFlowControl;
    QSerialPort::Parity parity = QSerialPort::NoParity;
    QSerialPort::StopBits stopBits = QSerialPort::OneStop;
    QString portScanFilter;
    QString advancedPortScanFilter;
    int serialScanLevel = 0; ///< 0 to 3
    unsigned int readTimeout = 0;
    unsigned int readRetries = 0;
    unsigned int readRetriesInterval = 0;
    unsigned int writeTimeout = 0;
    unsigned int writeRetries = 0;
    unsigned int writeRetriesInterval = 0;
    unsigned int writeReadInterval = 0;
    unsigned int readWriteInterval = 0;
    unsigned int firstWriteDelay = 0;
    bool clearBeforeWrite = false;
};
