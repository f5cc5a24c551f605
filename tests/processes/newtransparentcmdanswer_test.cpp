// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/newtransparentcmdanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = NewTransparentCmdAnswer;

constexpr char noParameters[] = "NewTransparentCmdAnswer: expected parameters value";

TEST(NewTransparentCmdAnswer, readsAllTokens)
{
    const std::pair<QStringList, QList<int>> rows[] = {{{"0"}, {}},
                                                       {{"1", "7"}, {7}},
                                                       {{"3", "0", "f5", "FF"}, {0, 245, 255}},
                                                       {{"1", "7", "8"}, {7, 8}},
                                                       {{"1", "7FFFFFFF"}, {2147483647}}};
    for (const auto &[tokens, parameters] : rows) {
        SCOPED_TRACE(tokens.join(' ').toStdString());
        EXPECT_EQ(Answer(tokens).parameters(), parameters);
        EXPECT_EQ(Answer(tokens).protoType(), 1);
    }
    for (const QStringList &tokens :
         {QStringList{"1", "x"}, {"2", "7", ""}, {"1", "80000000"}, {"1", "7", "y"}}) {
        SCOPED_TRACE(tokens.join(' ').toStdString());
        expectRefusal("DE03186", "NewTransparentCmdAnswer: expected a hexadecimal number",
                      "NewTransparentCmdAnswer::NewTransparentCmdAnswer(QStringList)",
                      [&] { const Answer answer(tokens); });
    }
    expectRefusal("DE00077", "Error during command answer decoding: bad length",
                  "SerialProtoAnswer::SerialProtoAnswer(QStringList)", [] {
                      const Answer answer{QStringList{"2", "7"}};
                  });
}

TEST(NewTransparentCmdAnswer, travelsAsAStruct)
{
    const Answer answer(QList<int>{3, 255});
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), R"({"parameters": [3, 255]})");
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"parameters": []})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
    List plain = {QVariant(List{3, 255}), "rest"};
    EXPECT_EQ(Answer(plain), answer);
    List typed = {QVariant::fromValue(QList<int>{3, 255})};
    EXPECT_EQ(Answer(typed), answer);
}

TEST(NewTransparentCmdAnswer, refusesWhatHoldsNoNumbers)
{
    for (const Value &value :
         {Value(), Value(3), arrayOf(3), structOf({}), structOf({{"parameters", 3}}),
          structOf({{"parameters", arrayOf(3, "4")}}), structOf({{"parameters", arrayOf(true)}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE03187", noParameters,
                      "NewTransparentCmdAnswer::NewTransparentCmdAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { const Answer answer(value); });
    }
    for (List list : {List(), List{3}, List{"3"}, List{QVariant()}, List{QVariant(List{3, "4"})}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE03188", noParameters,
                      "NewTransparentCmdAnswer::NewTransparentCmdAnswer(QList<QVariant>&)",
                      [&] { const Answer answer(list); });
    }
}

TEST(NewTransparentCmdAnswer, comparesAndClonesTheNumbers)
{
    const Answer answer(QList<int>{3, 255});
    const std::unique_ptr<const ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "NewTransparentCmdAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const Answer &other : {Answer(), Answer(QList<int>{3}), Answer(QList<int>{255, 3})}) {
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
