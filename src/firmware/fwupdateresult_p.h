// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "firmware/fwupdateresult.h"

namespace quv {

template <>
inline constexpr const char *markOf<FwUpdateResult> = FwUpdateResult::boardAddress_TAG;

constexpr Refusal noBoardAddress = {"DE00962", "FwUpdateResult: expected board address value"};
constexpr Refusal noUpdateResult = {"DE00963", "FwUpdateResult: expected update result value"};

} // namespace quv
