// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/objectfield_p.h"
#include "processes/stiritem.h"

namespace quv {

template <>
inline constexpr const char *markOf<StirItem> = StirItem::ITEM;
template <>
inline constexpr const char *nameOf<StirItem> = "stirring item";

template <>
inline const FieldType &fieldType<QList<StirItem>>()
{
    static constexpr FieldType type = objectListType<StirItem>();
    return type;
}

} // namespace quv
