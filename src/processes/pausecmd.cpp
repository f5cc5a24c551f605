// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/pausecmd.h"

#include "base/describedcommand_p.h"

struct PauseCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::PAUSE;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noTime = {"DE02945", "DE02946", "PauseCmd: invalid PAUSE value (ms)"};
        archive.required({"pause", "milliseconds"}, self.m_milliseconds, noTime, noTime);
    }
};

template class quv::DescribedCommand<PauseCmd, SerialProtoCommand>;

PauseCmd::PauseCmd(int milliseconds) : m_milliseconds(milliseconds) {}

PauseCmd::PauseCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

PauseCmd::PauseCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

PauseCmd *PauseCmd::clone() const
{
    return new PauseCmd(*this);
}

long long PauseCmd::getCmdEstimatedExecutionTime(const FW_Machine *) const
{
    return m_milliseconds;
}
