// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confprotoanswer.h"
#include "describedanswer.h"

/** The answer to GET_CMD_EST_EXEC_TIME: a struct with the member "exec_time" (int, milliseconds). */
class QUVPROTOCOL_EXPORT GetCmdEstimatedExecTimeAnswer
    : public quv::DescribedAnswer<GetCmdEstimatedExecTimeAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char EXEC_TIME[] = "exec_time";

    GetCmdEstimatedExecTimeAnswer() = default;
    explicit GetCmdEstimatedExecTimeAnswer(long long executionTime);
    explicit GetCmdEstimatedExecTimeAnswer(
        const XmlRpc::XmlRpcValue &value); ///< throws DE01180 without the member
    explicit GetCmdEstimatedExecTimeAnswer(
        QList<QVariant> &list); ///< a whole number; throws DE01178 without one

    GetCmdEstimatedExecTimeAnswer *clone() const override;

    long long executionTime() const
    {
        return m_executionTime;
    } ///< milliseconds; cut to 32 bits in the struct

private:
    long long m_executionTime = 0;
};
