// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "masterdata/canisterdata.h"

namespace quv {

constexpr Refusal noCanisterID = {"DE00392", "CanisterData: expected id value"};
constexpr Refusal noCanisterEnabled = {"DE00393", "CanisterData: expected enabled value"};
constexpr Refusal noCurrentQuantity = {"DE00394", "CanisterData: expected cur_q value"};
constexpr Refusal noMaximumQuantity = {"DE00395", "CanisterData: expected max_q value"};
constexpr Refusal noReserveQuantity = {"DE00396", "CanisterData: expected res_q value"};
constexpr Refusal noReserveWarning = {"DE00397", "CanisterData: expected res_w value"};
constexpr Refusal noCircuitsOfCanister = {"DE00179", "CanisterData: expected circuits value"};
constexpr Refusal noPositionsOfCanister = {"DE00236", "CanisterData: expected positions value"};
constexpr Refusal noColorantOfCanister = {"DE00399", "CanisterData: expected colorant_id value"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 9> ownRefusals<CanisterData> = {
    {{"without a good id", noCanisterID},
     {"without a good enabled", noCanisterEnabled},
     {"without a good cur_q", noCurrentQuantity},
     {"without a good max_q", noMaximumQuantity},
     {"without a good res_q", noReserveQuantity},
     {"without a good res_w", noReserveWarning},
     {"without a good circuits", noCircuitsOfCanister},
     {"without a good positions", noPositionsOfCanister},
     {"without a good colorant_id", noColorantOfCanister}}};

} // namespace quv
