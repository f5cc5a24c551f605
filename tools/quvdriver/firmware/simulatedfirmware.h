// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/parts/rows.h"
#include "firmware/simulatedmachine.h"

namespace quv {

/**
 * A machine without hardware: a list of parts, and the status that they tell together. It keeps state: a process that takes time
 * runs on after the command that began it, and is told by the status until it ends; meanwhile nothing that it excludes can begin.
 *
 * It knows the machine that it is made of, but nothing of how the library writes a request. docs/driver.md lists its codes.
 */
class SimulatedFirmware final : public Firmware
{
public:
    using Clock = SimulatedMachine::Clock;

    /// The firmware of \a machine. Processes take their usual time divided by \a speed, which is above 0.
    /// It begins with the configuration that its state has kept.
    /// \throws std::runtime_error for a machine that cannot be told in rows, and a state that is not this firmware's
    explicit SimulatedFirmware(const FW_Machine &machine, double speed = 1, Clock clock = steadyClock(),
                               SimulatedConfiguration configuration = {});

    /// \throws std::runtime_error while the link is lost
    FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) override;
    double speed() const override { return m_machine.speed(); }
    void canisterFilled(int canisterID, double quantity) override
    {
        m_machine.goOn();
        m_machine.setContent(canisterID, quantity);
    }

    double content(int canisterID) const { return m_machine.content(canisterID); } ///< what it really holds

    /// The faults to come, from now on.
    void play(const std::vector<FaultSpan> &faults) { m_machine.play(faults); }

    /// The rows of its configuration that are not as the machine is.
    RowKeys changedRows() const { return m_rows->changedRows(); }

    static Clock steadyClock();

private:
    template <class Part, class... Arguments>
    Part &add(Arguments &&...arguments);
    QStringList codes() const;

    SimulatedMachine m_machine;
    Rows *m_rows = nullptr;              ///< one of the machine's parts
    std::vector<FirmwareCode> m_codes{}; ///< those of its command family
};

} // namespace quv
