// SPDX-License-Identifier: LGPL-3.0-or-later
#include "durationwords.h"

#include "commandline.h"
#include "excerpt.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

namespace quv {

namespace {

constexpr int minute = 60;
constexpr int hour = 60 * minute;

} // namespace

std::optional<int> secondsInWords(const QString &word)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A(?=.)(?:(\d{1,3})h)?(?:(\d{1,5})min)?(?:(\d{1,7})s?)?\z)"));
    const QRegularExpressionMatch match = form.match(word);
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(1).toInt() * hour + match.captured(2).toInt() * minute + match.captured(3).toInt();
}

int secondsOf(const QString &word, int most)
{
    const std::optional<int> seconds = secondsInWords(word);
    if (!seconds || *seconds < 1 || *seconds > most)
        throw UsageError(
            QStringLiteral("a time is a number of seconds from 1 to %1, or such as 90s, 3min, 1h30min; "
                           "not \"%2\"")
                .arg(most)
                .arg(excerpt(word)));
    return *seconds;
}

QString timeInWords(long long seconds)
{
    QStringList parts;
    if (seconds >= hour)
        parts.append(QStringLiteral("%1 h").arg(seconds / hour));
    if (seconds % hour >= minute)
        parts.append(QStringLiteral("%1 min").arg(seconds % hour / minute));
    if (seconds % minute != 0 || parts.isEmpty())
        parts.append(QStringLiteral("%1 s").arg(seconds % minute));
    return parts.join(QLatin1Char(' '));
}

} // namespace quv
