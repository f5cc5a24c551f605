// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserdriverstatuscmd.h"

#include "base/describedcommand_p.h"
#include "status/dispenserdriverstatusanswer.h"

struct DispenserDriverStatusCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_DISP_STATUS;

    static constexpr char answerFailed[] = "Failed to create DispenserDriverStatusAnswer";
    static constexpr quv::AnsweredBy<DispenserDriverStatusAnswer> answer = {
        {}, {"DE03212", answerFailed}, {"DE03213", answerFailed}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"position", "a circuit's position; 0 is the machine"}, self.m_positionID,
                         {"DE00498", "DE00498", "Position ID: expected INT parameter"});
    }
};

template class quv::DescribedCommand<DispenserDriverStatusCmd, ConfProtoCommand>;

DispenserDriverStatusCmd::DispenserDriverStatusCmd(int position) : m_positionID(position) {}

DispenserDriverStatusCmd::DispenserDriverStatusCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

DispenserDriverStatusCmd::DispenserDriverStatusCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

DispenserDriverStatusCmd *DispenserDriverStatusCmd::clone() const
{
    return new DispenserDriverStatusCmd(*this);
}
