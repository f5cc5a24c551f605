// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/calibrationdata.h"

#include "calibration/calibrationarguments_p.h"
#include "calibration/calibrationdata_p.h"

#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_xmlrpc.h>

namespace quv {

namespace {

constexpr Refusal noPosition = {"DE03373", "CalibrationData: expected position id value"};
constexpr Refusal badCalibrations = {"DE03374", "CalibrationData: errors during FW_Calibration creation"};
constexpr Refusal noMotor = {"DE03375", "CalibrationData: expected pump info value"};

/** True for what a CalibrationData says itself, in place of which whoever holds a list has a code to tell. */
bool isOwnRefusal(const FW_Exception &error)
{
    return error.function().startsWith(QLatin1String("CalibrationData::"));
}

Decoded readCalibrations(const XmlRpc::XmlRpcValue &value, void *field)
{
    try {
        return readObjects<CalibrationData>(value, field);
    } catch (const FW_Exception &error) {
        if (!isOwnRefusal(error))
            throw;
        return Decoded::BadElement;
    }
}

} // namespace

template <>
const FieldType &fieldType<QList<CalibrationData>>()
{
    static constexpr FieldType type = [] {
        FieldType calibrations = objectListType<CalibrationData>();
        calibrations.read = readCalibrations;
        return calibrations;
    }();
    return type;
}

QList<CalibrationData> calibrationsOf(const QList<QVariant> &list, const Refusal &otherType,
                                      const Refusal &notMade, const char *function)
{
    try {
        return objectsOf<CalibrationData>(list, otherType, notMade, function);
    } catch (const FW_Exception &error) {
        if (!isOwnRefusal(error))
            throw;
        throwRefusal(notMade, function);
    }
}

} // namespace quv

namespace {

using XmlRpc::XmlRpcValue;

const bool isRegistered =
    RegisterTravellingList<CalibrationData>("CalibrationData", "QList<CalibrationData>");

const XmlRpcValue &ofType(XmlRpcValue::Type type, const XmlRpcValue *value, const quv::Refusal &refusal,
                          const char *function)
{
    if (!value || value->getType() != type)
        quv::throwRefusal(refusal, function);
    return *value;
}

template <class Make>
auto made(const XmlRpcValue &value, const char *key, XmlRpcValue::Type type, const quv::Refusal &refusal,
          const char *function, Make make) -> decltype(make(value))
{
    return quv::madeOrRefused(refusal, function, [&] {
        return make(ofType(type, FindXmlRpcMember(value, key), refusal, function));
    });
}

int madePosition(const XmlRpcValue &value, const char *function)
{
    return made(value, CalibrationData::positionID_TAG, XmlRpcValue::TypeInt, quv::noPosition, function,
                [](const XmlRpcValue &position) { return static_cast<const int &>(position); });
}

QList<FW_Calibration> madeCalibrations(const XmlRpcValue &value, const char *function)
{
    return made(value, CalibrationData::circuitCalibrations_TAG, XmlRpcValue::TypeArray, quv::badCalibrations,
                function, [function](const XmlRpcValue &array) {
                    QList<FW_Calibration> calibrations;
                    calibrations.reserve(array.size());
                    for (int i = 0; i < array.size(); ++i)
                        calibrations.append(FW_Calibration(
                            ofType(XmlRpcValue::TypeStruct, &array[i], quv::badCalibrations, function)));
                    return calibrations;
                });
}

FW_DosingMotor madeMotor(const XmlRpcValue &value, const char *function)
{
    return made(value, CalibrationData::dosingMotor_TAG, XmlRpcValue::TypeStruct, quv::noMotor, function,
                [](const XmlRpcValue &motor) { return FW_DosingMotor(motor); });
}

} // namespace

CalibrationData::CalibrationData(const XmlRpcValue &value)
    : positionID(madePosition(value, Q_FUNC_INFO)),
      circuitCalibrations(madeCalibrations(value, Q_FUNC_INFO)),
      dosingMotor(madeMotor(value, Q_FUNC_INFO))
{}

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
