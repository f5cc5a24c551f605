// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/firmware.h"

namespace quv {

/// Refuses a call as the firmware refused the command of \a code. \throws CallRefusal DE03106
[[noreturn]] void refuseAsFirmware(const QString &code, const FirmwareReply &refusal);

} // namespace quv
