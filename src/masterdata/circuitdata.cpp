// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/circuitdata.h"

#include "base/record_p.h"
#include "masterdata/circuitdata_p.h"

#include <QuvFramework/fw_circuit.h>

#include <algorithm>
#include <utility>

namespace {

const quv::Record<CircuitData> &record()
{
    using Data = CircuitData;
    static const quv::Record<Data> record({
        {Data::id_TAG, &Data::id, quv::noCircuitID},
        {Data::positionID_TAG, &Data::positionID, quv::noCircuitPosition},
        {Data::enabled_TAG, &Data::enabled, quv::noCircuitEnabled},
        {Data::canisterID_TAG, &Data::canisterID, quv::noCircuitCanister},
        {Data::colorantID_TAG, &Data::colorantID, quv::noCircuitColorant},
        {Data::stirringEnabled_TAG, &Data::stirringEnabled, quv::noStirringEnabled},
        {Data::recirculationEnabled_TAG, &Data::recirculationEnabled, quv::noRecirculationEnabled},
        {Data::pumpType_TAG, &Data::pumpType, quv::noPumpType},
        {Data::pumpSerialNumber_TAG, &Data::pumpSerialNumber, quv::noPumpSerialNumber},
        {Data::headRefID_TAG, &Data::headRefID}, // optional: older drivers do not tell it
    });
    return record;
}

template <class Motor>
bool anyIsEnabled(const QList<Motor> &motors)
{
    return std::any_of(motors.begin(), motors.end(), [](const Motor &motor) { return motor.isEnabled(); });
}

} // namespace

CircuitData::CircuitData(int circuit, int position, bool isEnabled, int canister, int colorant, bool stirs,
                         bool recirculates, int typeOfPump, QString serialNumberOfPump, int headRef)
    : id(circuit),
      positionID(position),
      enabled(isEnabled),
      canisterID(canister),
      colorantID(colorant),
      stirringEnabled(stirs),
      recirculationEnabled(recirculates),
      pumpType(typeOfPump),
      pumpSerialNumber(std::move(serialNumberOfPump)),
      headRefID(headRef)
{}

CircuitData::CircuitData(const FW_Circuit &circuit, int canister)
    : CircuitData(circuit.id(), circuit.positionId(), circuit.isEnabled(), canister, 0,
                  anyIsEnabled(circuit.stirringMotors()), anyIsEnabled(circuit.recirculationMotors()),
                  circuit.dosingMotor().pumpType(), {}, circuit.dosingMotor().headRefID())
{}

CircuitData::CircuitData(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue CircuitData::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool CircuitData::operator==(const CircuitData &other) const
{
    return record().equal(*this, other);
}
