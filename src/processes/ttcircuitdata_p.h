// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "processes/ttcircuitdata.h"

namespace quv {

template <>
inline constexpr const char *markOf<TTCircuitData> = TTCircuitData::positionID_TAG;

constexpr Refusal noPositionID = {"DE01746", "TTCircuitData: expected position id value"};
constexpr Refusal noStepsPos = {"DE01747", "TTCircuitData: expected steps position value"};
constexpr Refusal noFinSize = {"DE01748", "TTCircuitData: expected fin size value"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 3> ownRefusals<TTCircuitData> = {
    {{"without a good position_id", noPositionID},
     {"without a good steps_pos", noStepsPos},
     {"without a good fin_size", noFinSize}}};

} // namespace quv
