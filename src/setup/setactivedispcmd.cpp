// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setactivedispcmd.h"

#include "base/describedcommand_p.h"

struct SetActiveDispCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_ACTIVE_DISP;
    static constexpr auto commandText = "Activate dispenser";
    static constexpr auto actionText =
        QT_TRANSLATE_NOOP("QuvProtocol", "Activating configuration of dispenser %1");
    static constexpr auto detailedActionText =
        QT_TRANSLATE_NOOP("QuvProtocol", "Activating configuration of dispenser %1 from dispenser %2");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noID = {
            "DE00738", "DE00738",
            "Set Active Dispenser command failed: expected Int type for first parameter"};
        constexpr quv::ArgumentRefusal noSource = {
            "DE00752", "DE00752",
            "Set Active Dispenser command failed: expected Int type for second parameter"};
        archive.required("disp_id", self.m_dispID, noID, noID);
        archive.required("source_disp_id", self.m_sourceDispID, noSource, noSource);
        archive.optional({"flag", "between client and driver"}, self.m_flag,
                         {"DE01678", "DE01678",
                          "Set Active Dispenser command failed: expected Boolean type for third parameter"});
    }
};

template class quv::DescribedCommand<SetActiveDispCmd, ConfProtoCommand>;

SetActiveDispCmd::SetActiveDispCmd(int dispID, int sourceDispID, bool flag)
    : m_dispID(dispID),
      m_sourceDispID(sourceDispID),
      m_flag(flag)
{}

SetActiveDispCmd::SetActiveDispCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

SetActiveDispCmd::SetActiveDispCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

SetActiveDispCmd *SetActiveDispCmd::clone() const
{
    return new SetActiveDispCmd(*this);
}

TString SetActiveDispCmd::actionString(bool detailed) const
{
    TString text = DescribedCommand::actionString(detailed);
    text.arg(QString::number(m_dispID), false);
    if (detailed)
        text.arg(QString::number(m_sourceDispID), false);
    return text;
}
