// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setserialcmd.h"

#include "setup/setserialcmd_p.h"

SetSerialCmd::SetSerialCmd(const FW_SerialPort &serialPort) : m_serialPort(serialPort) {}

SetSerialCmd::SetSerialCmd(const XmlRpc::XmlRpcValue &value)
{
    quv::ValueReader reader(value, Q_FUNC_INFO);
    Description::arguments(*this, reader);
}

SetSerialCmd::SetSerialCmd(QList<QVariant> list)
{
    quv::ListReader reader(list, Q_FUNC_INFO);
    Description::arguments(*this, reader);
}
