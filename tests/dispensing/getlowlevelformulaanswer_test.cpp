// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getlowlevelformulaanswer.h"

#include "dispensing/querytesting.h"

#include <memory>

namespace {

using namespace testing_dispensing;

using Answer = GetLowLevelFormulaAnswer;

TEST(GetLowLevelFormulaAnswer, holdsAFormula)
{
    EXPECT_EQ(Answer().formula(), Formula());
    EXPECT_EQ(Answer().protoType(), 2);
    EXPECT_EQ(Answer(formula()).formula(), formula());
    for (List list : {List{variantOf(formula())}, List{formulaMap(), 7}}) {
        SCOPED_TRACE(shown(list));
        EXPECT_EQ(Answer(list).formula(), formula());
        EXPECT_EQ(Answer(list).protoType(), 2);
    }
    EXPECT_EQ(Answer(structOf({{"low_level_formula", formulaStruct()}})).formula(), formula());
}

TEST(GetLowLevelFormulaAnswer, travelsAsAStruct)
{
    const Value value = Answer(formula()).toXmlRpcValue();
    EXPECT_EQ(dumped(value), std::string(R"({"low_level_formula": )") + formulaWritten + '}');
    EXPECT_EQ(Answer(value), Answer(formula()));
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(GetLowLevelFormulaAnswer, refusesWhatIsNoFormula)
{
    for (const Value &value : {Value(), Value(0), formulaStruct(), arrayOf(formulaStruct()), structOf({}),
                               structOf({{"low_level_formula", Value(7)}}),
                               structOf({{"low_level_formula", unreadableFormula()}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00904", "GetLowLevelFormulaAnswer failed: expected Formula type for first parameter",
                      "GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { const Answer answer(value); });
    }
    for (List list : {List(), List{QVariant()}, List{7}, List{unreadableFormulaVariant()},
                      List{variantOf(purge())}, List{7, variantOf(formula())}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal(
            "DE00902",
            "GetLowLevelFormulaAnswer decoding failed: invalid QVariant value (expected Formula type)",
            "GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(QList<QVariant>&)",
            [&] { const Answer answer(list); });
    }
}

TEST(GetLowLevelFormulaAnswer, comparesFormulas)
{
    const Answer answer(formula());
    const Answer same(formula());
    const Answer other(grams({{"1", 2.6}}));
    const ConfProtoAnswer plain;
    EXPECT_EQ(answer, same);
    EXPECT_NE(answer, other);
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetLowLevelFormulaAnswer, clonesItself)
{
    const Answer answer(formula());
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(copy.get()), "GetLowLevelFormulaAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

} // namespace
