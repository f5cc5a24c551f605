// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getcolorantlistanswer.h"

#include "base/describedanswer_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/objectfield_p.h"

namespace quv {

template <>
inline constexpr const char *markOf<ColorantsPOSList> = "code";
template <>
inline constexpr auto ownRefusals<ColorantsPOSList> = machineDataRefusals;

template <>
const FieldType &fieldType<QList<ColorantsPOSList>>()
{
    static constexpr FieldType type = listedObjectsType<ColorantsPOSList>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal notMade = {"DE03387", "GetColorantListAnswer: errors during FW_Colorant creation"};
constexpr quv::Refusal otherVariant = {"DE03393",
                                       "GetColorantListAnswer decoding failed: invalid QVariant value"};

ColorantsPOSList decodedColorant(const QVariant &variant, const char *function)
{
    if (variant.userType() == qMetaTypeId<FW_Colorant>())
        return ColorantsPOSList(variant.value<FW_Colorant>());
    return quv::decodedVariant<ColorantsPOSList>(variant, otherVariant, notMade, function);
}

} // namespace

struct GetColorantListAnswer::Description
{
    using Answer = GetColorantListAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {
            quv::Member<Answer>(colorantList_TAG, &Answer::m_colorants,
                                {"DE03383", "GetColorantListAnswer: Errors during FW_Colorant list creation"},
                                otherVariant)
                .unmadeElement(notMade)
                .meaning(
                    "of each colorant its members, and as disp_algorithm_mask the ways in which it can be "
                    "poured: 1 volumetric, 2 gravimetric, 4 continuous, added up; -1 not told")};
    }
};

template class quv::DescribedAnswer<GetColorantListAnswer, ConfProtoAnswer>;

GetColorantListAnswer::GetColorantListAnswer(const QList<ColorantsPOSList> &colorants)
    : m_colorants(colorants)
{}

GetColorantListAnswer::GetColorantListAnswer(const QList<FW_Colorant> &colorants)
{
    for (const FW_Colorant &colorant : colorants)
        m_colorants.append(ColorantsPOSList(colorant));
}

GetColorantListAnswer::GetColorantListAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetColorantListAnswer::GetColorantListAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    const char *const function = Q_FUNC_INFO;
    for (const QVariant &variant : std::as_const(list))
        quv::madeOrRefused(notMade, function,
                           [&] { m_colorants.append(decodedColorant(variant, function)); });
}

GetColorantListAnswer *GetColorantListAnswer::clone() const
{
    return new GetColorantListAnswer(*this);
}
