// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/machinefaults.h"

#include <QuvFramework/fw_machine.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <nlohmann/json_fwd.hpp>

#include <vector>

namespace quv {

/// What goes wrong with the driver's machines, and when: a file, see docs/driver.md.
class Scenario
{
public:
    /// Greatest size of its file, bytes.
    static constexpr int MaxFileSize = 1024 * 1024;

    /// \throws std::runtime_error that tells which member is wrong, as 'Scenario "a.json": events[3].at: must be ...'
    explicit Scenario(const QString &path);

    /// The faults of the machine that is driven next. \throws std::runtime_error for one that it cannot have
    std::vector<FaultSpan> faultsOfNext(const FW_Machine &machine);
    /// To be called after the last machine. \throws std::runtime_error for an event of a machine that there is not
    void checkMachines() const;

    struct Event
    {
        FaultSpan span{};
        QString place{};
        QString
            machine{}; ///< "dispenser" for the first of that kind, "dispenser:2" by its ID; empty for the first of all
    };

private:
    [[noreturn]] void refuse(const QString &text) const;

    QString m_path{};
    std::vector<Event> m_events{};
    QStringList m_names{}; ///< by which the machines are called that came by now
};

/// The faults of a machine file, which are there from the beginning to the end. \throws std::runtime_error as Scenario
std::vector<FaultSpan> standingFaults(const nlohmann::json &faults, const FW_Machine &machine);

} // namespace quv
