// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/cleaningcmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"

#include <QuvFramework/fw_brushbase.h>

namespace {

constexpr quv::FamilyGate runsBusy[] = {{70}};

constexpr char badType[] = "Cleaning type: invalid parameter";
constexpr char noType[] = "Cleaning type: expected INT parameter";

} // namespace

struct CleaningCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::CLEANING;
    static constexpr auto commandText = "Cleaning";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Cleaning");

    // the default of a request, which a command of one's own does not begin with
    static void tellArguments(quv::ArgumentTeller &teller)
    {
        CleaningCmd read;
        read.m_speed = configSpeed();
        arguments(read, teller);
    }

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.required({"type", "0 or 1"}, self.m_cleaningType,
                         {{"DE01731", noType}, {"DE01738", "Expected cleaning type parameter"}},
                         {"DE01731", "DE01737", noType});
        archive.refuseUnless(checkCleaningType(self.m_cleaningType), {{"DE01730", badType}, {}});
        archive.optional({"speed", "1 to 100; 245 as configured"}, self.m_speed,
                         {{"DE01733", "Turntable cleaning speed: expected INT parameter"},
                          {"DE01739", "Recirculation speed: expected INT parameter"}});
        archive.refuseUnless(checkSpeed(self.m_speed),
                             {{"DE01732", "Turntable cleaning speed: invalid parameter"}, {}});
        archive.required({"duration", "seconds, 1 to 60514; 60515 is without end; needed in a list"},
                         self.m_duration, {{}, {"DE01741", "Expected recirculation duration parameter"}},
                         {{"DE01735", "Turntable cleaning duration: expected INT parameter"},
                          {"DE01740", "Recirculation duration: expected INT or LONG parameter"}});
        archive.refuseUnless(checkDuration(self.m_duration),
                             {{"DE01734", "Turntable cleaning duration: invalid parameter"}, {}});
        archive.required({"position", "a circuit's position; 0 is all circuits; needed in a list"},
                         self.m_moduleID, {{}, {"DE01743", "Expected Position ID parameter"}},
                         {"DE01736", "DE01742", "Position ID: expected INT parameter"});
        archive.optional({"busy", "whether the command lasts as long as the cleaning"}, self.m_busyExecution,
                         {"DE02418", "DE02419", "Busy execution: expected BOOL parameter"});
    }
};

template class quv::DescribedCommand<CleaningCmd, SerialProtoCommand>;

CleaningCmd::CleaningCmd(int type, int speed, qlonglong duration, int position, bool busyExecution)
    : FWProcess(speed, duration, Seconds, false),
      m_cleaningType(type)
{
    if (!checkCleaningType(type))
        throw FW_Exception("DE01729", badType, Q_FUNC_INFO);
    m_busyExecution = busyExecution;
    if (position > 0)
        m_moduleID = position;
    if (duration == 0)
        m_duration = FW_BrushBase::defaultSelfCleaningTimeValue(-1);
}

CleaningCmd::CleaningCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    m_speed = configSpeed();
    read(value, Q_FUNC_INFO);
}

CleaningCmd::CleaningCmd(QList<QVariant> list) : DescribedCommand(list)
{
    m_speed = configSpeed();
    read(list, Q_FUNC_INFO);
}

CleaningCmd *CleaningCmd::clone() const
{
    return new CleaningCmd(*this);
}

XmlRpc::XmlRpcValue CleaningCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array = DescribedCommand::xmlrpc_parameters(ok);
    array[2] = writtenDuration();
    return array;
}

QList<int> CleaningCmd::serialParameters(int) const
{
    QList<int> parameters = {m_speed};
    appendDuration(parameters);
    parameters << fwCleaningType() << static_cast<int>(m_busyExecution);
    return parameters;
}

TString CleaningCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    const QString position = QString::number(m_moduleID);
    if (m_duration == 0)
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Cleaning STOP for circuit position %1"),
                       quv::translationContext)
            .arg(position, false);
    return TString(
               QT_TRANSLATE_NOOP("QuvProtocol", "Cleaning circuit position %1 for %2 seconds at speed %3"),
               quv::translationContext)
        .arg(position, false)
        .arg(QString::number(m_duration), false)
        .arg(QString::number(m_speed), false);
}

int CleaningCmd::fwCleaningType() const
{
    if (m_cleaningType == 0)
        return 2;
    return m_moduleID != 0 ? 3 : 1;
}

bool CleaningCmd::checkCleaningType(int type)
{
    return type == 0 || type == 1;
}

bool CleaningCmd::isBusyExecutionSupported(const FW_Version &version)
{
    return quv::passesGate(runsBusy, version);
}
