// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stirringcmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "base/gate_p.h"
#include "processes/executionword_p.h"
#include "processes/fwprocess.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_utils.h>

namespace {

constexpr quv::FamilyGate stirsAll[] = {{63, 37}, {67}, {68, 3}, {70, 1}, {72}};
constexpr quv::FamilyGate runsBusy[] = {{63, 37}, {70, 1}, {72}};

constexpr char badDuration[] = "Stirring duration: invalid parameter";
constexpr char noDuration[] = "Stirring duration: expected INT or LONG parameter";

} // namespace

struct StirringCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::STIRRING;
    static constexpr auto commandText = "Stirring";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Stirring");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.required({"position", "a circuit's position; 0 is all circuits"}, self.m_moduleID,
                         {"DE00647", "DE00651", "Expected Position ID parameter"},
                         {"DE00646", "DE00650", "Position ID: expected INT parameter"});
        archive.required({"duration", "seconds, 0 to 60514; 0 stops, 60515 is without end"}, self.m_duration,
                         {"DE00649", "DE00653", "Expected stirring duration parameter"},
                         {{"DE00648", "Stirring duration: expected INT parameter"}, {"DE00652", noDuration}});
        archive.refuseUnless(checkDuration(self.m_duration),
                             {{"DE01893", badDuration}, {"DE00652", noDuration}});
        archive.optional({"busy", "whether the command lasts as long as the stirring"}, self.m_busyExecution,
                         {"DE02607", "DE02608", "Stirring execution type: expected BOOL parameter"});
    }
};

template class quv::DescribedCommand<StirringCmd, SerialProtoCommand>;

StirringCmd::StirringCmd(qlonglong duration) : m_duration(duration)
{
    if (!checkDuration(duration))
        throw FW_Exception("DE01891", badDuration, Q_FUNC_INFO);
}

StirringCmd::StirringCmd(int position, qlonglong duration, bool busyExecution)
    : m_duration(duration),
      m_busyExecution(busyExecution)
{
    if (!checkDuration(duration))
        throw FW_Exception("DE01892", badDuration, Q_FUNC_INFO);
    m_moduleID = position;
}

StirringCmd::StirringCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

StirringCmd::StirringCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

StirringCmd &StirringCmd::operator=(const StirringCmd &other)
{
    StirringCmd copy(other);
    m_command.swap(copy.m_command);
    m_protoAnswer.swap(copy.m_protoAnswer);
    m_xmlRpcAnswer.swap(copy.m_xmlRpcAnswer);
    m_machine.swap(copy.m_machine);
    m_parameters.swap(copy.m_parameters);
    m_moduleID = copy.m_moduleID;
    m_duration = copy.m_duration;
    m_busyExecution = copy.m_busyExecution;
    return *this;
}

StirringCmd *StirringCmd::clone() const
{
    return new StirringCmd(*this);
}

QList<int> StirringCmd::serialParameters(int) const
{
    QList<int> parameters;
    quv::appendTwoDigits(parameters, m_duration);
    parameters << static_cast<int>(m_busyExecution);
    return parameters;
}

long long StirringCmd::getCmdEstimatedExecutionTime(const FW_Machine *machine) const
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    if (!dispenser || (!m_busyExecution && m_moduleID != 0))
        return 0;
    if (FW_Dispenser::isSOLA100dispenser(dispenser->modelName()))
        return m_duration * 2000 + 10000;
    return m_duration * 1000;
}

TString StirringCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    return TString(
               QT_TRANSLATE_NOOP("QuvProtocol", "Stirring circuit position %1 for %2 seconds (%3 execution)"),
               quv::translationContext)
        .arg(QString::number(m_moduleID), false)
        .arg(QString::number(m_duration), false)
        .arg(quv::executionWord(m_busyExecution), true);
}

long long StirringCmd::infiniteDuration()
{
    return FWProcess::infiniteDuration();
}

long long StirringCmd::maxDuration()
{
    return FWProcess::maxDuration();
}

int StirringCmd::maxDuration(const QList<StirringCmd> &commands)
{
    QList<int> durations;
    for (const StirringCmd &command : commands)
        durations.append(static_cast<int>(command.duration()));
    return maxValue(durations);
}

bool StirringCmd::checkDuration(long long duration)
{
    return duration >= 0 && duration <= infiniteDuration();
}

bool StirringCmd::isStirAllSupported(const FW_Version &version)
{
    return quv::passesGate(stirsAll, version);
}

bool StirringCmd::isBusyExecutionSupported(const FW_Version &version)
{
    return quv::passesGate(runsBusy, version);
}

int StirringCmd::commandVersion(const FW_Version *version)
{
    if (!version || !isStirAllSupported(*version))
        return 0;
    return isBusyExecutionSupported(*version) ? 2 : 1;
}
