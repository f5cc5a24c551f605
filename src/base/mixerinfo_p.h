// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/machineinfo_p.h"
#include "base/mixerinfo.h"

namespace quv {

constexpr Refusal noMixerID = {"DE03200", "MixerInfo: expected mixer id value"};

template <>
inline constexpr const char *markOf<MixerInfo> = MixerInfo::mixerID_TAG;

} // namespace quv
