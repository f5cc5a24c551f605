// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "masterdata/devicedata.h"

namespace quv {

template <>
inline constexpr const char *markOf<DeviceData> = DeviceData::id_TAG;

constexpr Refusal noDeviceID = {"DE00419", "DeviceData: expected id value"};
constexpr Refusal noDeviceEnabled = {"DE00420", "DeviceData: expected enabled value"};
constexpr Refusal noDeviceDescription = {"DE00421", "DeviceData: expected description value"};
constexpr Refusal noAcceptCommands = {"DE00659", "DeviceData: expected accept_commands value"};
constexpr Refusal noDeviceType = {"DE00267", "DeviceData: expected type value"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 5> ownRefusals<DeviceData> = {
    {{"without a good id", noDeviceID},
     {"without a good enabled", noDeviceEnabled},
     {"without a good description", noDeviceDescription},
     {"without a good accept_commands", noAcceptCommands},
     {"without a good type", noDeviceType}}};

} // namespace quv
