// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The buttons, the door and the boards that refuse: what is wrong, or done by a hand, stops what runs and raises its errors.
class Safety final : public FirmwarePart
{
public:
    explicit Safety(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override { return {}; }
    void tellStatus(StatusWords &status, int module) const override;
    void tellSensors(SensorWords &sensors) const override;
    void goOn() override;

private:
    SimulatedMachine &m_machine;
    MachineFaults m_known{};
};

} // namespace quv
