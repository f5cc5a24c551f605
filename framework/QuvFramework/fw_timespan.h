// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

#include <limits>

/** A time that is asked for and given in units. It keeps what it was given in any of them. */
class FW_TimeSpan
{
public:
    /** The units, by the number with which all operations of the machine name them; any other number is milliseconds. */
    enum Unit { Milliseconds = 0, Seconds = 1, Minutes = 2 };

    FW_TimeSpan() = default;
    FW_TimeSpan(int value, int unit) : m_milliseconds(value * lengthOf(unit)) {}

    /** Whole units, what is left of one dropped; the greatest int when it is more than that. */
    int in(int unit) const
    {
        using Limits = std::numeric_limits<int>;
        return static_cast<int>(
            qBound<qint64>(Limits::min(), m_milliseconds / lengthOf(unit), Limits::max()));
    }

    bool operator==(FW_TimeSpan other) const { return m_milliseconds == other.m_milliseconds; }
    bool operator!=(FW_TimeSpan other) const { return !(*this == other); }

private:
    static constexpr qint64 lengthOf(int unit)
    {
        return unit == Minutes ? 60000 : unit == Seconds ? 1000 : 1;
    }

    qint64 m_milliseconds = 0;
};
