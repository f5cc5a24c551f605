// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/confprotoanswer.h"
#include "base/confprotocommand.h"
#include "base/factlines.h"
#include "scale/getestanswer.h"
#include "scale/scalestatusanswer.h"
#include "scale/weightanswer.h"
#include "scale/weighttesting.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_scale;

/** A member of an answer, and what refuses it. */
struct Row
{
    const char *key;
    const char *valueCode;
    const char *valueText;
    const char *listCode;
    const char *listText;
    QVariant wrong; ///< of another type
};

Value without(const Value &value, const std::string &key)
{
    Value rest;
    rest.begin(); // a struct, even without members
    for (const auto &[name, member] : value) {
        if (name != key)
            rest[name] = member;
    }
    return rest;
}

/** Expects each member to be refused when it is missing or of another type, and any other in its place in a list. */
template <class Answer, std::size_t N>
void expectRefusals(const Row (&rows)[N], const Value &whole, const List &list, const char *ofValue,
                    const char *ofList)
{
    for (std::size_t i = 0; i < N; ++i) {
        const Row &row = rows[i];
        SCOPED_TRACE(row.key);
        const Value cut = without(whole, row.key);
        expectRefusal(row.valueCode, row.valueText, ofValue, [&] { Answer{cut}; });
        Value other = whole;
        other[row.key] = valueOf(row.wrong);
        expectRefusal(row.valueCode, row.valueText, ofValue, [&] { Answer{other}; });
        List variants = list;
        for (const QVariant &bad : {row.wrong, QVariant(), QVariant(QVariantList())}) {
            variants[static_cast<int>(i)] = bad;
            expectRefusal(row.listCode, row.listText, ofList, [&] { Answer{variants}; });
        }
    }
    const Value noStruct(0);
    expectRefusal(rows[0].valueCode, rows[0].valueText, ofValue, [&] { Answer{noStruct}; });
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)", [] { Answer{Value()}; });
}

template <class Answer>
void expectAnother(const Answer &answer, const Answer &other)
{
    EXPECT_TRUE(answer != other);
    EXPECT_FALSE(answer == other);
    EXPECT_FALSE(answer.equalTo(&other));
}

template <class Answer>
void expectCopy(const Answer &answer, const char *name)
{
    const std::unique_ptr<ProtoAnswer> copy(answer.clone());
    EXPECT_EQ(className(copy.get()), name);
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
}

// ---------------------------------------------------------------- weight

TEST(WeightAnswer, isAStableWeightOf0AtFirst)
{
    EXPECT_EQ(WeightAnswer().protoType(), 3);
    EXPECT_EQ(WeightAnswer().parameters(), (List{0.0, 0, true, 0}));
    EXPECT_EQ(dumped(WeightAnswer().toXmlRpcValue()),
              R"({"precision": 0, "stable_weight": true, "unit": 0, "weight_value": 0.00000})");
    EXPECT_EQ(WeightAnswer(7.5).parameters(), (List{7.5, 0, true, 0}));
}

TEST(WeightAnswer, travels)
{
    const WeightAnswer answer(12.25, ScaleUtils::Kilogram, false, 2);
    EXPECT_DOUBLE_EQ(answer.weight(), 12.25);
    EXPECT_EQ(answer.unit(), ScaleUtils::Kilogram);
    EXPECT_FALSE(answer.stableWeight());
    EXPECT_EQ(answer.precision(), 2);
    EXPECT_EQ(answer.parameters(), weightList());
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), weightDump);
    EXPECT_TRUE(WeightAnswer(weightStruct()) == answer);
    List list = weightList();
    EXPECT_TRUE(WeightAnswer(list) == answer);
    list << "more";
    EXPECT_TRUE(WeightAnswer(list) == answer);
    expectCopy(answer, "WeightAnswer");
}

