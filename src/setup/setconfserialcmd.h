// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "setserialcmd.h"

/** SET_SERIAL for a driver that sets the port itself. The factory makes it only where a driver's command is asked for. */
class QUVPROTOCOL_EXPORT SetConfSerialCmd : public quv::DescribedCommand<SetConfSerialCmd, ConfProtoCommand>,
                                            public SetSerialCmd
{
public:
    struct Description;

    SetConfSerialCmd() = default;
    SetConfSerialCmd(const FW_SerialPort &serialPort, const FW_Machine *machine);
    SetConfSerialCmd(const QString &portName, const FW_Machine *machine); ///< a serial port of this name
    /** One FW_SerialPort. Throws as SetSerialCmd; without it the base refuses (DE00312). */
    SetConfSerialCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    /** The same as a list; without the port the base refuses (DE00313). */
    SetConfSerialCmd(QList<QVariant> list, const FW_Machine *machine);

    SetConfSerialCmd *clone() const override;
    using DescribedCommand::setDefaults;
};
