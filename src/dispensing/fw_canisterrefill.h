// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

/** What a canister held before and after its level was changed, in grams or millilitres. */
struct FW_CanisterRefill
{
    int canisterID = 0;
    double previousQuantity = 0;
    double currentQuantity = 0;

    bool operator==(const FW_CanisterRefill &other) const
    {
        return canisterID == other.canisterID && previousQuantity == other.previousQuantity &&
               currentQuantity == other.currentQuantity;
    }
    bool operator!=(const FW_CanisterRefill &other) const { return !(*this == other); }
};
