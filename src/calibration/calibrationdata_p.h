// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/frameworkrefusals_p.h"
#include "base/objectfield_p.h"
#include "base/objectlist_p.h"
#include "calibration/calibrationdata.h"

namespace quv {

template <>
inline constexpr const char *markOf<CalibrationData> = CalibrationData::positionID_TAG;

/** Of its motor and its calibrations; for its own there are codes of those who hold it. */
template <>
inline constexpr auto ownRefusals<CalibrationData> = machineDataRefusals;

template <>
const FieldType &fieldType<QList<CalibrationData>>();

/**
 * A list that holds calibrations each by itself, or all of them in one variant. Throws \a notMade also for what CalibrationData refuses,
 * and as the framework does for what is in a motor or a calibration.
 */
QList<CalibrationData> calibrationsOf(const QList<QVariant> &list, const Refusal &otherType,
                                      const Refusal &notMade, const char *function);

} // namespace quv
