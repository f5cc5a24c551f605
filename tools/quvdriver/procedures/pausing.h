// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "procedures/procedure.h"

#include <QuvFramework/fw_errorlist.h>

namespace quv {

/// PAUSE: waits. On a machine that is faster than real a pause is shorter as well.
FW_ErrorList pause(ProcedureRun &run);
/// \throws CallRefusal DE03412 for a time that is no pause
void checkPause(const ProtoCommand &command);

} // namespace quv
