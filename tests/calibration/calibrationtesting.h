// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "calibration/basiccalibrationdata.h"
#include "calibration/calibrationdata.h"

#include "base/basetesting.h"

// Calibrations of two circuits, as objects, as structs and as text.

namespace testing_calibration {

using namespace testing_base;

using Recalibrations = QList<BasicCalibrationData>;
using Calibrations = QList<CalibrationData>;

inline Value pointStruct()
{
    return structOf({{"calib_point_id", 7},
                     {"disp_quantity", 2.5},
                     {"disp_steps", 800},
                     {"speed", 60},
                     {"nozzle_valve_id", 4}});
}

inline QVariantMap pointMap()
{
    return {{"calib_point_id", 7},
            {"disp_quantity", 2.5},
            {"disp_steps", 800},
            {"speed", 60},
            {"nozzle_valve_id", 4}};
}

constexpr char pointDump[] =
    R"({"calib_point_id": 7, "disp_quantity": 2.50000, "disp_steps": 800, "nozzle_valve_id": 4, "speed": 60})";

inline Recalibrations recalibrations()
{
    return {{3, {{7, 2.5, 800, 60, 4}}}, {5, {}}};
}

inline Value recalibrationStructs()
{
    return arrayOf(structOf({{"position_id", 3}, {"calib_points", arrayOf(pointStruct())}}),
                   structOf({{"position_id", 5}, {"calib_points", arrayOf()}}));
}

inline List recalibrationMaps()
{
    return {QVariantMap{{"position_id", 3}, {"calib_points", List{pointMap()}}},
            QVariantMap{{"position_id", 5}, {"calib_points", List{}}}};
}

inline std::string recalibrationsDump()
{
    return std::string(R"([{"calib_points": [)") + pointDump +
           R"(], "position_id": 3}, {"calib_points": [], "position_id": 5}])";
}

// The structs of motors and calibrations are the framework's; its own tests tell them.

inline FW_Calibration calibration(long long steps, double quantity)
{
    FW_CalibrationPoint point;
    point.steps = steps;
    point.quantity = quantity;
    point.speed = 60;
    return FW_Calibration({point});
}

inline FW_DosingMotor motor()
{
    FW_DosingMotor motor;
    motor.setMaxSpeed(120);
    motor.setPumpType(8, 0);
    return motor;
}

inline Calibrations calibrations()
{
    return {{3, {calibration(800, 2.5), calibration(400, 1)}, motor()}, {5, {}, FW_DosingMotor()}};
}

inline Value calibrationStructs()
{
    return arrayOf(structOf({{"position_id", 3},
                             {"pump_info", motor().toXmlRpcValue()},
                             {"circuit_calibrations", arrayOf(calibration(800, 2.5).toXmlRpcValue(),
                                                              calibration(400, 1).toXmlRpcValue())}}),
                   structOf({{"position_id", 5},
                             {"pump_info", FW_DosingMotor().toXmlRpcValue()},
                             {"circuit_calibrations", arrayOf()}}));
}

inline std::string calibrationsDump()
{
    return R"([{"circuit_calibrations": [)" + dumped(calibration(800, 2.5).toXmlRpcValue()) + ", " +
           dumped(calibration(400, 1).toXmlRpcValue()) + R"(], "position_id": 3, "pump_info": )" +
           dumped(motor().toXmlRpcValue()) +
           R"(}, {"circuit_calibrations": [], "position_id": 5, "pump_info": )" +
           dumped(FW_DosingMotor().toXmlRpcValue()) + "}]";
}

inline Value without(Value whole, const std::string &key)
{
    Value cut = structOf({});
    for (const auto &[name, member] : whole) {
        if (name != key)
            cut[name] = member;
    }
    return cut;
}

inline Value with(Value whole, const char *key, const Value &other)
{
    whole[key] = other;
    return whole;
}

/** Each element in a variant of its own. */
template <class T>
List each(const QList<T> &objects)
{
    List list;
    for (const T &object : objects)
        list.append(QVariant::fromValue(object));
    return list;
}

} // namespace testing_calibration
