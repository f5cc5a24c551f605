// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"

#include <QtCore/QVariantList>

#include <algorithm>

// Lists of objects that travel in one variant: as the list that they are, or as a list of variants of which each holds one.

namespace quv {

/** True for a list of T, and for a list of variants of which each holds a T. */
template <class T>
bool holdsList(const QVariant &variant)
{
    if (variant.userType() == qMetaTypeId<QList<T>>())
        return true;
    const QVariantList variants = variant.toList();
    return variant.userType() == QMetaType::QVariantList &&
           std::all_of(variants.begin(), variants.end(), holds<T>);
}

/** The list that \a variant holds. Throws \a expected when it holds none, and \a incorrect when it cannot be had. */
template <class T>
QList<T> decodedList(const QVariant &variant, const Refusal &expected, const Refusal &incorrect,
                     const char *function)
{
    if (!holdsList<T>(variant))
        throwRefusal(expected, function);
    return madeOrRefused(incorrect, function, [&] { return variant.value<QList<T>>(); });
}

} // namespace quv
