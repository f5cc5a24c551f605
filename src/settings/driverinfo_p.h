// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/objectfield_p.h"
#include "settings/driverinfo.h"

namespace quv {

constexpr Refusal noDriverName = {"DE01311", "DriverInfo: expected driver name value"};
constexpr Refusal noDriverPath = {"DE00354", "DriverInfo: expected driver path value"};
constexpr Refusal noDriverVersion = {"DE00795", "DriverInfo: expected version value"};
constexpr Refusal noHostName = {"DE00796", "DriverInfo: expected host name value"};
constexpr Refusal noConfigurationPath = {"DE00624", "DriverInfo: expected configuration file path value"};
constexpr Refusal noDefaultProfilesPath = {"DE01472",
                                           "DriverInfo: expected default calibration profiles path value"};
constexpr Refusal noCustomProfilesPath = {"DE00625",
                                          "DriverInfo: expected custom calibration profiles path value"};

template <>
inline constexpr const char *markOf<DriverInfo> = DriverInfo::driverName_TAG;

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 7> ownRefusals<DriverInfo> = {
    {{"without driver_name", noDriverName},
     {"without driver_path", noDriverPath},
     {"without a version as driver_version", noDriverVersion},
     {"without host_name", noHostName},
     {"without config_file_path", noConfigurationPath},
     {"without default_calib_file_path", noDefaultProfilesPath},
     {"without custom_calib_file_path", noCustomProfilesPath}}};

template <>
const FieldType &fieldType<DriverInfo>();

} // namespace quv
