// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <optional>

namespace quv {

/// The seconds of a time in a user's words: 90, 90s, 3min, 1h30min. Nothing for other words, and beyond 10 million seconds.
std::optional<int> secondsInWords(const QString &word);

/// The same, of a time from 1 second to \a most. \throws UsageError
int secondsOf(const QString &word, int most);

/// A time as a user would say it: 90 s, 3 min, 1 h 30 min.
QString timeInWords(long long seconds);

} // namespace quv