TEST(WeightAnswer, takesWholeNumbersAndUnknownUnits)
{
    List list = {3, -7, true, -1};
    EXPECT_EQ(WeightAnswer(list).parameters(), (List{3.0, -7, true, -1}));
    EXPECT_DOUBLE_EQ(
        WeightAnswer(structOf({{"weight_value", 3}, {"unit", 9}, {"stable_weight", true}, {"precision", 0}}))
            .weight(),
        3);
}

TEST(WeightAnswer, refusesEachMember)
{
    const Row rows[] = {{"weight_value", "DE02087", "WeightAnswer failed: expected double type parameter",
                         "DE02093", "WeightAnswer failed: expected double type parameter", "12.25"},
                        {"unit", "DE02088", "WeightAnswer failed: expected string type parameter", "DE02094",
                         "WeightAnswer failed: expected QString type parameter", "kg"},
                        {"stable_weight", "DE02089", "WeightAnswer failed: expected boolean type parameter",
                         "DE02095", "WeightAnswer failed: expected bool type parameter", 1},
                        {"precision", "DE02091", "WeightAnswer failed: expected int type parameter",
                         "DE02096", "WeightAnswer failed: expected int type parameter", 2.5}};
    expectRefusals<WeightAnswer>(rows, weightStruct(), weightList(), weightOfValue, weightOfList);
}

TEST(WeightAnswer, refusesAShortListBeforeItsElements)
{
    for (int size = 0; size < 4; ++size) {
        List cut = List{"x", "x", "x"}.mid(0, size);
        expectRefusal("DE02092", "WeightAnswer decoding failed: invalid QVariant values length", weightOfList,
                      [&] { WeightAnswer{cut}; });
    }
}

TEST(WeightAnswer, differsInEachField)
{
    const WeightAnswer answer(12.25, ScaleUtils::Kilogram, false, 2);
    expectAnother(answer, {12.5, ScaleUtils::Kilogram, false, 2});
    expectAnother(answer, {12.25, ScaleUtils::Gram, false, 2});
    expectAnother(answer, {12.25, ScaleUtils::Kilogram, true, 2});
    expectAnother(answer, {12.25, ScaleUtils::Kilogram, false, 3});
    static_assert(!std::is_constructible_v<WeightAnswer, bool>);
    static_assert(!std::is_constructible_v<WeightAnswer, const char *>);
}

TEST(WeightAnswer, tellsItsMembers)
{
    for (const char *command : {"WEIGHT", "GET_CURRENT_WEIGHT"}) {
        const Lines lines = membersOf(command);
        ASSERT_GT(lines.size(), 5U);
        EXPECT_EQ(
            Lines(lines.begin(), lines.begin() + 6),
            (Lines{"WeightAnswer", "weight_value (double): in the unit",
                   "  XML-RPC, missing or another type: DE02087", "  list, missing or another type: DE02093",
                   "  list, too few: DE02092", "unit (int): 0 g, 1 kg, 2 oz, 3 lb"}));
    }
}

// ---------------------------------------------------------------- status

TEST(ScaleStatusAnswer, tellsWhetherTheScaleIsConnected)
{
    EXPECT_EQ(ScaleStatusAnswer().protoType(), 2);
    EXPECT_FALSE(ScaleStatusAnswer().connected());
    EXPECT_EQ(dumped(ScaleStatusAnswer().toXmlRpcValue()), R"({"connected": false})");
    const ScaleStatusAnswer connected(true);
    EXPECT_EQ(dumped(connected.toXmlRpcValue()), R"({"connected": true})");
    EXPECT_TRUE(ScaleStatusAnswer(structOf({{"connected", true}})) == connected);
    List list = {true};
    EXPECT_TRUE(ScaleStatusAnswer(list) == connected);
    expectCopy(connected, "ScaleStatusAnswer");
    expectAnother(connected, ScaleStatusAnswer(false));
    static_assert(!std::is_constructible_v<ScaleStatusAnswer, int>);
}

