// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/rowstore.h"

#include "configurationrows.h"

#include "configuration/writeconfigurationparamcmd.h"

#include <QuvFramework/fw_exception.h>

#include <algorithm>
#include <stdexcept>

namespace quv {
namespace {

constexpr int MaxInstance = 255;
constexpr int HighestEnable = 2; // present, but disabled
constexpr int AllCircuits = 245; // the motor that stirs them all
constexpr int Structures = 26;

} // namespace

RowStore::RowStore(const FW_Machine &machine, FirmwareAge age) : m_age(age)
{
    if (const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine))
        m_none.setModel(dispenser->model());
    for (const ConfigurationInstance &instance : configurationInstances(machine)) {
        const ConfigurationRow row = rowOfMachine(instance.code, instance.id, machine);
        m_rows[{row.code, instanceOf(row)}] = row;
    }
    for (int code = 1; code <= Structures; ++code)
        if (ConfData::isCommandCodeSupported(code, machine.machineType()))
            m_fieldCounts[code] = absentRow(code, 1).fieldCount();
    for (const auto &[key, row] : m_rows)
        m_fieldCounts[row.code] = std::max(m_fieldCounts[row.code], row.fieldCount());
    m_ofMachine = m_rows;
}

/// What the library would write is how a machine tells what it is; reading it is this firmware's own business.
ConfigurationRow RowStore::rowOfMachine(int code, int id, const FW_Machine &machine) const
{
    QString reason = QStringLiteral("it does not read back");
    try {
        const WriteConfigurationParamCmd command(code, &machine, id);
        if (const auto row = readConfigurationRow(command.serialParameters(FW_Dispenser::CommandFamily1)))
            return agedRow(*row, m_age);
    } catch (const FW_Exception &error) {
        reason = error.text();
    }
    throw std::runtime_error(QStringLiteral("The machine has no row %1 %2: %3")
                                 .arg(ConfData::confCommandToString(code))
                                 .arg(id)
                                 .arg(reason)
                                 .toStdString());
}

ConfigurationRow RowStore::absentRow(int code, int id) const
{
    return rowOfMachine(code, id, m_none);
}

QList<int> RowStore::listing() const
{
    QList<int> numbers{configurationVersion(m_age), 0, static_cast<int>(m_fieldCounts.size())};
    for (auto structure = m_fieldCounts.begin(); structure != m_fieldCounts.end(); ++structure) {
        numbers.append(structure.key());
        numbers.append(structure.value());
    }
    return numbers;
}

std::optional<QList<int>> RowStore::reply(int code, int id) const
{
    if (!m_fieldCounts.contains(code) || id < 0 || id > MaxInstance)
        return std::nullopt;
    auto found = m_rows.find({code, placeOfInstance(code) == 0 ? 1 : id});
    if (found == m_rows.end() && code == StirringStructure)
        found = m_rows.find({code, AllCircuits});
    const ConfigurationRow row = found == m_rows.end() ? absentRow(code, id) : found->second;
    return QList<int>{code, id, row.fieldCount()} + wireFields(row);
}

RowStore::Outcome RowStore::write(const QList<int> &numbers)
{
    const auto row = readConfigurationRow(numbers);
    return row ? take(*row) : Outcome::BadParameters;
}

RowStore::Outcome RowStore::take(const ConfigurationRow &row)
{
    if (row.fieldCount() > m_fieldCounts.value(row.code) || placeOfInstance(row.code) >= row.values.size())
        return Outcome::BadParameters;
    if (row.values.at(0) > HighestEnable)
        return Outcome::FieldOutOfRange;
    const int id = instanceOf(row);
    auto present = m_rows.find({row.code, id});
    if (present == m_rows.end()) {
        if (!row.isPresent())
            return Outcome::Taken;
        if (id < 1 || id > MaxInstance)
            return Outcome::FieldOutOfRange;
        present = m_rows.insert({{row.code, id}, absentRow(row.code, id)}).first;
    }
    ConfigurationRow &taken = present->second;
    taken.values = row.values + taken.values.mid(row.values.size());
    if (row.name)
        taken.name = row.name;
    return Outcome::Taken;
}

std::vector<ConfigurationRow> RowStore::rows() const
{
    std::vector<ConfigurationRow> rows;
    for (const auto &[key, row] : m_rows)
        rows.push_back(row);
    return rows;
}

std::optional<int> RowStore::value(int code, int place) const
{
    const auto found = m_rows.find({code, 1});
    if (found == m_rows.end() || place >= found->second.values.size())
        return std::nullopt;
    return found->second.values.at(place);
}

void RowStore::restore(const std::vector<ConfigurationRow> &rows)
{
    const Rows before = m_rows;
    for (const ConfigurationRow &row : rows) {
        if (take(row) == Outcome::Taken)
            continue;
        m_rows = before;
        throw std::runtime_error(QStringLiteral("the firmware has no such row: structure %1 with %2 fields")
                                     .arg(row.code)
                                     .arg(row.fieldCount())
                                     .toStdString());
    }
}

RowKeys RowStore::changedRows() const
{
    RowKeys keys;
    for (const auto &[key, row] : m_rows) {
        const auto was = m_ofMachine.find(key);
        if (was == m_ofMachine.end() || !(was->second == row))
            keys.insert(key);
    }
    return keys;
}

} // namespace quv
