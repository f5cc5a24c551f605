// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

// What commands and answers about weights say alike.

constexpr char weightAnswerFailed[] = "Failed to create WeightAnswer";
constexpr char tellsUnit[] = "0 g, 1 kg, 2 oz, 3 lb";
constexpr char requestedUnit[] = "0 g, 1 kg, 2 oz, 3 lb; -1 as the scale is set";

} // namespace quv
