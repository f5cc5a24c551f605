// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "procedures/procedure.h"

#include <QuvFramework/fw_errorlist.h>

namespace quv {

/// GET_ERRORS: asks how many packets of errors the firmware keeps, then for each of them. The answer tells when each was first read.
FW_ErrorList askErrors(ProcedureRun &run);

} // namespace quv
