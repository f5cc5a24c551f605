// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>

// How integers that do not fit one firmware parameter are laid into a command's: as the base-246 digits of splitValue, low
// digit first.

namespace quv {

/** Appends the number of digits, then the digits. */
void appendCounted(QList<int> &parameters, const QList<int> &digits);
/** The same of a number's digits; for a negative one, which has none, the number 0 alone. */
void appendCountedDigits(QList<int> &parameters, long long number);

/** Appends the digits of \a number; nothing for a negative one. */
void appendDigits(QList<int> &parameters, long long number);
/** The same, with a 0 behind a single digit, so that the firmware finds two; a greater number has more. */
void appendTwoDigits(QList<int> &parameters, long long number);

} // namespace quv
