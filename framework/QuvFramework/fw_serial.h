// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QList>
#include <QtCore/QStringList>

// Numbers on the serial link. A number that does not fit one firmware parameter travels as digits of a number system,
// low digit first: base 246 everywhere but in resource file blocks, which use base 244.

/** The digits of \a value, low digit first; 0 is the single digit 0. No digits for a negative value or a base below 2. */
QUVFRAMEWORK_EXPORT QList<int> splitValue(long long value, int base);

/**
 * The number whose digits are \a tokens, low digit first: the inverse of splitValue. No digits are 0.
 * \a hex tells whether the tokens are hexadecimal (as on the wire) or decimal text.
 * \a ok, when given, is false for a token that is no number, a base below 2 or a number beyond 63 bits; the result is 0 then.
 */
QUVFRAMEWORK_EXPORT long long joinValues(const QStringList &tokens, int base, bool hex, bool *ok = nullptr);
template <class T>
long long joinValues(const QStringList &tokens, int base, T *ok) = delete; // would be a true hex
QUVFRAMEWORK_EXPORT long long joinValues(const QList<int> &digits, int base, bool *ok = nullptr);

/**
 * Reads the hexadecimal token at \a index and steps \a index. Past the end, or on a token that is no number of 31 bits:
 * 0, \a ok (when given) false, and \a index stays.
 */
QUVFRAMEWORK_EXPORT int parseSerialAnswer(const QStringList &tokens, unsigned int &index, bool *ok);

/** True for an answer that holds no parameter: no token at all, or the length token alone. */
QUVFRAMEWORK_EXPORT bool isNullAnswer(const QStringList &tokens);
