// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "base/machineinfo.h"
#include "base/record_p.h"

#include <vector>

namespace quv {

constexpr Refusal noMachineEnabled = {"DE00766", "MachineInfo: expected enabled value"};
constexpr Refusal noMachineSID = {"DE00746", "MachineInfo: expected SID_value value"};
constexpr Refusal noMachineSerialNumber = {"DE00747", "MachineInfo: expected serial_number value"};
constexpr Refusal noMachineDescription = {"DE00762", "MachineInfo: expected description value"};
constexpr Refusal noMachineModel = {"DE00767", "MachineInfo: expected model value"};
constexpr Refusal noMachineProductCode = {"DE00768", "MachineInfo: expected productCode value"};

template <>
inline constexpr const char *markOf<MachineInfo> = MachineInfo::serialNumber_TAG;

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 6> ownRefusals<MachineInfo> = {
    {{"without a good enabled", noMachineEnabled},
     {"without a good sid", noMachineSID},
     {"without a good serial_number", noMachineSerialNumber},
     {"without a good description", noMachineDescription},
     {"without a good model", noMachineModel},
     {"without a good product_code", noMachineProductCode}}};

/** The members that all machines have, for the records of their kinds. */
const Record<MachineInfo> &machineInfoRecord();

/** The members of one kind of machine. */
template <class Info>
struct InfoRecords
{
    explicit InfoRecords(const std::vector<Member<Info>> &members)
        : own(members),
          whole(machineInfoRecord(), members)
    {}

    Record<Info> own;   ///< what it adds
    Record<Info> whole; ///< its struct, for writing
};

} // namespace quv
