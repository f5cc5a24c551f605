// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The circuits that are engaged in a process (001A). What is wrong with circuits it tells by itself, the rest the parts do.
class ActiveCircuits final : public FirmwarePart
{
public:
    explicit ActiveCircuits(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    std::vector<ActiveCircuit> activeCircuits(int process) const override;

private:
    FirmwareReply tell(const QList<int> &parameters) const;
    std::vector<ActiveCircuit> circuitsAtCriticalLevel() const;
    std::vector<ActiveCircuit> blockedCircuits(int state) const;

    SimulatedMachine &m_machine;
};

} // namespace quv
