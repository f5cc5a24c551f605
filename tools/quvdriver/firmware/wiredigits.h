// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>

namespace quv {

// Numbers travel as base-246 digits, low digit first. This is the machine's side of it, which shares nothing with the
// library's, so that each proves the other.

constexpr int WireBase = 246;

/// One digit at least: 0 is the digit 0.
inline QList<int> wireDigits(qint64 number)
{
    QList<int> digits;
    do {
        digits.append(static_cast<int>(number % WireBase));
        number /= WireBase;
    } while (number > 0);
    return digits;
}

/// A number as a request or a reply has it: the count of its digits, then the digits.
inline void appendWireNumber(QList<int> &numbers, qint64 number)
{
    const QList<int> digits = wireDigits(number);
    numbers.append(digits.size());
    numbers.append(digits);
}

} // namespace quv
