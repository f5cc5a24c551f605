// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "setserialcmd.h"

/** SET_SERIAL for a driver that passes it on to what opens the port. No firmware has a code for it, and it has no integers. */
class QUVPROTOCOL_EXPORT SetSerialSerialCmd
    : public quv::DescribedCommand<SetSerialSerialCmd, SerialProtoCommand>,
      public SetSerialCmd
{
public:
    struct Description;

    SetSerialSerialCmd() = default;
    SetSerialSerialCmd(const FW_SerialPort &serialPort, const FW_Machine *machine);
    SetSerialSerialCmd(const QString &portName, const FW_Machine *machine); ///< a serial port of this name
    /** One FW_SerialPort. Throws as SetSerialCmd; without it the base refuses (DE00312). */
    SetSerialSerialCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    /** The same as a list; without the port the base refuses (DE00313). */
    SetSerialSerialCmd(QList<QVariant> list, const FW_Machine *machine);

    SetSerialSerialCmd *clone() const override;
    using DescribedCommand::setDefaults;
};
