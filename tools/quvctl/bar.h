// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <algorithm>

namespace quv {

/// How much of something there is: [####......].
inline QString bar(double percentage)
{
    constexpr int cells = 10;
    const int filled = std::clamp(static_cast<int>((percentage * cells + 50) / 100), 0, cells);
    return QLatin1Char('[') + QString(filled, QLatin1Char('#')) + QString(cells - filled, QLatin1Char('.')) +
           QLatin1Char(']');
}

} // namespace quv
