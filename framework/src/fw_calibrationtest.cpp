// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_calibrationtest.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>

namespace {

using XmlRpc::XmlRpcValue;

const bool areRegistered =
    RegisterTravellingList<FW_CalibrationTest>("FW_CalibrationTest", "QList<FW_CalibrationTest>");

template <class T>
T required(const XmlRpcValue &value, const char *key)
{
    T field{};
    if (!DecodeXmlRpcValue(value, QLatin1String(key), field))
        throw std::invalid_argument("a member of the calibration test is missing or of another type");
    return field;
}

} // namespace

FW_CalibrationTest::FW_CalibrationTest(const XmlRpcValue &value)
    : targetQuantity(required<double>(value, TARGET_QUANTITY)),
      quantity(required<double>(value, QUANTITY)),
      steps(required<long long>(value, STEPS)),
      speed(required<int>(value, SPEED))
{
    if (FindXmlRpcMember(value, NOZZLE_VALVE))
        nozzleValveID = required<int>(value, NOZZLE_VALVE);
}

XmlRpcValue FW_CalibrationTest::toXmlRpcValue() const
{
    XmlRpcValue value;
    value[TARGET_QUANTITY] = targetQuantity;
    value[QUANTITY] = quantity;
    value[STEPS] = EncodeXmlRpcVariant(steps);
    value[SPEED] = speed;
    value[NOZZLE_VALVE] = nozzleValveID;
    return value;
}

bool FW_CalibrationTest::operator==(const FW_CalibrationTest &other) const
{
    return targetQuantity == other.targetQuantity && quantity == other.quantity && steps == other.steps &&
           speed == other.speed && nozzleValveID == other.nozzleValveID;
}
