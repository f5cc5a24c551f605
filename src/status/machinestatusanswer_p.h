// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/record_p.h"
#include "status/machinestatusanswer.h"

#include <optional>

namespace quv {

/** The members that dispensers and mixers share. */
const Record<MachineStatusAnswer> &machineStatusRecord();

/** False while the board is not initialised, the machine not ready, or emergency or offline pressed. */
bool takesCommands(const MachineStatusAnswer &status);

/** The first line that is a reason not to work. */
std::optional<QString> firstBadLine(const QList<QPair<QString, bool>> &lines);

} // namespace quv
