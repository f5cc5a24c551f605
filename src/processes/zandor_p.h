// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/gate_p.h"

namespace quv {

/** The firmware that drives a capping station. */
constexpr FamilyGate drivesCappingStation[] = {{63, 38}};

} // namespace quv
