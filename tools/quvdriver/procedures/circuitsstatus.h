// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "procedures/procedure.h"

#include <QuvFramework/fw_errorlist.h>

namespace quv {

/// GET_CIRCUITS_STATUS: asks each circuit for its status and gathers what they tell.
FW_ErrorList askCircuitsStatus(ProcedureRun &run);

} // namespace quv
