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

constexpr Refusal noCircuitList = {"DE02318", badPCircuit.text};
constexpr Refusal noCriterion = {"DE02319", badPCircuit.text};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 3> ownRefusals<PCircuitFormula> = {
    {{"another type", noCircuitList},
     {"without exec_criterion", noCriterion},
     {"with a bad circuit", badPCircuit}}};

/** The text of all that the check of a list of circuits refuses. */
constexpr char invalidCircuits[] = "Invalid data";

} // namespace quv
