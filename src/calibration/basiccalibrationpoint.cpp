// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/basiccalibrationpoint.h"

#include "base/record_p.h"
#include "calibration/basiccalibrationdata_p.h"

#include <QuvFramework/fw_metatype.h>

namespace {

const bool isRegistered = RegisterTravellingType<BasicCalibrationPoint>("BasicCalibrationPoint");

const quv::Record<BasicCalibrationPoint> &record()
{
    using Point = BasicCalibrationPoint;
    static const quv::Record<Point> record({
        {Point::calibPointID_TAG, &Point::calibPointID, quv::noPointID},
        {Point::dispQuantity_TAG, &Point::dispQuantity, quv::noPointQuantity},
        {Point::dispSteps_TAG, &Point::dispSteps, quv::noPointSteps},
        {Point::speed_TAG, &Point::speed, quv::noPointSpeed},
        {Point::nozzleValveID_TAG, &Point::nozzleValveID}, // optional: not every machine has nozzle valves
    });
    return record;
}

} // namespace

BasicCalibrationPoint::BasicCalibrationPoint(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue BasicCalibrationPoint::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool BasicCalibrationPoint::operator==(const BasicCalibrationPoint &other) const
{
    return record().equal(*this, other);
}
