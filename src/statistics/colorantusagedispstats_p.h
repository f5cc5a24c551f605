// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "statistics/colorantusagedispstats.h"

namespace quv {

template <>
inline constexpr const char *markOf<ColorantUsageDispStats> = ColorantUsageDispStats::serialNumber_TAG;

constexpr Refusal noUsageStruct = {"DE02252", "ColorantUsageDispStats: invalid xml-rpc type (not struct)"};
constexpr Refusal badUsageStruct = {"DE02253", "ColorantUsageDispStats: invalid xml-rpc type"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 2> ownRefusals<ColorantUsageDispStats> = {
    {{"another type", noUsageStruct},
     {"without a string as serial_number and an array of records as colorant_usage_stats_data",
      badUsageStruct}}};

} // namespace quv
