// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/weightanswer.h"

#include "base/argumentteller_p.h"
#include "base/describedanswer_p.h"
#include "scale/scalewords_p.h"

namespace {

constexpr quv::Refusal tooFew = {"DE02092", "WeightAnswer decoding failed: invalid QVariant values length"};

} // namespace

struct WeightAnswer::Description
{
    static std::vector<quv::Member<WeightAnswer>> members()
    {
        using Answer = WeightAnswer;
        using Member = quv::Member<Answer>;
        return {Member(weightValue_TAG, &Answer::m_weight,
                       {"DE02087", "WeightAnswer failed: expected double type parameter"},
                       {"DE02093", "WeightAnswer failed: expected double type parameter"})
                    .meaning("in the unit"),
                Member(unit_TAG, &Answer::m_unit,
                       {"DE02088", "WeightAnswer failed: expected string type parameter"},
                       {"DE02094", "WeightAnswer failed: expected QString type parameter"})
                    .meaning(quv::tellsUnit),
                Member(stableWeight_TAG, &Answer::m_stableWeight,
                       {"DE02089", "WeightAnswer failed: expected boolean type parameter"},
                       {"DE02095", "WeightAnswer failed: expected bool type parameter"}),
                Member(precision_TAG, &Answer::m_precision,
                       {"DE02091", "WeightAnswer failed: expected int type parameter"},
                       {"DE02096", "WeightAnswer failed: expected int type parameter"})
                    .meaning("decimals")};
    }
};

template class quv::DescribedAnswer<WeightAnswer, ScaleProtoAnswer>;

WeightAnswer::WeightAnswer(double weight) : m_weight(weight) {}

WeightAnswer::WeightAnswer(double weight, ScaleUtils::ScaleUnit unit, bool stableWeight, int precision)
    : m_weight(weight),
      m_unit(unit),
      m_stableWeight(stableWeight),
      m_precision(precision)
{}

WeightAnswer::WeightAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

WeightAnswer::WeightAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    if (list.size() < WeightAnswer().parameters().size())
        quv::throwRefusal(tooFew, Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
}

WeightAnswer *WeightAnswer::clone() const
{
    return new WeightAnswer(*this);
}

QList<QVariant> WeightAnswer::parameters() const
{
    return {m_weight, m_unit, m_stableWeight, m_precision};
}

QList<quv::MemberFacts> WeightAnswer::memberFacts()
{
    QList<quv::MemberFacts> members = DescribedAnswer::memberFacts();
    quv::appendRefusal(members.first().refusals, "list", "too few", tooFew);
    return members;
}
