// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/commandupdate_p.h"

#include "catalogue/protocommandlist.h"
#include "firmware/getrealboardstatscmd.h"
#include "machine/firmwarecommandscmd.h"
#include "processes/autocapcmd.h"
#include "processes/cleaningcmd.h"
#include "processes/recirculationcmd.h"
#include "processes/stirringcmd.h"
#include "processes/stopcmd.h"
#include "setup/dispinfocmd.h"
#include "status/getactivecircuitscmd.h"

#include <algorithm>

namespace quv {

namespace {

using Cmd = ProtoCommandList;

/** Of a firmware that is known and lets the gate pass. */
template <class Gate>
bool passes(const FW_Version *version, Gate gate)
{
    return version && gate(*version);
}

/** Commands that a driver waits for, or does not, in a way of its own. */
bool keepsItsCheckBusy(int row)
{
    return row == Cmd::RESET_FW || row == Cmd::STIRRING || row == Cmd::RECIRCULATION;
}

bool tellsKeyCode(const FW_Version &version)
{
    return DispInfoCmd::isSupportedDispInfoType(DispInfoCmd::keyCodeType, version);
}

bool tellsProcess10(const FW_Version &version)
{
    return GetActiveCircuitsCmd::isCircuitProcessSupported(static_cast<CircuitProcess>(10), version);
}

} // namespace

void takeOver(const QList<FW_Command> &fwCommands, int row, CommandData &command)
{
    constexpr long long usualTimeout = 40000; // milliseconds
    bool hasCode = false;
    const unsigned code = command.code(&hasCode);
    if (!hasCode)
        return;
    const auto told = std::find_if(fwCommands.begin(), fwCommands.end(),
                                   [code](const FW_Command &known) { return known.cmdCode == code; });
    if (told == fwCommands.end()) {
        command.available = false;
        return;
    }
    const bool keepsBusy = told->cmdStatus == FW_Command::keepsBusy;
    if (!keepsItsCheckBusy(row))
        command.checkBusy = keepsBusy;
    if (keepsBusy && command.busyTimeout == 0)
        command.busyTimeout = usualTimeout;
    command.available = told->cmdExecution == static_cast<int>(CmdExecution::Yes);
}

void takeOver(const FW_Version *version, int row, CommandData &command)
{
    switch (row) {
    case Cmd::GET_KEY_CODE:
        command.available = passes(version, tellsKeyCode);
        break;
    case Cmd::GET_ACTIVE_CIRCUITS:
        command.available = passes(version, GetActiveCircuitsCmd::isCommandSupported);
        command.version = passes(version, tellsProcess10) ? 2 : 1;
        break;
    case Cmd::ADD_USS_W_EVENT:
    case Cmd::GET_USS_W_STATUS:
        command.available = passes(version, GetRealBoardStatsCmd::isCleaningStatSupported);
        break;
    case Cmd::CLEANING:
        if (passes(version, CleaningCmd::isBusyExecutionSupported))
            command.version = 1;
        break;
    case Cmd::STOP:
        if (passes(version, StopCmd::isSoftStopSupported))
            command.version = 1;
        break;
    case Cmd::GET_FW_COMMANDS:
        if (passes(version, FirmwareCommandsCmd::isCommandsExecParamSupported))
            command.version = 1;
        break;
    case Cmd::STIRRING:
        command.version = StirringCmd::commandVersion(version);
        break;
    case Cmd::RECIRCULATION:
        command.version = RecirculationCmd::commandVersion(version);
        break;
    case Cmd::AUTOCAP_MOVE:
        command.version = AutocapCmd::commandVersion(version);
        break;
    case Cmd::SET_DRIVER_SETTINGS:
    case Cmd::SET_LEVELS:
    case Cmd::GET_CANISTER_LIST:
    case Cmd::TURNTABLE_MOVE:
    case Cmd::TURNTABLE_MOVE_TO_REFILL:
        command.version = 1;
        break;
    case Cmd::TINT:
    case Cmd::SET_GRAV_SETTINGS:
    case Cmd::SET_DISP_OUTPUT:
        command.version = 2;
        break;
    default:
        break;
    }
}

} // namespace quv
