// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/logoutcmd.h"

#include "base/describedcommand_p.h"

struct LogoutCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::LOGOUT;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        // users know it by the words of the login
        constexpr quv::ArgumentRefusal noID = {"DE00162", "DE00162",
                                               "Login failed: expected Int type for first parameter"};
        archive.required({"session_id", "as LOGIN gave it"}, self.m_sessionID, noID, noID);
    }
};

template class quv::DescribedCommand<LogoutCmd, ConfProtoCommand>;

LogoutCmd::LogoutCmd(QString sessionID) : m_sessionID(sessionID) {}

LogoutCmd::LogoutCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

LogoutCmd::LogoutCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

LogoutCmd *LogoutCmd::clone() const
{
    return new LogoutCmd(*this);
}
