// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/getcolorantusagestatsanswer.h"

#include "base/argumentteller_p.h"
#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "statistics/colorantusagedispstats_p.h"

namespace quv {

template <>
const FieldType &fieldType<QList<ColorantUsageDispStats>>()
{
    static constexpr FieldType type = objectListType<ColorantUsageDispStats>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal noInformation = {
    "DE02260",
    "GetColorantUsageStatsAnswer encoding failed: invalid QVariant value (expected QStringList type)"};

} // namespace

struct GetColorantUsageStatsAnswer::Description
{
    using Answer = GetColorantUsageStatsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {
            quv::Member<Answer>(
                colorantUsageDispStats_TAG, &Answer::m_stats,
                {"DE02261", "ColorantUsageDispStats: invalid xml-rpc type"},
                {"DE02259", "GetColorantUsageStatsAnswer encoding failed: invalid QVariant value (expected "
                            "QList of ColorantUsageDispStats type)"})
                .meaning("of each machine its \"serial_number\", and in an array what it has used of the "
                         "colorant, each time with the information that was asked for"),
            quv::Member<Answer>("information", &Answer::m_information).uses(quv::Compare)};
    }
};

template class quv::DescribedAnswer<GetColorantUsageStatsAnswer, ConfProtoAnswer>;

GetColorantUsageStatsAnswer::GetColorantUsageStatsAnswer(const QList<ColorantUsageDispStats> &stats,
                                                         const QStringList &information)
    : m_stats(stats),
      m_information(information)
{}

GetColorantUsageStatsAnswer::GetColorantUsageStatsAnswer(const XmlRpc::XmlRpcValue &value)
    : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetColorantUsageStatsAnswer::GetColorantUsageStatsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
    if (!quv::decodeVariant(list.value(1), m_information))
        quv::throwRefusal(noInformation, Q_FUNC_INFO);
}

GetColorantUsageStatsAnswer *GetColorantUsageStatsAnswer::clone() const
{
    return new GetColorantUsageStatsAnswer(*this);
}

XmlRpc::XmlRpcValue GetColorantUsageStatsAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value = DescribedAnswer::toXmlRpcValue();
    XmlRpc::XmlRpcValue &stats = value[colorantUsageDispStats_TAG];
    for (int i = 0; i < m_stats.size(); ++i)
        stats[i] = m_stats.at(i).toXmlRpcValue(m_information);
    return value;
}

QList<quv::MemberFacts> GetColorantUsageStatsAnswer::memberFacts()
{
    QList<quv::MemberFacts> members = DescribedAnswer::memberFacts();
    quv::appendRefusal(members.first().refusals, "list", "without the information that was asked for",
                       noInformation);
    return members;
}
