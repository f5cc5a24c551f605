// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "procedures/procedure.h"

#include <QuvFramework/fw_errorlist.h>

namespace quv {

/// Whether a command delivers colorant. A mixer's delivers nothing.
bool isPour(const QString &command);

/**
 * The commands that pour: sees a pour to its end, asks the firmware what it really took, and lowers the levels of the canisters by
 * it. What goes wrong afterwards no longer makes the pour a failure: gives DE03117 when the firmware does not tell, and the levels
 * are then as they were; DE03142 for each circuit that gave less than asked.
 * \throws CallRefusal DE03411 when the firmware has ended the pour before its end, with what was not poured behind it; the levels
 * are taken all the same
 */
FW_ErrorList pour(ProcedureRun &run);

} // namespace quv
