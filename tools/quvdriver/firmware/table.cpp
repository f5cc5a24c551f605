// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/table.h"

#include <algorithm>
#include <cmath>

namespace quv {

Table::Table(const FW_Turntable &table, double machineSpeed)
    : m_positions(table.positions()),
      m_round(std::max(m_positions.size(), 1)),
      m_stepsPerPlace(std::max(table.roundSteps(), 1) / m_round),
      m_tolerance(table.positioningTolerance() / m_stepsPerPlace),
      m_timePerPlace(table.stepTime() / machineSpeed)
{}

std::optional<double> Table::placeOf(int position) const
{
    const int place = m_positions.indexOf(position);
    return place < 0 ? std::nullopt : std::optional<double>(place);
}

double Table::placesOf(double steps) const
{
    return steps / m_stepsPerPlace;
}

qint64 Table::stepsOf(double place) const
{
    return std::llround(place * m_stepsPerPlace);
}

double Table::wrapped(double place) const
{
    return place - m_round * std::floor(place / m_round);
}

double Table::wayTo(double place, Direction direction) const
{
    const double clockwise = wrapped(place - lastPlace());
    const bool goesBack =
        direction == CounterClockwise || (direction == Shortest && clockwise > m_round - clockwise);
    return goesBack && clockwise > 0 ? clockwise - m_round : clockwise;
}

double Table::move(double way, double begin, int percent)
{
    const double duration = std::abs(way) * m_timePerPlace * FullSpeed / percent;
    moveWithin(duration, way, begin);
    return duration;
}

void Table::moveWithin(double duration, double way, double begin)
{
    ++m_moveCount;
    if (way != 0)
        m_moves.push_back({begin, duration, way});
}

double Table::bring(int position, double begin)
{
    const auto place = placeOf(position);
    return place ? move(wayTo(*place, Shortest), begin) : 0;
}

bool Table::isMoving(qint64 now) const
{
    return std::any_of(m_moves.begin(), m_moves.end(), [now](const Move &move) {
        return double(now) >= move.begin && double(now) < move.begin + move.duration;
    });
}

bool Table::hasMoves(qint64 now) const
{
    return std::any_of(m_moves.begin(), m_moves.end(),
                       [now](const Move &move) { return double(now) < move.begin + move.duration; });
}

double Table::place(qint64 now) const
{
    double place = m_place;
    for (const Move &move : m_moves) {
        if (double(now) >= move.begin + move.duration)
            place += move.way;
        else if (double(now) > move.begin)
            place += move.way * (double(now) - move.begin) / move.duration;
    }
    return wrapped(place);
}

double Table::lastPlace() const
{
    double place = m_place;
    for (const Move &move : m_moves)
        place += move.way;
    return wrapped(place);
}

int Table::position(qint64 now) const
{
    const double stands = place(now);
    const double nearest = std::round(stands);
    if (isMoving(now) || std::abs(stands - nearest) > m_tolerance)
        return 0;
    return m_positions.value(static_cast<int>(wrapped(nearest)));
}

void Table::stop(qint64 now)
{
    m_place = place(now);
    m_moves.clear();
}

void Table::settle(qint64 now)
{
    if (!hasMoves(now))
        stop(now);
}

} // namespace quv
