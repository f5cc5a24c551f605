// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/basiccalibrationdata.h"

#include "base/record_p.h"
#include "calibration/basiccalibrationdata_p.h"

#include <QuvFramework/fw_metatype.h>

namespace quv {

template <>
const FieldType &fieldType<QList<BasicCalibrationPoint>>()
{
    static constexpr FieldType type = objectListType<BasicCalibrationPoint>();
    return type;
}

template <>
const FieldType &fieldType<QList<BasicCalibrationData>>()
{
    static constexpr FieldType type = objectListType<BasicCalibrationData>();
    return type;
}

} // namespace quv

namespace {

const bool isRegistered =
    RegisterTravellingList<BasicCalibrationData>("BasicCalibrationData", "QList<BasicCalibrationData>");

const quv::Record<BasicCalibrationData> &record()
{
    using Data = BasicCalibrationData;
    static const quv::Record<Data> record({
        {Data::positionID_TAG, &Data::positionID, quv::noRecalibratedPosition},
        {Data::calibPoints_TAG, &Data::calibPoints, quv::badPoints},
    });
    return record;
}

} // namespace

BasicCalibrationData::BasicCalibrationData(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue BasicCalibrationData::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool BasicCalibrationData::operator==(const BasicCalibrationData &other) const
{
    return record().equal(*this, other);
}
