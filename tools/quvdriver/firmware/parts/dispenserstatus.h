// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The question for a dispenser's status, of itself or of a circuit (0006).
class DispenserStatusPart final : public FirmwarePart
{
public:
    explicit DispenserStatusPart(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;

private:
    FirmwareReply tell(int module) const;

    SimulatedMachine &m_machine;
};

} // namespace quv
