// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <memory>

namespace quv {

/** A copy of its own class; null for null. */
template <class T>
std::unique_ptr<T> cloned(const T *object)
{
    return std::unique_ptr<T>(object ? object->clone() : nullptr);
}

} // namespace quv
