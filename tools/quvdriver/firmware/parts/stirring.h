// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/parts/circuitmotors.h"

namespace quv {

/// The stirring of canisters (0004): each by a motor of its own, or all by one.
class Stirring final : public CircuitMotors
{
public:
    explicit Stirring(SimulatedMachine &machine);

    std::vector<FirmwareCode> codes() override;

protected:
    bool hasMotor(const FW_Circuit &circuit) const override;
    Rhythm rhythm(const FW_Circuit &circuit) const override;
    int parallelism() const override { return m_machine.dispenser().stirringParallelism(); }
    bool movesAll(int module) const override { return module == 0 || hasOneMotor(); }

private:
    qint64 endOf(int seconds) const;
    FirmwareReply stir(int module, const QList<int> &parameters);
    bool hasOneMotor() const { return m_machine.dispenser().hasGlobalStirring(); }
};

} // namespace quv
