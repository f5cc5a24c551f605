// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/configurationrow.h"
#include "firmware/firmwareage.h"

#include <QuvFramework/fw_dispenser.h>

#include <QtCore/QMap>

#include <map>
#include <optional>
#include <vector>

namespace quv {

/**
 * The configuration of a simulated machine: integers that it keeps as they are written. It has the structures of its kind, at
 * first with what the machine is, and knows of their fields only which one tells the row's ID.
 */
class RowStore
{
public:
    enum class Outcome { Taken, FieldOutOfRange, BadParameters };

    /// \throws std::runtime_error when the machine cannot be told in rows
    RowStore(const FW_Machine &machine, FirmwareAge age);

    /// Version, minor version, number of structures, then of each its code and field count.
    QList<int> listing() const;

    /**
     * Structure code, ID, field count and the fields. A row that there is not is answered with `cmd_enabled` 0, but for the motor
     * that stirs a circuit: without one of its own it is that of all circuits, when there is one. Nothing for an unknown
     * structure and an ID outside 0 to 255.
     */
    std::optional<QList<int>> reply(int code, int id) const;

    /**
     * Takes the integers of a row, see readConfigurationRow. Fields that it does not have stay as they are; the first row of its
     * ID begins with those of an absent one. One that is absent and was before changes nothing.
     */
    Outcome write(const QList<int> &numbers);

    /// By code, then ID.
    std::vector<ConfigurationRow> rows() const;
    /// The value of a structure that exists once at its place; nothing when there is none.
    std::optional<int> value(int code, int place) const;

    /**
     * Takes rows of before; those that are not among them stay. None is taken when it throws.
     * \throws std::runtime_error for a row that write would refuse
     */
    void restore(const std::vector<ConfigurationRow> &rows);
    /// Those that are not as the machine was told.
    RowKeys changedRows() const;

private:
    using Rows = std::map<RowKey, ConfigurationRow>;

    ConfigurationRow rowOfMachine(int code, int id, const FW_Machine &machine) const;
    ConfigurationRow absentRow(int code, int id) const;
    Outcome take(const ConfigurationRow &row);

    FirmwareAge m_age = FirmwareAge::Equal;
    FW_Dispenser m_none{};          ///< of the machine's model, with nothing
    QMap<int, int> m_fieldCounts{}; ///< of each structure
    Rows m_rows{};
    Rows m_ofMachine{}; ///< as they were in the beginning
};

} // namespace quv
