// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/calibrationdata.h"

#include "calibration/calibrationdata_p.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>

namespace quv {

template <>
const FieldType &fieldType<QList<CalibrationData>>()
{
    static constexpr FieldType type = objectListType<CalibrationData>();
    return type;
}

} // namespace quv

namespace {

using XmlRpc::XmlRpcValue;

const bool isRegistered =
    quv::registerTravellingList<CalibrationData>("CalibrationData", "QList<CalibrationData>");

/** The value of this type; whoever expected a calibration says in words of its own that there is none. */
const XmlRpcValue &ofType(XmlRpcValue::Type type, const XmlRpcValue *value)
{
    if (!value || value->getType() != type)
        throw std::invalid_argument("a member of the calibration is missing or of another type");
    return *value;
}

} // namespace

CalibrationData::CalibrationData(const XmlRpcValue &value)
{
    DecodeXmlRpcValue(ofType(XmlRpcValue::TypeInt, FindXmlRpcMember(value, positionID_TAG)), positionID);
    dosingMotor = FW_DosingMotor(ofType(XmlRpcValue::TypeStruct, FindXmlRpcMember(value, dosingMotor_TAG)));
    const XmlRpcValue &calibrations =
        ofType(XmlRpcValue::TypeArray, FindXmlRpcMember(value, circuitCalibrations_TAG));
    for (int i = 0; i < calibrations.size(); ++i)
        circuitCalibrations.append(FW_Calibration(ofType(XmlRpcValue::TypeStruct, &calibrations[i])));
}

XmlRpcValue CalibrationData::toXmlRpcValue() const
{
    XmlRpcValue value;
    value[positionID_TAG] = positionID;
    value[dosingMotor_TAG] = dosingMotor.toXmlRpcValue();
    quv::writeObjects<FW_Calibration>(&circuitCalibrations, value[circuitCalibrations_TAG]);
    return value;
}

bool CalibrationData::operator==(const CalibrationData &other) const
{
    return positionID == other.positionID && circuitCalibrations == other.circuitCalibrations &&
           dosingMotor == other.dosingMotor;
}
