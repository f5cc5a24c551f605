// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/refusal_p.h"

namespace quv {

/** A list of commands, or one of them, that cannot be read. */
constexpr Refusal badZandorCommands = {
    "DE02895", "GetZandorCommandsAnswer: Errors during ProtocolCommandInfo list creation"};

} // namespace quv
