// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulacircuitsanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = GetFormulaCircuitsAnswer;

constexpr char ofValue[] = "GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(QList<QVariant>&)";

Value structWith(const Value &circuits, const Value &positions, const Value &quantities)
{
    return structOf({{"circuits", circuits}, {"positions", positions}, {"quantities", quantities}});
}

QVariant ints(const QList<int> &list)
{
    return QVariant::fromValue(list);
}

QVariant doubles(const QList<double> &list)
{
    return QVariant::fromValue(list);
}

TEST(GetFormulaCircuitsAnswer, holdsThreeLists)
{
    const Answer answer({11, 13}, {1, 3}, {2.5, 0.5});
    EXPECT_EQ(answer.circuitIDs(), (QList<int>{11, 13}));
    EXPECT_EQ(answer.positionIDs(), (QList<int>{1, 3}));
    EXPECT_EQ(answer.quantities(), (QList<double>{2.5, 0.5}));
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"circuits": [11, 13], "positions": [1, 3], "quantities": [2.50000, 0.500000]})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
}

TEST(GetFormulaCircuitsAnswer, writesEmptyListsAsEmptyArrays)
{
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"circuits": [], "positions": [], "quantities": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(GetFormulaCircuitsAnswer, readsAStruct)
{
    const Answer answer(structWith(arrayOf(11), arrayOf(1), arrayOf(2.5, 3)));
    EXPECT_EQ(answer.circuitIDs(), QList<int>{11});
    EXPECT_EQ(answer.positionIDs(), QList<int>{1});
    EXPECT_EQ(answer.quantities(), (QList<double>{2.5, 3.0})) << "a whole number is a quantity as well";
    EXPECT_EQ(answer.protoType(), 2);
}

TEST(GetFormulaCircuitsAnswer, readsAList)
{
    List list = {ints({11}), QVariant(List{1}), QVariant(List{2.5, 3, 4LL}), QStringLiteral("rest")};
    const Answer answer(list);
    EXPECT_EQ(answer.circuitIDs(), QList<int>{11});
    EXPECT_EQ(answer.positionIDs(), QList<int>{1});
    EXPECT_EQ(answer.quantities(), (QList<double>{2.5, 3.0, 4.0}));
    List typed = {ints({11}), ints({1}), doubles({2.5})};
    EXPECT_EQ(Answer(typed), Answer({11}, {1}, {2.5}));
}

TEST(GetFormulaCircuitsAnswer, refusesAStructWithoutTheLists)
{
    const Value good = arrayOf(1);
    for (const Value &value :
         {Value(), Value(0), good, structOf({}), structOf({{"positions", good}, {"quantities", good}}),
          structWith(Value(7), Value(7), Value(7)), structWith(structOf({}), good, good)}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00717", "GetFormulaCircuitsAnswer: Errors during Circuits ID list creation", ofValue,
                      [&] { const Answer answer(value); });
    }
    for (const Value &value :
         {structOf({{"circuits", good}, {"quantities", good}}), structWith(good, Value("1"), Value(7))}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00719", "GetFormulaCircuitsAnswer: Errors during Positions ID list creation",
                      ofValue, [&] { const Answer answer(value); });
    }
    for (const Value &value :
         {structOf({{"circuits", good}, {"positions", good}}), structWith(good, good, Value(2.5))}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01234", "GetFormulaCircuitsAnswer: Errors during quantities list creation", ofValue,
                      [&] { const Answer answer(value); });
    }
}

TEST(GetFormulaCircuitsAnswer, refusesAnElementOfAnotherType)
{
    const Value good = arrayOf(1);
    for (const Value &bad : {Value(true), Value(7.0), Value("7"), arrayOf(7), structOf({})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE00716", "Circuit ID: expected INT parameter", ofValue,
                      [&] { const Answer answer(structWith(arrayOf(1, bad), good, good)); });
        expectRefusal("DE00718", "Position ID: expected INT parameter", ofValue,
                      [&] { const Answer answer(structWith(good, arrayOf(bad), good)); });
    }
    for (const Value &bad : {Value(true), Value("7.5"), arrayOf(7.5), structOf({})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE01233", "Quantity: expected DOUBLE parameter", ofValue,
                      [&] { const Answer answer(structWith(good, good, arrayOf(2.5, bad))); });
    }
}

TEST(GetFormulaCircuitsAnswer, refusesAListWithoutTheLists)
{
    const QVariant good = ints({1});
    const auto expectListRefusal = [](const char *code, const char *text, List list) {
        expectRefusal(code, text, ofList, [&] { const Answer answer(list); });
    };
    constexpr char noCircuits[] =
        "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected list of circuit IDs)";
    constexpr char noPositions[] =
        "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected list of position IDs)";
    constexpr char noQuantities[] =
        "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected list of quantities)";
    for (const QVariant &bad : {QVariant(), QVariant(7), QVariant("7"), QVariant(List{1, "2"})}) {
        SCOPED_TRACE(bad.typeName() ? bad.typeName() : "nothing");
        expectListRefusal("DE00713", noCircuits, {bad, good, doubles({1})});
        expectListRefusal("DE00714", noPositions, {good, bad, doubles({1})});
        expectListRefusal("DE01232", noQuantities, {good, good, bad});
    }
    expectListRefusal("DE01232", noQuantities, {good, good, good}); // numbers of another type than told
    expectListRefusal("DE00713", noCircuits, {});
    expectListRefusal("DE00714", noPositions, {good});
    expectListRefusal("DE01232", noQuantities, {good, good});
}

TEST(GetFormulaCircuitsAnswer, comparesAllLists)
{
    const Answer answer({11}, {1}, {2.5});
    EXPECT_EQ(answer, Answer({11}, {1}, {2.5}));
    EXPECT_NE(answer, Answer({12}, {1}, {2.5}));
    EXPECT_NE(answer, Answer({11}, {2}, {2.5}));
    EXPECT_NE(answer, Answer({11}, {1}, {2.6}));
    const Answer same = answer;
    const Answer other({11}, {1}, {});
    const ConfProtoAnswer plain;
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetFormulaCircuitsAnswer, clonesItself)
{
    const Answer answer({11}, {1}, {2.5});
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(copy.get()), "GetFormulaCircuitsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

} // namespace
