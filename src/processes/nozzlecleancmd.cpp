// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/nozzlecleancmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"
#include "processes/milliseconds_p.h"
#include "processes/ultrasoundcleaningcmd.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_dispenser.h>

namespace {

constexpr quv::FamilyGate cleansNozzles[] = {{63, 38}, {70, 1}, {72}};

constexpr char invalid[] = "NozzleCleanCmd: invalid parameter";

/** The circuits that a position addresses; none for one that the dispenser does not have enabled. */
QVector<const FW_Circuit *> addressedCircuits(const FW_Dispenser &dispenser, int position)
{
    if (position == 0)
        return dispenser.getEnabledCircuits();
    if (!dispenser.hasCircuitPosition(position, true))
        return {};
    return {dispenser.getCircuitByPosition(position)};
}

} // namespace

// made where its description is
extern template class quv::DescribedCommand<UltrasoundCleaningCmd, SerialProtoCommand>;

struct NozzleCleanCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::NOZZLE_CLEAN;
    static constexpr auto commandText = "Nozzle clean";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Nozzle clean");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal badPosition = {"DE02566", "DE02568", invalid};
        constexpr quv::ArgumentRefusal badDuration = {"DE02567", "DE02569", invalid};
        archive.required({"position", "a circuit's position; 0 is all circuits"}, self.m_moduleID,
                         badPosition, badPosition);
        archive.required({"duration", "seconds; 60515 as configured"}, self.m_duration, badDuration,
                         badDuration);
    }
};

template class quv::DescribedCommand<NozzleCleanCmd, SerialProtoCommand>;

NozzleCleanCmd::NozzleCleanCmd()
{
    m_duration = infiniteDuration();
}

NozzleCleanCmd::NozzleCleanCmd(int position, qlonglong duration) : FWProcess(0, duration, Seconds, false)
{
    if (position > 0)
        m_moduleID = position;
    if (duration == 0)
        m_duration = infiniteDuration();
}

NozzleCleanCmd::NozzleCleanCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

NozzleCleanCmd::NozzleCleanCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

NozzleCleanCmd *NozzleCleanCmd::clone() const
{
    return new NozzleCleanCmd(*this);
}

XmlRpc::XmlRpcValue NozzleCleanCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array = DescribedCommand::xmlrpc_parameters(ok);
    array[1] = writtenDuration();
    return array;
}

QList<int> NozzleCleanCmd::serialParameters(int) const
{
    QList<int> parameters;
    appendDuration(parameters);
    return parameters;
}

long long NozzleCleanCmd::getCmdEstimatedExecutionTime(const FW_Machine *machine) const
{
    constexpr int perCircuit = 4; // seconds beside the cleaning itself
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    if (!dispenser)
        return 0;
    if (dispenser->hasDevice(FW_Device::UltrasoundCleaning))
        return UltrasoundCleaningCmd().getCmdEstimatedExecutionTime(machine);
    if (!dispenser->hasDevice(FW_Device::Brush))
        return 0;
    int motors = 0;
    long long configured = 0;
    for (const FW_Circuit *circuit : addressedCircuits(*dispenser, m_moduleID)) {
        if (const FW_CleaningMotor *motor = circuit->firstCleaningMotor()) {
            ++motors;
            configured += quv::millisecondsOf(motor->duration(), 1, perCircuit);
        }
    }
    return m_duration == infiniteDuration() ? configured
                                            : quv::millisecondsOf(m_duration, motors, perCircuit);
}

bool NozzleCleanCmd::isSupportedCommand(const FW_Version &version) const
{
    return checkSupportedCommand(version);
}

TString NozzleCleanCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Nozzle clean of circuit position %1"),
                   quv::translationContext)
        .arg(QString::number(m_moduleID), false);
}

bool NozzleCleanCmd::checkSupportedCommand(const FW_Version &version)
{
    return quv::passesGate(cleansNozzles, version);
}

bool NozzleCleanCmd::hasMachineCleaning(const FW_Dispenser &dispenser)
{
    const auto *cap = dynamic_cast<const FW_Autocap *>(dispenser.getDevice(FW_Device::Autocap));
    return FW_Dispenser::isRotatingDispenserModel(dispenser.model()) ||
           (cap && cap->hasAutomaticCleaningSystem()) || dispenser.hasDevice(FW_Device::UltrasoundCleaning);
}
