// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/ttcircuitdata.h"

#include "base/record_p.h"
#include "processes/ttcircuitdata_p.h"

#include <QuvFramework/fw_metatype.h>

namespace {

const bool isRegistered = RegisterTravellingType<TTCircuitData>("TTCircuitData");

const quv::Record<TTCircuitData> &record()
{
    using Data = TTCircuitData;
    static const quv::Record<Data> record({
        {Data::positionID_TAG, &Data::positionID, quv::noPositionID},
        {Data::stepsPos_TAG, &Data::stepsPos, quv::noStepsPos},
        {Data::finSize_TAG, &Data::finSize, quv::noFinSize},
    });
    return record;
}

} // namespace

TTCircuitData::TTCircuitData(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue TTCircuitData::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool TTCircuitData::operator==(const TTCircuitData &other) const
{
    return record().equal(*this, other);
}

bool TTCircuitData::equalTo(const TTCircuitData &other, bool) const
{
    return *this == other;
}
