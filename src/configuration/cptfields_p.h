// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "configuration/confrow_p.h"
#include "configuration/cptrow_p.h"

#include <array>

namespace quv {

/** The fields of "@CPT" behind `cmd_enabled`. */
extern const std::array<ConfField<CircuitRow>, 52> circuitFields;

} // namespace quv
