// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/geterrorsanswer.h"

#include "base/describedanswer_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/objectfield_p.h"
#include "status/fwerroranswer.h"

#include <utility>

namespace quv {

template <>
inline constexpr const char *nameOf<FW_ErrorList> = "array of errors";

template <>
inline constexpr auto ownRefusals<FW_ErrorList> = errorRefusals;

template <>
const FieldType &fieldType<FW_ErrorList>()
{
    static constexpr FieldType type = objectType<FW_ErrorList>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal notMadeOfVariants = {
    "DE00467", "GetErrorsAnswer: errors during FW_ErrorList creation (QVariant)"};

} // namespace

struct GetErrorsAnswer::Description
{
    static std::vector<quv::Member<GetErrorsAnswer>> members()
    {
        return {
            quv::Member<GetErrorsAnswer>(
                FwErrorAnswer::XR_FW_ERROR_LIST, &GetErrorsAnswer::m_errors,
                {"DE00471", "GetErrorsAnswer: Errors during FW_ErrorList list creation (XmlRpcValue)"})
                .otherType({"DE00470", "GetErrorsAnswer: errors during FW_ErrorList creation (XmlRpcValue)"})
                .alsoInList("cannot be made", notMadeOfVariants)
                .meaning("errors of all kinds, in the order in which they came")};
    }
};

template class quv::DescribedAnswer<GetErrorsAnswer, SerialProtoAnswer>;

GetErrorsAnswer::GetErrorsAnswer(const FW_ErrorList &errors) : m_errors(errors) {}

GetErrorsAnswer::GetErrorsAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens)) {}

GetErrorsAnswer::GetErrorsAnswer(QList<QVariant> &list)
    : DescribedAnswer(list),
      m_errors(quv::madeOrRefused(notMadeOfVariants, Q_FUNC_INFO, [&list] { return FW_ErrorList(list); }))
{}

GetErrorsAnswer::GetErrorsAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetErrorsAnswer *GetErrorsAnswer::clone() const
{
    return new GetErrorsAnswer(*this);
}

void GetErrorsAnswer::clear()
{
    m_errors.clear();
}
