// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/refusalreasons.h"

#include <QtCore/QStringList>

namespace quv {
namespace {

struct MaskBit
{
    int mask; ///< the first or the second
    unsigned bit;
    const char *text;
};

constexpr MaskBit reasons[] = {
    {1, 0, "a field is out of range"},
    {1, 1, "no end character"},
    {1, 2, "bad checksum"},
    {1, 3, "unknown code"},
    {1, 4, "wrong position"},
    {1, 5, "bad parameters"},
    {2, 0, "errors are present"},
    {2, 1, "writing the configuration failed"},
    {2, 2, "writing a row of the configuration failed"},
    {2, 3, "the machine is not available"},
    {2, 4, "wrong working mode"},
};

bool isSet(const FirmwareReply &refusal, const MaskBit &reason)
{
    return ((refusal.tokens.value(reason.mask).toUInt(nullptr, 16) >> reason.bit) & 1U) != 0;
}

} // namespace

bool isUnknownCode(const FirmwareReply &refusal)
{
    constexpr MaskBit unknownCode = reasons[3];
    return isSet(refusal, unknownCode);
}

QString reasonsInWords(const FirmwareReply &refusal)
{
    QStringList words;
    for (const MaskBit &reason : reasons)
        if (isSet(refusal, reason))
            words.append(QLatin1String(reason.text));
    if (words.isEmpty())
        words.append(QStringLiteral("no known reason"));
    return QStringLiteral("%1 (masks 0x%2 and 0x%3)")
        .arg(words.join(QStringLiteral(", ")), refusal.tokens.value(1), refusal.tokens.value(2));
}

} // namespace quv
