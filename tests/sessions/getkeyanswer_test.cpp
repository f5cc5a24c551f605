// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/getkeyanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

constexpr char invalid[] = "GetKeyAnswer decoding failed: invalid QVariant value";

GetKeyAnswer answerOf(const char *driverKey)
{
    List list = {driverKey};
    return GetKeyAnswer(list);
}

TEST(GetKeyAnswer, holdsADriverKey)
{
    EXPECT_STREQ(GetKeyAnswer::driverKey_TAG, "driver_key");
    EXPECT_EQ(GetKeyAnswer().driverKey(), "");
    EXPECT_EQ(GetKeyAnswer().protoType(), 2);
    EXPECT_EQ(answerOf("38").driverKey(), "38");
    EXPECT_EQ(GetKeyAnswer(structOf({{"driver_key", "38"}, {"more", 1}})).driverKey(), "38");
    List more = {"", "more"};
    EXPECT_EQ(GetKeyAnswer(more).driverKey(), "");
}

TEST(GetKeyAnswer, writesTheDriverKey)
{
    EXPECT_EQ(dumped(answerOf("38").toXmlRpcValue()), R"({"driver_key": "38"})");
    EXPECT_EQ(dumped(GetKeyAnswer().toXmlRpcValue()), R"({"driver_key": ""})");
    EXPECT_EQ(GetKeyAnswer(answerOf("38").toXmlRpcValue()), answerOf("38"));
}

TEST(GetKeyAnswer, takesATextForItsKey)
{
    GetKeyAnswer answer;
    answer.setDriverKey(QVariant("38"));
    EXPECT_EQ(answer.driverKey(), "38");
    answer.setDriverKey(Value("12"));
    EXPECT_EQ(answer.driverKey(), "12");
    answer.setDriverKey(QVariant(5));
    answer.setDriverKey(QVariant());
    answer.setDriverKey(Value(5));
    answer.setDriverKey(Value());
    answer.setDriverKey(structOf({{"driver_key", "26"}}));
    EXPECT_EQ(answer.driverKey(), "12");
}

TEST(GetKeyAnswer, refusesAValueWithoutADriverKey)
{
    for (const Value &value : {Value(), Value(5), Value("38"), arrayOf("38"), structOf({}),
                               structOf({{"driver_key", 7}}), structOf({{"driver_key", true}})}) {
        SCOPED_TRACE(dumped(value));
        const bool isNone = !value.valid();
        expectRefusal(isNone ? "DE00909" : "DE00908",
                      isNone ? "ProtoAnswer decoding failed: invalid xml-rpc type" : invalid,
                      isNone ? "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)"
                             : "GetKeyAnswer::GetKeyAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { GetKeyAnswer{value}; });
    }
}

TEST(GetKeyAnswer, refusesAListWithoutADriverKey)
{
    for (List list : {List(), List{7}, List{QVariant()}, List{QByteArray("38")}, List{7, "38"}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE00908", invalid, "GetKeyAnswer::GetKeyAnswer(QList<QVariant>&)",
                      [&] { GetKeyAnswer{list}; });
    }
}

TEST(GetKeyAnswer, clonesAndCompares)
{
    const GetKeyAnswer answer = answerOf("38");
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetKeyAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const GetKeyAnswer other = answerOf("12");
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
