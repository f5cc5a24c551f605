// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

struct FW_Version;

/**
 * STOP: stops what the machine is doing. What the two classes of commands share that it has: one for a driver that passes it
 * on to the firmware, one for a driver that stops a procedure of its own. No firmware is without it.
 */
class QUVPROTOCOL_EXPORT StopCmd
{
public:
    struct Description;

    StopCmd() = default;
    /** Throws DE01332 and DE01334 for a firmware and a software stop type that there is not. */
    StopCmd(int fwStopType, int swStopType);

    int fwStopType() const { return m_fwStopType; } ///< what the firmware is to stop
    int swStopType() const { return m_swStopType; } ///< what the driver is to stop

    static bool checkFwStopType(int type); ///< 0 to 3
    static bool checkSwStopType(int type); ///< 0 to 2
    /** Whether the firmware can end what it does softly. None is known that can. */
    static bool isSoftStopSupported(const FW_Version &version);

private:
    int m_fwStopType = 0;
    int m_swStopType = 0;
};
