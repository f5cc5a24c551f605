// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"

#include <array>
#include <utility>

// What objects of the framework refuse by themselves. It is raised there, and passes through the commands and answers that hold such
// objects; here it stands for those who tell it. An ellipsis is what only the refused object tells.

namespace quv {

using OwnRefusal = std::pair<const char *, Refusal>;

constexpr Refusal toldOfMachineData = {"DE03350", "Machine data: …"};

/** Of a machine and of each of its parts. */
inline constexpr std::array<OwnRefusal, 1> machineDataRefusals = {
    {{"with a wrong member", toldOfMachineData}}};

constexpr Refusal toldOfMachines = {"DE03365", "FW_Configuration: expected machines value"};
constexpr Refusal toldOfKind = {"DE03366",
                                "FW_Configuration: machines[…] is neither a dispenser nor a mixer"};
constexpr Refusal toldOfTwice = {"DE03367", "FW_Configuration: machines[…] is there already"};
constexpr Refusal toldOfActive = {"DE03368", "FW_Configuration: … is the ID of no such machine"};
constexpr Refusal toldOfPlacedMachineData = {"DE03350", "machines[…]: Machine data: …"};

/** Of the whole configuration. */
inline constexpr std::array<OwnRefusal, 5> configurationRefusals = {
    {{"without an array as machines", toldOfMachines},
     {"with a machine that is neither a dispenser nor a mixer", toldOfKind},
     {"with a machine that is there already", toldOfTwice},
     {"with a machine with a wrong member", toldOfPlacedMachineData},
     {"active_dispenser or active_mixer is the ID of no such machine", toldOfActive}}};

constexpr Refusal toldOfError = {"DE03001", "FW_Error: expected error_type and timestamp values"};
constexpr Refusal toldOfErrorType = {"DE03007", "FW_Error: unknown error type"};
constexpr Refusal toldOfErrorCode = {"DE03002", "FW_DriverError: expected code value"};
constexpr Refusal toldOfErrorText = {"DE03003", "FW_DriverError: expected text value"};
constexpr Refusal toldOfHwError = {"DE03004", "FW_HwError: expected the numbers of a hardware error"};
constexpr Refusal toldOfConfError = {"DE03005",
                                     "FW_ConfError: expected the numbers of a configuration error"};

/** Of each error in a list. */
inline constexpr std::array<OwnRefusal, 6> errorRefusals = {
    {{"an element without a good error_type or timestamp", toldOfError},
     {"an element of no known error_type", toldOfErrorType},
     {"an element that is an error of the driver without a good code", toldOfErrorCode},
     {"an element that is an error of the driver without a good text", toldOfErrorText},
     {"an element that is an error of the hardware without its numbers", toldOfHwError},
     {"an element that is an error of the configuration without its numbers", toldOfConfError}}};

} // namespace quv
