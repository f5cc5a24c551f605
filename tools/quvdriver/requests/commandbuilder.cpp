// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/commandbuilder.h"

#include "machines/questions.h"
#include "procedures/amounts.h"
#include "procedures/pouring.h"
#include "requests/lowlevels.h"

#include "base/getcmdestimatedexectimecmd.h"
#include "dispensing/turntablepurgeformulacmd.h"
#include "dispensing/turntabletintcmd.h"
#include "machine/commandidcmd.h"
#include "processes/cleaningcmd.h"
#include "processes/recirculationcmd.h"
#include "processes/stirringcmd.h"
#include "status/dispenserstatusanswer.h"
#include "status/errornumcmd.h"
#include "status/fwerrorcmd.h"

#include <QuvFramework/fw_turntable.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <cmath>

namespace quv {
namespace {

using Catalogue = ProtoCommandList;

bool isNamed(const QString &name, Catalogue::CommandListValue value)
{
    return name == Catalogue::cmdStr(value);
}

/// The circuit at the dosing point, from which the table begins. The machine's first one while nobody can tell, as when it turns.
int tablePosition(DrivenMachine &machine, const FW_Turntable &table)
{
    const auto status = told<DispenserStatusAnswer>(ask(machine, Catalogue::GET_STATUS));
    return status && table.positions().contains(status->current_position_id) ? status->current_position_id
                                                                             : table.positions().value(0);
}

std::unique_ptr<ProtoCommand> makeCommand(const QString &name, XmlRpc::XmlRpcValue arguments,
                                          DrivenMachine *machine)
{
    if (isNamed(name, Catalogue::TINT2)) {
        auto command = makeCommand(Catalogue::cmdStr(Catalogue::TINT), arguments, machine);
        command->setCommand(name);
        return command;
    }
    if (isNamed(name, Catalogue::GET_CMD_ID)) // by name it would forget its code
        return std::make_unique<CommandIDCmd>(arguments);
    if (isNamed(name, Catalogue::ERRORS_NUM)) // by name it would not say what it asks for
        return std::make_unique<ErrorNumCmd>();
    const std::unique_ptr<FW_Machine> copy = machine ? machine->copy() : nullptr;
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(copy.get());
    const auto *table =
        dispenser ? dynamic_cast<const FW_Turntable *>(dispenser->getDevice(FW_Device::Turntable)) : nullptr;
    if (table && dispenser->acceptCommands(FW_Device::Turntable)) {
        if (isNamed(name, Catalogue::TINT))
            return std::make_unique<TurntableTintCmd>(arguments, tablePosition(*machine, *table), dispenser);
        if (isNamed(name, Catalogue::PURGE))
            return std::make_unique<TurntablePurgeFormulaCmd>(arguments, tablePosition(*machine, *table),
                                                              dispenser);
    }
    return std::unique_ptr<ProtoCommand>(Catalogue::getProtoCommand(name, arguments, copy.get()));
}

/// The other numbers of the same code clear the firmware's errors, or count them.
void requireErrorPacket(const ProtoCommand &command)
{
    constexpr int FirstPacket = 1;
    constexpr int LastPacket = 244;
    const auto *packet = dynamic_cast<const FwErrorCmd *>(&command);
    if (packet && (packet->packetIndex() < FirstPacket || packet->packetIndex() > LastPacket))
        refuse(InvalidRequest, "DE03420",
               QStringLiteral("A packet of errors has a number from %1 to %2, not %3")
                   .arg(FirstPacket)
                   .arg(LastPacket)
                   .arg(packet->packetIndex()));
}

/// The command whose time is asked for, and its arguments; null when none is.
const XmlRpc::XmlRpcValue *askedForTime(const QString &name, const XmlRpc::XmlRpcValue &arguments)
{
    const XmlRpc::XmlRpcValue *request =
        isNamed(name, Catalogue::GET_CMD_EST_EXEC_TIME) ? FindXmlRpcElement(arguments, 0) : nullptr;
    return request ? FindXmlRpcMember(*request, GetCmdEstimatedExecTimeCmd::COMMAND_AND_PARAMS) : nullptr;
}

/// Milliseconds that a circuit is told to be at something for which no command waits, and so has no estimate; 0 without an end.
qint64 timeInBackground(const ProtoCommand &command)
{
    constexpr qint64 Second = 1000; // milliseconds
    qint64 seconds = 0;
    if (const auto *stirring = dynamic_cast<const StirringCmd *>(&command))
        seconds = stirring->duration();
    else if (const auto *cleaning = dynamic_cast<const CleaningCmd *>(&command))
        seconds = cleaning->duration();
    else if (const auto *recirculation = dynamic_cast<const RecirculationCmd *>(&command);
             recirculation && recirculation->durationType() == FWProcess::Seconds)
        seconds = recirculation->duration();
    return seconds == FWProcess::infiniteDuration() ? 0 : seconds * Second;
}

/// The canisters that would fall too low by a pour, or by that of which the time is asked for.
FW_ErrorList lowLevelsOf(const QString &name, const XmlRpc::XmlRpcValue &arguments,
                         const DrivenMachine *machine)
{
    if (isPour(name))
        return lowLevels(arguments, machine);
    const QString pour = estimatedCommand(name, arguments);
    return isPour(pour) ? lowLevels(*askedForTime(name, arguments), machine) : FW_ErrorList();
}

} // namespace

std::unique_ptr<ProtoCommand> buildCommand(const QString &name, const XmlRpc::XmlRpcValue &arguments,
                                           DrivenMachine *machine)
{
    try {
        auto command = makeCommand(name, arguments, machine);
        requirePourableAmounts(*command);
        requireErrorPacket(*command);
        return command;
    } catch (const FW_Exception &error) {
        const FW_ErrorList canisters = lowLevelsOf(name, arguments, machine);
        if (canisters.isEmpty())
            throw;
        FW_ErrorList errors;
        errors.append(error);
        errors.append(canisters);
        throw CallRefusal(InvalidRequest, errors);
    }
}

QString estimatedCommand(const QString &name, const XmlRpc::XmlRpcValue &arguments)
{
    const XmlRpc::XmlRpcValue *asked = askedForTime(name, arguments);
    QString command;
    return asked && DecodeXmlRpcValue(*asked, 0, command) ? command : name;
}

qint64 estimatedTime(const ProtoCommand &command, const DrivenMachine *machine)
{
    const std::unique_ptr<FW_Machine> copy = machine ? machine->copy() : nullptr;
    qint64 time = command.getCmdEstimatedExecutionTime(copy.get());
    if (time == 0)
        time = timeInBackground(command);
    return machine && time > 0 ? std::llround(double(time) / machine->speed()) : time;
}

} // namespace quv
