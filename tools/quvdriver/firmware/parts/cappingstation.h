// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

#include <array>
#include <vector>

namespace quv {

/// The capping station beside a dispenser: its cycles, its actuators and its boards' procedures (0032, 0027, 0028, 0037).
class CappingStation final : public FirmwarePart
{
public:
    explicit CappingStation(SimulatedMachine &machine);

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    void tellSensors(SensorWords &sensors) const override;
    ProcessSet atWork() const override;
    ProcessSet excluded() const override;
    void reset() override;
    void goOn() override;
    void stop() override;

private:
    static constexpr int ActuatorCount = 6;

    enum class Place { Home, Working, Between };
    enum class Activity { Moving, GoingHome, Plugging, Mixing, Calibrating };

    /// What the station is at for a time. Steps come one after the other.
    struct Step
    {
        Activity activity = Activity::Moving;
        double end = 0;
        int actuator = 0; ///< of a movement, and where it goes
        Place place = Place::Home;
    };

    FirmwareReply beginCycle(const QList<int> &parameters);
    FirmwareReply moveActuator(const QList<int> &parameters);
    FirmwareReply beginProcedure(const QList<int> &parameters);
    static FirmwareReply tellCommands();

    void add(Activity activity, double seconds);
    void addMove(int actuator, Place place);
    const Step *stepNow() const; ///< null when nothing goes on
    bool isAt(Activity activity) const;
    bool isMoving(int actuator, Place place) const;
    Place placeNow(int actuator) const;
    static void apply(const Step &step, std::array<Place, ActuatorCount> &places);

    SimulatedMachine &m_machine;
    const bool m_isThere;
    std::array<Place, ActuatorCount> m_places{}; ///< of the actuators 1 to 6, before the steps
    int m_plugs = FullMagazine;
    bool m_lacksPlug = false; ///< the last can that was to be closed got none
    std::vector<Step> m_steps{};

    static constexpr int FullMagazine = 20;
};

} // namespace quv
