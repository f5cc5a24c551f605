// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/objectfield_p.h"
#include "dispensing/formula_p.h"

namespace quv {

/** A formula as a member of an answer. */
template <>
inline const FieldType &fieldType<Formula>()
{
    static constexpr FieldType type = objectType<Formula>();
    return type;
}

} // namespace quv
