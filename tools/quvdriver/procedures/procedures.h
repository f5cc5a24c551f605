// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "procedures/procedure.h"

#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_errorlist.h>

namespace quv {

/// What the driver does by itself for a command, beyond one exchange with the firmware.
struct Procedure
{
    ProtoCommandList::CommandListValue command{};
    Engages engages = Engages::Nothing;
    bool lasts = false; ///< its end is waited for
    /// Gives what is told beside the answer. \throws CallRefusal when it does not come to its end
    FW_ErrorList (*run)(ProcedureRun &run) = nullptr;
    /// Null, or \throws CallRefusal for what cannot be carried out, before anything has begun
    void (*check)(const ProtoCommand &command) = nullptr;
    /// Null, or tells whether the firmware gets the command itself. Without it all that have a code do.
    bool (*isSent)(const ProtoCommand &command) = nullptr;
};

/// Null for a command that is one exchange with the firmware, or is answered by the driver alone.
const Procedure *procedureOf(const QString &command);

/// Whether the firmware must have the command's code: not for a series of commands that have codes of their own.
bool needsCode(const ProtoCommand &command);

} // namespace quv
