// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/calibrationtesting.h"

#include "base/outofmemory.h"

#include <QtCore/QVariant>

#include <type_traits>
#include <vector>

namespace {

using namespace testing_calibration;
using Point = BasicCalibrationPoint;
using Basic = BasicCalibrationData;

constexpr char ofPoint[] = "BasicCalibrationPoint::BasicCalibrationPoint(const XmlRpc::XmlRpcValue&)";
constexpr char ofData[] = "CalibrationData::CalibrationData(const XmlRpc::XmlRpcValue&)";
constexpr char ofBasic[] = "BasicCalibrationData::BasicCalibrationData(const XmlRpc::XmlRpcValue&)";

TEST(BasicCalibrationPoint, isAStructOverXmlRpc)
{
    const Point point(7, 2.5, 800, 60, 4);
    EXPECT_EQ(dumped(point.toXmlRpcValue()), pointDump);
    const Point read(pointStruct());
    EXPECT_EQ(read.calibPointID, 7);
    EXPECT_EQ(read.dispQuantity, 2.5);
    EXPECT_EQ(read.dispSteps, 800);
    EXPECT_EQ(read.speed, 60);
    EXPECT_EQ(read.nozzleValveID, 4);
    EXPECT_EQ(read, point);
    EXPECT_EQ(Point(with(pointStruct(), "disp_quantity", 2)), Point(7, 2, 800, 60, 4));
    EXPECT_EQ(Point(), Point(0, 0, 0, 0, 0));
}

TEST(BasicCalibrationPoint, mayHaveNoNozzleValve)
{
    EXPECT_EQ(Point(without(pointStruct(), "nozzle_valve_id")), Point(7, 2.5, 800, 60, 0));
    EXPECT_EQ(Point(with(pointStruct(), "nozzle_valve_id", "4")), Point(7, 2.5, 800, 60, 0));
}

TEST(BasicCalibrationPoint, isRefusedWithoutAMember)
{
    struct Row
    {
        const char *key;
        const char *code;
        const char *text;
    };
    for (const Row &row :
         {Row{"calib_point_id", "DE02642", "BasicCalibrationPoint: expected calib id value"},
          Row{"disp_quantity", "DE02643", "BasicCalibrationPoint: expected disp quantity value"},
          Row{"disp_steps", "DE02644", "BasicCalibrationPoint: expected disp steps value"},
          Row{"speed", "DE02665", "BasicCalibrationPoint: expected speed value"}}) {
        SCOPED_TRACE(row.key);
        for (const Value &bad : {without(pointStruct(), row.key), with(pointStruct(), row.key, "7"),
                                 with(pointStruct(), row.key, true), with(pointStruct(), row.key, arrayOf())})
            expectRefusal(row.code, row.text, ofPoint, [&] { Point{bad}; });
    }
    for (const Value &bad : {Value(), Value(7), arrayOf(7, 2.5, 800, 60), structOf({}),
                             with(pointStruct(), "calib_point_id", 2.5)})
        expectRefusal("DE02642", "BasicCalibrationPoint: expected calib id value", ofPoint,
                      [&] { Point{bad}; });
    static_assert(!std::is_constructible_v<Point, int>);
    static_assert(!std::is_constructible_v<Point, const char *>);
}

TEST(BasicCalibrationPoint, anyChangeMakesItAnother)
{
    const Point point(7, 2.5, 800, 60, 4);
    for (const Point &other :
         {Point(8, 2.5, 800, 60, 4), Point(7, 2.6, 800, 60, 4), Point(7, 2.5, 801, 60, 4),
          Point(7, 2.5, 800, 61, 4), Point(7, 2.5, 800, 60, 0)})
        EXPECT_TRUE(point != other) << dumped(other.toXmlRpcValue());
}

TEST(BasicCalibrationData, isAStructOverXmlRpc)
{
    const Recalibrations two = recalibrations();
    EXPECT_EQ("[" + dumped(two[0].toXmlRpcValue()) + ", " + dumped(two[1].toXmlRpcValue()) + "]",
              recalibrationsDump());
    const Basic read(recalibrationStructs()[0]);
    EXPECT_EQ(read.positionID, 3);
    EXPECT_EQ(read.calibPoints, (QList<Point>{{7, 2.5, 800, 60, 4}}));
    EXPECT_EQ(Basic(recalibrationStructs()[1]), two[1]);
    EXPECT_EQ(Basic(), Basic(0, {}));
}

TEST(BasicCalibrationData, isRefusedWithoutAMember)
{
    const Value whole = recalibrationStructs()[0];
    for (const Value &bad : {Value(), Value(7), arrayOf(), structOf({}), without(whole, "position_id"),
                             with(whole, "position_id", "3"), with(whole, "position_id", 3.0)})
        expectRefusal("DE02641", "BasicCalibrationData: expected position id value", ofBasic,
                      [&] { Basic{bad}; });
    constexpr char badPoints[] = "BasicCalibrationData: errors during BasicCalibrationPoint creation";
    for (const Value &bad : {without(whole, "calib_points"), with(whole, "calib_points", 7),
                             with(whole, "calib_points", pointStruct())})
        expectRefusal("DE02653", badPoints, ofBasic, [&] { Basic{bad}; });
    expectRefusal("DE02653", badPoints, ofBasic, [&] { outOfMemoryOnce([&] { Basic{whole}; }); });
    for (const Value &bad : {Value(7), structOf({}), arrayOf()})
        expectRefusal("DE02642", "BasicCalibrationPoint: expected calib id value", ofPoint,
                      [&] { Basic{with(whole, "calib_points", arrayOf(pointStruct(), bad))}; });
    static_assert(!std::is_constructible_v<Basic, int>);
    static_assert(!std::is_constructible_v<Basic, const char *>);
}

TEST(BasicCalibrationData, anyChangeMakesItAnother)
{
    const Basic data = recalibrations()[0];
    EXPECT_TRUE(data == Basic(3, {{7, 2.5, 800, 60, 4}}));
    EXPECT_TRUE(data != Basic(4, {{7, 2.5, 800, 60, 4}}));
    EXPECT_TRUE(data != Basic(3, {{7, 2.5, 800, 60, 0}}));
    EXPECT_TRUE(data != Basic(3, {}));
}

TEST(CalibrationData, isAStructOverXmlRpc)
{
    EXPECT_STREQ(CalibrationData::positionID_TAG, "position_id");
    EXPECT_STREQ(CalibrationData::dosingMotor_TAG, "pump_info");
    EXPECT_STREQ(CalibrationData::circuitCalibrations_TAG, "circuit_calibrations");
    const Calibrations two = calibrations();
    EXPECT_EQ("[" + dumped(two[0].toXmlRpcValue()) + ", " + dumped(two[1].toXmlRpcValue()) + "]",
              calibrationsDump());
    const CalibrationData read(calibrationStructs()[0]);
    EXPECT_EQ(read.positionID, 3);
    EXPECT_EQ(read.circuitCalibrations, (QList<FW_Calibration>{calibration(800, 2.5), calibration(400, 1)}));
    EXPECT_EQ(read.dosingMotor, motor());
    EXPECT_EQ(CalibrationData(calibrationStructs()[1]), two[1]);
}

TEST(CalibrationData, isRefusedWithoutAMemberOrWithAnotherType)
{
    struct Row
    {
        const char *key;
        const char *code;
        const char *text;
        std::vector<Value> others;
    };
    const Value whole = calibrationStructs()[0];
    const Row rows[] = {
        {"position_id", "DE03373", "CalibrationData: expected position id value", {structOf({})}},
        {"circuit_calibrations",
         "DE03374",
         "CalibrationData: errors during FW_Calibration creation",
         {7, structOf({}), arrayOf(7), arrayOf(structOf({}), arrayOf())}},
        {"pump_info", "DE03375", "CalibrationData: expected pump info value", {7, arrayOf()}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.key);
        std::vector<Value> bad = {without(whole, row.key)};
        for (const Value &other : {Value("3"), Value(3.0), Value(true), Value()})
            bad.push_back(with(whole, row.key, other));
        for (const Value &other : row.others)
            bad.push_back(with(whole, row.key, other));
        for (const Value &value : bad) {
            SCOPED_TRACE(dumped(value));
            expectRefusal(row.code, row.text, ofData, [&] { CalibrationData{value}; });
        }
    }
    for (const Value &bad : {Value(), Value(7), arrayOf(), structOf({})})
        expectRefusal("DE03373", rows[0].text, ofData, [&] { CalibrationData{bad}; });
    const QVariant map = QVariantMap{{"position_id", 3}};
    expectRefusal("DE03374", rows[1].text, ofData, [&] { map.value<CalibrationData>(); });
    expectRefusal("DE03374", rows[1].text, ofData, [&] { outOfMemoryOnce([&] { CalibrationData{whole}; }); });
    static_assert(!std::is_constructible_v<CalibrationData, int>);
    static_assert(!std::is_constructible_v<CalibrationData, const char *>);
}

TEST(CalibrationData, isRefusedAsItsMotorAndItsCalibrationsAre)
{
    const Value whole = calibrationStructs()[0];
    expectRefusal("DE03350", "Machine data: max_speed must be an integer from 0 to 2147483647",
                  "FW_DosingMotor::FW_DosingMotor(const XmlRpc::XmlRpcValue&)", [&] {
                      CalibrationData{with(whole, "pump_info", structOf({{"max_speed", "x"}}))};
                  });
    expectRefusal(
        "DE03350", "Machine data: points must be an array",
        "FW_Calibration::FW_Calibration(const XmlRpc::XmlRpcValue&)", [&] {
            CalibrationData{with(whole, "circuit_calibrations", arrayOf(structOf({{"points", 7}})))};
        });
}

TEST(CalibrationData, anyChangeMakesItAnother)
{
    const CalibrationData data = calibrations()[0];
    EXPECT_TRUE(data == CalibrationData(3, {calibration(800, 2.5), calibration(400, 1)}, motor()));
    EXPECT_TRUE(data != CalibrationData(4, data.circuitCalibrations, motor()));
    EXPECT_TRUE(data != CalibrationData(3, {calibration(800, 2.5)}, motor()));
    EXPECT_TRUE(data != CalibrationData(3, {calibration(400, 1), calibration(800, 2.5)}, motor()));
    EXPECT_TRUE(data != CalibrationData(3, data.circuitCalibrations, FW_DosingMotor()));
}

template <class T>
void expectTravels(const char *name, const QList<T> &two)
{
    SCOPED_TRACE(name);
    EXPECT_EQ(QMetaType::type(name), qMetaTypeId<T>());
    const QVariant variant = QVariant::fromValue(two[0]);
    EXPECT_EQ(QVariant(variant.toMap()).template value<T>(), two[0]);
    EXPECT_TRUE(variant == QVariant::fromValue(T(two[0])));
    EXPECT_FALSE(variant == QVariant::fromValue(two[1]));
}

TEST(CalibrationRecords, travelInVariants)
{
    expectTravels<Point>("BasicCalibrationPoint", {{7, 2.5, 800, 60, 4}, {7, 2.5, 800, 60, 0}});
    expectTravels("BasicCalibrationData", recalibrations());
    expectTravels("CalibrationData", calibrations());
    EXPECT_EQ(QMetaType::type("QList<BasicCalibrationData>"), qMetaTypeId<Recalibrations>());
    EXPECT_EQ(QMetaType::type("QList<CalibrationData>"), qMetaTypeId<Calibrations>());
}

} // namespace
