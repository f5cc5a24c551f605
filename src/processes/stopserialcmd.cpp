// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stopserialcmd.h"

#include "processes/stopcmd_p.h"

struct StopSerialCmd::Description : StopCmd::Description
{};

template class quv::DescribedCommand<StopSerialCmd, SerialProtoCommand>;

StopSerialCmd::StopSerialCmd(int fwStopType, int swStopType) : StopCmd(fwStopType, swStopType) {}

StopSerialCmd::StopSerialCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

StopSerialCmd::StopSerialCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

StopSerialCmd *StopSerialCmd::clone() const
{
    return new StopSerialCmd(*this);
}

QList<int> StopSerialCmd::serialParameters(int) const
{
    return {fwStopType()};
}
