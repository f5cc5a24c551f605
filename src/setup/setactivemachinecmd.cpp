// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setactivemachinecmd.h"

#include "base/describedcommand_p.h"
#include "base/machineid_p.h"

struct SetActiveMachineCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_ACTIVE_MACHINE;
    static constexpr auto commandText = "Activate configuration";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Activating configuration %1");
    static constexpr auto detailedActionText =
        QT_TRANSLATE_NOOP("QuvProtocol", "Activating configuration %1 from %2");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::Refusal noMachine = {
            "DE02532", "Set Active Machine command failed: expected Machine ID type for first parameter"};
        constexpr quv::Refusal noSource = {
            "DE02533", "Set Active Machine command failed: expected Machine ID type for second parameter"};
        archive.object({"machine", "\"id\" and \"machine\" (1 dispenser, 2 scale, 4 mixer)"},
                       self.m_machineID, {noMachine, noMachine}, noMachine);
        archive.object({"source", "likewise"}, self.m_source, {noSource, noSource}, noSource);
        archive.optional({"flag", "between client and driver"}, self.m_flag,
                         {"DE02531", "DE02534",
                          "Set Active Machine command failed: expected Boolean type for third parameter"});
    }
};

template class quv::DescribedCommand<SetActiveMachineCmd, ConfProtoCommand>;

SetActiveMachineCmd::SetActiveMachineCmd(const MachineID &machineID, const MachineID &source, bool flag)
    : m_machineID(machineID),
      m_source(source),
      m_flag(flag)
{}

SetActiveMachineCmd::SetActiveMachineCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

SetActiveMachineCmd::SetActiveMachineCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

SetActiveMachineCmd *SetActiveMachineCmd::clone() const
{
    return new SetActiveMachineCmd(*this);
}

TString SetActiveMachineCmd::actionString(bool detailed) const
{
    TString text = DescribedCommand::actionString(detailed);
    text.arg(m_machineID, false);
    if (detailed)
        text.arg(m_source, false);
    return text;
}
