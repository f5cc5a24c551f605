// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "status/mixerstatus.h"

namespace quv {

constexpr Refusal noMixerActive = {"DE03201", "MixerStatus: expected active mixer value"};
constexpr Refusal noMixerConfMng = {"DE03202", "MixerStatus: expected configuration management active value"};
constexpr Refusal noMixerFwUpdate = {"DE03203", "MixerStatus: expected firmware updating value"};
constexpr Refusal noMixerInfo = {"DE03204", "MixerStatus: errors during MixerInfo creation"};

template <>
inline constexpr const char *markOf<MixerStatus> = MixerStatus::mixerInfo_TAG;

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 4> ownRefusals<MixerStatus> = {
    {{"without a good active", noMixerActive},
     {"without a good conf_mng", noMixerConfMng},
     {"without a good fw_update", noMixerFwUpdate},
     {"without mixer_info", noMixerInfo}}};

} // namespace quv
