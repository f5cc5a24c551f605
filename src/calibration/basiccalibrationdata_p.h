// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/objectfield_p.h"
#include "base/objectlist_p.h"
#include "calibration/basiccalibrationdata.h"

namespace quv {

constexpr Refusal noPointID = {"DE02642", "BasicCalibrationPoint: expected calib id value"};
constexpr Refusal noPointQuantity = {"DE02643", "BasicCalibrationPoint: expected disp quantity value"};
constexpr Refusal noPointSteps = {"DE02644", "BasicCalibrationPoint: expected disp steps value"};
constexpr Refusal noPointSpeed = {"DE02665", "BasicCalibrationPoint: expected speed value"};
constexpr Refusal noRecalibratedPosition = {"DE02641", "BasicCalibrationData: expected position id value"};
constexpr Refusal badPoints = {"DE02653",
                               "BasicCalibrationData: errors during BasicCalibrationPoint creation"};

template <>
inline constexpr const char *markOf<BasicCalibrationPoint> = BasicCalibrationPoint::calibPointID_TAG;
template <>
inline constexpr const char *markOf<BasicCalibrationData> = BasicCalibrationData::positionID_TAG;

/** Its own, and then those of its points. */
template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 6> ownRefusals<BasicCalibrationData> = {
    {{"without a good position_id", noRecalibratedPosition},
     {"without an array as calib_points", badPoints},
     {"with a point without a good calib_point_id", noPointID},
     {"with a point without a good disp_quantity", noPointQuantity},
     {"with a point without a good disp_steps", noPointSteps},
     {"with a point without a good speed", noPointSpeed}}};

template <>
const FieldType &fieldType<QList<BasicCalibrationData>>();

} // namespace quv
