// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The inputs and outputs of a dispenser (0043), and what its sensors measure (0060).
class Sensors final : public FirmwarePart
{
public:
    explicit Sensors(SimulatedMachine &machine)
        : m_machine(machine),
          m_begin(machine.now()),
          m_looked(machine.now())
    {}

    std::vector<FirmwareCode> codes() override;
    void lookBack() override;

private:
    FirmwareReply tellStates() const;
    FirmwareReply measure(const QList<int> &parameters) const;
    qint64 temperature(int sensor) const;
    double minutesOfMachine(qint64 from, qint64 until) const;

    SimulatedMachine &m_machine;
    const qint64 m_begin;
    qint64 m_looked;     ///< until when the warmth is known
    double m_warmth = 0; ///< of work, in hundredths of a degree
};

} // namespace quv
