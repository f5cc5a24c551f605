// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/rowstore.h"
#include "firmware/simulatedmachine.h"
#include "store/firmwarestate.h"

#include <QuvFramework/fw_version.h>

#include <memory>
#include <optional>

namespace quv {

/// What a simulated firmware's configuration is like.
struct SimulatedConfiguration
{
    FirmwareAge age = FirmwareAge::Equal;
    std::shared_ptr<FirmwareState> state{}; ///< that outlasts the firmware; null for none
    std::optional<int> stateID{};           ///< of the machine, when it is not the first of its kind
    FW_Version version{};                   ///< of the firmware; the usual one when it is not valid
};

/// The configuration: rows that are written, read and made permanent (0065, 0066, 0067).
class Rows final : public FirmwarePart
{
public:
    /// Begins with the rows that the state has kept of \a machine.
    /// \throws std::runtime_error for a machine that cannot be told in rows, and a state that is not this firmware's
    Rows(SimulatedMachine &simulated, const FW_Machine &machine, SimulatedConfiguration configuration);

    /// Those that are not as the machine is.
    RowKeys changedRows() const { return m_rows.changedRows(); }

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    ProcessSet atWork() const override;

private:
    FirmwareReply write(const QList<int> &parameters);
    FirmwareReply read(const QList<int> &parameters) const;
    FirmwareReply finalise();
    void followRows();

    SimulatedMachine &m_machine;
    RowStore m_rows;
    std::shared_ptr<FirmwareState> m_state{};
    std::optional<int> m_stateID{}; ///< under which the state keeps the rows
    qint64 m_end = 0;               ///< of the finalisation
};

} // namespace quv
