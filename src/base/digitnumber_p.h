// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/tokens_p.h"
#include "base/wire_p.h"

#include <initializer_list>
#include <limits>

namespace quv {

/**
 * The next number, whose base-246 digits have a refusal each, low digit first. One that an int does not hold is refused as its
 * last digit.
 */
inline int nextOfDigits(TokenReader &reader, std::initializer_list<Refusal> digits, const char *function)
{
    long long number = 0;
    long long weight = 1;
    for (const Refusal &refusal : digits) {
        number += weight * reader.next(refusal);
        weight *= serialBase;
    }
    if (number > std::numeric_limits<int>::max())
        throwRefusal(*(digits.end() - 1), function);
    return static_cast<int>(number);
}

} // namespace quv
