// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcommandstatuscmd.h"

#include "base/describedcommand_p.h"
#include "base/getcommandstatusanswer.h"

struct GetCommandStatusCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_CMD_STATUS;

    static constexpr char answerFailed[] = "Failed to create GetCommandStatusAnswer";
    static constexpr quv::AnsweredBy<GetCommandStatusAnswer> answer = {
        {}, {"DE01284", answerFailed}, {"DE01284", answerFailed}, {"DE00372", answerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noTicket = {"DE00371", "DE00371",
                                                   "GetCommandStatusCmd: expected String type parameter"};
        archive.required({"ticket_id", "as the driver gave it"}, self.m_ticketID, noTicket, noTicket);
    }
};

template class quv::DescribedCommand<GetCommandStatusCmd, ConfProtoCommand>;

GetCommandStatusCmd::GetCommandStatusCmd(QString ticketID) : m_ticketID(ticketID) {}

GetCommandStatusCmd::GetCommandStatusCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    // the contract of this class, should the base ever let such a value pass
    if (!value.valid())
        throw FW_Exception("DE00559", "GetCommandStatusCmd decoding failed: invalid xml-rpc type",
                           Q_FUNC_INFO);
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception("DE00560", "GetCommandStatusCmd decoding failed: expected xml-rpc array type",
                           Q_FUNC_INFO);
    read(value, Q_FUNC_INFO);
}

GetCommandStatusCmd::GetCommandStatusCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

GetCommandStatusCmd *GetCommandStatusCmd::clone() const
{
    return new GetCommandStatusCmd(*this);
}
