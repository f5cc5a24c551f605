// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_serial.h>

namespace {

/** Adds up digits from the highest down, so that the sum is all that can overflow. */
template <class DigitAt>
long long joinDigits(int count, int base, DigitAt digitAt, bool *ok)
{
    long long number = 0;
    bool good = base >= 2;
    for (int i = count - 1; good && i >= 0; --i) {
        long long digit = 0;
        good = digitAt(i, digit) && !__builtin_mul_overflow(number, static_cast<long long>(base), &number) &&
               !__builtin_add_overflow(number, digit, &number);
    }
    if (ok)
        *ok = good;
    return good ? number : 0;
}

} // namespace

QList<int> splitValue(long long value, int base)
{
    QList<int> digits;
    if (value < 0 || base < 2)
        return digits;
    do {
        digits.append(static_cast<int>(value % base));
        value /= base;
    } while (value > 0);
    return digits;
}

long long joinValues(const QStringList &tokens, int base, bool hex, bool *ok)
{
    const auto digitAt = [&](int index, long long &digit) {
        bool good = false;
        digit = static_cast<long long>(tokens.at(index).toUInt(&good, hex ? 16 : 10));
        return good;
    };
    return joinDigits(tokens.size(), base, digitAt, ok);
}

long long joinValues(const QList<int> &digits, int base, bool *ok)
{
    const auto digitAt = [&](int index, long long &digit) {
        digit = digits.at(index);
        return digit >= 0;
    };
    return joinDigits(digits.size(), base, digitAt, ok);
}

int parseSerialAnswer(const QStringList &tokens, unsigned int &index, bool *ok)
{
    bool good = false;
    int number = 0;
    if (index < static_cast<unsigned int>(tokens.size()))
        number = tokens.at(static_cast<int>(index)).toInt(&good, 16);
    good = good && number >= 0;
    if (good)
        ++index;
    if (ok)
        *ok = good;
    return good ? number : 0;
}

bool isNullAnswer(const QStringList &tokens)
{
    return tokens.size() < 2;
}
