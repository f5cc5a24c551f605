// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/getconfigcmdscmd.h"

#include "base/describedcommand_p.h"
#include "configuration/getconfigcmdsanswer.h"

struct GetConfigCmdsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_CONFIG_CMDS;

    static constexpr quv::AnsweredBy<GetConfigCmdsAnswer> answer = {
        {"DE01648", "Failed to create ProtoAnswer"}, {"DE01295", quv::answerFailed}, {}, {}};

    static void tellArguments(quv::ArgumentTeller &) {} // there are none
};

template class quv::DescribedCommand<GetConfigCmdsCmd, SerialProtoCommand>;

GetConfigCmdsCmd::GetConfigCmdsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value) {}

GetConfigCmdsCmd::GetConfigCmdsCmd(QList<QVariant> list) : DescribedCommand(list) {}

GetConfigCmdsCmd *GetConfigCmdsCmd::clone() const
{
    return new GetConfigCmdsCmd(*this);
}

QList<int> GetConfigCmdsCmd::serialParameters(int) const
{
    return {0};
}
