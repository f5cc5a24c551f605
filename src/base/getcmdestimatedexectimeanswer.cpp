// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcmdestimatedexectimeanswer.h"

#include "base/describedanswer_p.h"

struct GetCmdEstimatedExecTimeAnswer::Description
{
    using Answer = GetCmdEstimatedExecTimeAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    EXEC_TIME, &Answer::m_executionTime,
                    {"DE01180", "GetCmdEstimatedExecTimeAnswer: cannot find execution time tag"},
                    {"DE01178", "GetCmdEstimatedExecTimeAnswer decoding failed: invalid QVariant value"})
                    .as(quv::cutToInt())
                    .meaning("milliseconds")};
    }
};

template class quv::DescribedAnswer<GetCmdEstimatedExecTimeAnswer, ConfProtoAnswer>;

GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(long long executionTime)
    : m_executionTime(executionTime)
{}

GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetCmdEstimatedExecTimeAnswer *GetCmdEstimatedExecTimeAnswer::clone() const
{
    return new GetCmdEstimatedExecTimeAnswer(*this);
}
