// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stopconfcmd.h"

#include "processes/stopcmd_p.h"

struct StopConfCmd::Description : StopCmd::Description
{};

template class quv::DescribedCommand<StopConfCmd, ConfProtoCommand>;

StopConfCmd::StopConfCmd(int fwStopType, int swStopType) : StopCmd(fwStopType, swStopType) {}

StopConfCmd::StopConfCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

StopConfCmd::StopConfCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

StopConfCmd *StopConfCmd::clone() const
{
    return new StopConfCmd(*this);
}
