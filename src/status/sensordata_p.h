// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "status/sensordata.h"

namespace quv {

constexpr Refusal noSensorType = {"DE00791", "SensorData: expected sensor type value"};
constexpr Refusal noMeasureType = {"DE00792", "SensorData: expected measure type value"};
constexpr Refusal noMeasuredValue = {"DE00793", "SensorData: expected value"};

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 3> ownRefusals<SensorData> = {
    {{"without an int as sensor_type", noSensorType},
     {"without an int as measure_type", noMeasureType},
     {"without a number as value", noMeasuredValue}}};

} // namespace quv
