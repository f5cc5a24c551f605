// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/sensordatacmd.h"

#include "base/commandcontract.h"
#include "catalogue/commandfacts.h"

#include <limits>

namespace {

using namespace testing_base;

constexpr char notCreated[] = "Failed to create SensorDataAnswer";
constexpr char notAnInt[] = "Measure type value type: expected INT parameter";
constexpr char written[] = R"({"sensor_data": {"measure_type": 2, "sensor_type": 7, "value": 3.00000}})";

AnswerFacts answers()
{
    const Value data =
        structOf({{"sensor_type", Value(7)}, {"measure_type", Value(2)}, {"value", Value(3.0)}});
    AnswerFacts answers = serialAnswers();
    answers.tokens = AnswerOfTokens("SensorDataAnswer", {"7", "7", "2", "36", "1", "0", "0", "0"}, written)
                         .failsWith("DE00787", notCreated)
                         .refuses({"2", "7", "zz"}, "DE00790",
                                  "Error during command answer decoding: bad measure type value type",
                                  "SensorData::SensorData(QStringList)");
    answers.value = AnswerOfValue("SensorDataAnswer", structOf({{"sensor_data", data}}), written)
                        .failsWith("DE01298", notCreated)
                        .refuses(data, "DE00798", "SensorDataAnswer: Errors during SensorData list creation",
                                 "SensorDataAnswer::SensorDataAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("SensorDataAnswer", {7, 2, 3.0},
                     R"({"sensor_data": {"measure_type": 0, "sensor_type": -1, "value": 0.00000}})")
            .failsWith("DE01299", notCreated)
            .refusesNothing();
    answers.envelope = {"DE00786", notCreated};
    return answers;
}

SensorData::SensorType sensor(int type)
{
    return static_cast<SensorData::SensorType>(type);
}

SensorData::MeasureType measure(int type)
{
    return static_cast<SensorData::MeasureType>(type);
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<SensorDataCmd>());
    facts.catalogue = {"GET_SENSOR_DATA", 28, "0060", 1};
    facts.protoType = 1;
    facts.valueFunction = "SensorDataCmd::SensorDataCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SensorDataCmd::SensorDataCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE00782", "DE00784", "Sensor type value type: expected INT parameter"})
            .takes({0, 20, 21, -1, 245, std::numeric_limits<int>::max()}),
        optional(Integer, {"DE00783", "DE00785", notAnInt})
            .takes({0, 1, 3, -1, std::numeric_limits<int>::min()}),
    };
    facts.words = silence();
    facts.defaults = Request().parameters({-1, 0}).written("[-1, 0]").sends({-1, 0});
    facts.requests = {
        Request({7, 2}).typed<SensorDataCmd>(sensor(7), measure(2)).written("[7, 2]").sends({7, 2}),
        Request({20, 1}).typed<SensorDataCmd>(SensorData(20, 1, 3.5)).written("[20, 1]").sends({20, 1}),
        Request({4}).parameters({4, 0}).written("[4, 0]").sends({4, 0}),
    };
    facts.answers = answers();
    return facts;
}

TEST(SensorDataCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(SensorDataCmd, keepsTheDataThatItIsMadeOf)
{
    EXPECT_EQ(SensorDataCmd().sensorData(), SensorData());
    EXPECT_EQ(SensorDataCmd(SensorData(7, 2, 3.5)).sensorData(), SensorData(7, 2, 3.5));
    EXPECT_EQ(SensorDataCmd(sensor(7), measure(2)).sensorData(), SensorData(7, 2, 0));
    EXPECT_EQ(SensorDataCmd(List{7, 2}).sensorData(), SensorData(7, 2, 0));
    SensorDataCmd command(SensorData(7, 2, 3.5));
    command.setDefaults();
    EXPECT_EQ(command.sensorData(), SensorData(-1, 0, 0));
}

TEST(SensorDataCmd, isExplainedWithASensorThatMustBeGiven)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_SENSOR_DATA");
    ASSERT_EQ(facts.arguments.size(), 2);
    EXPECT_FALSE(facts.arguments.at(0).optional);
    EXPECT_FALSE(facts.arguments.at(0).defaultValue.valid());
    EXPECT_TRUE(facts.arguments.at(1).optional);
    EXPECT_EQ(dumped(facts.arguments.at(1).defaultValue), "0");
}

TEST(SensorDataCmd, tellsWhichMeasuresAreToBeRead)
{
    const auto types = [](bool first, bool second, bool third, bool fourth, bool fifth) {
        QList<int> numbers;
        for (const auto type : SensorDataCmd::readingTypes(first, second, third, fourth, fifth))
            numbers.append(type);
        return numbers;
    };
    EXPECT_EQ(types(false, false, false, false, false), QList<int>());
    EXPECT_EQ(types(true, false, false, false, false), QList<int>());
    EXPECT_EQ(types(false, false, false, false, true), QList<int>());
    EXPECT_EQ(types(true, false, false, false, true), QList<int>{0});
    EXPECT_EQ(types(false, true, false, false, false), QList<int>{1});
    EXPECT_EQ(types(false, false, true, false, false), QList<int>{1});
    EXPECT_EQ(types(false, true, true, false, false), QList<int>{1});
    EXPECT_EQ(types(false, false, false, true, false), QList<int>{2});
    EXPECT_EQ(types(true, false, true, false, true), (QList<int>{0, 1}));
    EXPECT_EQ(types(true, true, true, true, false), (QList<int>{1, 2}));
    EXPECT_EQ(types(true, true, true, true, true), (QList<int>{0, 1, 2}));
}

} // namespace
