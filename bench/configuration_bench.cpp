// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/cpt_cdata.h"
#include "ratios.h"
#include "suites.h"

#include <QuvFramework/fw_serial.h>

namespace {

/** A circuit with all its parts, as the firmware counts its fields. */
QList<int> circuitFields()
{
    return {1,  3, 45, 12,  2,  9,  2,  3,  800, 4, 25, 70, 2,   61,  410, 90, 45, 10,
            0,  3, 4,  31,  14, 15, 12, 13, 0,   0, 0,  0,  120, 2,   300, 3,  6,  0,
            77, 3, 44, 900, 11, 2,  7,  8,  2,   3, 1,  4,  5,   900, 160, 2,  245};
}

constexpr int fieldCount = 53;

QString tokenOf(int number)
{
    return QString::number(number, 16).toUpper().rightJustified(2, QLatin1Char('0'));
}

QStringList digitsOf(int number)
{
    QStringList digits;
    for (const int digit : splitValue(number, 246))
        digits.append(tokenOf(digit));
    return digits;
}

/** The digits of each field. */
QList<QStringList> circuitDigits()
{
    QList<QStringList> digits;
    for (const int number : circuitFields())
        digits.append(digitsOf(number));
    return digits;
}

QStringList circuitTokens()
{
    QStringList tokens;
    for (const QStringList &digits : circuitDigits())
        tokens << tokenOf(digits.size()) << digits;
    return tokens;
}

QList<int> splitByHand(const QList<int> &numbers)
{
    QList<int> integers;
    for (const int number : numbers) {
        const QList<int> digits = splitValue(number, 246);
        integers.append(digits.size());
        integers.append(digits);
    }
    return integers;
}

QList<int> joinByHand(const QList<QStringList> &fields)
{
    QList<int> numbers;
    for (const QStringList &digits : fields)
        numbers.append(static_cast<int>(joinValues(digits, 246, true)));
    return numbers;
}

} // namespace

void quv::addConfigurationRatios()
{
    addRatio("circuit row: to integers", 1.5,
             repeat([row = CPT_cdata(circuitTokens(), fieldCount)] { return row.serialParams(); }),
             repeat([numbers = circuitFields()] { return splitByHand(numbers); }));
    addRatio("circuit row: from tokens", 1.5,
             repeat([tokens = circuitTokens()] { return CPT_cdata(tokens, fieldCount); }),
             repeat([digits = circuitDigits()] { return joinByHand(digits); }));
}
