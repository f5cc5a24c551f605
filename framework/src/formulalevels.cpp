// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulaportions_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

// What a formula does to the levels of the canisters.

namespace {

/** What a formula takes from one canister. */
struct Share
{
    const FW_Canister *canister = nullptr;
    double quantity = 0;
};

/** Each canister once, in the formula's order. False and \a error filled when the formula does not fit the dispenser. */
bool sharesOf(const Formula &formula, const FW_Dispenser *dispenser, std::vector<Share> &shares,
              FW_DriverError *error)
{
    std::vector<quv::Portion> portions;
    if (!quv::portionsOf(formula, dispenser, portions, error))
        return false;
    shares.reserve(portions.size());
    std::vector<std::pair<int, std::size_t>>
        known; // canisters by their ID, sorted, with the place of their share
    known.reserve(portions.size());
    for (const quv::Portion &portion : portions) {
        double weight = 0;
        if (!quv::weightOf(portion, formula.quantityUnit(), weight))
            return quv::fail(error, "DE03023",
                             QStringLiteral("Formula: the calibration of circuit %1 tells no quantity")
                                 .arg(portion.source.circuit->positionId()));
        const FW_Canister &canister = *portion.source.canister;
        const auto place =
            std::lower_bound(known.begin(), known.end(), std::make_pair(canister.id(), std::size_t(0)));
        if (place != known.end() && place->first == canister.id()) {
            shares[place->second].quantity += weight;
            continue;
        }
        known.insert(place, {canister.id(), shares.size()});
        shares.push_back({&canister, weight});
    }
    return true;
}

} // namespace

bool Formula::convertToNegativeQuantities(const FW_Dispenser *dispenser, FW_DriverError *error)
{
    std::vector<Share> shares;
    if (!sharesOf(*this, dispenser, shares, error))
        return false;
    m_type = CanisterIDs;
    m_quantityUnit = WeightOrVolume;
    m_items.clear();
    m_items.reserve(static_cast<int>(shares.size()));
    for (const Share &share : shares)
        m_items.append({quv::nameOf(share.canister->id()), -share.quantity});
    return true;
}

bool Formula::convertToNegativeQuantities(const FW_Dispenser *dispenser, FW_DriverError &error)
{
    return convertToNegativeQuantities(dispenser, &error);
}

bool Formula::checkDispenserLevels(const FW_Dispenser *dispenser, int *result, bool delta) const
{
    std::vector<Share> shares;
    if (!sharesOf(*this, dispenser, shares, nullptr))
        return false;
    int worst = LevelsGood;
    for (const Share &share : shares) {
        const FW_Canister &canister = *share.canister;
        const double level = share.quantity + (delta ? canister.currentQuantity() : 0);
        worst = std::max(worst, level > canister.maximumQuantity()   ? int(AboveMaximum)
                                : level < 0                          ? int(BelowZero)
                                : level < canister.reserveQuantity() ? int(BelowReserve)
                                : level < canister.warningQuantity() ? int(BelowWarning)
                                                                     : int(LevelsGood));
    }
    if (result)
        *result = worst;
    return true;
}

bool Formula::getCanisterItems(CanisterFormulaItemList *items, const FW_Dispenser *dispenser,
                               FW_DriverError *error) const
{
    std::vector<Share> shares;
    if (!sharesOf(*this, dispenser, shares, error))
        return false;
    if (!items)
        return true;
    items->clear();
    items->reserve(static_cast<int>(shares.size()));
    for (const Share &share : shares)
        items->append(CanisterFormulaItem(*share.canister, share.quantity));
    return true;
}
