// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

#include <optional>

namespace quv {

/// The shelf that carries the can to the nozzles: moved, and its height (0071, 0072).
class Shelf final : public FirmwarePart
{
public:
    explicit Shelf(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    void tellSensors(SensorWords &sensors) const override;
    ProcessSet atWork() const override;
    ProcessSet excluded() const override;
    void reset() override;
    void stop() override;

private:
    /// Millimetres; nothing before the shelf has found its low end.
    using Height = std::optional<double>;

    FirmwareReply move(const QList<int> &parameters);
    FirmwareReply tellHeight(const QList<int> &parameters) const;
    bool isThere() const;
    void begin(double height, qint64 end);
    Height heightNow() const;
    bool goesUp() const;

    SimulatedMachine &m_machine;
    Height m_from{}; ///< of the last move, as what follows
    Height m_to{};
    qint64 m_begin = 0;
    qint64 m_end = 0;
};

} // namespace quv
