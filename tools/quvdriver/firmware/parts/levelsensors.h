// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The sensors in the canisters (0029), which tell how much the pumps can still take.
class LevelSensors final : public FirmwarePart
{
public:
    explicit LevelSensors(SimulatedMachine &machine) : m_machine(machine), m_end(machine.now()) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    ProcessSet atWork() const override;
    ProcessSet excluded() const override;
    void stop() override { m_end = m_machine.now(); }

private:
    FirmwareReply read(const QList<int> &parameters);
    bool isReading() const { return m_machine.now() < m_end; }

    SimulatedMachine &m_machine;
    qint64 m_end = 0; ///< of the reading
};

} // namespace quv
