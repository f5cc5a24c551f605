// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/getestanswer.h"

#include "base/argumentteller_p.h"
#include "base/describedanswer_p.h"

namespace {

constexpr quv::Refusal tooFew = {"DE02225", "GETestAnswer decoding failed: bad parameters"};

constexpr char expectedInt[] = "GETestAnswer decoding failed: invalid QVariant value (expected int type)";
constexpr char expectedDouble[] =
    "GETestAnswer decoding failed: invalid QVariant value (expected double type)";

} // namespace

struct GETestAnswer::Description
{
    static std::vector<quv::Member<GETestAnswer>> members()
    {
        using Answer = GETestAnswer;
        using Member = quv::Member<Answer>;
        constexpr quv::Refusal badSteps = {"DE02226", expectedInt};
        constexpr quv::Refusal badSpeed = {"DE02227", expectedDouble}; // users know it so
        constexpr quv::Refusal badWeight = {"DE02228", expectedDouble};
        constexpr quv::Refusal badPercentage = {"DE02229", expectedInt};
        return {Member(steps_TAG, &Answer::m_steps, badSteps, badSteps),
                Member(speed_TAG, &Answer::m_speed, badSpeed, badSpeed),
                Member(reqWeight_TAG, &Answer::m_reqWeight, badWeight, badWeight)
                    .meaning("grams that the step is to weigh"),
                Member(reqPercentage_TAG, &Answer::m_reqPercentage, badPercentage, badPercentage)
                    .meaning("of the whole dose")};
    }
};

template class quv::DescribedAnswer<GETestAnswer, ConfProtoAnswer>;

GETestAnswer::GETestAnswer(int steps, int speed, double reqWeight, int reqPercentage)
    : m_steps(steps),
      m_speed(speed),
      m_reqWeight(reqWeight),
      m_reqPercentage(reqPercentage)
{}

GETestAnswer::GETestAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GETestAnswer::GETestAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    constexpr int size = 4;
    if (list.size() < size)
        quv::throwRefusal(tooFew, Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
}

GETestAnswer *GETestAnswer::clone() const
{
    return new GETestAnswer(*this);
}

QList<quv::MemberFacts> GETestAnswer::memberFacts()
{
    QList<quv::MemberFacts> members = DescribedAnswer::memberFacts();
    quv::appendRefusal(members.first().refusals, "list", "too few", tooFew);
    return members;
}
