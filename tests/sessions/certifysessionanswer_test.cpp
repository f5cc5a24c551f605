// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/certifysessionanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

constexpr char invalid[] = "CertifySessionAnswer decoding failed: invalid QVariant value";

CertifySessionAnswer answerOf(bool result)
{
    List list = {result};
    return CertifySessionAnswer(list);
}

TEST(CertifySessionAnswer, holdsAResult)
{
    EXPECT_STREQ(CertifySessionAnswer::keyVerifyResult_TAG, "key_verify_result");
    EXPECT_FALSE(CertifySessionAnswer().keyVerifyResult());
    EXPECT_EQ(CertifySessionAnswer().protoType(), 2);
    EXPECT_TRUE(answerOf(true).keyVerifyResult());
    EXPECT_FALSE(answerOf(false).keyVerifyResult());
    EXPECT_TRUE(CertifySessionAnswer(structOf({{"key_verify_result", true}, {"more", 1}})).keyVerifyResult());
}

TEST(CertifySessionAnswer, writesTheResult)
{
    EXPECT_EQ(dumped(answerOf(true).toXmlRpcValue()), R"({"key_verify_result": true})");
    EXPECT_EQ(dumped(CertifySessionAnswer().toXmlRpcValue()), R"({"key_verify_result": false})");
    EXPECT_EQ(CertifySessionAnswer(answerOf(true).toXmlRpcValue()), answerOf(true));
}

TEST(CertifySessionAnswer, takesATruthForItsResult)
{
    CertifySessionAnswer answer;
    answer.setKeyVerifyResult(QVariant(true));
    EXPECT_TRUE(answer.keyVerifyResult());
    answer.setKeyVerifyResult(Value(false));
    EXPECT_FALSE(answer.keyVerifyResult());
    answer.setKeyVerifyResult(Value(true));
    EXPECT_TRUE(answer.keyVerifyResult());
    answer.setKeyVerifyResult(QVariant(0));
    answer.setKeyVerifyResult(QVariant());
    answer.setKeyVerifyResult(Value(0));
    answer.setKeyVerifyResult(Value());
    answer.setKeyVerifyResult(structOf({{"key_verify_result", false}}));
    EXPECT_TRUE(answer.keyVerifyResult());
}

TEST(CertifySessionAnswer, refusesAValueWithoutAResult)
{
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { CertifySessionAnswer{Value()}; });
    for (const Value &value :
         {Value(5), Value(true), arrayOf(true), structOf({}), structOf({{"key_verify_result", 1}}),
          structOf({{"key_verify_result", "true"}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01028", invalid,
                      "CertifySessionAnswer::CertifySessionAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { CertifySessionAnswer{value}; });
    }
}

TEST(CertifySessionAnswer, refusesAListWithoutAResult)
{
    for (List list : {List(), List{1}, List{QVariant()}, List{"true"}, List{"S-7", true}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE01028", invalid, "CertifySessionAnswer::CertifySessionAnswer(QList<QVariant>&)",
                      [&] { CertifySessionAnswer{list}; });
    }
}

TEST(CertifySessionAnswer, clonesAndCompares)
{
    const CertifySessionAnswer answer = answerOf(true);
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "CertifySessionAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const CertifySessionAnswer other;
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
