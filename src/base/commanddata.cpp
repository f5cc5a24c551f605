// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commanddata.h"

#include "base/tokens_p.h"

#include <utility>

CommandData::CommandData(int commandID, QString commandName, QString firmwareCode, int leastParams,
                         int mostParams, int commandType, bool isMultiple, bool usesDispenser,
                         int workingLevel, int schedulingLevel, bool checksBusy, bool tracksExecutionTime,
                         long long busyTime, long long busyFrequency, bool recordsInStats, int machineUsage,
                         bool isPrivate, bool isErogation, bool isAvailable, int commandVersion)
    : id(commandID),
      name(std::move(commandName)),
      m_code(std::move(firmwareCode)),
      minParams(leastParams),
      maxParams(mostParams),
      type(commandType),
      multiple(isMultiple),
      useDispenser(usesDispenser),
      schedulingPriorityLevel(schedulingLevel),
      workingPriorityLevel(workingLevel),
      checkBusy(checksBusy),
      trackExecutionTime(tracksExecutionTime),
      busyTimeout(busyTime),
      busyCheckFrequency(busyFrequency),
      recordInStats(recordsInStats),
      machineObjUsage(machineUsage),
      privateCommand(isPrivate),
      erogationCommand(isErogation),
      available(isAvailable),
      version(commandVersion)
{}

void CommandData::clear()
{
    *this = CommandData();
}

unsigned int CommandData::code(bool *ok) const
{
    if (ok)
        *ok = !m_code.isEmpty();
    unsigned number = 0;
    quv::parseHex(m_code, number);
    return number;
}
