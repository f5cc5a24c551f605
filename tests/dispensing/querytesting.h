// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandcontract.h"
#include "dispensing/dispensertesting.h"

// What the tests of the questions about a formula share.

namespace testing_dispensing {

/** "2.5 g of position 1", as it travels. */
inline Value formulaStruct()
{
    return structOf({{"formula_type", Value(1)},
                     {"quantity_unit", Value(3)},
                     {"ids", arrayOf("1")},
                     {"quantities", arrayOf(2.5)}});
}
constexpr char formulaWritten[] =
    R"({"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1"], "levels_policy": 0, )"
    R"("quantities": [2.50000], "quantity_unit": 3})";
inline Formula formula()
{
    return grams({{"1", 2.5}});
}
inline QVariantMap formulaMap()
{
    return {{"formula_type", 1},
            {"quantity_unit", 3},
            {"ids", QVariantList{"1"}},
            {"quantities", QVariantList{2.5}}};
}

/** "2 strokes of each circuit that is not empty", as it travels. */
inline Value purgeStruct()
{
    return structOf(
        {{"purge_quantity", Value(2.0)}, {"quantity_unit", Value(2)}, {"only_filled", Value(true)}});
}
constexpr char purgeWritten[] =
    R"({"head": 0, "only_filled": true, "purge_quantity": 2.00000, "quantity_unit": 2})";
inline PurgeFormula purge()
{
    return PurgeFormula(2.0, true, 2);
}
inline QVariantMap purgeMap()
{
    return {{"purge_quantity", 2.0}, {"quantity_unit", 2}, {"only_filled", true}};
}

inline Value negativeFormulaStruct()
{
    Value value = formulaStruct();
    value["quantities"][0] = -2.5;
    return value;
}

} // namespace testing_dispensing
