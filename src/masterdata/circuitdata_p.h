// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "masterdata/circuitdata.h"

namespace quv {

constexpr Refusal noCircuitID = {"DE00686", "CircuitData: expected id value"};
constexpr Refusal noCircuitPosition = {"DE00687", "CircuitData: expected position id value"};
constexpr Refusal noCircuitEnabled = {"DE00688", "CircuitData: expected enabled value"};
constexpr Refusal noCircuitCanister = {"DE00689", "CircuitData: expected canister id value"};
constexpr Refusal noCircuitColorant = {"DE00690", "CircuitData: expected colorant id value"};
constexpr Refusal noStirringEnabled = {"DE00579", "CircuitData: expected stirring enabled value"};
constexpr Refusal noRecirculationEnabled = {"DE00596", "CircuitData: expected recirculation enabled value"};
constexpr Refusal noPumpType = {"DE00580", "CircuitData: expected pump type value"};
constexpr Refusal noPumpSerialNumber = {"DE00381", "CircuitData: expected pump serial number value"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 9> ownRefusals<CircuitData> = {
    {{"without a good id", noCircuitID},
     {"without a good position_id", noCircuitPosition},
     {"without a good enabled", noCircuitEnabled},
     {"without a good canister_id", noCircuitCanister},
     {"without a good colorant_id", noCircuitColorant},
     {"without a good stirring_enabled", noStirringEnabled},
     {"without a good recirculation_enabled", noRecirculationEnabled},
     {"without a good pump_type", noPumpType},
     {"without a good pump_serial_number", noPumpSerialNumber}}};

} // namespace quv
