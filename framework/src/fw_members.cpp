// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_members.h>

#include <algorithm>
#include <iterator>

namespace quv {
namespace {

constexpr const char *unitNames[] = {"ms", "s", "min"}; // by FW_TimeSpan::Unit

} // namespace

QString toText(MachineTime time)
{
    return QString::number(time.value) + QLatin1Char(' ') + QLatin1String(unitNames[time.unit]);
}

std::optional<MachineTime> machineTimeFromText(const QString &text)
{
    const int blank = text.indexOf(QLatin1Char(' '));
    const QStringRef number = text.leftRef(blank);
    const QStringRef unit = text.midRef(blank + 1);
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    const auto *const name =
        std::find_if(std::begin(unitNames), std::end(unitNames),
                     [&](const char *candidate) { return unit == QLatin1String(candidate); });
    bool fits = false;
    const int value = number.toInt(&fits);
    if (blank < 1 || name == std::end(unitNames) || !fits ||
        !std::all_of(number.cbegin(), number.cend(), isDigit)) // as a sign is none
        return std::nullopt;
    return MachineTime{value, static_cast<int>(name - std::begin(unitNames))};
}

QString mustBeInteger(Range range)
{
    return QStringLiteral("must be an integer from %1 to %2").arg(range.min).arg(range.max);
}

QString mustBeNumber(Range range)
{
    return QStringLiteral("must be a number from %1 to %2")
        .arg(range.min)
        .arg(std::min<long long>(range.max, MaxQuantity));
}

QString mustBeTime()
{
    return QStringLiteral("must be a time, as \"30 min\", \"90 s\" or \"1500 ms\"");
}

QString mustBeText()
{
    return QStringLiteral("must be a text");
}

QString mustBeFlag()
{
    return QStringLiteral("must be true or false");
}

QString mustBeArray()
{
    return QStringLiteral("must be an array");
}

} // namespace quv
