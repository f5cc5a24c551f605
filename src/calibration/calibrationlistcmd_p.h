// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/describedcommand_p.h"
#include "calibration/calibrationlistcmd.h"

#include <QuvFramework/fw_dispenser.h>

/** What the descriptions of the two commands have in common. */
struct CalibrationListCmd::Description : quv::Description
{
    /** Both forms refuse with the same codes; without a dispenser any position will do. */
    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive, const FW_Dispenser *dispenser = nullptr)
    {
        constexpr quv::ArgumentRefusal noPosition = {"DE00877", "DE00877",
                                                     "Position ID: expected INT parameter"};
        archive.required({"position", "a circuit's position"}, self.m_positionID, noPosition, noPosition);
        archive.refuseUnless(
            !dispenser || dispenser->hasCircuitPosition(self.m_positionID, false),
            {"DE00876", "DE00876", "Invalid position ID parameter: not present on current dispenser"});
        archive.optional({"enabled", "only when the circuit is enabled"}, self.m_showForEnabledCircuit,
                         {"DE00878", "DE00878", "Show for enabled circuit: expected BOOL parameter"});
    }
};
