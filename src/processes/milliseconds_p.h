// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <algorithm>
#include <limits>

namespace quv {

/**
 * How long so many runs take one after the other, each of the seconds and some more beside. A negative time counts as none;
 * all are 0 when they are beyond all numbers.
 */
constexpr long long millisecondsOf(long long seconds, int runs = 1, int beside = 0)
{
    constexpr long long second = 1000;
    const long long each = second * std::max(runs, 1);
    const long long most = std::numeric_limits<long long>::max() / each - beside;
    return seconds > most ? 0 : (std::max(seconds, 0LL) + beside) * second * runs;
}

} // namespace quv
