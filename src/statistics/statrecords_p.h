// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"

#include <QuvFramework/fw_statistics.h>

namespace quv {

template <>
inline constexpr const char *markOf<EventStatData> = EventStatData::EVENT_CODE;
template <>
inline constexpr const char *markOf<RefillStatData> = RefillStatData::CANISTER_ID;
template <>
inline constexpr const char *markOf<DispError> = DispError::ERROR_CODE;
template <>
inline constexpr const char *markOf<WaterChangeStatData> = WaterChangeStatData::CLEANING_CYCLES;

} // namespace quv
