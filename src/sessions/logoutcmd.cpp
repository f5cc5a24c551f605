// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/logoutcmd.h"

#include "base/describedcommand_p.h"
#include "sessions/sessiontexts_p.h"

namespace {

constexpr quv::SessionText texts[] = {
    // users know it by the words of the login
    {{"session_id", "as LOGIN gave it"},
     {"DE00162", "Login failed: expected Int type for first parameter"},
     {},
     {}},
};

} // namespace

struct LogoutCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::LOGOUT;

    static void tellArguments(quv::ArgumentTeller &teller) { quv::tellSessionTexts(texts, teller); }
};

template class quv::DescribedCommand<LogoutCmd, ConfProtoCommand>;

LogoutCmd::LogoutCmd(QString sessionID)
{
    m_parameters = {sessionID};
}

LogoutCmd::LogoutCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    m_parameters = quv::readSessionTexts(quv::ValueSource(value), texts, Q_FUNC_INFO);
}

LogoutCmd::LogoutCmd(QList<QVariant> list) : DescribedCommand(list)
{
    m_parameters = quv::readSessionTexts(quv::ListSource(list), texts, Q_FUNC_INFO);
}

LogoutCmd *LogoutCmd::clone() const
{
    return new LogoutCmd(*this);
}

XmlRpc::XmlRpcValue LogoutCmd::xmlrpc_parameters(bool *ok) const
{
    return quv::writtenSessionTexts(m_parameters, ok);
}
