// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>

/** A process of the firmware that runs for a time: how long, how fast, and whether its command lasts as long. */
class QUVPROTOCOL_EXPORT FWProcess
{
public:
    /** What a duration counts. Other numbers, which a client may send, are kept and taken for seconds. */
    enum DurationType : int { Seconds = 0, Strokes = 1 };

    FWProcess() = default;
    /** A speed, or a duration, of 0 and below leaves the default. Throws DE01744 for a bad speed, DE01745 for a bad duration. */
    FWProcess(int speed, qlonglong duration, DurationType type, bool busyExecution);

    void setProcDefaults();

    long long duration() const { return m_duration; } ///< as durationType() counts; 0 stops the process
    int speed() const { return m_speed; }
    DurationType durationType() const { return static_cast<DurationType>(m_durationType); }
    /** True for a command that lasts as long as the process, false for one that only starts it. */
    bool isBusyExecution() const { return m_busyExecution; }

    static long long infiniteDuration();           ///< 60515, the greatest number of two digits: no end
    static long long maxDuration();                ///< 60514
    static bool checkDuration(long long duration); ///< 1 to maxDuration(), and infiniteDuration()
    static int configSpeed();          ///< 245: the firmware takes the speed that it is configured to
    static bool checkSpeed(int speed); ///< 1 to 100, and configSpeed()

protected:
    /** Two digits of the duration; those of 0 for a negative one, which no firmware could read. */
    void appendDuration(QList<int> &parameters) const;
    /** The duration as it travels over XML-RPC: an int, so that the upper half is lost. */
    int writtenDuration() const { return static_cast<int>(m_duration); }
    long long
    durationInMilliseconds() const; ///< of seconds; 0 for a negative time, and one beyond all numbers

    long long m_duration = 30;
    int m_speed = 50;
    int m_durationType = Seconds;
    bool m_busyExecution = false;
};
