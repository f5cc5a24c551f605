// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// Milliseconds after which all that moves is at its origin.
constexpr double ResetDuration = 6000;

/// The search for the origins of all that moves (code 0001). What the machine is at ends for it.
class Resetting final : public FirmwarePart
{
public:
    explicit Resetting(SimulatedMachine &machine) : m_machine(machine), m_end(machine.now()) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    std::vector<ActiveCircuit> activeCircuits(int process) const override;
    ProcessSet atWork() const override;
    void stop() override { m_end = m_machine.now(); }

private:
    FirmwareReply begin();

    SimulatedMachine &m_machine;
    qint64 m_end = 0;
};

} // namespace quv
