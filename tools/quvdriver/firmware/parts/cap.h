// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The cap that closes the nozzles by itself (0041).
class Cap final : public FirmwarePart
{
public:
    explicit Cap(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    void tellSensors(SensorWords &sensors) const override;
    ProcessSet atWork() const override;
    ProcessSet excluded() const override;
    void reset() override;
    void stop() override;

private:
    enum class Place { Closed, Open, Between };

    FirmwareReply move(const QList<int> &parameters);
    bool isThere() const;
    Place placeNow() const;

    SimulatedMachine &m_machine;
    Place m_from = Place::Closed; ///< of the last move, as what follows
    Place m_to = Place::Closed;
    qint64 m_end = 0;
};

} // namespace quv
