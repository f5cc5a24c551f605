// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/describedcommand_p.h"
#include "dispensing/getdispensedformulacmdbase.h"

namespace quv {

/** What a failure to make the answer says. */
constexpr char dispensedFormulaFailed[] = "Failed to create GetDispensedFormulaAnswer";

} // namespace quv

/** What the descriptions of the commands have in common. */
struct GetDispensedFormulaCmdBase::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_DISPENSED_FORMULA;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"formula_type", "1 circuit positions, 2 circuits, 3 canisters, 4 colorants"},
                         self.m_formulaType, {"DE01911", "DE01912", "Formula type: expected INT parameter"});
        archive.optional({"quantity_unit", "0 the machine's own, 1 steps, 2 strokes, 3 weight or volume"},
                         self.m_quantityUnit,
                         {"DE01721", "DE01722", "Quantity unit: expected INT parameter"});
    }
};
