// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_brushbase.h>
#include <QuvFramework/fw_cleaningmotor.h>
#include <QuvFramework/fw_cleanjob.h>
#include <QuvFramework/fw_metatype.h>

namespace {

const bool isCleaningMotorRegistered = RegisterTravellingType<FW_CleaningMotor>("FW_CleaningMotor");

// The policy's number: four bits of schedule, two of target, two of process.
constexpr int schedules = 16;
constexpr int targets = 4;
constexpr int processes = 4;

constexpr bool isBelow(int value, int end)
{
    return value >= 0 && value < end;
}

} // namespace

FW_CleanJob::FW_CleanJob(CleaningType type, FW_ModelNumber model)
    : m_timeout(defaultTimeoutValue(type, model), FW_TimeSpan::Minutes),
      m_scheduleMask(defaultScheduleMaskValue(type, model))
{}

int FW_CleanJob::defaultTimeoutValue(int cleaningType, FW_ModelNumber)
{
    return cleaningType == Accurate ? 240 : 60;
}

int FW_CleanJob::defaultScheduleMaskValue(int cleaningType, FW_ModelNumber)
{
    return cleaningType == Accurate ? OnStartup | OnTimeout : AfterTinting;
}

int FW_CleanJob::defaultProcessTypeValue(FW_ModelNumber)
{
    return 1;
}

bool FW_CleanJob::canConfigureCleaningType(int cleaningType, int brush, FW_ModelNumber model)
{
    if (FW_Machine::getMachineType(model.model()) == static_cast<int>(SerialDeviceType::Mixer))
        return false;
    return cleaningType == Accurate || (cleaningType == Quick && brush == 0);
}

bool FW_CleanJob::operator==(const FW_CleanJob &other) const
{
    return m_cleaningEnabled == other.m_cleaningEnabled && m_timeout == other.m_timeout &&
           m_turntableSpeed == other.m_turntableSpeed && m_scheduleMask == other.m_scheduleMask;
}

int FW_BrushBase::defaultSelfCleaningTimeValue(FW_ModelNumber)
{
    return 15;
}

FW_CleaningMotor::FW_CleaningMotor(FW_ModelNumber model)
    : FW_Motor(Cleaning),
      FW_CleanJob(Accurate, model),
      m_duration(defaultDurationValue(model)),
      m_process(defaultProcessTypeValue(model))
{}

bool FW_CleaningMotor::checkDuration(int seconds)
{
    return seconds >= 1 && seconds <= 3600;
}

int FW_CleaningMotor::defaultDurationValue(FW_ModelNumber)
{
    return 30;
}

int FW_CleaningMotor::cleanPolicyFwMask(int schedule, int target, int process)
{
    if (!isBelow(schedule, schedules) || !isBelow(target, targets) || !isBelow(process, processes))
        return -1;
    return schedule + schedules * (target + targets * process);
}

bool FW_CleaningMotor::decodeCleanPolicyFwMask(int policy, int &schedule, int &target, int &process)
{
    if (!isBelow(policy, schedules * targets * processes))
        return false;
    schedule = policy % schedules;
    target = policy / schedules % targets;
    process = policy / (schedules * targets);
    return true;
}

FW_CleaningMotor::FW_CleaningMotor(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_CleaningMotor::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_CleaningMotor::operator==(const FW_CleaningMotor &other) const
{
    return quv::haveSameMembers(*this, other);
}
