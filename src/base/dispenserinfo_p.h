// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/dispenserinfo.h"
#include "base/machineinfo_p.h"

namespace quv {

constexpr Refusal noDispenserID = {"DE00744", "DispenserInfo: expected dispenser id value"};
constexpr Refusal noTintingParallelism = {"DE00769", "DispenserInfo: expected tinting parallelism value"};

template <>
inline constexpr const char *markOf<DispenserInfo> = DispenserInfo::dispID_TAG;

} // namespace quv
