// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/firmware.h"

namespace quv {

/// Whether the firmware does not know the code that it was asked with.
bool isUnknownCode(const FirmwareReply &refusal);

/// Why the firmware refuses: "wrong position, machine not available", and the masks that say so.
QString reasonsInWords(const FirmwareReply &refusal);

} // namespace quv
