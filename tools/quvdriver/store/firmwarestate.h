// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/configurationrow.h"
#include "savedfile.h"

#include <QuvFramework/fw_global.h>

#include <QtCore/QString>

#include <map>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace quv {

/// Greatest size of a state file, bytes.
inline constexpr int MaxStateFileSize = 1024 * 1024;

/**
 * The file in which simulated machines keep their configuration while they are without power, see docs/driver.md. One file serves
 * all machines of a driver: the first dispenser and the first mixer under their kinds, others by their IDs as well. Any number of threads may use it.
 */
class FirmwareState
{
public:
    /// Reads the file; one that does not exist is empty. \throws std::runtime_error with the path and what is wrong
    explicit FirmwareState(const QString &path);

    const QString &path() const { return m_path; }

    /// Keeps other drivers from the file from now on. \throws std::runtime_error when one has it, or it cannot be written
    void claim();

    /// The rows that were kept of the first machine of this kind, or of the one with the \a id.
    std::vector<ConfigurationRow> rows(SerialDeviceType type, std::optional<int> id = {}) const;
    /// Keeps the rows instead of those before; on failure the file and the rows stay. \throws std::runtime_error
    void keep(SerialDeviceType type, std::vector<ConfigurationRow> rows, std::optional<int> id = {});

private:
    /// The kind, and the ID of one that is not the first.
    using Key = std::pair<SerialDeviceType, std::optional<int>>;
    using Machines = std::map<Key, std::vector<ConfigurationRow>>;

    static Machines machinesIn(const std::string &text);
    void write(const Machines &machines) const;
    [[noreturn]] void fail(const std::string &reason) const;

    QString m_path{};
    std::optional<FileLock> m_lock{};
    mutable std::mutex m_mutex{};
    Machines m_machines{};
};

} // namespace quv
