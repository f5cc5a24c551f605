// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/machineid.h"
#include "base/objectfield_p.h"

namespace quv {

constexpr char badMachineID[] = "Bad Machine ID value";
constexpr Refusal noMachineNumber = {"DE02679", badMachineID};
constexpr Refusal noMachineType = {"DE02680", badMachineID};

template <>
inline constexpr const char *markOf<MachineID> = MachineID::id_TAG;

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 2> ownRefusals<MachineID> = {
    {{"without a good id", noMachineNumber}, {"without a good machine", noMachineType}}};

template <>
inline const FieldType &fieldType<MachineID>()
{
    static constexpr FieldType type = objectType<MachineID>();
    return type;
}

} // namespace quv
