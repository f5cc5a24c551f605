// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The end of all that runs (code 0003).
class Stopping final : public FirmwarePart
{
public:
    explicit Stopping(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;

private:
    FirmwareReply stopAll(const QList<int> &parameters);

    SimulatedMachine &m_machine;
};

} // namespace quv
