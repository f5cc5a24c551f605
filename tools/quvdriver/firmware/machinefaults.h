// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>
#include <QtCore/QSet>

#include <optional>
#include <vector>

namespace quv {

/// What is wrong with a machine, or has been done to it by a hand.
struct MachineFaults
{
    bool emergencyPressed = false;
    bool offlinePressed = false;
    bool doorOpen = false;
    bool canPresent = false;
    bool linkLost = false;       ///< nobody gets a reply
    QSet<int> blockedCircuits{}; ///< by position: their motors turn and nothing leaves the nozzle
    QSet<int> lyingSensors{};    ///< by canister ID: level sensors that tell the opposite of what is so
    QSet<int> refusingBoards{};  ///< by serial address
};

/// In rising order, so that a machine does the same each time.
QList<int> risingNumbers(const QSet<int> &numbers);

enum class FaultKind {
    Emergency,
    Offline,
    DoorOpen,
    CanPresent,
    LinkLost,
    CircuitBlocked,
    SensorLies,
    BoardRefuses
};

/// A fault for a time, in milliseconds of a machine that is not simulated.
struct FaultSpan
{
    FaultKind fault = FaultKind::Emergency;
    int number =
        0; ///< the circuit's position, the canister's ID or the board's address; 0 for a fault of the machine
    double begin = 0;
    std::optional<double> end{}; ///< nothing for one that lasts
};

/// The faults of a machine by its clock.
class FaultPlan
{
public:
    FaultPlan() = default;
    /// Begins at \a origin of the clock; a machine of another \a speed gets to each fault sooner.
    FaultPlan(const std::vector<FaultSpan> &spans, qint64 origin, double speed);

    /// The next moment at which something changes, once; nothing when it lies behind \a until.
    std::optional<qint64> takeChange(qint64 until);
    MachineFaults faultsAt(qint64 moment) const;

private:
    struct Span
    {
        FaultSpan span{};
        qint64 begin = 0;
        std::optional<qint64> end{};
    };

    std::vector<Span> m_spans{};
    std::vector<qint64> m_changes{}; ///< to come, the last first
};

} // namespace quv
