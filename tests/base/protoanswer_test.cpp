// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/protoanswer.h"

#include "base/basetesting.h"
#include "base/confprotoanswer.h"

#include <memory>

using namespace testing_base;

TEST(ProtoAnswer, knowsWhoAnswered)
{
    EXPECT_EQ(ProtoAnswer().protoType(), 0);
    EXPECT_EQ(ProtoAnswer(2).protoType(), 2);
    List list = {1, 2};
    EXPECT_EQ(ProtoAnswer(3, list).protoType(), 3);
    EXPECT_EQ(list, (List{1, 2}));
    EXPECT_EQ(ProtoAnswer(1, Value("anything")).protoType(), 1);
    const ProtoAnswer original(2);
    EXPECT_EQ(ProtoAnswer(original).protoType(), 2);
}

TEST(ProtoAnswer, refusesAnEmptyValue)
{
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { ProtoAnswer(1, Value()); });
    EXPECT_NO_THROW(ProtoAnswer(1, arrayOf()));
    EXPECT_NO_THROW(ProtoAnswer(1, Value(0)));
}

TEST(ProtoAnswer, forgetsItsTypeWhenCleared)
{
    ProtoAnswer answer(2);
    answer.clearProtoAnswer();
    EXPECT_EQ(answer.protoType(), 0);
}

TEST(ProtoAnswer, givesItsClonesToTheCaller)
{
    const ProtoAnswer answer(3);
    const std::unique_ptr<ProtoAnswer> copy(answer.clone());
    EXPECT_NE(copy.get(), &answer);
    EXPECT_EQ(copy->protoType(), 3);
}

TEST(ProtoAnswer, equalsAnyAnswerOfItsType)
{
    const ProtoAnswer plain(2);
    const ConfProtoAnswer configuration;
    EXPECT_TRUE(plain.equalTo(&plain));
    EXPECT_TRUE(plain.equalTo(&configuration));
    EXPECT_TRUE(configuration.equalTo(&plain));
    const ProtoAnswer serial(1);
    EXPECT_FALSE(plain.equalTo(&serial));
    EXPECT_FALSE(plain.equalTo(nullptr));
}

TEST(ProtoAnswer, writesZero)
{
    EXPECT_EQ(dumped(ProtoAnswer(2).toXmlRpcValue()), "0");
}

TEST(ProtoAnswer, tellsReturnCodesInWords)
{
    const struct
    {
        int code;
        const char *text;
    } rows[] = {
        {0, "Success!"},
        {1, "Failed! Xml-rpc command invalid for Driver."},
        {2, "Failed! Serial answer invalid for Driver."},
        {3, "Failed! Serial command invalid for firmware."},
        {4, "Failed! Command not executed due to errors on firmware."},
        {5, "Failed! Command not executed due to errors on the driver configuration."},
        {6, "Failed! Command not executed due to errors in Driver internal procedures."},
        {7, "Command has been interrupted!"},
        {8, "Failed! Command not executed due to generic errors."},
        {9, "Failed! Generic error."},
        {-1, "Failed! Generic error."},
        {2147483647, "Failed! Generic error."},
        {-2147483647 - 1, "Failed! Generic error."},
    };
    for (const auto &row : rows)
        EXPECT_EQ(ProtoAnswer::getRetCodeMessage(row.code), row.text) << row.code;
}
