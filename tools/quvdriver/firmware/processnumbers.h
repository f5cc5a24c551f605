// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

#include <limits>

namespace quv {

// What stirring, recirculation and cleaning have in common on the wire and on the clock.

constexpr int MaxProcessSpeed = 100;
constexpr int ConfiguredSpeed = 245;
/// Seconds, the greatest number of two digits; where an end is needed it is the configured time.
constexpr int EndlessDuration = 60515;

constexpr double MillisecondsOfSecond = 1000;
constexpr double MillisecondsOfMinute = 60000;
constexpr qint64 NeverEnds = std::numeric_limits<qint64>::max(); ///< in the place of a moment

inline bool isProcessSpeed(int speed)
{
    return (speed >= 1 && speed <= MaxProcessSpeed) || speed == ConfiguredSpeed;
}

} // namespace quv
