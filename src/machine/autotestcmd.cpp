// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/autotestcmd.h"

#include "base/describedcommand_p.h"
#include "machine/autotestseries_p.h"

#include <QuvFramework/fw_dispenser.h>

namespace {

constexpr char badCycles[] = "AutotestCmd: invalid autotest cycles value";
/** Ten times what is usual: such a machine is at it for days, and its list of commands still fits. */
constexpr int maxCycles = 500;

} // namespace

struct AutotestCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::AUTOTEST;
    static constexpr auto commandText = "Autotest";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Running autotest");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal refusal = {"DE01865", "DE01866", badCycles};
        archive.optional({"cycles", "1 to 500; 0 is as many as is usual for the machine's model"},
                         self.m_cycles, refusal);
        archive.refuseUnless(checkAutotestCycles(self.m_cycles), refusal);
    }
};

template class quv::DescribedCommand<AutotestCmd, SerialProtoCommand>;

AutotestCmd::AutotestCmd(int cycles) : m_cycles(cycles)
{
    if (!checkAutotestCycles(cycles))
        throw FW_Exception("DE03302", badCycles, Q_FUNC_INFO);
}

AutotestCmd::AutotestCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

AutotestCmd::AutotestCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

AutotestCmd *AutotestCmd::clone() const
{
    return new AutotestCmd(*this);
}

bool AutotestCmd::checkAutotestCycles(int cycles)
{
    return cycles >= 0 && cycles <= maxCycles;
}

int AutotestCmd::defaultAutotestCycles(MachineModel model)
{
    switch (model) {
    case MachineModel::Rotan:
        return 25;
    case MachineModel::Lirador:
    case MachineModel::Sola100:
        return 10;
    default:
        return 50;
    }
}

AutotestCmd::CommandList AutotestCmd::buildCommandList(const FW_Dispenser &dispenser) const
{
    return quv::autotestSeries(dispenser, m_cycles > 0 ? m_cycles : defaultAutotestCycles(dispenser.model()));
}
