// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setdispidcmd.h"

#include "base/describedcommand_p.h"

struct SetDispIDCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_DISP_ID;
    static constexpr auto commandText = "Set dispenser ID";

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noOldID = {
            "DE01858", "DE01860", "Set Dispenser ID command failed: expected Int type for first parameter"};
        constexpr quv::ArgumentRefusal noNewID = {
            "DE01859", "DE01861", "Set Dispenser ID command failed: expected Int type for second parameter"};
        archive.required({"old_id", "of the dispenser that is to change"}, self.m_oldID, noOldID, noOldID);
        archive.required("new_id", self.m_newID, noNewID, noNewID);
    }
};

template class quv::DescribedCommand<SetDispIDCmd, ConfProtoCommand>;

SetDispIDCmd::SetDispIDCmd(int oldID, int newID) : m_oldID(oldID), m_newID(newID) {}

SetDispIDCmd::SetDispIDCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

SetDispIDCmd::SetDispIDCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

SetDispIDCmd *SetDispIDCmd::clone() const
{
    return new SetDispIDCmd(*this);
}

TString SetDispIDCmd::actionString(bool detailed) const
{
    const QString newID = QString::number(m_newID);
    if (!detailed)
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Changing dispenser ID to %1"),
                       quv::translationContext)
            .arg(newID, false);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Changing dispenser ID from %1 to %2"),
                   quv::translationContext)
        .arg(QString::number(m_oldID), false)
        .arg(newID, false);
}
