// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setserialserialcmd.h"

#include "setup/setserialcmd_p.h"

struct SetSerialSerialCmd::Description : SetSerialCmd::Description
{};

template class quv::DescribedCommand<SetSerialSerialCmd, SerialProtoCommand>;

SetSerialSerialCmd::SetSerialSerialCmd(const FW_SerialPort &serialPort, const FW_Machine *machine)
    : DescribedCommand(machine),
      SetSerialCmd(serialPort)
{}

SetSerialSerialCmd::SetSerialSerialCmd(const QString &portName, const FW_Machine *machine)
    : SetSerialSerialCmd(FW_SerialPort(portName), machine)
{}

SetSerialSerialCmd::SetSerialSerialCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine)
    : DescribedCommand(value, machine),
      SetSerialCmd(value)
{}

SetSerialSerialCmd::SetSerialSerialCmd(QList<QVariant> list, const FW_Machine *machine)
    : DescribedCommand(list, machine),
      SetSerialCmd(list)
{}

SetSerialSerialCmd *SetSerialSerialCmd::clone() const
{
    return new SetSerialSerialCmd(*this);
}
