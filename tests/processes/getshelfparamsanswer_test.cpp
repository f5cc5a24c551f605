// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getshelfparamsanswer.h"

#include "base/basetesting.h"
#include "base/confprotocommand.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = GetShelfParamsAnswer;

constexpr char ofValue[] = "GetShelfParamsAnswer::GetShelfParamsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetShelfParamsAnswer::GetShelfParamsAnswer(QList<QVariant>&)";
constexpr char invalid[] = "GetShelfParamsAnswer: invalid parameter";

TEST(GetShelfParamsAnswer, holdsPlaneAndHeight)
{
    const Answer answer(true, 250);
    EXPECT_TRUE(answer.hasReferencePlane());
    EXPECT_EQ(answer.referenceHeight(), 250);
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_FALSE(Answer().hasReferencePlane());
    EXPECT_EQ(Answer().referenceHeight(), 0);
    EXPECT_EQ(Answer().protoType(), 2);
}

TEST(GetShelfParamsAnswer, travelsAsAStruct)
{
    EXPECT_EQ(dumped(Answer(true, 250).toXmlRpcValue()),
              R"({"shelf_ref_height": 250, "shelf_ref_plane": true})");
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"shelf_ref_height": 0, "shelf_ref_plane": false})");
    EXPECT_EQ(Answer(structOf({{"shelf_ref_plane", true}, {"shelf_ref_height", 250}, {"more", 7}})),
              Answer(true, 250));
    EXPECT_EQ(Answer(Answer(true, -5).toXmlRpcValue()), Answer(true, -5));
}

TEST(GetShelfParamsAnswer, readsAList)
{
    List list = {true, 250LL, "rest"};
    EXPECT_EQ(Answer(list), Answer(true, 250));
    EXPECT_EQ(Answer(list).protoType(), 2);
}

TEST(GetShelfParamsAnswer, refusesAStructWithoutThem)
{
    for (const Value &value :
         {Value(), Value(0), arrayOf(true, 250), structOf({}), structOf({{"shelf_ref_height", 250}}),
          structOf({{"shelf_ref_plane", 1}, {"shelf_ref_height", "250"}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02941", invalid, ofValue, [&] { const Answer answer(value); });
    }
    for (const Value &value : {structOf({{"shelf_ref_plane", true}}),
                               structOf({{"shelf_ref_plane", true}, {"shelf_ref_height", true}}),
                               structOf({{"shelf_ref_plane", true}, {"shelf_ref_height", 250.0}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02942", invalid, ofValue, [&] { const Answer answer(value); });
    }
}

TEST(GetShelfParamsAnswer, refusesAListOfOtherThings)
{
    for (List list : {List(), List{1, 250}, List{"true", 250}, List{QVariant(), QVariant()}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE02941", invalid, ofList, [&] { const Answer answer(list); });
    }
    for (List list : {List{true}, List{true, 250.0}, List{true, true}, List{true, "250"}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE02942", invalid, ofList, [&] { const Answer answer(list); });
    }
}

TEST(GetShelfParamsAnswer, comparesBoth)
{
    const Answer answer(true, 250);
    const Answer same = answer;
    EXPECT_EQ(answer, same);
    EXPECT_TRUE(answer.equalTo(&same));
    for (const Answer &other : {Answer(false, 250), Answer(true, 251)}) {
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetShelfParamsAnswer, clonesItself)
{
    const Answer answer(true, 250);
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(copy.get()), "GetShelfParamsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

TEST(GetShelfParamsAnswer, isTheAnswerToItsCommand)
{
    ConfProtoCommand command("GET_SHELF_PARAMS", nullptr);
    const Answer expected(true, 250);
    List list = {true, 250};
    ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
    EXPECT_TRUE(expected.equalTo(command.getProtoAnswer()));
    ASSERT_TRUE(command.buildProtoAnswer(expected.toXmlRpcValue(), nullptr));
    EXPECT_TRUE(expected.equalTo(command.getProtoAnswer()));
    FW_DriverError error;
    EXPECT_FALSE(command.buildProtoAnswer(structOf({}), &error));
    expectError(error, "DE02941", invalid);
}

} // namespace
