// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The buffer of errors: how many wait, the packets that carry them, and their clearing (000C).
class Errors final : public FirmwarePart
{
public:
    explicit Errors(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;

private:
    FirmwareReply answer(const QList<int> &parameters);
    FirmwareReply tellNumber() const;
    FirmwareReply tellPacket(int index);

    SimulatedMachine &m_machine;
};

} // namespace quv
