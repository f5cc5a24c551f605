// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/fieldtype_p.h"

#include <QtCore/QPair>

namespace quv {

/** Circuit positions with a number each: an array of arrays of two ints. No list form is read. */
template <>
const FieldType &fieldType<QList<QPair<int, int>>>();

} // namespace quv
