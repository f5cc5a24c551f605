// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machines/drivenmachine.h"

#include <QuvFramework/fw_errorlist.h>

class ProtoCommand;

namespace quv {

/// What others can be told of the pour of \a command, which should take \a expected milliseconds.
RunningPour describedPour(const ProtoCommand &command, qint64 expected);

/// Asks the firmware what the pour of \a command really took, and lowers the levels of the canisters by it. Gives DE03117 when
/// the firmware does not tell, and the levels are then as they were; DE03142 for each circuit that gave less than asked.
FW_ErrorList takePourFromLevels(DrivenMachine &machine, const ProtoCommand &command);

} // namespace quv
