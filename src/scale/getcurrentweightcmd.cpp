// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/getcurrentweightcmd.h"

#include "base/describedcommand_p.h"
#include "scale/scalewords_p.h"
#include "scale/weightanswer.h"

struct GetCurrentWeightCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_CURRENT_WEIGHT;

    static constexpr quv::AnsweredBy<WeightAnswer> answer = {{},
                                                             {"DE03322", quv::weightAnswerFailed},
                                                             {"DE03323", quv::weightAnswerFailed},
                                                             {"DE03324", quv::weightAnswerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"force_reading", "whether to weigh again"}, self.m_forceReading,
                         {"DE02166", "DE02166", "GetCurrentWeightCmd: xmlrpc decoding failed"});
    }
};

template class quv::DescribedCommand<GetCurrentWeightCmd, ConfProtoCommand>;

GetCurrentWeightCmd::GetCurrentWeightCmd(bool forceReading) : m_forceReading(forceReading) {}

GetCurrentWeightCmd::GetCurrentWeightCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

GetCurrentWeightCmd::GetCurrentWeightCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

GetCurrentWeightCmd *GetCurrentWeightCmd::clone() const
{
    return new GetCurrentWeightCmd(*this);
}
