// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "machine/fw_command.h"

namespace quv {

template <>
inline constexpr const char *markOf<FW_Command> = FW_Command::cmdCode_TAG;

constexpr Refusal noCmdCode = {"DE00668", "FW_Command: expected command code value"};
constexpr Refusal noCmdStatus = {"DE00669", "FW_Command: expected command status value"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 2> ownRefusals<FW_Command> = {
    {{"without a good cmd_code", noCmdCode}, {"without a good cmd_status", noCmdStatus}}};

} // namespace quv
