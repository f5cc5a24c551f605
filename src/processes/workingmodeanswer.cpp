// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/workingmodeanswer.h"

#include "base/describedanswer_p.h"
#include "base/tokens_p.h"

#include <utility>

namespace {

constexpr char noMode[] = "WorkingModeAnswer: expected working_mode value";

} // namespace

struct WorkingModeAnswer::Description
{
    using Answer = WorkingModeAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(workingMode_TAG, &Answer::m_workingMode, {"DE03169", noMode},
                                    {"DE03170", noMode})
                    .meaning("0 to 8")};
    }
};

template class quv::DescribedAnswer<WorkingModeAnswer, SerialProtoAnswer>;

WorkingModeAnswer::WorkingModeAnswer(int workingMode) : m_workingMode(workingMode) {}

WorkingModeAnswer::WorkingModeAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    reader.require(1, {"DE00093", "Error during command answer decoding: bad length"});
    m_workingMode =
        reader.next({"DE00094", "Error during command answer decoding: bad working mode value type"});
}

WorkingModeAnswer::WorkingModeAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

WorkingModeAnswer::WorkingModeAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

WorkingModeAnswer *WorkingModeAnswer::clone() const
{
    return new WorkingModeAnswer(*this);
}

bool WorkingModeAnswer::checkWorkingMode(int workingMode)
{
    return workingMode >= 0 && workingMode <= 8;
}
