// SPDX-License-Identifier: LGPL-3.0-or-later
#include "quantities.h"

#include <algorithm>
#include <cmath>

namespace quv {

Formula addedUp(const Formula &formula)
{
    QVector<FormulaItem> items;
    for (const FormulaItem &item : formula.items()) {
        const auto known = std::find_if(items.begin(), items.end(),
                                        [&item](const FormulaItem &other) { return other.id == item.id; });
        if (known == items.end())
            items.append(item);
        else
            known->quantity += item.quantity;
    }
    Formula once = formula;
    once.setItems(items);
    return once;
}

double quantityIn(const Formula &formula, const QString &id)
{
    double quantity = 0;
    for (const FormulaItem &item : formula.items()) {
        if (item.id == id)
            quantity += item.quantity;
    }
    return quantity;
}

double nearestCount(double asked)
{
    return std::max(std::round(asked), 1.0);
}

bool isNear(double poured, double asked)
{
    constexpr double tolerance = 0.01;
    return std::abs(poured - asked) <= std::abs(asked) * tolerance;
}

QString quantityInWords(double quantity)
{
    constexpr int digits = 6;
    constexpr double most = 1e15; // up to it a whole number, such as one of steps, is told to its last digit
    return quantity == std::floor(quantity) && std::abs(quantity) < most
               ? QString::number(quantity, 'f', 0)
               : QString::number(quantity, 'g', digits);
}

} // namespace quv
