// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/record_p.h"
#include "status/machinestatusanswer.h"

namespace quv {

/** The members that dispensers and mixers share. */
const Record<MachineStatusAnswer> &machineStatusRecord();

} // namespace quv
