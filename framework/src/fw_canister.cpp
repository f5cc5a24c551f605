// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_canister.h>

namespace {

constexpr int lastLayoutPosition = 244; // 245 stands for none on the serial link

} // namespace

QList<int> FW_Canister::getCircuitPositions(bool onlyEnabled) const
{
    QList<int> positions;
    for (const FW_Circuit &circuit : m_circuits) {
        if (!onlyEnabled || circuit.isEnabled())
            positions.append(circuit.positionId());
    }
    return positions;
}

bool FW_Canister::checkLayoutPositionId(int position, const QString & /*model*/)
{
    return position >= 1 && position <= lastLayoutPosition;
}

void FW_Canister::autoSetLayoutPositionsId()
{
    m_layoutPositionsId.clear();
    for (const FW_Circuit &circuit : qAsConst(m_circuits)) {
        const int position = circuit.positionId();
        if (checkLayoutPositionId(position, QString()) && !m_layoutPositionsId.contains(position))
            m_layoutPositionsId.append(position);
    }
}

void FW_Canister::setCanisterLevelSensor(int sensors)
{
    if (sensors > 0)
        m_levelSensor = FW_CanisterLevelSensor();
    else
        m_levelSensor.reset();
}

bool FW_Canister::operator==(const FW_Canister &other) const
{
    return m_id == other.m_id && m_enabled == other.m_enabled && m_colorantCode == other.m_colorantCode &&
           m_maximumQuantity == other.m_maximumQuantity && m_currentQuantity == other.m_currentQuantity &&
           m_reserveQuantity == other.m_reserveQuantity && m_warningQuantity == other.m_warningQuantity &&
           m_activationFlag == other.m_activationFlag && m_layoutPositionsId == other.m_layoutPositionsId &&
           m_levelSensor == other.m_levelSensor && m_circuits == other.m_circuits;
}

FW_CanisterLevelSensor *FW_CanisterLevelSensor::clone() const
{
    return new FW_CanisterLevelSensor(*this);
}

void FW_CanisterLevelSensor::setCheckFrequency(int frequency, int unit)
{
    m_checkFrequency = frequency;
    m_checkFrequencyUnit = unit;
}

bool FW_CanisterLevelSensor::operator==(const FW_CanisterLevelSensor &other) const
{
    return m_enabled == other.m_enabled && m_wireBoardId == other.m_wireBoardId &&
           m_wireConnectorId == other.m_wireConnectorId && m_criticalLevel == other.m_criticalLevel &&
           m_checkFrequency == other.m_checkFrequency && m_checkFrequencyUnit == other.m_checkFrequencyUnit;
}
