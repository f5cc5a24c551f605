// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/circuitprocess.h"
#include "firmware/simulatedmachine.h"

#include <vector>

namespace quv {

/// What cleans the nozzles: brushes and cleaning motors (0015, 002F), the ultrasound's bath (0025, 002F) and the cap (002F).
class Cleaning final : public FirmwarePart
{
public:
    explicit Cleaning(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    void tellSensors(SensorWords &sensors) const override;
    std::vector<ActiveCircuit> activeCircuits(int process) const override;
    ProcessSet atWork() const override;
    ProcessSet excluded() const override;
    void goOn() override;
    void stop() override { m_stages.clear(); }

private:
    enum class Phase { ByMotors, Brushing, Rinsing, Filling, Ultrasound, Emptying };

    /// A part of a cleaning, in which these nozzles are cleaned.
    struct Stage
    {
        Phase phase{};
        QList<int> positions{};
        double duration = 0; ///< milliseconds
        bool isEndless = false;
        qint64 end = 0;
    };

    FirmwareReply clean(int module, const QList<int> &parameters);
    FirmwareReply cleanNozzles(int module, const QList<int> &parameters);
    FirmwareReply useBath(const QList<int> &parameters);
    FirmwareReply begin(std::vector<Stage> stages, bool isBusy);
    FirmwareReply end(int module);
    std::vector<Stage> fullBath() const;
    std::vector<Stage> nozzleByNozzle(int module, int seconds) const;
    std::vector<Stage> rinsing(int module, int seconds) const;
    QList<int> positions(int module) const;
    QList<int> positionsOfMotors(int module) const;
    bool hasDevice(int kind) const;
    bool hasRinsingCap() const;
    const Stage *stage() const;

    SimulatedMachine &m_machine;
    std::vector<Stage> m_stages{}; ///< one behind the other; those that are over go
    bool m_isBusy = false;
    bool m_isOfNozzles = false; ///< begun as such
};

} // namespace quv
