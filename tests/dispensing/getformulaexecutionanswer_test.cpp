// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulaexecutionanswer.h"

#include "dispensing/querytesting.h"

#include <memory>

namespace {

using namespace testing_dispensing;

using Answer = GetFormulaExecutionAnswer;

/** Channel 2 is half way, channel 1 done. */
FormulaProgress progress(int percentage = 50)
{
    FormulaProgress made;
    made.setFormulaChannels(
        {new FormulaChannel(2, percentage, 1200, formula()), new FormulaChannel(1, 100, 0, Formula())});
    return made;
}

Value channelStruct()
{
    return structOf({{"channel_id", Value(2)},
                     {"percentage", Value(50)},
                     {"time_left", Value(1200)},
                     {"formula", formulaStruct()}});
}

TEST(GetFormulaExecutionAnswer, holdsAProgress)
{
    EXPECT_TRUE(Answer().formulaProgress().formulaChannels().isEmpty());
    EXPECT_EQ(Answer().protoType(), 2);
    EXPECT_EQ(Answer(progress()).formulaProgress(), progress());
    List list = {QVariant::fromValue(progress()), 7};
    EXPECT_EQ(Answer(list).formulaProgress(), progress());
    EXPECT_EQ(Answer(list).protoType(), 2);

    const Answer read(structOf({{"frm_progress", structOf({{"channels", arrayOf(channelStruct())}})}}));
    ASSERT_EQ(read.formulaProgress().formulaChannels().size(), 1);
    EXPECT_EQ(*read.formulaProgress().formulaChannels().constFirst(), FormulaChannel(2, 50, 1200, formula()));
}

TEST(GetFormulaExecutionAnswer, readsAMapInAList)
{
    const QVariantMap channel = {
        {"channel_id", 2}, {"percentage", 50}, {"time_left", 1200}, {"formula", formulaMap()}};
    List list = {QVariantMap{{"channels", QVariantList{channel}}}};
    const Answer answer(list);
    ASSERT_EQ(answer.formulaProgress().formulaChannels().size(), 1);
    EXPECT_EQ(*answer.formulaProgress().formulaChannels().constFirst(),
              FormulaChannel(2, 50, 1200, formula()));
}

TEST(GetFormulaExecutionAnswer, travelsAsAStruct)
{
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"frm_progress": {"channels": []}})");
    FormulaProgress one;
    one.setFormulaChannels({new FormulaChannel(2, 50, 1200, formula())});
    EXPECT_EQ(dumped(Answer(one).toXmlRpcValue()),
              std::string(R"({"frm_progress": {"channels": [{"channel_id": 2, "formula": )") +
                  formulaWritten + R"(, "percentage": 50, "time_left": 1200}]}})");
    EXPECT_EQ(Answer(Answer(progress()).toXmlRpcValue()), Answer(progress()));
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(GetFormulaExecutionAnswer, refusesWhatIsNoProgress)
{
    for (const Value &value : {Value(), Value(0), structOf({{"channels", arrayOf()}}), structOf({}),
                               structOf({{"frm_progress", Value(7)}}),
                               structOf({{"frm_progress", structOf({{"channels", arrayOf(7)}})}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02936",
                      "GetFormulaExecutionAnswer failed: expected FormulaProgress type for first parameter",
                      "GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { const Answer answer(value); });
    }
    for (List list : {List(), List{QVariant()}, List{7}, List{variantOf(formula())},
                      List{QVariantMap{{"channels", 7}}}, List{7, QVariant::fromValue(progress())}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE02935",
                      "GetFormulaExecutionAnswer decoding failed: invalid QVariant value (expected "
                      "FormulaProgress type)",
                      "GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(QList<QVariant>&)",
                      [&] { const Answer answer(list); });
    }
}

TEST(GetFormulaExecutionAnswer, comparesProgress)
{
    const Answer answer(progress());
    const Answer same(progress());
    const Answer other(progress(51));
    const ConfProtoAnswer plain;
    EXPECT_EQ(answer, same);
    EXPECT_NE(answer, other);
    EXPECT_NE(answer, Answer());
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetFormulaExecutionAnswer, copiesItsChannels)
{
    auto answer = std::make_unique<Answer>(progress());
    const Answer copy(*answer);
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(*answer).clone());
    Answer assigned;
    assigned = *answer;
    ASSERT_EQ(className(clone.get()), "GetFormulaExecutionAnswer");
    EXPECT_NE(copy.formulaProgress().formulaChannels().constFirst(),
              answer->formulaProgress().formulaChannels().constFirst());
    answer.reset();
    EXPECT_EQ(copy.formulaProgress(), progress());
    EXPECT_EQ(assigned.formulaProgress(), progress());
    EXPECT_TRUE(copy.equalTo(clone.get()));
}

} // namespace
