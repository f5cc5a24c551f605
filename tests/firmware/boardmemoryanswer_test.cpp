// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/boardmemoryanswer.h"

#include "base/basetesting.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;

using Answer = BoardMemoryAnswer;

constexpr char noValue[] = "BoardMemoryAnswer: expected board answer value";

std::string writtenAs(const Answer &answer)
{
    return dumped(answer.toXmlRpcValue());
}

TEST(BoardMemoryAnswer, startsAt0)
{
    EXPECT_EQ(Answer().boardAnswer(), 0);
    EXPECT_EQ(Answer().protoType(), 1);
    EXPECT_EQ(writtenAs(Answer()), R"({"board_answer": "0"})");
    Answer answer(7);
    answer.clear();
    EXPECT_EQ(answer.boardAnswer(), 0);
    EXPECT_STREQ(Answer::boardAnswer_TAG, "board_answer");
}

TEST(BoardMemoryAnswer, readsDigitsBehindFourParameters)
{
    struct Row
    {
        QStringList tokens;
        long long number;
    };
    const Row rows[] = {
        {{"0"}, 0},
        {{"1", "F1"}, 0},
        {{"4", "F1", "F2", "F3", "F4"}, 0},
        {{"5", "F1", "F2", "F3", "F4", "7"}, 7},
        {{"6", "F1", "F2", "F3", "F4", "36", "1"}, 300},
        {{"7", "1", "2", "3", "4", "0", "0", "1"}, 60516},
        {{"B", "1", "2", "3", "4", "4A", "8B", "97", "3B", "6", "9E", "28"}, 9007199254740992},
        {{"5", "1", "2", "3", "4", "zz"}, 0},                                              // no digit
        {{"E", "1", "2", "3", "4", "0", "0", "0", "0", "0", "0", "0", "0", "0", "FF"}, 0}, // beyond 63 bits
        {{"4", "1", "2", "3", "4", "7"}, 7}, // tokens beyond the length that is told are kept as well
    };
    for (const Row &row : rows) {
        const Answer answer(row.tokens);
        EXPECT_EQ(answer.boardAnswer(), row.number) << row.tokens.join(' ').toStdString();
        EXPECT_EQ(answer.serialParameters(), row.tokens.mid(1));
    }
    EXPECT_EQ(writtenAs(Answer(QStringList{"4", "F1", "F2", "F3", "F4"})), R"({"board_answer": "0"})");
}

TEST(BoardMemoryAnswer, refusesNoTokensAndTooFew)
{
    const QStringList tokens = {"6", "F1", "F2", "F3", "F4", "36", "1"};
    for (int count = 1; count < tokens.size(); ++count)
        expectRefusal("DE00077", "Error during command answer decoding: bad length",
                      "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                      [&] { const Answer answer(tokens.mid(0, count)); });
    expectRefusal("DE00076", "Empty answer received", "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                  [] { const Answer answer((QStringList())); });
}

TEST(BoardMemoryAnswer, travelsAsDecimalText)
{
    struct Row
    {
        long long number;
        const char *written;
        long long readBack;
    };
    for (const Row &row :
         {Row{0, R"({"board_answer": "0"})", 0}, Row{300, R"({"board_answer": "300"})", 300},
          Row{9223372036854775807, R"({"board_answer": "9223372036854775807"})", 9223372036854775807},
          Row{-1, R"({"board_answer": ""})", -1}, Row{-300, R"({"board_answer": ""})", -1}}) {
        SCOPED_TRACE(row.number);
        const Answer answer(row.number);
        EXPECT_EQ(answer.boardAnswer(), row.number);
        EXPECT_EQ(writtenAs(answer), row.written);
        EXPECT_EQ(Answer(answer.toXmlRpcValue()).boardAnswer(), row.readBack);
    }
    EXPECT_EQ(Answer(structOf({{"board_answer", "007"}})).boardAnswer(), 7);
    List list = {"300"};
    EXPECT_EQ(Answer(list).boardAnswer(), 300);
}

TEST(BoardMemoryAnswer, refusesOtherValues)
{
    constexpr char ofValue[] = "BoardMemoryAnswer::BoardMemoryAnswer(const XmlRpc::XmlRpcValue&)";
    for (const Value &value : {Value(7), Value("7"), arrayOf("7"), structOf({}), structOf({{"answer", "7"}})})
        expectRefusal("DE03300", noValue, ofValue, [&] { const Answer answer(value); });
    for (const Value &member :
         {Value(7), Value(7.0), Value(true), arrayOf("7"), Value("-7"), Value("+7"), Value(" 7"),
          Value("7.0"), Value("0x7"), Value("seven"), Value("9223372036854775808")}) {
        SCOPED_TRACE(dumped(member));
        expectRefusal("DE03300", noValue, ofValue, [&] {
            const Answer answer(structOf({{"board_answer", member}}));
        });
    }
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { const Answer answer((Value())); });
    for (List list : {List(), List{7}, List{QVariant()}, List{"seven"}, List{true}})
        expectRefusal("DE03301", noValue, "BoardMemoryAnswer::BoardMemoryAnswer(QList<QVariant>&)",
                      [&] { const Answer answer(list); });
}

TEST(BoardMemoryAnswer, comparesItsNumber)
{
    const Answer answer(300);
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(clone.get()), "BoardMemoryAnswer");
    EXPECT_TRUE(answer.equalTo(clone.get()));
    const Answer other(301);
    EXPECT_TRUE(answer != other);
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
}

TEST(BoardMemoryAnswer, doesNotMistakeOtherArgumentsForANumber)
{
    static_assert(!std::is_constructible_v<Answer, bool>);
    static_assert(!std::is_constructible_v<Answer, double>);
    static_assert(!std::is_constructible_v<Answer, const char *>);
    static_assert(!std::is_convertible_v<int, Answer>);
}

} // namespace
