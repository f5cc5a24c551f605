// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_serialport.h>

#include <QtCore/QList>
#include <QtCore/QVariant>

/**
 * SET_SERIAL: sets the serial port of a machine. What the two classes of commands share that it has: one for a driver that opens the
 * port itself, one for what stands between it and the firmware. The only argument is an FW_SerialPort.
 */
class QUVPROTOCOL_EXPORT SetSerialCmd
{
public:
    struct Description;

    SetSerialCmd() = default;
    explicit SetSerialCmd(const FW_SerialPort &serialPort);
    explicit SetSerialCmd(const XmlRpc::XmlRpcValue &value); ///< throws DE00442 when it is none
    explicit SetSerialCmd(QList<QVariant> list);             ///< also as a map; likewise
    explicit SetSerialCmd(bool) = delete;                    // would be a value, as would the next three
    explicit SetSerialCmd(int) = delete;
    explicit SetSerialCmd(double) = delete;
    explicit SetSerialCmd(const char *) = delete;

    const FW_SerialPort &serialPort() const { return m_serialPort; }

private:
    FW_SerialPort m_serialPort;
};
