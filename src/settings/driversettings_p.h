// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/objectfield_p.h"
#include "settings/driversettings.h"

namespace quv {

template <>
inline constexpr const char *markOf<DriverSettings> = DriverSettings::ConfigurationFileName_TAG;

template <>
const FieldType &fieldType<DriverSettings>(); ///< as a member it must be a struct

} // namespace quv
