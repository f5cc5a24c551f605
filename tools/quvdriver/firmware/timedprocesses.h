// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

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
struct TimedProcesses
{
    int mask = 0;
    qint64 since = 0;

    bool has(TimedProcess process) const { return (mask & static_cast<int>(process)) != 0; }
};

} // namespace quv
