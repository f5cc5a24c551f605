// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_canister.h>
#include <QuvFramework/fw_metatype.h>

namespace {

const bool isCanisterRegistered = RegisterTravellingList<FW_Canister>("FW_Canister", "QList<FW_Canister>");
const bool isCanisterLevelSensorRegistered =
    RegisterTravellingType<FW_CanisterLevelSensor>("FW_CanisterLevelSensor");

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

FW_Canister::FW_Canister(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_Canister::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_Canister::operator==(const FW_Canister &other) const
{
    return quv::haveSameMembers(*this, other);
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

FW_CanisterLevelSensor::FW_CanisterLevelSensor(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_CanisterLevelSensor::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_CanisterLevelSensor::operator==(const FW_CanisterLevelSensor &other) const
{
    return quv::haveSameMembers(*this, other);
}
