// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "procedures/procedure.h"

#include <QuvFramework/fw_errorlist.h>

namespace quv {

/// FINALIZE_CONFIG: the firmware makes its configuration permanent, and the driver's machine follows it then. Nobody stops it: what is
/// being written is not cut off. Gives DE03120 for each row that the machine does not follow.
FW_ErrorList finaliseConfiguration(ProcedureRun &run);

} // namespace quv
