// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/wirereply.h"

namespace quv {

FirmwareReply replied(const QList<int> &numbers)
{
    QStringList tokens{QString::number(numbers.size(), 16).toUpper()};
    for (const int number : numbers)
        tokens.append(QString::number(number, 16).toUpper());
    return {false, tokens};
}

FirmwareReply refused(Reason reason, const QString &text)
{
    QList<int> numbers{0, 0, 0, 0, 0, 0};
    constexpr int BitsOfMask = 8;
    const int bit = static_cast<int>(reason);
    numbers[bit / BitsOfMask] = 1 << bit % BitsOfMask;
    return {true, replied(numbers).tokens, text};
}

} // namespace quv
