// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_canister.h>

QList<int> FW_Canister::getCircuitPositions(bool onlyEnabled) const
{
    QList<int> positions;
    for (const FW_Circuit &circuit : m_circuits) {
        if (!onlyEnabled || circuit.isEnabled())
            positions.append(circuit.positionId());
    }
    return positions;
}

bool FW_Canister::operator==(const FW_Canister &other) const
{
    return m_id == other.m_id && m_enabled == other.m_enabled && m_colorantCode == other.m_colorantCode &&
           m_maximumQuantity == other.m_maximumQuantity && m_currentQuantity == other.m_currentQuantity &&
           m_reserveQuantity == other.m_reserveQuantity && m_warningQuantity == other.m_warningQuantity &&
           m_circuits == other.m_circuits;
}
