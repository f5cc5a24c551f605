// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareage.h"

#include <QtCore/QHash>

namespace quv {
namespace {

/// Fields of the older firmware's structures, `cmd_enabled` counted; of one that is not here as many as there are.
int fieldsOfOlder(const ConfigurationRow &row)
{
    static const QHash<int, int> fields{
        {3, 10},  // "@GMC" up to the layout module mask
        {4, 8},   // "@ACP" up to the automatic closure
        {5, 30},  // "@CPT" up to the layout positions
        {6, 8},   // "@AGI" up to the supplying current
        {8, 7},   // "@TEM" up to the speeds of the first group
        {9, 10},  // "@SGA" up to the punching sensor
        {15, 12}, // "@TTD" up to the refill angle
        {16, 10}, // "@PUL" with one brush
        {19, 18}, // "@MOT" up to the encoder
    };
    return fields.value(row.code, row.fieldCount());
}

/// One more field of a structure that exists once, two of the others. A name is always the last field.
QList<int> fieldsOfNewer(int code)
{
    if (code == NameStructure)
        return {};
    return placeOfInstance(code) == 0 ? QList<int>{7} : QList<int>{7, 1000};
}

} // namespace

std::optional<FirmwareAge> firmwareAgeOf(const QString &name)
{
    if (name == QLatin1String("older"))
        return FirmwareAge::Older;
    if (name == QLatin1String("equal"))
        return FirmwareAge::Equal;
    if (name == QLatin1String("newer"))
        return FirmwareAge::Newer;
    return std::nullopt;
}

int configurationVersion(FirmwareAge age)
{
    return static_cast<int>(age) + 1;
}

ConfigurationRow agedRow(ConfigurationRow row, FirmwareAge age)
{
    if (age == FirmwareAge::Older)
        row.values = row.values.mid(0, row.name ? -1 : fieldsOfOlder(row));
    else if (age == FirmwareAge::Newer)
        row.values += fieldsOfNewer(row.code);
    return row;
}

} // namespace quv
