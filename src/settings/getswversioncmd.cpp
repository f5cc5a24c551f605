// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getswversioncmd.h"

#include "base/describedcommand_p.h"
#include "settings/getswversionanswer.h"

struct GetSwVersionCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_SW_VERSION;

    static constexpr char answerFailed[] = "Failed to create GetSwVersionAnswer";
    static constexpr quv::AnsweredBy<GetSwVersionAnswer> answer = {
        {}, {"DE01312", answerFailed}, {"DE01530", answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &) {} // there are none
};

template class quv::DescribedCommand<GetSwVersionCmd, ConfProtoCommand>;

GetSwVersionCmd::GetSwVersionCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value) {}

GetSwVersionCmd::GetSwVersionCmd(QList<QVariant> list) : DescribedCommand(list) {}

GetSwVersionCmd *GetSwVersionCmd::clone() const
{
    return new GetSwVersionCmd(*this);
}
