// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatuscmd.h"

#include "base/describedcommand_p.h"
#include "status/dispenserstatusanswer.h"

struct DispenserStatusCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_STATUS;

    static constexpr char answerFailed[] = "Failed to create DispenserStatusAnswer";
    static constexpr quv::AnsweredBy<DispenserStatusAnswer> answer = {{"DE00097", answerFailed},
                                                                      {"DE01266", answerFailed},
                                                                      {"DE01267", answerFailed},
                                                                      {"DE00027", answerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"position", "a circuit's position; 0 is the machine"}, self.m_moduleID,
                         {"DE00298", "DE00300", "Position ID: expected INT parameter"});
    }
};

template class quv::DescribedCommand<DispenserStatusCmd, SerialProtoCommand>;

DispenserStatusCmd::DispenserStatusCmd(int positionID)
{
    setModuleID(positionID);
}

DispenserStatusCmd::DispenserStatusCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

DispenserStatusCmd::DispenserStatusCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

DispenserStatusCmd *DispenserStatusCmd::clone() const
{
    return new DispenserStatusCmd(*this);
}
