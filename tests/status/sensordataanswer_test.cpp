// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/sensordataanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = SensorDataAnswer;

constexpr char ofValue[] = "SensorDataAnswer::SensorDataAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofDataTokens[] = "SensorData::SensorData(QStringList)";
constexpr char ofDataValue[] = "SensorData::SensorData(const XmlRpc::XmlRpcValue&)";

Value measured(const Value &sensor, const Value &measure, const Value &value)
{
    return structOf({{"sensor_type", sensor}, {"measure_type", measure}, {"value", value}});
}

TEST(SensorDataAnswer, holdsWhatWasMeasured)
{
    EXPECT_EQ(Answer().sensorData(), SensorData());
    const Answer answer(SensorData(7, 2, 3.25));
    EXPECT_EQ(answer.sensorData(), SensorData(7, 2, 3.25));
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"sensor_data": {"measure_type": 2, "sensor_type": 7, "value": 3.25000}})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
}

TEST(SensorDataAnswer, readsNothingOfAList)
{
    List list = {7, 2, 3.25};
    EXPECT_EQ(Answer(list), Answer());
    EXPECT_EQ(Answer(list).protoType(), 1);
}

TEST(SensorDataAnswer, readsTokens)
{
    const Answer answer(QStringList{"7", "7", "2", "36", "1", "0", "0", "0"});
    EXPECT_EQ(answer.sensorData(), SensorData(7, 2, 3.0));
    EXPECT_EQ(answer.serialParameters(), (QStringList{"7", "2", "36", "1", "0", "0", "0"}));
    EXPECT_EQ(Answer(QStringList{"2", "19", "0"}).sensorData(), SensorData(25, 0, 0))
        << "no range is checked";
}

TEST(SensorDataAnswer, isRefusedAtEachTokenAtWhichItMayEnd)
{
    const QStringList whole = {"7", "7", "2", "36", "1", "0", "0", "0"};
    for (int count = 0; count <= whole.size(); ++count) {
        SCOPED_TRACE(count);
        QStringList tokens = whole.mid(0, count);
        if (count == 0) {
            expectRefusal("DE00076", "Empty answer received",
                          "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                          [&] { const Answer answer(tokens); });
            continue;
        }
        tokens[0] = QString::number(count - 1, 16);
        if (count < 3)
            expectRefusal("DE00788", "Error during command answer decoding: bad length", ofDataTokens,
                          [&] { const Answer answer(tokens); });
        else
            EXPECT_EQ(Answer(tokens).sensorData(), SensorData(7, 2,
                                                              count == 3   ? 0
                                                              : count == 4 ? 0.54
                                                                           : 3.0));
    }
}

TEST(SensorDataAnswer, passesOnWhatItsDataRefuse)
{
    expectRefusal("DE00789", "Error during command answer decoding: bad sensor type value type", ofDataTokens,
                  [] {
                      const Answer answer(QStringList{"2", "zz", "2"});
                  });
    expectRefusal("DE00790", "Error during command answer decoding: bad measure type value type",
                  ofDataTokens, [] {
                      const Answer answer(QStringList{"2", "7", "zz"});
                  });
    const Value good(1);
    for (const Value &bad :
         {Value(0), arrayOf(7), Value("text"), structOf({}), measured(Value("1"), good, good)})
        expectRefusal("DE00791", "SensorData: expected sensor type value", ofDataValue, [&] {
            const Answer answer(structOf({{"sensor_data", bad}}));
        });
    expectRefusal("DE00792", "SensorData: expected measure type value", ofDataValue, [&] {
        const Answer answer(structOf({{"sensor_data", measured(good, Value("1"), good)}}));
    });
    expectRefusal("DE00793", "SensorData: expected value", ofDataValue, [&] {
        const Answer answer(structOf({{"sensor_data", measured(good, good, Value("1"))}}));
    });
}

// DE00794 and DE00797 are the contract: a sensor's data are three numbers, and only the list of the digits' tokens takes memory, without
// operator new.

TEST(SensorDataAnswer, isRefusedWithoutItsData)
{
    for (const Value &value :
         {Value(0), arrayOf(7), Value("text"), structOf({}), structOf({{"sensor_type", Value(7)}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00798", "SensorDataAnswer: Errors during SensorData list creation", ofValue,
                      [&] { const Answer answer(value); });
    }
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { const Answer answer((Value())); });
}

TEST(SensorDataAnswer, comparesItsData)
{
    const Answer answer(SensorData(7, 2, 3.25));
    const Answer same = answer;
    const SerialProtoAnswer plain;
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
    for (const SensorData &data : {SensorData(8, 2, 3.25), SensorData(7, 1, 3.25), SensorData(7, 2, 3.5)}) {
        const Answer other(data);
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(clone.get()), "SensorDataAnswer");
    EXPECT_TRUE(answer.equalTo(clone.get()));
}

} // namespace
