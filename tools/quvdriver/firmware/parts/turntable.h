// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The table of a rotating machine: brought to a circuit or turned by steps, and where its circuits sit (0016, 0018, 0019).
class Turntable final : public FirmwarePart
{
public:
    explicit Turntable(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    void tellSensors(SensorWords &sensors) const override;
    ProcessSet atWork() const override;
    void reset() override;
    void goOn() override;
    void stop() override;

private:
    /// A circuit that was turned away from the dosing point, to be filled.
    struct Refill
    {
        int position = 0;
        int move = 0; ///< its number; the next one takes the circuit away
    };

    FirmwareReply move(int module, const QList<int> &parameters);
    FirmwareReply moveSteps(const QList<int> &parameters);
    FirmwareReply tellPositions() const;

    SimulatedMachine &m_machine;
    Refill m_refill{};
    bool m_unlocksRollbar = true; ///< of the last move that was asked for
};

} // namespace quv
