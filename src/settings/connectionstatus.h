// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

/** How one of the driver's links stands. The numbers are the driver's; any is kept. */
enum class ConnectionStatus : int {
    NotUsed = -1, ///< the driver has no such link
    NotConnected = 0,
    Connected = 1
};
