// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/sensordata.h"

#include "base/basetesting.h"

#include <limits>

namespace {

using namespace testing_base;

constexpr char ofTokens[] = "SensorData::SensorData(QStringList)";
constexpr char ofValue[] = "SensorData::SensorData(const XmlRpc::XmlRpcValue&)";

Value structWith(const Value &sensor, const Value &measure, const Value &value)
{
    return structOf({{"sensor_type", sensor}, {"measure_type", measure}, {"value", value}});
}

void expectData(const SensorData &data, int sensor, int measure, double value)
{
    EXPECT_EQ(data.sensorType, sensor);
    EXPECT_EQ(data.measureType, measure);
    EXPECT_DOUBLE_EQ(data.value, value);
}

TEST(SensorData, startsWithoutASensor)
{
    expectData(SensorData(), -1, 0, 0);
    EXPECT_EQ(dumped(SensorData().toXmlRpcValue()),
              R"({"measure_type": 0, "sensor_type": -1, "value": 0.00000})");
}

TEST(SensorData, takesWhatItIsGiven)
{
    expectData(SensorData(static_cast<SensorData::SensorType>(7), static_cast<SensorData::MeasureType>(2)), 7,
               2, 0);
    expectData(SensorData(20, 1, -3.5), 20, 1, -3.5);
    expectData(SensorData(25, 9, 1.5), 25, 9, 1.5); // the range is for those who ask
    const SensorData copy = SensorData(20, 1, 2.5);
    expectData(copy, 20, 1, 2.5);
}

TEST(SensorData, goesBackToTheDefaults)
{
    SensorData data(20, 1, 2.5);
    data.clear();
    expectData(data, -1, 0, 0);
    data = SensorData(20, 1, 2.5);
    data.setDefaults();
    expectData(data, -1, 0, 0);
}

TEST(SensorData, checksItsTypesForThoseWhoAsk)
{
    for (int type : {0, 1, 19, 20})
        EXPECT_TRUE(SensorData::checkSensorType(type)) << type;
    for (int type : {-1, 21, 245, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_FALSE(SensorData::checkSensorType(type)) << type;
    for (int type : {0, 1, 2})
        EXPECT_TRUE(SensorData::checkMeasureType(type)) << type;
    for (int type : {-1, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_FALSE(SensorData::checkMeasureType(type)) << type;
}

TEST(SensorData, comparesEachField)
{
    const SensorData data(7, 1, 2.5);
    EXPECT_TRUE(data == SensorData(7, 1, 2.5));
    EXPECT_FALSE(data != SensorData(7, 1, 2.5));
    for (const SensorData &other : {SensorData(8, 1, 2.5), SensorData(7, 2, 2.5), SensorData(7, 1, 2.6)}) {
        EXPECT_TRUE(data != other);
        EXPECT_FALSE(data == other);
    }
}

TEST(SensorDataTokens, areTwoTypesAndFiveDigits)
{
    expectData(SensorData(QStringList{"7", "2", "36", "1", "0", "0", "0"}), 7, 2, 3.0); // 54 + 246
    expectData(SensorData(QStringList{"14", "0", "1", "0", "0", "0", "0"}), 20, 0, 0.01);
    expectData(SensorData(QStringList{"0", "1", "0", "0", "1"}), 0, 1, 605.16); // 246 x 246
    expectData(SensorData(QStringList{"0", "0", "F5", "F5", "F5", "F5", "F5"}), 0, 0, 9008978189.75);
}

TEST(SensorDataTokens, areNotCheckedForTheirRange)
{
    expectData(SensorData(QStringList{"19", "9", "1"}), 25, 9, 0.01);
    expectData(SensorData(QStringList{"7fffffff", "7fffffff"}), 2147483647, 2147483647, 0);
}

TEST(SensorDataTokens, mayLackDigits)
{
    expectData(SensorData(QStringList{"7", "2"}), 7, 2, 0);
    expectData(SensorData(QStringList{"7", "2", "64"}), 7, 2, 1);
    expectData(SensorData(QStringList{"7", "2", "0", "1"}), 7, 2, 2.46);
}

TEST(SensorDataTokens, haveFiveDigitsAtMost)
{
    expectData(SensorData(QStringList{"7", "2", "64", "0", "0", "0", "0", "1", "zz"}), 7, 2, 1);
}

TEST(SensorDataTokens, areNoNumberWithABadDigit)
{
    expectData(SensorData(QStringList{"7", "2", "64", "zz", "0", "0", "0"}), 7, 2, 0);
    expectData(SensorData(QStringList{"7", "2", ""}), 7, 2, 0);
}

TEST(SensorDataTokens, areRefused)
{
    constexpr char badLength[] = "Error during command answer decoding: bad length";
    constexpr char badSensor[] = "Error during command answer decoding: bad sensor type value type";
    constexpr char badMeasure[] = "Error during command answer decoding: bad measure type value type";
    for (const QStringList &tokens : {QStringList(), QStringList{"7"}, QStringList{"zz"}})
        expectRefusal("DE00788", badLength, ofTokens, [&] { const SensorData data(tokens); });
    for (const char *bad : {"zz", "", "-1", "80000000", "100000000"}) {
        SCOPED_TRACE(bad);
        expectRefusal("DE00789", badSensor, ofTokens, [&] {
            const SensorData data(QStringList{bad, bad, "1"});
        });
        expectRefusal("DE00790", badMeasure, ofTokens, [&] {
            const SensorData data(QStringList{"7", bad, "1"});
        });
    }
}

TEST(SensorDataXmlRpc, isAStructOfThree)
{
    EXPECT_EQ(dumped(SensorData(7, 2, 3.25).toXmlRpcValue()),
              R"({"measure_type": 2, "sensor_type": 7, "value": 3.25000})");
    EXPECT_EQ(SensorData(SensorData(7, 2, 3.25).toXmlRpcValue()), SensorData(7, 2, 3.25));
    expectData(SensorData(structWith(Value(7), Value(2), Value(3.25))), 7, 2, 3.25);
    expectData(SensorData(structWith(Value(7), Value(2), Value(3))), 7, 2,
               3); // a whole number is one as well
    expectData(SensorData(structWith(Value(25), Value(-9), Value(-1.5))), 25, -9, -1.5);
}

TEST(SensorDataXmlRpc, isRefusedWithoutAMember)
{
    const Value good(1);
    constexpr char noSensor[] = "SensorData: expected sensor type value";
    constexpr char noMeasure[] = "SensorData: expected measure type value";
    constexpr char noValue[] = "SensorData: expected value";
    for (const Value &value : {Value(), Value(7), arrayOf(7), Value("text"), structOf({}),
                               structOf({{"measure_type", good}, {"value", good}})})
        expectRefusal("DE00791", noSensor, ofValue, [&] { const SensorData data(value); });
    expectRefusal("DE00792", noMeasure, ofValue, [&] {
        const SensorData data(structOf({{"sensor_type", good}, {"value", good}}));
    });
    expectRefusal("DE00793", noValue, ofValue, [&] {
        const SensorData data(structOf({{"sensor_type", good}, {"measure_type", good}}));
    });
    for (const Value &bad : {Value(true), Value("1"), arrayOf(1), structOf({})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE00791", noSensor, ofValue,
                      [&] { const SensorData data(structWith(bad, bad, bad)); });
        expectRefusal("DE00792", noMeasure, ofValue,
                      [&] { const SensorData data(structWith(good, bad, bad)); });
        expectRefusal("DE00793", noValue, ofValue,
                      [&] { const SensorData data(structWith(good, good, bad)); });
    }
    expectRefusal("DE00791", noSensor, ofValue,
                  [&] { const SensorData data(structWith(Value(1.0), good, good)); });
    expectRefusal("DE00792", noMeasure, ofValue,
                  [&] { const SensorData data(structWith(good, Value(1.0), good)); });
}

} // namespace
