// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_dispenser.h>

namespace quv {

/** True for the position of a circuit, enabled or not; and for any without a dispenser that could tell. */
inline bool mayBePosition(int position, const FW_Machine *machine)
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    return !dispenser || dispenser->hasCircuitPosition(position, false);
}

} // namespace quv
