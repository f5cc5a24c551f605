// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/getdispinfocmd.h"

#include "setup/dispinfoanswer.h"
#include "setup/dispinfocmd_p.h"

#include <utility>

struct GetDispInfoCmd::Description : DispInfoCmd::Description
{
    static constexpr auto command = ProtoCommandList::GET_DISP_INFO;

    static constexpr bool buildsAnswerOfTokens = true;
    static constexpr quv::AnsweredBy<DispInfoAnswer> answer = {
        {"DE00098", "Failed to create ProtoAnswer"}, {"DE01295", quv::answerFailed}, {}, {}};
};

template class quv::DescribedCommand<GetDispInfoCmd, DispInfoCmd>;

GetDispInfoCmd::GetDispInfoCmd(int infoType)
{
    m_infoType = infoType;
}

GetDispInfoCmd::GetDispInfoCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value) {}

GetDispInfoCmd::GetDispInfoCmd(QList<QVariant> list) : DescribedCommand(list) {}

GetDispInfoCmd *GetDispInfoCmd::clone() const
{
    return new GetDispInfoCmd(*this);
}

bool GetDispInfoCmd::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
{
    return replaceProtoAnswer(Description::answer.tokens.code, Description::answer.tokens.text, error,
                              [&] { return new DispInfoAnswer(std::move(tokens), m_infoType); });
}

QList<int> GetDispInfoCmd::serialParameters(int) const
{
    constexpr int reading = 1;
    return {m_infoType, reading};
}
