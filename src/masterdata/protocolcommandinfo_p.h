// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "masterdata/protocolcommandinfo.h"

namespace quv {

template <>
inline constexpr const char *markOf<ProtocolCommandInfo> = ProtocolCommandInfo::id_TAG;

constexpr Refusal noCommandID = {"DE00423", "ProtocolCommandInfo: expected id value"};
constexpr Refusal noCommandName = {"DE00424", "ProtocolCommandInfo: expected name value"};
constexpr Refusal noCommandCode = {"DE00425", "ProtocolCommandInfo: expected code value"};
constexpr Refusal noMinParams = {"DE00426", "ProtocolCommandInfo: expected min_params value"};
constexpr Refusal noMaxParams = {"DE00427", "ProtocolCommandInfo: expected max_params value"};
constexpr Refusal noDriverCmd = {"DE00428", "ProtocolCommandInfo: expected driver_cmd value"};
constexpr Refusal noCommandVersion = {"DE01437", "ProtocolCommandInfo: expected version value"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 7> ownRefusals<ProtocolCommandInfo> = {
    {{"without a good id", noCommandID},
     {"without a good name", noCommandName},
     {"without a good code", noCommandCode},
     {"without a good min_params", noMinParams},
     {"without a good max_params", noMaxParams},
     {"without a good driver_cmd", noDriverCmd},
     {"without a good version", noCommandVersion}}};

} // namespace quv
