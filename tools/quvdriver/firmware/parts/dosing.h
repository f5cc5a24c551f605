// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/circuitprocess.h"
#include "firmware/pour.h"
#include "firmware/pourrequest.h"
#include "firmware/simulatedmachine.h"

#include <optional>

namespace quv {

/// The pumps of a dispenser: tints, purges, primings and packs (0017, 0035, 0023, 0024), and the report of the last of them (0074).
class Dosing final : public FirmwarePart
{
public:
    explicit Dosing(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    ProcessSet atWork() const override;
    std::vector<ActiveCircuit> activeCircuits(int process) const override;
    Withdrawal withdrawal(int canisterID) const override;
    void goOn() override;
    void stop() override;
    void reset() override { m_isInterrupted = false; }

private:
    enum class Movement { Steps, PouredStrokes, IdleStrokes, StrokesOrPack };

    FirmwareReply tint(const QList<int> &parameters);
    FirmwareReply strokes(const QList<int> &parameters, Movement movement);
    FirmwareReply begin(const std::optional<PourRequest> &request, Movement movement);
    static bool pours(const PourPart &part, Movement movement);
    static CircuitProcess processOf(const PourRequest &request, Movement movement);
    CircuitPour plan(const PourPart &part, Movement movement, double begin);
    bool cutOff(int position);

    SimulatedMachine &m_machine;
    Pour m_pour{};
    int m_process = 0;            ///< the number of the circuits' process that the pour is
    bool m_isInterrupted = false; ///< the last pour was stopped
};

} // namespace quv
