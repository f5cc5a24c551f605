// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "dispensing/formula_p.h"
#include "dispensing/pcircuitformula.h"

namespace quv {

template <>
inline constexpr const char *markOf<PCircuitFormula> = PCircuitFormula::executionCriterion_TAG;
template <>
inline constexpr const char *nameOf<PCircuitFormula> = "circuit list";

/** A circuit that cannot be read, or no circuits where they should be. */
constexpr Refusal badPCircuit = {"DE02317", "PCircuit: bad xml-rpc values"};

/** The text of all that the check of a list of circuits refuses. */
constexpr char invalidCircuits[] = "Invalid data";

} // namespace quv
