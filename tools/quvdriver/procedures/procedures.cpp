// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/procedures.h"

#include "procedures/circuitsstatus.h"
#include "procedures/errors.h"
#include "procedures/finalising.h"
#include "procedures/pausing.h"
#include "procedures/pouring.h"
#include "procedures/stirring.h"
#include "procedures/stopping.h"

#include "base/protocommand.h"

#include <algorithm>
#include <array>

namespace quv {
namespace {

/// An autotest is a series of many commands.
bool isPourByCode(const QString &command)
{
    return isPour(command) && !ProtoCommandList::cmdCode(command, FW_Dispenser::CommandFamily1).isEmpty();
}

} // namespace

const Procedure *procedureOf(const QString &command)
{
    using Catalogue = ProtoCommandList;
    static constexpr Procedure pouring{Catalogue::TINT, Engages::Pumps, true,
                                       pour}; // by all commands that pour
    static constexpr std::array<Procedure, 7> others{{
        {Catalogue::FINALIZE_CONFIG, Engages::Nothing, true, finaliseConfiguration},
        {Catalogue::GET_CIRCUITS_STATUS, Engages::Nothing, false, askCircuitsStatus},
        {Catalogue::GET_ERRORS, Engages::Nothing, false, askErrors},
        {Catalogue::PAUSE, Engages::Nothing, true, pause, checkPause},
        {Catalogue::RESET, Engages::Nothing, false, reset},
        {Catalogue::STIR_ALL, Engages::Stirrers, true, stirAll, checkStirring},
        {Catalogue::STOP, Engages::Nothing, false, stop, nullptr, stopsFirmware},
    }};
    if (isPourByCode(command))
        return &pouring;
    const CMD_STRUCT *row = Catalogue::row(command);
    const auto found = std::find_if(others.begin(), others.end(), [row](const Procedure &candidate) {
        return row && candidate.command == row->id;
    });
    return found == others.end() ? nullptr : found;
}

bool needsCode(const ProtoCommand &command)
{
    const QString name = command.command();
    const Procedure *procedure = procedureOf(name);
    if (!procedure)
        return true;
    if (procedure->isSent)
        return procedure->isSent(command);
    return !ProtoCommandList::cmdCode(name, FW_Dispenser::CommandFamily1).isEmpty();
}

} // namespace quv
