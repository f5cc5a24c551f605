// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/objectfield_p.h"
#include "firmware/fwresourcedata.h"

namespace quv {

constexpr char badResourceData[] = "FwResourceData: bad parameters";

constexpr Refusal badSubcommand = {"DE02728", badResourceData};
constexpr Refusal badResourceIndex = {"DE02729", badResourceData};
constexpr Refusal badBlockAddress = {"DE02730", badResourceData};
constexpr Refusal badBlockData = {"DE02731", badResourceData};

template <>
inline constexpr const char *markOf<FwResourceData> = FwResourceData::subcommand_TAG;

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 4> ownRefusals<FwResourceData> = {
    {{"without an int as subcmd", badSubcommand},
     {"without an int as res_index", badResourceIndex},
     {"without an int as block_address", badBlockAddress},
     {"without bytes as data", badBlockData}}};

template <>
inline const FieldType &fieldType<FwResourceData>()
{
    static constexpr FieldType type = objectType<FwResourceData>();
    return type;
}

} // namespace quv
