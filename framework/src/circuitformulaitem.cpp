// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/circuitformulaitem.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_turntable.h>

#include <QtCore/QHash>

#include <algorithm>
#include <cmath>
#include <vector>

long long CircuitFormulaItem::dosingTime(bool *ok) const
{
    constexpr double MillisecondsPerMinute = 60000;
    constexpr double Longest = 1e12; // thirty years; sums of more could leave the numbers
    const double stepsPerMinute = double(m_speed.value) * dosingMotor().resolution();
    const double duration = double(m_steps.value) * MillisecondsPerMinute / stepsPerMinute;
    const bool good = m_steps.ok && m_speed.ok && stepsPerMinute > 0 && std::abs(duration) <= Longest;
    if (ok)
        *ok = good;
    return good ? std::llround(duration) : 0;
}

bool CircuitFormulaItemList::hasNullQueueID() const
{
    return std::any_of(begin(), end(), [](const CircuitFormulaItem &item) { return item.queueID() == 0; });
}

bool CircuitFormulaItemList::getEstimatedDosingTime(long long &time) const
{
    // the least element is the place that is free next; nobody needs more places than items
    std::vector<long long> places(static_cast<std::size_t>(std::clamp(m_parallelism, 1, std::max(size(), 1))),
                                  0);
    QHash<int, long long> queueEnds;
    long long end = 0;
    for (const CircuitFormulaItem &item : *this) {
        bool ok = false;
        const long long duration = item.dosingTime(&ok);
        if (!ok)
            return false;
        std::pop_heap(places.begin(), places.end(), std::greater<>());
        long long begin = places.back();
        if (item.queueID() != 0)
            begin = std::max(begin, queueEnds.value(item.queueID()));
        places.back() = begin + duration;
        if (item.queueID() != 0)
            queueEnds[item.queueID()] = places.back();
        end = std::max(end, places.back());
        std::push_heap(places.begin(), places.end(), std::greater<>());
    }
    time = end;
    return true;
}

bool CircuitFormulaItemList::getEstimatedDosingTime(int position, const FW_Dispenser *dispenser,
                                                    long long &time) const
{
    const auto *table =
        dispenser ? dynamic_cast<const FW_Turntable *>(dispenser->getDevice(FW_Device::Turntable)) : nullptr;
    if (!table)
        return false;
    long long sum = 0;
    for (const CircuitFormulaItem &item : *this) {
        bool ok = false;
        const long long duration = item.dosingTime(&ok);
        if (!ok)
            return false;
        sum += duration +
               static_cast<long long>(table->distance(position, item.positionId())) * table->stepTime();
        position = item.positionId();
    }
    time = sum;
    return true;
}
