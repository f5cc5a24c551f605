// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/serialportsettings.h"

#include "settings/setting_p.h"

#include <QuvFramework/fw_serialport.h>

#include <algorithm>

namespace {

using Port = SerialPortSettings;
using Setting = quv::Setting<Port, SerialDeviceType>;

/** What differs by the kind of device. */
template <class V>
auto byDevice(V dispenser, V mixer, V scale)
{
    return [=](SerialDeviceType type) {
        return type == SerialDeviceType::Dispenser ? dispenser
               : type == SerialDeviceType::Mixer   ? mixer
                                                   : scale;
    };
}

const std::vector<Setting> &table()
{
    constexpr int serial = FW_SerialPort::SerialConnection;
    const unsigned int readRetries = FW_SerialPort::getDefaultReadRetries(serial);
    const unsigned int writeRetries = FW_SerialPort::getDefaultWriteRetries(serial);
    const unsigned int writeRetriesInterval = FW_SerialPort::getDefaultWriteRetriesInterval(serial);
    static const std::vector<Setting> settings = {
        //                                             dispenser                mixer                    scale
        {&Port::baudRate, byDevice(QSerialPort::Baud115200, QSerialPort::Baud115200, QSerialPort::Baud2400)},
        {&Port::dataBits, byDevice(QSerialPort::Data8, QSerialPort::Data8, QSerialPort::Data7)},
        {&Port::flowControl, QSerialPort::NoFlowControl},
        {&Port::parity, byDevice(QSerialPort::NoParity, QSerialPort::NoParity, QSerialPort::OddParity)},
        {&Port::stopBits, QSerialPort::OneStop},
        {&Port::portScanFilter, byDevice("", "VELTO", "")},
        {&Port::advancedPortScanFilter, byDevice("5G", "", "")},
        {&Port::serialScanLevel, byDevice(3, 3, 2)},
        {&Port::readTimeout, FW_SerialPort::getDefaultReadTimeout(serial)},
        {&Port::readRetries, byDevice(readRetries, readRetries, 2U)},
        {&Port::readRetriesInterval, FW_SerialPort::getDefaultReadRetriesInterval(serial)},
        {&Port::writeTimeout, FW_SerialPort::getDefaultWriteTimeout(serial)},
        {&Port::writeRetries, byDevice(writeRetries, writeRetries, 1U)},
        {&Port::writeRetriesInterval, byDevice(writeRetriesInterval, writeRetriesInterval, 400U)},
        {&Port::writeReadInterval, FW_SerialPort::getDefaultWriteReadInterval(serial)},
        {&Port::readWriteInterval, FW_SerialPort::getDefaultReadWriteInterval(serial)},
        {&Port::firstWriteDelay, FW_SerialPort::getDefaultFirstWriteDelay(serial)},
        {&Port::clearBeforeWrite, FW_SerialPort::getDefaultClearBeforeWrite(serial)},
    };
    return settings;
}

} // namespace

void SerialPortSettings::setDefaults(SerialDeviceType type)
{
    for (const Setting &setting : table())
        setting.setDefault(*this, type);
}

bool SerialPortSettings::operator==(const SerialPortSettings &other) const
{
    return std::all_of(table().begin(), table().end(),
                       [&](const Setting &setting) { return setting.isSame(*this, other); });
}
