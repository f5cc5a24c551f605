// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/fwerrorcmd.h"

#include "base/describedcommand_p.h"
#include "status/fwerroranswer.h"

struct FwErrorCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_ERROR_PKT;

    static constexpr char answerFailed[] = "Failed to create FwErrorAnswer";
    static constexpr quv::AnsweredBy<FwErrorAnswer> answer = {
        {"DE00489", answerFailed}, {"DE00447", answerFailed}, {}, {"DE00447", answerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional(
            {"packet_index",
             "of the packet; 0 asks the firmware to clear its errors; read, but never written over XML-RPC"},
            self.m_packetIndex, {"DE00465", "DE00466", "Error Packet: expected INT parameter"});
    }
};

template class quv::DescribedCommand<FwErrorCmd, SerialProtoCommand>;

FwErrorCmd::FwErrorCmd(int packetIndex) : m_packetIndex(packetIndex) {}

FwErrorCmd::FwErrorCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

FwErrorCmd::FwErrorCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

FwErrorCmd *FwErrorCmd::clone() const
{
    return new FwErrorCmd(*this);
}

QList<QVariant> FwErrorCmd::parameters() const
{
    return {};
}

XmlRpc::XmlRpcValue FwErrorCmd::xmlrpc_parameters(bool *ok) const
{
    return SerialProtoCommand::xmlrpc_parameters(ok);
}

QList<int> FwErrorCmd::serialParameters(int) const
{
    return {m_packetIndex};
}
