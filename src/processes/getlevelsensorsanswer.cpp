// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getlevelsensorsanswer.h"

#include "base/describedanswer_p.h"
#include "base/numberpairs_p.h"
#include "base/tokens_p.h"

#include <limits>
#include <utility>

struct GetLevelSensorsAnswer::Description
{
    using Answer = GetLevelSensorsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(levels_TAG, &Answer::m_levels,
                                    {"DE03195", "GetLevelSensorsAnswer: expected levels value"})
                    .meaning("position and level")};
    }
};

template class quv::DescribedAnswer<GetLevelSensorsAnswer, SerialProtoAnswer>;

GetLevelSensorsAnswer::GetLevelSensorsAnswer(const QList<QPair<int, int>> &levels) : m_levels(levels) {}

GetLevelSensorsAnswer::GetLevelSensorsAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    constexpr quv::Refusal noLevel = {"DE03194", "GetLevelSensorsAnswer: expected a level"};
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    const int count = reader.next({"DE03192", "GetLevelSensorsAnswer: expected the number of positions"});
    for (int i = 0; i < count; ++i) {
        const int position = reader.next({"DE03193", "GetLevelSensorsAnswer: expected a position"});
        const long long level = reader.nextNumber(2, noLevel, std::numeric_limits<int>::max());
        m_levels.append({position, static_cast<int>(level)});
    }
}

GetLevelSensorsAnswer::GetLevelSensorsAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetLevelSensorsAnswer *GetLevelSensorsAnswer::clone() const
{
    return new GetLevelSensorsAnswer(*this);
}
