// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "procedures/procedure.h"

#include <QuvFramework/fw_errorlist.h>

namespace quv {

/// STIR_ALL: stirs circuits in batches of as many as the machine stirs at once, or one by one, with a pause between the batches. A
/// batch is over when none of its circuits stirs any more. \throws CallRefusal DE03414 for one that does not end, DE03417 for one that
/// ended before its time since the machine is not ready
FW_ErrorList stirAll(ProcedureRun &run);
/// \throws CallRefusal DE03413 when there is nothing to stir
void checkStirring(const ProtoCommand &command);

} // namespace quv
