// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/circuitruns.h"

#include <algorithm>

namespace quv {

bool CircuitRuns::isTurning(int position, qint64 now) const
{
    const auto run = m_runs.find(position);
    return run != m_runs.end() && now < run->second.end;
}

QList<int> CircuitRuns::turning(qint64 now) const
{
    QList<int> positions;
    for (const auto &[position, run] : m_runs)
        if (now < run.end)
            positions.append(position);
    return positions;
}

bool CircuitRuns::isAnyBusy(qint64 now) const
{
    return isAny(now, [](const Run &run) { return run.isBusy; });
}

bool CircuitRuns::isAnyOfMachine(qint64 now) const
{
    return isAny(now, [](const Run &run) { return run.isBusy || run.isOfAll; });
}

template <class Condition>
bool CircuitRuns::isAny(qint64 now, Condition condition) const
{
    return std::any_of(m_runs.begin(), m_runs.end(), [now, condition](const auto &entry) {
        return now < entry.second.end && condition(entry.second);
    });
}

} // namespace quv
