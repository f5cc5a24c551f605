// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>

#include <functional>
#include <optional>
#include <vector>

namespace quv {

/// How the integers of a request to pour are laid out.
enum class PourLayout {
    Tint, ///< code 0017: circuits of position, queue, speed, digits of the amount
    Tint2, ///< code 0035: circuits of position, queue, speed, nozzle valve, digits of the amount, digits of the level
    Strokes ///< codes 0023 and 0024: circuits of position, queue, speed and, when there are strokes, their digits
};

/// One circuit of a request to pour.
struct PourPart
{
    int position = 0;
    int queue = 0; ///< or the channel; 0 for none
    int speed = 0; ///< turns per minute
    int nozzleValve = 0;
    qint64 amount = 0;     ///< steps, or strokes, which the code and the criterion tell
    qint64 checkLevel = 0; ///< what the sender believes the canister to hold, in hundreds of steps

    bool operator==(const PourPart &other) const;
};

/// A request to pour as the machine's firmware reads it from the wire.
struct PourRequest
{
    int criterion = 0; ///< without the mark of a purge
    bool isPurge = false;
    std::vector<PourPart> parts{};
};

/**
 * Reads the integers of a request; nothing for what is no request of this layout: a number missing or left over, one out of
 * its range, no circuit, a circuit twice. A tint may name more circuits than follow, since senders count those that they skip.
 *
 * Nothing in a list of strokes tells whether a circuit has any. It is divided into circuits without strokes when that uses it
 * up, else with strokes each, else in the first mixed way that fits and names each circuit once and none but those that
 * \a isThere, given their position, knows; or else in the first mixed way at all.
 */
std::optional<PourRequest> readPourRequest(PourLayout layout, const QList<int> &numbers,
                                           const std::function<bool(int)> &isThere = {});

} // namespace quv
