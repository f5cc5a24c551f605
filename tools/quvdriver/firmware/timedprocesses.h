// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>

#include <utility>

namespace quv {

/// What a machine does by itself again and again; the values are bits of masks.
enum class TimedProcess { Recirculation = 1, Stirring = 2, Humidifier = 4, Cleaning = 8 };
constexpr int AllTimedProcesses = 15;

/// A timed process: so long it rests, then it is so long at work, in milliseconds.
struct Rhythm
{
    double pause = 0;
    double activity = 0;
};

/// Those that go on, and since when: each begins with its pause.
class TimedProcesses
{
public:
    bool has(TimedProcess process) const { return (m_mask & static_cast<int>(process)) != 0; }
    /// When it last began its pause anew.
    qint64 since(TimedProcess process) const { return m_since.value(static_cast<int>(process)); }

    /// From the \a moment on those of the mask go on. One that went on already does so as before.
    void follow(int mask, qint64 moment)
    {
        for (int process = 1; process <= AllTimedProcesses; process *= 2)
            if ((mask & ~m_mask & process) != 0)
                m_since[process] = moment;
        m_mask = mask;
    }
    void beginAnew(qint64 moment) { follow(std::exchange(m_mask, 0), moment); }

private:
    int m_mask = 0;
    QHash<int, qint64> m_since{}; ///< by their bits
};

} // namespace quv
