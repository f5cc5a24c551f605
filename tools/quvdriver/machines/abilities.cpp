// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machines/abilities.h"

#include "machines/refusal.h"

#include "base/protocommand.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/purgeformulacmd.h"
#include "firmware/firmwareversionanswer.h"
#include "machine/firmwarecommandsanswer.h"
#include "machine/firmwarecommandscmd.h"

#include <QuvFramework/fw_dispenser.h>

namespace quv {
namespace {

using Catalogue = ProtoCommandList;

int commandFamilyOf(const FW_Machine &machine)
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine);
    return dispenser ? dispenser->commandFamily() : FW_Dispenser::CommandFamily1;
}

QString codeOf(Catalogue::CommandListValue command, int family)
{
    return Catalogue::cmdCode(Catalogue::cmdStr(command), family);
}

/// Nothing of a firmware that does not tell.
QList<FW_Command> commandsOf(const FW_Version &version, int family, const Abilities::Ask &ask)
{
    const QString code = codeOf(Catalogue::GET_FW_COMMANDS, family);
    if (code.isEmpty())
        return {};
    const bool readsExecution = FirmwareCommandsCmd::isCommandsExecParamSupported(version);
    const FirmwareCommandsCmd question(readsExecution ? CmdExecution::Yes : CmdExecution::No);
    const FirmwareReply reply = ask(code, question.serialParameters(family));
    return reply.refused ? QList<FW_Command>() : FirmwareCommandsAnswer(reply.tokens).fwCommandList();
}

} // namespace

Abilities::Abilities(const FW_Machine &machine, const Ask &ask)
{
    const int family = commandFamilyOf(machine);
    const QString code = codeOf(Catalogue::READ_FW_VERSION, family);
    if (code.isEmpty())
        return;
    const FirmwareReply reply = ask(code, {});
    if (reply.refused)
        return;
    m_version = FirmwareVersionAnswer(reply.tokens).program().applicationVersion();
    Catalogue::fillCommandDataList(m_commands, machine.machineType(), family);
    m_commands.updateCommandsList(0, commandsOf(m_version, family, ask), &m_version, &machine);
}

void Abilities::require(const ProtoCommand &command) const
{
    if (!m_version.isValid())
        return;
    const QString name = command.command();
    if (!command.isSupportedCommand(m_version))
        refuse(UnknownToFirmware, "DE03406",
               QStringLiteral("The machine's firmware has the version %1, which does not have %2")
                   .arg(m_version.toString(), name));
    if (m_commands.existsCommand(name) && !m_commands.isCommandAvailable(name))
        refuse(UnknownToFirmware, "DE03407",
               QStringLiteral("The machine's firmware does not list %1 among its commands").arg(name));
}

bool Abilities::hasTint2() const
{
    return m_version.isValid() && PurgeFormulaCmd::isTint2CmdSupported(m_version) &&
           m_commands.isCommandAvailable(Catalogue::cmdStr(Catalogue::TINT2));
}

} // namespace quv
