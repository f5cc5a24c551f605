// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "catalogue/protocommandlist.h"

#include <array>

namespace quv {

namespace catalogue {

/** Who carries a command out: the values of CMD_STRUCT::type. */
enum CommandType : int {
    Serial = 0,
    Configuration = 1,
    SerialAndConfiguration = 2,
    ConfigurationAndSerial = 3,
    Special = 4,
    SpecialAndSerial = 5,
    SpecialAndConfiguration = 6,
    Scale = 7
};

using Rows = std::array<CMD_STRUCT, ProtoCommandList::rowCount>;

const Rows &rows();

} // namespace catalogue

/** What the command of a row is for: a plain sentence without a full stop. Null outside the rows. */
QUVPROTOCOL_EXPORT const char *commandPurpose(int row);

} // namespace quv
