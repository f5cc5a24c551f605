// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/fwupdateresult_p.h"
#include "firmware/fwupdateresultlist.h"

namespace quv {

template <>
inline constexpr const char *nameOf<FwUpdateResultList> = "array of structs";

constexpr Refusal noUpdateResults = {"DE00969", "FwUpdateResultList: no FwUpdateResult found"};
constexpr Refusal updateResultNotMade = {"DE00968", "FwUpdateResultList: invalid FwUpdateResult parameter"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 4> ownRefusals<FwUpdateResultList> = {
    {{"empty", noUpdateResults},
     {"an element without an int as board_address", noBoardAddress},
     {"an element without an int as update_result", noUpdateResult},
     {"an element that cannot be made", updateResultNotMade}}};

} // namespace quv
