// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/frameworkrefusals_p.h"
#include "base/objectfield_p.h"

#include <QuvFramework/fw_calibrationprofiles.h>

namespace quv {

template <>
inline constexpr const char *markOf<FW_CalibrationProfiles> = "pumps";
template <>
inline constexpr auto ownRefusals<FW_CalibrationProfiles> = machineDataRefusals;

/** What is no struct is refused by who expected the profiles, and a struct that is wrong by the framework. */
inline bool isProfilesStruct(const XmlRpc::XmlRpcValue &value)
{
    return value.getType() == XmlRpc::XmlRpcValue::TypeStruct;
}

} // namespace quv
