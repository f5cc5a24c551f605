// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "configfile.h"
#include "driver.h"

#include <functional>

namespace quv {

/// What a firmware says of its configuration.
struct OfferedStructures
{
    int version = 0;
    int minorVersion = 0;
    QList<int> codes{}; ///< ascending, each once
};

/// The configuration of the machine behind a driver. All operations throw RequestRefused, and as Driver::execute.
class FirmwareConfiguration
{
public:
    explicit FirmwareConfiguration(const Driver &driver) : m_driver(driver) {}

    /// \throws std::runtime_error for an answer that is no list of structures, or has too many
    OfferedStructures structures() const;
    /// \throws std::runtime_error for an answer that is no such row
    ConfigRow row(int code, int id) const;
    void write(const ConfigRow &row) const;
    /// The firmware keeps from now on what was written.
    void finalise() const;

    /**
     * Every row: of a structure that exists once for each circuit or reference, those that are present. They are asked for from
     * 1 to 32, on from there until eight in a row are not present, and to 64 at most. The row of a motor that stirs all circuits
     * has the ID 245.
     * \a tell hears how far it is, in percent, before each question.
     * \throws std::runtime_error for more than MaxConfigFields fields
     */
    std::vector<ConfigRow> allRows(const OfferedStructures &offered,
                                   const std::function<void(int percentage)> &tell) const;

private:
    const Driver &m_driver;
};

struct FieldChange
{
    QString label;
    QString from;
    QString to;
};

/// A row that the firmware does not have like this.
struct RowChange
{
    ConfigRow row; ///< as it is to be written
    std::vector<FieldChange> fields{};
};

/// The most structures that a firmware offers, and the most fields of a whole configuration.
inline constexpr int MaxStructures = 256;
inline constexpr int MaxConfigFields = 100000;

struct ConfigComparison
{
    std::vector<RowChange> changes{}; ///< in the order in which they are written
    QStringList warnings{};           ///< what is left out
};

/**
 * What the firmware has otherwise than a file: only the structures that the file has are looked at. Fields that the file's row
 * lacks are left as they are, and those that the firmware's row lacks are left out.
 * \throws std::runtime_error when the file is of another kind of machine
 */
ConfigComparison compare(const ConfigFile &file, const FirmwareConfiguration &firmware,
                         const std::function<void(int percentage)> &tell);

} // namespace quv
