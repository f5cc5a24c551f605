// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setconfserialcmd.h"

#include "setup/setserialcmd_p.h"

struct SetConfSerialCmd::Description : SetSerialCmd::Description
{};

template class quv::DescribedCommand<SetConfSerialCmd, ConfProtoCommand>;

SetConfSerialCmd::SetConfSerialCmd(const FW_SerialPort &serialPort, const FW_Machine *machine)
    : DescribedCommand(machine),
      SetSerialCmd(serialPort)
{}

SetConfSerialCmd::SetConfSerialCmd(const QString &portName, const FW_Machine *machine)
    : SetConfSerialCmd(FW_SerialPort(portName), machine)
{}

SetConfSerialCmd::SetConfSerialCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine)
    : DescribedCommand(value, machine),
      SetSerialCmd(value)
{}

SetConfSerialCmd::SetConfSerialCmd(QList<QVariant> list, const FW_Machine *machine)
    : DescribedCommand(list, machine),
      SetSerialCmd(list)
{}

SetConfSerialCmd *SetConfSerialCmd::clone() const
{
    return new SetConfSerialCmd(*this);
}
