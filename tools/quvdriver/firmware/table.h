// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_turntable.h>

#include <optional>
#include <vector>

namespace quv {

/**
 * The table of a rotating machine: where it stands by the machine's clock, and where it will, its moves coming one after the
 * other. A place is the number of a circuit in the order around the table, from 0; between two circuits it is a fraction.
 */
class Table
{
public:
    enum Direction { Clockwise, CounterClockwise, Shortest }; ///< clockwise is the order of the circuits
    static constexpr int FullSpeed = 100;                     ///< percent

    /// It stands at its first circuit.
    Table(const FW_Turntable &table, double machineSpeed);

    /// Nothing for a circuit that is not on the table.
    std::optional<double> placeOf(int position) const;
    double placesOf(double steps) const;
    qint64 stepsOf(double place) const;
    double round() const { return m_round; } ///< in places

    /// The way to a place from where it stands after all moves; negative is counter-clockwise.
    double wayTo(double place, Direction direction) const;
    /// Turns by so many places from the moment \a begin on, when all moves before have ended. Gives the milliseconds that it takes.
    double move(double way, double begin, int percent = FullSpeed);
    /// The same in a time that is given.
    void moveWithin(double duration, double way, double begin);
    /// Brings a circuit to the dosing point the shorter way; what is not on the table does not move it.
    double bring(int position, double begin);

    bool isMoving(qint64 now) const;
    bool hasMoves(qint64 now) const; ///< that it makes now or later
    double place(qint64 now) const;
    int position(qint64 now) const; ///< the circuit at the dosing point; 0 for none, as while it moves
    int moveCount() const { return m_moveCount; } ///< of the moves that were ever begun
    void stop(qint64 now);                        ///< gives up the moves that have not ended
    void settle(qint64 now);                      ///< forgets the moves when all have ended

private:
    struct Move
    {
        double begin = 0;
        double duration = 0;
        double way = 0;
    };

    double wrapped(double place) const;
    double lastPlace() const; ///< after all moves

    QList<int> m_positions{};
    double m_round = 1;
    double m_stepsPerPlace = 1;
    double m_tolerance = 0;    ///< in places
    double m_timePerPlace = 0; ///< milliseconds
    double m_place = 0;        ///< before all moves
    std::vector<Move> m_moves{};
    int m_moveCount = 0;
};

} // namespace quv
