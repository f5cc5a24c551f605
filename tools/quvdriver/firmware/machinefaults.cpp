// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/machinefaults.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace quv {
namespace {

void addFault(MachineFaults &faults, const FaultSpan &span)
{
    switch (span.fault) {
    case FaultKind::Emergency:
        faults.emergencyPressed = true;
        break;
    case FaultKind::Offline:
        faults.offlinePressed = true;
        break;
    case FaultKind::DoorOpen:
        faults.doorOpen = true;
        break;
    case FaultKind::CanPresent:
        faults.canPresent = true;
        break;
    case FaultKind::LinkLost:
        faults.linkLost = true;
        break;
    case FaultKind::CircuitBlocked:
        faults.blockedCircuits.insert(span.number);
        break;
    case FaultKind::SensorLies:
        faults.lyingSensors.insert(span.number);
        break;
    case FaultKind::BoardRefuses:
        faults.refusingBoards.insert(span.number);
        break;
    }
}

} // namespace

QList<int> risingNumbers(const QSet<int> &numbers)
{
    QList<int> rising = numbers.values();
    std::sort(rising.begin(), rising.end());
    return rising;
}

FaultPlan::FaultPlan(const std::vector<FaultSpan> &spans, qint64 origin, double speed)
{
    const auto moment = [origin, speed](double milliseconds) {
        return origin + std::llround(milliseconds / speed);
    };
    for (const FaultSpan &span : spans) {
        Span planned{span, moment(span.begin), {}};
        m_changes.push_back(planned.begin);
        if (span.end) {
            planned.end = moment(*span.end);
            m_changes.push_back(*planned.end);
        }
        m_spans.push_back(planned);
    }
    std::sort(m_changes.begin(), m_changes.end(), std::greater<>());
    m_changes.erase(std::unique(m_changes.begin(), m_changes.end()), m_changes.end());
}

std::optional<qint64> FaultPlan::takeChange(qint64 until)
{
    if (m_changes.empty() || m_changes.back() > until)
        return std::nullopt;
    const qint64 moment = m_changes.back();
    m_changes.pop_back();
    return moment;
}

MachineFaults FaultPlan::faultsAt(qint64 moment) const
{
    MachineFaults faults;
    for (const Span &planned : m_spans) {
        if (planned.begin <= moment && (!planned.end || moment < *planned.end))
            addFault(faults, planned.span);
    }
    return faults;
}

} // namespace quv
