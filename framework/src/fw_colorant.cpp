// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_colorant.h>
#include <QuvFramework/fw_dispenser.h>

QList<int> FW_Colorant::getPositionsID(const FW_Dispenser &machine, bool onlyEnabled) const
{
    QList<int> positions;
    for (const FW_Canister &canister : machine.canisters()) {
        if (canister.colorantCode() == m_code && (canister.isEnabled() || !onlyEnabled))
            positions += canister.getCircuitPositions(onlyEnabled);
    }
    return positions;
}
