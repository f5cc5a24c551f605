// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "status/dispenserstatusanswerslist.h"

namespace quv {

template <>
inline constexpr const char *nameOf<DispenserStatusAnswersList> = "array of structs";

constexpr Refusal noStatusArray = {"DE01165", "DispenserStatusAnswersList: expected xml-rpc array type"};
constexpr Refusal noStatuses = {"DE01169", "DispenserStatusAnswersList: no data found"};
constexpr Refusal noStatusPosition = {"DE01166", "DispenserStatusAnswersList: expected position ID value"};
constexpr Refusal noStatusOfPosition = {"DE01167", noStatusPosition.text}; // users know it by that text
constexpr Refusal statusNotMade = {"DE01168",
                                   "DispenserStatusAnswersList: invalid DispenserStatusAnswer parameter"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 5> ownRefusals<DispenserStatusAnswersList> = {
    {{"another type", noStatusArray},
     {"empty", noStatuses},
     {"an element without an int as position_id", noStatusPosition},
     {"an element without status_answer", noStatusOfPosition},
     {"an element that cannot be made", statusNotMade}}};

} // namespace quv
