// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_canister.h>

#include <QtCore/QVector>

/** What a formula takes from one canister. */
class QUVFRAMEWORK_EXPORT CanisterFormulaItem : public FW_Canister
{
public:
    CanisterFormulaItem() = default;
    CanisterFormulaItem(const FW_Canister &canister, double quantity)
        : FW_Canister(canister),
          m_quantity(quantity)
    {}

    double quantity() const { return m_quantity; } ///< in the canister's unit
    void setQuantity(double quantity) { m_quantity = quantity; }

private:
    double m_quantity = 0;
};

/** The canisters of a formula, each once. */
using CanisterFormulaItemList = QVector<CanisterFormulaItem>;
