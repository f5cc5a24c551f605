// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/checkformulalevelsanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = CheckFormulaLevelsAnswer;

constexpr char ofValue[] = "CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(QList<QVariant>&)";
constexpr char noId[] = "Canister ID: expected INT parameter";
constexpr char noCritical[] = "CheckFormulaLevelsAnswer: Errors during Canister below critical list creation";
constexpr char noWarning[] = "CheckFormulaLevelsAnswer: Errors during Canister below warning list creation";

Value structWith(const Value &critical, const Value &warning)
{
    return structOf({{"canisters_below_critical", critical}, {"canisters_below_warning", warning}});
}

QVariant numbers(const QList<int> &list)
{
    return QVariant::fromValue(list);
}

TEST(CheckFormulaLevelsAnswer, holdsTwoLists)
{
    const Answer answer({101}, {101, 103});
    EXPECT_EQ(answer.canistersBelowCritical(), QList<int>{101});
    EXPECT_EQ(answer.canistersBelowWarning(), (QList<int>{101, 103}));
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"canisters_below_critical": [101], "canisters_below_warning": [101, 103]})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
}

TEST(CheckFormulaLevelsAnswer, writesEmptyListsAsEmptyArrays)
{
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()),
              R"({"canisters_below_critical": [], "canisters_below_warning": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
    EXPECT_EQ(Answer().protoType(), 2);
}

TEST(CheckFormulaLevelsAnswer, readsAStruct)
{
    const Answer answer(structWith(arrayOf(7, -1), arrayOf()));
    EXPECT_EQ(answer.canistersBelowCritical(), (QList<int>{7, -1}));
    EXPECT_EQ(answer.canistersBelowWarning(), QList<int>());
    EXPECT_EQ(answer.protoType(), 2);
}

TEST(CheckFormulaLevelsAnswer, readsAList)
{
    List list = {numbers({7, 8}), QVariant(List{9, 10LL}), QStringLiteral("rest")};
    const Answer answer(list);
    EXPECT_EQ(answer.canistersBelowCritical(), (QList<int>{7, 8}));
    EXPECT_EQ(answer.canistersBelowWarning(), (QList<int>{9, 10}));
    EXPECT_EQ(answer.protoType(), 2);
}

TEST(CheckFormulaLevelsAnswer, refusesAStructWithoutTheLists)
{
    for (const Value &value : {Value(), Value(0), arrayOf(arrayOf(1), arrayOf(2)), structOf({}),
                               structOf({{"canisters_below_warning", arrayOf()}}),
                               structWith(Value(7), arrayOf()), structWith(structOf({}), Value(7))}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00460", noCritical, ofValue, [&] { const Answer answer(value); });
    }
    for (const Value &value :
         {structOf({{"canisters_below_critical", arrayOf(1)}}), structWith(arrayOf(1), Value("1"))}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00462", noWarning, ofValue, [&] { const Answer answer(value); });
    }
}

TEST(CheckFormulaLevelsAnswer, refusesAnElementThatIsNoInteger)
{
    for (const Value &bad : {Value(true), Value(7.0), Value("7"), arrayOf(7), structOf({})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE00459", noId, ofValue,
                      [&] { const Answer answer(structWith(arrayOf(1, bad), Value(7))); });
        expectRefusal("DE00461", noId, ofValue,
                      [&] { const Answer answer(structWith(arrayOf(1), arrayOf(bad, 1))); });
    }
}

TEST(CheckFormulaLevelsAnswer, refusesAListWithoutTheLists)
{
    const QVariant good = numbers({1});
    for (const QVariant &bad :
         {QVariant(), QVariant(7), QVariant("7"), QVariant(List{1, "2"}), QVariant(QStringList{"1"})}) {
        SCOPED_TRACE(bad.typeName() ? bad.typeName() : "nothing");
        List first = {bad, bad};
        expectRefusal("DE00456",
                      "CheckFormulaLevelsAnswer decoding failed: invalid QVariant value (expected list of "
                      "canister below critical)",
                      ofList, [&] { const Answer answer(first); });
        List second = {good, bad};
        expectRefusal("DE00457",
                      "CheckFormulaLevelsAnswer decoding failed: invalid QVariant value (expected list of "
                      "canister below warning)",
                      ofList, [&] { const Answer answer(second); });
    }
    List none;
    expectRefusal("DE00456",
                  "CheckFormulaLevelsAnswer decoding failed: invalid QVariant value (expected list of "
                  "canister below critical)",
                  ofList, [&] { const Answer answer(none); });
    List one = {good};
    expectRefusal("DE00457",
                  "CheckFormulaLevelsAnswer decoding failed: invalid QVariant value (expected list of "
                  "canister below warning)",
                  ofList, [&] { const Answer answer(one); });
}

TEST(CheckFormulaLevelsAnswer, comparesBothLists)
{
    const Answer answer({1, 2}, {3});
    EXPECT_EQ(answer, Answer({1, 2}, {3}));
    EXPECT_NE(answer, Answer({2, 1}, {3}));
    EXPECT_NE(answer, Answer({1, 2}, {4}));
    const Answer same = answer;
    const Answer other({1, 2}, {});
    const ConfProtoAnswer plain;
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(CheckFormulaLevelsAnswer, clonesItself)
{
    const Answer answer({1, 2}, {3});
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(copy.get()), "CheckFormulaLevelsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

} // namespace
