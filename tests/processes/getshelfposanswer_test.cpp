// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getshelfposanswer.h"

#include "base/basetesting.h"

#include <limits>
#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;

using Answer = GetShelfPosAnswer;

constexpr char ofTokens[] = "GetShelfPosAnswer::GetShelfPosAnswer(QStringList)";
constexpr char ofValue[] = "GetShelfPosAnswer::GetShelfPosAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetShelfPosAnswer::GetShelfPosAnswer(QList<QVariant>&)";

constexpr char badLength[] = "Error during command answer decoding: bad length";
constexpr char badLow[] = "Error during command answer decoding: height low value";
constexpr char badHigh[] = "Error during command answer decoding: height high value";
constexpr char noHeight[] = "GetShelfPosAnswer: Errors during shelf position decoding";

void expectTokensRefused(const char *code, const char *text, const QStringList &tokens)
{
    SCOPED_TRACE(tokens.join(' ').toStdString());
    expectRefusal(code, text, ofTokens, [&] { const Answer answer(tokens); });
}

TEST(GetShelfPosAnswer, readsTwoDigits)
{
    struct Row
    {
        QStringList tokens;
        int height;
    };
    const Row rows[] = {
        {{"2", "0", "0"}, 0},
        {{"2", "A", "0"}, 10},
        {{"2", "36", "1"}, 300},
        {{"2", "f5", "1"}, 491},
        {{"2", "0", "F5"}, 60270},
        {{"2", "F5", "F5"}, 60515},
        {{"2", "36", "1", "x"}, 300},
        {{"3", "36", "1", "7"}, 300},
        {{"0", "36", "1"}, 300},
        {{"2", "12C", "0"}, 300},
        {{"2", "4F", "853408"}, 2147483647},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.tokens.join(' ').toStdString());
        const Answer answer(row.tokens);
        EXPECT_EQ(answer.height(), row.height);
        EXPECT_EQ(answer.serialParameters(), row.tokens.mid(1));
        EXPECT_EQ(answer.protoType(), 1);
    }
}

TEST(GetShelfPosAnswer, refusesAnAnswerThatEndsTooEarly)
{
    expectTokensRefused("DE01447", badLength, {"0"});
    expectTokensRefused("DE01447", badLength, {"1", "36"});
    expectTokensRefused("DE01447", badLength, {"1", "x"});
}

TEST(GetShelfPosAnswer, refusesTokensThatAreNoHeight)
{
    for (const char *bad : {"x", "", "80000000", "100000000"}) {
        expectTokensRefused("DE01448", badLow, {"2", bad, "1"});
        expectTokensRefused("DE01448", badLow, {"2", bad, bad});
        expectTokensRefused("DE01449", badHigh, {"2", "36", bad});
    }
    // one more than an int holds
    expectTokensRefused("DE01449", badHigh, {"2", "50", "853408"});
    expectTokensRefused("DE01449", badHigh, {"2", "7FFFFFFF", "7FFFFFFF"});
}

TEST(GetShelfPosAnswer, refusesWhatIsNoAnswer)
{
    constexpr char ofBase[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", ofBase, [] { const Answer answer{QStringList()}; });
    expectRefusal("DE00070", "Invalid parameter length type found in answer", ofBase, [] {
        const Answer answer{QStringList{"x", "36", "1"}};
    });
    expectRefusal("DE00077", badLength, ofBase, [] { const Answer answer{QStringList{"3", "36", "1"}}; });
}

TEST(GetShelfPosAnswer, travelsAsAStruct)
{
    EXPECT_EQ(Answer().height(), 0);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"shelf_position": 0})");
    EXPECT_EQ(dumped(Answer(300).toXmlRpcValue()), R"({"shelf_position": 300})");
    EXPECT_EQ(dumped(Answer(60514).toXmlRpcValue()), R"({"shelf_position": 60514})");
    EXPECT_EQ(dumped(Answer(60516).toXmlRpcValue()), R"({"shelf_position": 60516})");
    for (int height : {0, 300, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(Answer(structOf({{"shelf_position", height}, {"more", 7}})).height(), height);
        EXPECT_EQ(Answer(Answer(height).toXmlRpcValue()), Answer(height));
        List list = {height, "rest"};
        EXPECT_EQ(Answer(list).height(), height);
    }
}

TEST(GetShelfPosAnswer, tellsClientsThatAHeightIsNotKnown)
{
    const Answer unknown(QStringList{"2", "F5", "F5"});
    EXPECT_EQ(unknown.height(), 60515);
    EXPECT_EQ(dumped(unknown.toXmlRpcValue()), R"({"shelf_position": -1})");
    EXPECT_EQ(Answer(unknown.toXmlRpcValue()).height(), -1);
    EXPECT_EQ(dumped(Answer(unknown.toXmlRpcValue()).toXmlRpcValue()), R"({"shelf_position": -1})");
}

TEST(GetShelfPosAnswer, refusesWhatHoldsNoHeight)
{
    for (const Value &value : {Value(), Value(300), arrayOf(300), structOf({}), structOf({{"shelf", 300}}),
                               structOf({{"shelf_position", true}}), structOf({{"shelf_position", 300.0}}),
                               structOf({{"shelf_position", "300"}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01450", noHeight, ofValue, [&] { const Answer answer(value); });
    }
    for (List list : {List(), List{true}, List{300.0}, List{"300"}, List{QVariant()}, List{2147483648LL}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE01450", noHeight, ofList, [&] { const Answer answer(list); });
    }
}

TEST(GetShelfPosAnswer, comparesTheHeight)
{
    const Answer answer(300);
    const Answer same(QStringList{"2", "36", "1"});
    const Answer other(301);
    EXPECT_EQ(answer, same);
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_NE(answer, other);
    EXPECT_FALSE(answer.equalTo(&other));
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetShelfPosAnswer, clonesItself)
{
    const Answer answer(QStringList{"2", "36", "1"});
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(copy.get()), "GetShelfPosAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

TEST(GetShelfPosAnswer, doesNotMistakeOtherArgumentsForAHeight)
{
    static_assert(!std::is_constructible_v<Answer, bool>);
    static_assert(!std::is_constructible_v<Answer, double>);
    static_assert(!std::is_constructible_v<Answer, const char *>);
    static_assert(!std::is_convertible_v<int, Answer>);
}

} // namespace
