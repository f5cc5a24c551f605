// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/frameworkrefusals_p.h"
#include "base/objectfield_p.h"

#include <QuvFramework/fw_configuration.h>

namespace quv {

template <>
inline constexpr const char *markOf<FW_Configuration> = FW_Configuration::MACHINES;
template <>
inline constexpr const char *nameOf<FW_Configuration> = "configuration";
template <>
inline constexpr auto ownRefusals<FW_Configuration> = configurationRefusals;

template <>
inline const FieldType &fieldType<FW_Configuration>()
{
    static constexpr FieldType type = objectType<FW_Configuration>();
    return type;
}

} // namespace quv
