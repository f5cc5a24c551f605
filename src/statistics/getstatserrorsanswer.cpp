// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/getstatserrorsanswer.h"

#include "base/argumentteller_p.h"
#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "statistics/statrecords_p.h"

namespace quv {

template <>
const FieldType &fieldType<QList<DispError>>()
{
    static constexpr FieldType type = objectListType<DispError>();
    return type;
}

} // namespace quv

namespace {

constexpr char badError[] = "GetStatsErrorsAnswer: errors during DispError creation";
constexpr quv::Refusal otherVariant = {"DE01380",
                                       "GetStatsErrorsAnswer decoding failed: invalid QVariant value"};
constexpr quv::Refusal badVariant = {"DE01379", badError};

} // namespace

struct GetStatsErrorsAnswer::Description
{
    using Answer = GetStatsErrorsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {
            quv::Member<Answer>(dispErrorList_TAG, &Answer::m_errors,
                                {"DE01384", "GetStatsErrorsAnswer: cannot find calibrations list tag"})
                .element({"DE01383", badError})
                .meaning("of each error \"timestamp\", \"error_type\", \"position_id\", \"error_code\" and "
                         "\"description\"")};
    }
};

template class quv::DescribedAnswer<GetStatsErrorsAnswer, ConfProtoAnswer>;

GetStatsErrorsAnswer::GetStatsErrorsAnswer(const QList<DispError> &errors) : m_errors(errors) {}

GetStatsErrorsAnswer::GetStatsErrorsAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetStatsErrorsAnswer::GetStatsErrorsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    for (const QVariant &element : qAsConst(list))
        m_errors.append(quv::decodedVariant<DispError>(element, otherVariant, badVariant, Q_FUNC_INFO));
}

GetStatsErrorsAnswer *GetStatsErrorsAnswer::clone() const
{
    return new GetStatsErrorsAnswer(*this);
}

QList<quv::MemberFacts> GetStatsErrorsAnswer::memberFacts()
{
    QList<quv::MemberFacts> members = DescribedAnswer::memberFacts();
    QList<quv::RefusalFacts> &refusals = members.first().refusals;
    quv::appendRefusal(refusals, "list", "an element of another type", otherVariant);
    quv::appendRefusal(refusals, "list", "an element that is no good error", badVariant);
    return members;
}
