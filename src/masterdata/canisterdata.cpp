// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/canisterdata.h"

#include "base/cloned_p.h"
#include "base/record_p.h"
#include "masterdata/canisterdata_p.h"

#include <QuvFramework/fw_canister.h>

#include <utility>

namespace {

/** But for the sensor, which a canister may be without. */
const quv::Record<CanisterData> &record()
{
    using Data = CanisterData;
    static const quv::Record<Data> record({
        {Data::id_TAG, &Data::id, quv::noCanisterID},
        {Data::enabled_TAG, &Data::enabled, quv::noCanisterEnabled},
        {Data::currentQuantity_TAG, &Data::currentQuantity, quv::noCurrentQuantity},
        {Data::maximumQuantity_TAG, &Data::maximumQuantity, quv::noMaximumQuantity},
        {Data::reserveQuantity_TAG, &Data::reserveQuantity, quv::noReserveQuantity},
        {Data::reserveWarning_TAG, &Data::reserveWarning, quv::noReserveWarning},
        {Data::circuitIDs_TAG, &Data::circuitIDs, quv::noCircuitsOfCanister},
        {Data::positionIDs_TAG, &Data::positionIDs, quv::noPositionsOfCanister},
        {Data::colorantID_TAG, &Data::colorantID, quv::noColorantOfCanister},
        {Data::colorantCode_TAG, &Data::colorantCode}, // optional
    });
    return record;
}

QList<int> circuitIDsOf(const FW_Canister &canister)
{
    QList<int> ids;
    for (const FW_Circuit &circuit : canister.circuits())
        ids.append(circuit.id());
    return ids;
}

} // namespace

CanisterData::CanisterData(int canister, bool isEnabled, double current, double maximum, double reserve,
                           double warning, QList<int> circuits, QList<int> positions, int colorant,
                           QString codeOfColorant, const FW_CanisterLevelSensor *sensor)
    : id(canister),
      enabled(isEnabled),
      currentQuantity(current),
      maximumQuantity(maximum),
      reserveQuantity(reserve),
      reserveWarning(warning),
      circuitIDs(std::move(circuits)),
      positionIDs(std::move(positions)),
      colorantID(colorant),
      colorantCode(std::move(codeOfColorant)),
      levelSensor(quv::cloned(sensor))
{}

CanisterData::CanisterData(const FW_Canister &canister, int colorant)
    : CanisterData(canister.id(), canister.isEnabled(), canister.currentQuantity(),
                   canister.maximumQuantity(), canister.reserveQuantity(), canister.warningQuantity(),
                   circuitIDsOf(canister), canister.getCircuitPositions(false), colorant,
                   canister.colorantCode(), canister.canisterLevelSensor())
{}

CanisterData::CanisterData(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
    if (const XmlRpc::XmlRpcValue *sensor = FindXmlRpcMember(value, levelSensor_TAG))
        levelSensor = std::make_unique<FW_CanisterLevelSensor>(*sensor);
}

CanisterData::CanisterData(const CanisterData &other)
    : CanisterData(other.id, other.enabled, other.currentQuantity, other.maximumQuantity,
                   other.reserveQuantity, other.reserveWarning, other.circuitIDs, other.positionIDs,
                   other.colorantID, other.colorantCode, other.levelSensor.get())
{}

CanisterData &CanisterData::operator=(const CanisterData &other)
{
    if (this != &other)
        *this = CanisterData(other);
    return *this;
}

XmlRpc::XmlRpcValue CanisterData::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value = record().encode(*this);
    if (levelSensor)
        value[levelSensor_TAG] = levelSensor->toXmlRpcValue();
    return value;
}

bool CanisterData::operator==(const CanisterData &other) const
{
    const bool haveSensors = levelSensor && other.levelSensor;
    return record().equal(*this, other) &&
           (haveSensors ? *levelSensor == *other.levelSensor : !levelSensor && !other.levelSensor);
}
