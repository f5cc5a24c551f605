// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulaportions_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <QtCore/QHash>

#include <algorithm>

// What a formula does to the levels of the canisters.

bool Formula::convertToNegativeQuantities(const FW_Dispenser *dispenser, FW_DriverError *error)
{
    CanisterFormulaItemList canisters;
    if (!getCanisterItems(&canisters, dispenser, error))
        return false;
    m_type = CanisterIDs;
    m_quantityUnit = WeightOrVolume;
    m_items.clear();
    m_items.reserve(canisters.size());
    for (const CanisterFormulaItem &canister : canisters)
        m_items.append({QString::number(canister.id()), -canister.quantity()});
    return true;
}

bool Formula::convertToNegativeQuantities(const FW_Dispenser *dispenser, FW_DriverError &error)
{
    return convertToNegativeQuantities(dispenser, &error);
}

bool Formula::checkDispenserLevels(const FW_Dispenser *dispenser, int *result, bool delta) const
{
    CanisterFormulaItemList canisters;
    if (!getCanisterItems(&canisters, dispenser, nullptr))
        return false;
    int worst = LevelsGood;
    for (const CanisterFormulaItem &canister : canisters) {
        const double level = canister.quantity() + (delta ? canister.currentQuantity() : 0);
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
    CanisterFormulaItemList found;
    QVector<quv::Portion> portions;
    if (!quv::portionsOf(*this, dispenser, portions, error))
        return false;
    QHash<int, int> indexes;
    for (const quv::Portion &portion : portions) {
        double weight = 0;
        if (!quv::weightOf(portion, m_quantityUnit, weight))
            return quv::fail(error, "DE03023",
                             QStringLiteral("Formula: the calibration of circuit %1 tells no quantity")
                                 .arg(portion.source.circuit->positionId()));
        const FW_Canister &canister = *portion.source.canister;
        const auto known = indexes.constFind(canister.id());
        if (known != indexes.constEnd()) {
            found[*known].setQuantity(found.at(*known).quantity() + weight);
            continue;
        }
        indexes.insert(canister.id(), found.size());
        found.append(CanisterFormulaItem(canister, weight));
    }
    if (items)
        *items = found;
    return true;
}
