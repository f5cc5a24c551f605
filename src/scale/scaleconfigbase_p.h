// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/refusal_p.h"

namespace quv {

constexpr Refusal noScale = {"DE03329", "ScaleConfigBase decoding failed: expected scale value"};
constexpr Refusal noScaleInList = {"DE02345", "ScaleConfigBase decoding failed: invalid QVariant value"};

constexpr char tellsScale[] = "a struct with scale_model, scale_port (as that of SET_SERIAL), scale_unit, "
                              "max_weight and precision; 0 for none";

} // namespace quv