TEST(ScaleStatusAnswer, refusesWhatIsNoBool)
{
    constexpr char text[] = "ScaleStatusAnswer failed: expected bool type parameter";
    constexpr char ofList[] = "ScaleStatusAnswer::ScaleStatusAnswer(QList<QVariant>&)";
    const Row rows[] = {{"connected", "DE02359", text, "DE02360", text, 1}};
    expectRefusals<ScaleStatusAnswer>(rows, structOf({{"connected", true}}), {true},
                                      "ScaleStatusAnswer::ScaleStatusAnswer(const XmlRpc::XmlRpcValue&)",
                                      ofList);
    List none;
    expectRefusal("DE02360", text, ofList, [&] { ScaleStatusAnswer{none}; });
}

TEST(ScaleStatusAnswer, isNoFailureWithoutAScale)
{
    ConfProtoCommand command(QStringLiteral("GET_SCALE_STATUS"), nullptr);
    FW_DriverError error;
    EXPECT_TRUE(command.buildProtoAnswer(structOf({{"connected", false}}), &error));
    EXPECT_EQ(error.code(), QString());
    EXPECT_EQ(className(command.getProtoAnswer()), "ScaleStatusAnswer");
    List list = {false};
    EXPECT_TRUE(command.buildProtoAnswer(list, &error));
    EXPECT_EQ(className(command.getProtoAnswer()), "ScaleStatusAnswer");
}

// ---------------------------------------------------------------- a test step

constexpr char stepDump[] = R"({"req_percentage": 80, "req_weight": 1.50000, "speed": 60, "steps": 1200})";

Value stepStruct()
{
    return structOf({{"steps", 1200}, {"speed", 60}, {"req_weight", 1.5}, {"req_percentage", 80}});
}

TEST(GETestAnswer, travels)
{
    EXPECT_EQ(GETestAnswer().protoType(), 2);
    EXPECT_EQ(dumped(GETestAnswer().toXmlRpcValue()),
              R"({"req_percentage": 0, "req_weight": 0.00000, "speed": 0, "steps": 0})");
    const GETestAnswer answer(1200, 60, 1.5, 80);
    EXPECT_EQ(answer.steps(), 1200);
    EXPECT_EQ(answer.speed(), 60);
    EXPECT_DOUBLE_EQ(answer.reqWeight(), 1.5);
    EXPECT_EQ(answer.reqPercentage(), 80);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), stepDump);
    EXPECT_TRUE(GETestAnswer(stepStruct()) == answer);
    List list = {1200, 60, 1.5, 80};
    EXPECT_TRUE(GETestAnswer(list) == answer);
    expectCopy(answer, "GETestAnswer");
    expectAnother(answer, {1201, 60, 1.5, 80});
    expectAnother(answer, {1200, 61, 1.5, 80});
    expectAnother(answer, {1200, 60, 1.6, 80});
    expectAnother(answer, {1200, 60, 1.5, 81});
    static_assert(!std::is_constructible_v<GETestAnswer, int>);
}

TEST(GETestAnswer, refusesEachMemberByItsPosition)
{
    constexpr char noInt[] = "GETestAnswer decoding failed: invalid QVariant value (expected int type)";
    constexpr char noDouble[] = "GETestAnswer decoding failed: invalid QVariant value (expected double type)";
    constexpr char ofList[] = "GETestAnswer::GETestAnswer(QList<QVariant>&)";
    const Row rows[] = {{"steps", "DE02226", noInt, "DE02226", noInt, 1.5},
                        {"speed", "DE02227", noDouble, "DE02227", noDouble, 1.5},
                        {"req_weight", "DE02228", noDouble, "DE02228", noDouble, "1.5"},
                        {"req_percentage", "DE02229", noInt, "DE02229", noInt, true}};
    expectRefusals<GETestAnswer>(rows, stepStruct(), {1200, 60, 1.5, 80},
                                 "GETestAnswer::GETestAnswer(const XmlRpc::XmlRpcValue&)", ofList);
    for (int size = 0; size < 4; ++size) {
        List cut = List{"x", "x", "x"}.mid(0, size);
        expectRefusal("DE02225", "GETestAnswer decoding failed: bad parameters", ofList,
                      [&] { GETestAnswer{cut}; });
    }
}

} // namespace
