// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/objectfield_p.h"
#include "base/objectlist_p.h"
#include "calibration/calibrationdata.h"

namespace quv {

template <>
inline constexpr const char *markOf<CalibrationData> = CalibrationData::positionID_TAG;

template <>
const FieldType &fieldType<QList<CalibrationData>>();

} // namespace quv
