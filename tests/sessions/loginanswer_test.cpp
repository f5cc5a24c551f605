// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/loginanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

constexpr char invalid[] = "LoginAnswer decoding failed: invalid QVariant value";

LoginAnswer answerOf(const char *sessionID)
{
    List list = {sessionID};
    return LoginAnswer(list);
}

TEST(LoginAnswer, holdsASessionID)
{
    EXPECT_STREQ(LoginAnswer::sessionID_TAG, "session_id");
    EXPECT_EQ(LoginAnswer().sessionID(), "");
    EXPECT_EQ(LoginAnswer().protoType(), 2);
    EXPECT_EQ(answerOf("S-7").sessionID(), "S-7");
    EXPECT_EQ(LoginAnswer(structOf({{"session_id", "S-7"}, {"more", 1}})).sessionID(), "S-7");
    List more = {"", "more"};
    EXPECT_EQ(LoginAnswer(more).sessionID(), "");
}

TEST(LoginAnswer, writesTheSessionID)
{
    EXPECT_EQ(dumped(answerOf("S-7").toXmlRpcValue()), R"({"session_id": "S-7"})");
    EXPECT_EQ(dumped(LoginAnswer().toXmlRpcValue()), R"({"session_id": ""})");
    EXPECT_EQ(LoginAnswer(answerOf("S-7").toXmlRpcValue()), answerOf("S-7"));
}

TEST(LoginAnswer, takesATextForItsID)
{
    LoginAnswer answer;
    answer.setSessionID(QVariant("S-7"));
    EXPECT_EQ(answer.sessionID(), "S-7");
    answer.setSessionID(Value("S-8"));
    EXPECT_EQ(answer.sessionID(), "S-8");
    answer.setSessionID(QVariant(5));
    answer.setSessionID(QVariant());
    answer.setSessionID(Value(5));
    answer.setSessionID(Value());
    answer.setSessionID(structOf({{"session_id", "S-9"}}));
    EXPECT_EQ(answer.sessionID(), "S-8");
}

TEST(LoginAnswer, refusesAValueWithoutASessionID)
{
    for (const Value &value : {Value(), Value(5), Value("S-7"), arrayOf("S-7"), structOf({}),
                               structOf({{"session_id", 7}}), structOf({{"session_id", true}})}) {
        SCOPED_TRACE(dumped(value));
        const bool isNone = !value.valid();
        expectRefusal(isNone ? "DE00909" : "DE00353",
                      isNone ? "ProtoAnswer decoding failed: invalid xml-rpc type" : invalid,
                      isNone ? "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)"
                             : "LoginAnswer::LoginAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { LoginAnswer{value}; });
    }
}

TEST(LoginAnswer, refusesAListWithoutASessionID)
{
    for (List list : {List(), List{7}, List{QVariant()}, List{QByteArray("S-7")}, List{7, "S-7"}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE00353", invalid, "LoginAnswer::LoginAnswer(QList<QVariant>&)",
                      [&] { LoginAnswer{list}; });
    }
}

TEST(LoginAnswer, clonesAndCompares)
{
    const LoginAnswer answer = answerOf("S-7");
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "LoginAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const LoginAnswer other = answerOf("S-8");
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
