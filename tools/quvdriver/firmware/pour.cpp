// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/pour.h"

#include "firmware/wiredigits.h"

#include <QtCore/QHash>

#include <algorithm>

namespace quv {
Pour::Pour(int criterion, const std::vector<CircuitPour> &circuits, int parallelism, qint64 begin)
    : m_criterion(criterion),
      m_end(double(begin))
{
    const int places = std::clamp(parallelism, 1, std::max(static_cast<int>(circuits.size()), 1));
    std::vector<double> freeFrom(static_cast<std::size_t>(places), double(begin));
    QHash<int, double> queueFreeFrom;
    for (const CircuitPour &circuit : circuits) {
        double &place = *std::min_element(freeFrom.begin(), freeFrom.end());
        if (circuit.isQueued)
            place = std::max(place, queueFreeFrom.value(circuit.queue, place));
        m_courses.push_back({circuit, place + circuit.approach});
        place += circuit.approach + circuit.duration;
        if (circuit.isQueued)
            queueFreeFrom[circuit.queue] = place;
        m_end = std::max(m_end, place);
    }
}

qint64 Pour::Course::pouredBy(double now) const
{
    if (now >= begin + circuit.duration)
        return limit();
    if (now <= begin)
        return 0;
    return std::min(limit(), static_cast<qint64>(double(circuit.total) * ((now - begin) / circuit.duration)));
}

std::vector<EngagedCircuit> Pour::engaged(qint64 now) const
{
    std::vector<EngagedCircuit> circuits;
    if (!isRunning(now))
        return circuits;
    for (const Course &course : m_courses) {
        if (double(now) < course.begin + course.circuit.duration)
            circuits.push_back(
                {course.circuit.position, course.circuit.nozzleValve, double(now) >= course.begin});
    }
    return circuits;
}

std::vector<PouredSteps> Pour::steps(qint64 now) const
{
    std::vector<PouredSteps> steps;
    for (const Course &course : m_courses)
        steps.push_back({course.circuit.position, course.limit(), course.pouredBy(double(now))});
    return steps;
}

bool Pour::turns(int position, qint64 now) const
{
    return isRunning(now) && std::any_of(m_courses.begin(), m_courses.end(), [=](const Course &course) {
               return course.circuit.position == position && double(now) >= course.begin &&
                      double(now) < course.begin + course.circuit.duration;
           });
}

QList<int> Pour::positions() const
{
    QList<int> positions;
    for (const Course &course : m_courses)
        positions.append(course.circuit.position);
    return positions;
}

PouredSteps Pour::cutOff(int position, qint64 now)
{
    const auto course = std::find_if(m_courses.begin(), m_courses.end(), [position](const Course &candidate) {
        return candidate.circuit.position == position;
    });
    if (course == m_courses.end())
        return {};
    const PouredSteps cut{position, course->limit(), course->pouredBy(double(now))};
    course->circuit.available = cut.poured;
    return cut;
}

QList<int> Pour::report(qint64 now) const
{
    QList<int> numbers{m_criterion, static_cast<int>(m_courses.size())};
    for (const Course &course : m_courses) {
        numbers.append(course.circuit.position);
        numbers.append(course.circuit.queue);
        appendWireNumber(numbers, course.circuit.total);
        appendWireNumber(numbers, course.pouredBy(double(now)));
    }
    return numbers;
}

} // namespace quv
