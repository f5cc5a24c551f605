// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getcanisterlistanswer.h"

#include "base/describedanswer_p.h"
#include "masterdata/canisterdata_p.h"
#include "masterdata/listedrecords_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <algorithm>

namespace quv {

template <>
const FieldType &fieldType<QList<CanisterData>>()
{
    static constexpr FieldType type = listedRecordsType<CanisterData>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal notMade = {"DE03384", "GetCanisterListAnswer: errors during CanisterData creation"};
constexpr quv::Refusal noDispenser = {
    "DE03388", "GetCanisterListAnswer decoding failed: invalid QVariant value (expected FW_Dispenser)"};
constexpr quv::Refusal noNumber = {
    "DE03389", "GetCanisterListAnswer decoding failed: invalid QVariant value (expected qlonglong)"};

/** Null when the dispenser does not have it. */
const FW_Canister *canisterOf(const FW_Dispenser &dispenser, long long id)
{
    const QList<FW_Canister> &canisters = dispenser.canisters();
    const auto found = std::find_if(canisters.begin(), canisters.end(),
                                    [id](const FW_Canister &canister) { return canister.id() == id; });
    return found == canisters.end() ? nullptr : &*found;
}

int colorantIDOf(const FW_Dispenser &dispenser, const FW_Canister &canister)
{
    const FW_Colorant *colorant = dispenser.getColorantByColCode(canister.colorantCode());
    return colorant ? colorant->systemColorantID() : 0;
}

} // namespace

struct GetCanisterListAnswer::Description
{
    using Answer = GetCanisterListAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    canisterList_TAG, &Answer::m_canisters,
                    {"DE03380", "GetCanisterListAnswer: Errors during CanisterData list creation"},
                    noDispenser)
                    .unmadeElement(notMade)
                    .meaning("of each canister its levels, its colorant and the circuits that it feeds")};
    }
};

template class quv::DescribedAnswer<GetCanisterListAnswer, ConfProtoAnswer>;

GetCanisterListAnswer::GetCanisterListAnswer(const QList<CanisterData> &canisters) : m_canisters(canisters) {}

GetCanisterListAnswer::GetCanisterListAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetCanisterListAnswer::GetCanisterListAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    for (int i = 0; i < list.size(); i += 2) {
        const auto dispenser = quv::listedPart<FW_Dispenser>(list.at(i), noDispenser, notMade, Q_FUNC_INFO);
        long long id = 0;
        if (!quv::decodeVariant(list.value(i + 1), id))
            quv::throwRefusal(noNumber, Q_FUNC_INFO);
        const FW_Canister *canister = canisterOf(dispenser, id);
        if (!canister)
            quv::throwRefusal(notMade, Q_FUNC_INFO);
        m_canisters.append(CanisterData(*canister, colorantIDOf(dispenser, *canister)));
    }
}

GetCanisterListAnswer *GetCanisterListAnswer::clone() const
{
    return new GetCanisterListAnswer(*this);
}
