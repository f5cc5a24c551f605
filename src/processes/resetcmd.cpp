// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/resetcmd.h"

#include "base/describedcommand_p.h"

#include <QuvFramework/fw_dispenser.h>

struct ResetCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::RESET;
    static constexpr auto commandText = "Reset in progress";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Reset in progress");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"position", "a circuit's position; 0 is all modules"}, self.m_moduleID,
                         {"DE01025", "DE01026", "Position ID: expected INT parameter"});
    }
};

template class quv::DescribedCommand<ResetCmd, SerialProtoCommand>;

ResetCmd::ResetCmd(int position)
{
    m_moduleID = position;
}

ResetCmd::ResetCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ResetCmd::ResetCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ResetCmd *ResetCmd::clone() const
{
    return new ResetCmd(*this);
}

long long ResetCmd::getCmdEstimatedExecutionTime(const FW_Machine *machine) const
{
    constexpr long long moduleTime = 250;
    if (m_moduleID != 0)
        return moduleTime;
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    return dispenser ? moduleTime * dispenser->getEnabledCircuits().size() : 0;
}

TString ResetCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    if (m_moduleID == 0)
        return {QT_TRANSLATE_NOOP("QuvProtocol", "Resetting all dispenser modules"), quv::translationContext};
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Resetting module %1"), quv::translationContext)
        .arg(QString::number(m_moduleID), false);
}
