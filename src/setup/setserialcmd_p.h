// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/describedcommand_p.h"
#include "setup/setserialcmd.h"

namespace quv {

template <>
inline constexpr const char *markOf<FW_SerialPort> = FW_SerialPort::connName_TAG;

} // namespace quv

/** What the descriptions of the two commands have in common. */
struct SetSerialCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_SERIAL;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::Refusal noPort = {"DE00442", "SetSerialCmd: unable to create FW_SerialPort object"};
        archive.object({"port", "conn_type (0 serial, 1 Bluetooth, 2 FTDI), conn_name and conn_address"},
                       self.m_serialPort, {noPort, noPort}, noPort);
    }
};
