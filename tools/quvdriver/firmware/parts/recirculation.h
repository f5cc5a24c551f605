// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/parts/circuitmotors.h"

namespace quv {

/// Colorant that goes round from its canister and back (0005): by a motor for it, or by the pump.
class Recirculation final : public CircuitMotors
{
public:
    explicit Recirculation(SimulatedMachine &machine);

    std::vector<FirmwareCode> codes() override;
    void giveWay(const QList<int> &positions) override { end(positions); }

protected:
    bool hasMotor(const FW_Circuit &circuit) const override;
    Rhythm rhythm(const FW_Circuit &circuit) const override;
    int parallelism() const override { return m_machine.dispenser().recirculatingParallelism(); }

private:
    FirmwareReply recirculate(int module, const QList<int> &parameters);
    bool countsStrokes() const;
};

} // namespace quv
