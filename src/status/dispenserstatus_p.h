// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "status/dispenserstatus.h"

namespace quv {

constexpr Refusal noDispenserActive = {"DE00724", "DispenserStatus: expected active dispenser value"};
constexpr Refusal noDispenserConfMng = {"DE00723",
                                        "DispenserStatus: expected configuration management active value"};
constexpr Refusal noDispenserFwUpdate = {"DE00725", "DispenserStatus: expected firmware updating value"};
constexpr Refusal noDispenserInfo = {"DE00761", "DispenserStatus: errors during DispenserInfo creation"};

template <>
inline constexpr const char *markOf<DispenserStatus> = DispenserStatus::dispenserInfo_TAG;

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 4> ownRefusals<DispenserStatus> = {
    {{"without a good active", noDispenserActive},
     {"without a good conf_mng", noDispenserConfMng},
     {"without a good fw_update", noDispenserFwUpdate},
     {"without dispenser_info", noDispenserInfo}}};

} // namespace quv
