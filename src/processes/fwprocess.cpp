// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/fwprocess.h"

#include "base/digits_p.h"
#include "base/wire_p.h"
#include "processes/milliseconds_p.h"

#include <QuvFramework/fw_exception.h>

#include <algorithm>

FWProcess::FWProcess(int speed, qlonglong duration, DurationType type, bool busyExecution)
    : m_durationType(type),
      m_busyExecution(busyExecution)
{
    if (speed > 0) {
        if (!checkSpeed(speed))
            throw FW_Exception("DE01744", "Speed: invalid parameter", Q_FUNC_INFO);
        m_speed = speed;
    }
    if (duration > 0) {
        if (!checkDuration(duration))
            throw FW_Exception("DE01745", "Duration: invalid parameter", Q_FUNC_INFO);
        m_duration = duration;
    }
}

void FWProcess::setProcDefaults()
{
    *this = FWProcess();
}

long long FWProcess::infiniteDuration()
{
    return quv::unsetTwoDigits;
}

long long FWProcess::maxDuration()
{
    return infiniteDuration() - 1;
}

bool FWProcess::checkDuration(long long duration)
{
    return duration >= 1 && duration <= infiniteDuration();
}

int FWProcess::configSpeed()
{
    return quv::unsetDigit;
}

bool FWProcess::checkSpeed(int speed)
{
    constexpr int fullSpeed = 100;
    return (speed >= 1 && speed <= fullSpeed) || speed == configSpeed();
}

void FWProcess::appendDuration(QList<int> &parameters) const
{
    quv::appendTwoDigits(parameters, std::max(m_duration, 0LL));
}

long long FWProcess::durationInMilliseconds() const
{
    return quv::millisecondsOf(m_duration);
}
