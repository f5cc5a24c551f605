// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "procedures/procedure.h"

#include <QuvFramework/fw_errorlist.h>

namespace quv {

/// STOP: ends the procedures that the machine is at, and what its firmware is at.
FW_ErrorList stop(ProcedureRun &run);
/// Whether such a command is for the firmware, too.
bool stopsFirmware(const ProtoCommand &command);
/// RESET: the firmware ends what it is at to begin anew, so that procedures end as well.
FW_ErrorList reset(ProcedureRun &run);

} // namespace quv
