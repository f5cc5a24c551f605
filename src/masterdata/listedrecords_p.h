// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"

namespace quv {

/**
 * The machine, or the part of one, that a variant in a driver's list holds; unlike records, which clients make too, never as a map.
 * Throws \a expected for another type, and \a incorrect when it cannot be had.
 */
template <class Part>
Part listedPart(const QVariant &variant, const Refusal &expected, const Refusal &incorrect,
                const char *function)
{
    if (variant.userType() != qMetaTypeId<Part>())
        throwRefusal(expected, function);
    return madeOrRefused(incorrect, function, [&] { return variant.value<Part>(); });
}

} // namespace quv
