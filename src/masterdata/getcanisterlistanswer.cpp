// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getcanisterlistanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "masterdata/canisterdata_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <stdexcept>

namespace quv {

template <>
const FieldType &fieldType<QList<CanisterData>>()
{
    static constexpr FieldType type = listedObjectsType<CanisterData>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal notMade = {"DE03384", "GetCanisterListAnswer: errors during CanisterData creation"};
constexpr quv::Refusal noDispenser = {
    "DE03388", "GetCanisterListAnswer decoding failed: invalid QVariant value (expected FW_Dispenser)"};
constexpr quv::Refusal noNumber = {
    "DE03389", "GetCanisterListAnswer decoding failed: invalid QVariant value (expected qlonglong)"};

int colorantIDOf(const FW_Dispenser &dispenser, const FW_Canister &canister)
{
    const FW_Colorant *colorant = dispenser.getColorantByColCode(canister.colorantCode());
    return colorant ? colorant->systemColorantID() : 0;
}

CanisterData canisterOf(const FW_Dispenser &dispenser, long long id)
{
    const auto canisterID = static_cast<int>(id);
    const FW_Canister *canister = canisterID == id ? dispenser.getCanisterById(canisterID) : nullptr;
    if (!canister)
        throw std::invalid_argument("no such canister");
    return CanisterData(*canister, colorantIDOf(dispenser, *canister));
}

/** Of the dispenser at this place of a driver's list, and the number behind it. */
CanisterData canisterAt(const QList<QVariant> &list, int place, const char *function)
{
    const QVariant &dispenser = list.at(place);
    if (dispenser.userType() != qMetaTypeId<FW_Dispenser>())
        quv::throwRefusal(noDispenser, function);
    long long id = 0;
    if (!quv::decodeVariant(list.value(place + 1), id))
        quv::throwRefusal(noNumber, function);
    return canisterOf(dispenser.value<FW_Dispenser>(), id);
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
                    .alsoInList("an element without a canister's ID behind it", noNumber)
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
    const char *const function = Q_FUNC_INFO;
    for (int i = 0; i < list.size(); i += 2)
        quv::madeOrRefused(notMade, function, [&] { m_canisters.append(canisterAt(list, i, function)); });
}

GetCanisterListAnswer *GetCanisterListAnswer::clone() const
{
    return new GetCanisterListAnswer(*this);
}
