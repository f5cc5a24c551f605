// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>

#include <map>

namespace quv {

/// Motors of circuits that were told to turn, each until an end of its own.
class CircuitRuns
{
public:
    struct Run
    {
        qint64 end = 0; ///< in the clock's milliseconds, or NeverEnds
        bool isBusy = false;
        bool isOfAll = false; ///< one of all circuits that began together
    };

    void begin(int position, const Run &run) { m_runs[position] = run; }
    void end(int position) { m_runs.erase(position); }

    bool isTurning(int position, qint64 now) const;
    QList<int> turning(qint64 now) const; ///< positions in ascending order
    bool isAnyBusy(qint64 now) const;
    bool isAnyOfMachine(qint64 now) const; ///< a busy one, or one of all

private:
    template <class Condition>
    bool isAny(qint64 now, Condition condition) const;

    std::map<int, Run> m_runs{};
};

} // namespace quv
