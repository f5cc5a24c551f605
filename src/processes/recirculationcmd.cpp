// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/recirculationcmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"
#include "processes/executionword_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <algorithm>
#include <limits>

namespace {

constexpr quv::FamilyGate recirculatesAll[] = {{63, 37}, {68, 3}, {70, 1}, {72}};
constexpr quv::FamilyGate runsBusy[] = {{63, 37}, {69, 1}, {70, 1}, {72}};

constexpr char noPosition[] = "Expected Position ID parameter";

} // namespace

struct RecirculationCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::RECIRCULATION;
    static constexpr auto commandText = "Recirculation";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Recirculating");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.required({"position", "a circuit's position, or its ID; 0 is all circuits"}, self.m_moduleID,
                         {"DE00655", "DE00661", noPosition},
                         {"DE00654", "DE00660", "Position ID: expected INT parameter"});
        archive.refuseUnless(self.hasKnownPosition(), {"DE02083", "DE02085", noPosition});
        archive.required({"duration", "seconds, or strokes; 0 stops, 60515 is without end"}, self.m_duration,
                         {"DE00657", "DE00663", "Expected recirculation duration parameter"},
                         {{"DE00656", "Recirculation duration: expected INT parameter"},
                          {"DE00662", "Recirculation duration: expected INT or LONG parameter"}});
        archive.optional({"speed", "1 to 100; 245 as configured"}, self.m_speed,
                         {"DE00658", "DE00664", "Recirculation speed: expected INT parameter"});
        archive.optional({"duration_type", "0 seconds, 1 strokes"}, self.m_durationType,
                         {"DE02084", "DE02086", "Recirculation duration type: expected INT parameter"});
        archive.optional({"busy", "whether the command lasts as long as the process"}, self.m_busyExecution,
                         {"DE02605", "DE02606", "Recirculation execution type: expected BOOL parameter"});
    }
};

template class quv::DescribedCommand<RecirculationCmd, SerialProtoCommand>;

RecirculationCmd::RecirculationCmd(int position, qlonglong duration, int speed, DurationType type,
                                   bool busyExecution, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser),
      FWProcess(speed, duration, type, busyExecution)
{
    m_moduleID = position;
}

RecirculationCmd::RecirculationCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
    takePositionOfCircuit();
}

RecirculationCmd::RecirculationCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
    takePositionOfCircuit();
}

RecirculationCmd *RecirculationCmd::clone() const
{
    return new RecirculationCmd(*this);
}

bool RecirculationCmd::hasKnownPosition() const
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine());
    return !dispenser || m_moduleID == 0 || dispenser->hasCircuitPosition(m_moduleID, false) ||
           dispenser->hasCircuitID(m_moduleID);
}

void RecirculationCmd::takePositionOfCircuit()
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine());
    if (dispenser && m_moduleID != 0 && !dispenser->hasCircuitPosition(m_moduleID, false))
        m_moduleID = dispenser->getCircuitById(m_moduleID)->positionId();
}

XmlRpc::XmlRpcValue RecirculationCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array = DescribedCommand::xmlrpc_parameters(ok);
    array[1] = writtenDuration();
    return array;
}

QList<int> RecirculationCmd::serialParameters(int) const
{
    QList<int> parameters = {m_speed};
    if (m_durationType == Strokes) {
        const auto strokes = std::clamp<long long>(m_duration, 0, std::numeric_limits<int>::max());
        parameters << 0 << 0 << static_cast<int>(strokes);
    } else {
        appendDuration(parameters);
        parameters << 0;
    }
    parameters << static_cast<int>(m_busyExecution);
    return parameters;
}

long long RecirculationCmd::getCmdEstimatedExecutionTime(const FW_Machine *) const
{
    return m_busyExecution || m_moduleID == 0 ? durationInMilliseconds() : 0;
}

TString RecirculationCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    const QString position = QString::number(m_moduleID);
    if (m_duration == 0)
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Recirculation STOP for circuit position %1"),
                       quv::translationContext)
            .arg(position, false);
    const char *text =
        m_durationType == Strokes
            ? QT_TRANSLATE_NOOP("QuvProtocol",
                                "Recirculating circuit position %1 for %2 strokes at speed %3 (%4 execution)")
            : QT_TRANSLATE_NOOP(
                  "QuvProtocol",
                  "Recirculating circuit position %1 for %2 seconds at speed %3 (%4 execution)");
    return TString(text, quv::translationContext)
        .arg(position, false)
        .arg(QString::number(m_duration), false)
        .arg(QString::number(m_speed), false)
        .arg(quv::executionWord(m_busyExecution), true);
}

bool RecirculationCmd::supportsStrokesRecirculation(MachineModel model)
{
    return model == MachineModel::Rotan || model == MachineModel::Lirador || model == MachineModel::Sola100;
}

bool RecirculationCmd::isRecirculateAllSupported(const FW_Version &version)
{
    return quv::passesGate(recirculatesAll, version);
}

bool RecirculationCmd::isBusyExecutionSupported(const FW_Version &version)
{
    return quv::passesGate(runsBusy, version);
}

int RecirculationCmd::commandVersion(const FW_Version *version)
{
    if (!version || !isRecirculateAllSupported(*version))
        return 0;
    return isBusyExecutionSupported(*version) ? 2 : 1;
}
