// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/configurationrow.h"

#include "firmware/wirereader.h"

#include <limits>

namespace quv {
namespace {

constexpr int MaxCode = 255;
constexpr int MaxFields = 255;
constexpr int FieldsWithName = 2;
constexpr int MaxCharacters = 255;
constexpr int LowestCharacter = -128; // characters come as bytes, with or without a sign
constexpr int HighestCharacter = 255;

int readValue(WireReader &reader, bool &isGood)
{
    const qint64 value = reader.nextCounted(1);
    isGood = isGood && reader.isGood() && value <= std::numeric_limits<int>::max();
    return isGood ? static_cast<int>(value) : 0;
}

QByteArray readName(WireReader &reader)
{
    QByteArray name;
    for (int left = reader.next(0, MaxCharacters); left > 0; --left)
        name.append(static_cast<char>(reader.next(LowestCharacter, HighestCharacter)));
    return name;
}

} // namespace

int placeOfInstance(int code)
{
    constexpr int Ramps = 10;
    constexpr int Transmissions = 19;
    constexpr int FlowCorrections = 22;
    switch (code) {
    case CircuitStructure:
        return 3;
    case StirringStructure:
        return 2;
    case Ramps:
    case Transmissions:
    case FlowCorrections:
        return 1;
    default:
        return 0;
    }
}

int instanceOf(const ConfigurationRow &row)
{
    const int place = placeOfInstance(row.code);
    return place == 0 ? 1 : row.values.value(place, 0);
}

std::optional<ConfigurationRow> readConfigurationRow(const QList<int> &numbers)
{
    WireReader reader(numbers);
    ConfigurationRow row;
    row.code = reader.next(1, MaxCode);
    const int fields = reader.next(1, row.code == NameStructure ? FieldsWithName : MaxFields);
    bool isGood = reader.isGood();
    const bool hasName = row.code == NameStructure && fields == FieldsWithName;
    for (int field = hasName ? 1 : 0; isGood && field < fields; ++field)
        row.values.append(readValue(reader, isGood));
    if (hasName)
        row.name = readName(reader);
    return isGood && reader.isGood() && reader.atEnd() ? std::optional<ConfigurationRow>(std::move(row))
                                                       : std::nullopt;
}

QList<int> wireFields(const ConfigurationRow &row)
{
    QList<int> numbers;
    for (const int value : row.values)
        appendWireNumber(numbers, value);
    if (row.name) {
        const QByteArray name = row.name->isEmpty() ? QByteArray(" ") : *row.name;
        numbers.append(static_cast<int>(name.size()));
        for (const char character : name)
            numbers.append(static_cast<unsigned char>(character));
    }
    return numbers;
}

} // namespace quv
