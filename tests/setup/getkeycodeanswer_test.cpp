// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/getkeycodeanswer.h"

#include "base/basetesting.h"
#include "base/serialprotocommand.h"

#include <memory>

namespace {

using namespace testing_base;

GetKeyCodeAnswer answerOf(const char *keyCode)
{
    return GetKeyCodeAnswer(QString::fromLatin1(keyCode));
}

TEST(GetKeyCodeAnswer, holdsAKeyCode)
{
    EXPECT_STREQ(GetKeyCodeAnswer::keyCode_TAG, "key_code");
    EXPECT_EQ(GetKeyCodeAnswer().keyCode(), "");
    EXPECT_EQ(GetKeyCodeAnswer().protoType(), 1);
    EXPECT_EQ(answerOf("K-17").keyCode(), "K-17");
    EXPECT_EQ(dumped(answerOf("K-17").toXmlRpcValue()), R"({"key_code": "K-17"})");
    EXPECT_EQ(GetKeyCodeAnswer(structOf({{"key_code", "K-17"}, {"more", 1}})), answerOf("K-17"));
    List list = {"K-17", "more"};
    EXPECT_EQ(GetKeyCodeAnswer(list), answerOf("K-17"));
}

TEST(GetKeyCodeAnswer, refusesAValueWithoutAKeyCode)
{
    for (const Value &value : {Value(), Value(5), Value("K"), arrayOf("K"), structOf({}),
                               structOf({{"key_code", 7}}), structOf({{"key_code", true}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01769", "GetKeyCodeAnswer decoding failed: invalid xml-rpc type",
                      "GetKeyCodeAnswer::GetKeyCodeAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { GetKeyCodeAnswer{value}; });
    }
}

TEST(GetKeyCodeAnswer, refusesAListWithoutAKeyCode)
{
    for (List list : {List(), List{7}, List{QVariant()}, List{QByteArray("K")}, List{7, "K"}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE01768", "GetKeyCodeAnswer decoding failed: invalid QVariant value",
                      "GetKeyCodeAnswer::GetKeyCodeAnswer(QList<QVariant>&)",
                      [&] { GetKeyCodeAnswer{list}; });
    }
}

TEST(GetKeyCodeAnswer, isTheAnswerToItsCommandButForTokens)
{
    SerialProtoCommand command("GET_KEY_CODE", nullptr);
    ASSERT_TRUE(command.buildProtoAnswer(structOf({{"key_code", "K-17"}}), nullptr));
    EXPECT_TRUE(answerOf("K-17").equalTo(command.getProtoAnswer()));
    List list = {"K-18"};
    ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
    EXPECT_TRUE(answerOf("K-18").equalTo(command.getProtoAnswer()));
    FW_DriverError error;
    EXPECT_FALSE(command.buildProtoAnswer(Value(7), &error));
    expectError(error, "DE01769", "GetKeyCodeAnswer decoding failed: invalid xml-rpc type");
    ASSERT_TRUE(command.buildProtoAnswer(QStringList{"1", "4B"}, nullptr));
    EXPECT_EQ(className(command.getProtoAnswer()), "SerialProtoAnswer");
}

TEST(GetKeyCodeAnswer, clonesAndCompares)
{
    const GetKeyCodeAnswer answer = answerOf("K-17");
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetKeyCodeAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const GetKeyCodeAnswer other = answerOf("K-18");
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
