// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/objectlist_p.h"
#include "processes/mixercycle.h"

namespace quv {

template <>
inline constexpr const char *markOf<MixerCycle> = MixerCycle::cycleType_TAG;

/** A cycle that cannot be read. */
constexpr Refusal badMixerCycle = {"DE02337", "MixerCycle: bad xml-rpc values"};

} // namespace quv
