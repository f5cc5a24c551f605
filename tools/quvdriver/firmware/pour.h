// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>

#include <algorithm>
#include <vector>

namespace quv {

/// What one circuit does in a pour.
struct CircuitPour
{
    int position = 0;
    int queue = 0;
    int nozzleValve = 0;
    bool isQueued = false; ///< waits for the circuits of its queue that came before it
    qint64 total = 0;      ///< steps that are to leave the nozzle
    qint64 available = 0; ///< steps that the canister holds; when they are out the motor turns on for nothing
    double approach =
        0; ///< milliseconds before the motor turns, in which the circuit is brought to the dosing point
    double duration = 0; ///< milliseconds that the motor turns
};

/// A circuit that is not yet through with its part of a pour.
struct EngagedCircuit
{
    int position = 0;
    int nozzleValve = 0;
    bool turns = false; ///< its motor, at this moment
};

/// What became of the steps that a circuit has taken from its canister.
struct PouredSteps
{
    int position = 0;
    qint64 taken = 0;
    qint64 poured = 0;
};

/**
 * A pour under the machine's clock: when each circuit begins and ends, and what it has poured by a moment.
 *
 * In the order of the list each circuit takes the place that is free first, of as many as the machine pours at once, and
 * waits there for its queue.
 */
class Pour
{
public:
    Pour() = default; ///< one that is over and poured nothing
    /// \a begin in the clock's milliseconds; \a criterion is the one that the report tells.
    Pour(int criterion, const std::vector<CircuitPour> &circuits, int parallelism, qint64 begin);

    bool isRunning(qint64 now) const { return double(now) < m_end; }
    /// Whether the motor of the circuit turns.
    bool turns(int position, qint64 now) const;

    QList<int> positions() const; ///< of its circuits, in their order

    /// From now on nothing leaves the circuit's nozzle any more.
    PouredSteps cutOff(int position, qint64 now);
    /// All motors stand still from now on.
    void end(qint64 now) { m_end = std::min(m_end, double(now)); }

    /// Its circuits that are not yet through; none once it has been ended.
    std::vector<EngagedCircuit> engaged(qint64 now) const;
    std::vector<PouredSteps> steps(qint64 now) const;
    /// The numbers of the firmware's report: criterion, number of circuits, then of each circuit position, queue, and the
    /// steps in all and so far, each as a count of digits and the digits.
    QList<int> report(qint64 now) const;

private:
    struct Course
    {
        CircuitPour circuit{};
        double begin = 0; ///< when the motor begins to turn

        qint64 limit() const { return std::min(circuit.total, circuit.available); }
        qint64 pouredBy(double now) const;
    };

    int m_criterion = 1;
    std::vector<Course> m_courses{};
    double m_end = 0;
};

} // namespace quv
