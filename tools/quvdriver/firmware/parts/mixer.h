// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

#include <vector>

namespace quv {

/// A can mixer: its plates move, clamp a can and mix it in cycles, and its status tells (0030, 0031, 0033).
class Mixer final : public FirmwarePart
{
public:
    explicit Mixer(SimulatedMachine &machine) : m_machine(machine) {}

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    ProcessSet atWork() const override;
    void reset() override;
    void goOn() override;
    void stop() override;

private:
    /// The plates' way, or a cycle. Steps come one after the other.
    struct Step
    {
        int cycle = 0;     ///< its number from 1; 0 for the plates' way
        int speed = 0;     ///< of a cycle
        int force = 0;     ///< with which the plates hold the can
        double from = 0;   ///< height between the plates at its begin, millimetres
        double height = 0; ///< the same at its end
        double begin = 0;
        double end = 0;
        bool turnsUpright = false;
    };

    FirmwareReply movePlates(const QList<int> &parameters);
    FirmwareReply mix(const QList<int> &parameters);
    FirmwareReply tell(int module) const;
    FirmwareReply refusedToBegin(Process process) const;
    bool mayBegin(Process process) const;

    void add(Step step, double milliseconds);
    void addPlates(double height, int force, double percent, double longest = Unlimited);
    const Step *stepNow() const; ///< null when nothing moves
    double heightNow() const;
    double secondsLeft() const;
    bool isOpen() const;
    bool holdsCan() const;

    SimulatedMachine &m_machine;
    double m_height = OpenPlates; ///< before the steps
    int m_force = 0;              ///< likewise; 0 while no can is held
    bool m_isMix = false;         ///< whether the steps are those of a mixing
    bool m_isInterrupted = false;
    bool m_isTurned = false; ///< stopped with the can in any position
    std::vector<Step> m_steps{};

    static constexpr double OpenPlates = 400; // millimetres
    static constexpr double Can = 250;        // likewise; every can that somebody puts in is so high
    static constexpr double Unlimited = 1e9;  // milliseconds
};

} // namespace quv
