// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <optional>
#include <set>
#include <utility>

namespace quv {

/// One row of a machine's configuration as its firmware has it.
struct ConfigurationRow
{
    int code = 0;                     ///< of the structure
    QList<int> values{};              ///< `cmd_enabled`, then the fields
    std::optional<QByteArray> name{}; ///< the last field of "@NOM", in Latin-1; no other structure has one

    int fieldCount() const { return static_cast<int>(values.size()) + (name ? 1 : 0); }
    bool isPresent() const { return values.value(0) != 0; }

    bool operator==(const ConfigurationRow &other) const
    {
        return code == other.code && values == other.values && name == other.name;
    }
};

/// A row by structure code and, of structures that exist more than once, the ID in the row; 1 of the others.
using RowKey = std::pair<int, int>;
using RowKeys = std::set<RowKey>;

constexpr int NameStructure = 2;     ///< "@NOM"
constexpr int MachineStructure = 3;  ///< "@GMC"
constexpr int CircuitStructure = 5;  ///< "@CPT"
constexpr int StirringStructure = 6; ///< "@AGI"

/// The place of a row's own ID among its values: the position of a circuit, the number of a shared part. 0 for a structure that
/// exists once.
int placeOfInstance(int code);

/// Which of its structure's rows it is: 1 for a structure that exists once, 0 for a row that is too short to tell.
int instanceOf(const ConfigurationRow &row);

/**
 * Reads the integers with which a row is written: structure code, field count, then each field as the count of its digits and
 * the digits; a name as the count of its characters and these. Nothing for what is no row: a field missing or left over, one
 * without digits, a digit outside 0 to 245, a number beyond 31 bits.
 */
std::optional<ConfigurationRow> readConfigurationRow(const QList<int> &numbers);

/// The fields as a reply has them. An empty name goes out as a blank: no field is without digits.
QList<int> wireFields(const ConfigurationRow &row);

} // namespace quv
