// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/errornumanswer.h"

#include "status/errortesting.h"

#include <memory>

namespace {

using namespace testing_status;

constexpr char ofTokens[] = "ErrorNumAnswer::ErrorNumAnswer(QStringList)";
constexpr char ofValue[] = "ErrorNumAnswer::ErrorNumAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char tooShort[] = "Error during command answer decoding: bad length";
constexpr char badLow[] = "Error during command answer decoding: error number low";
constexpr char badHigh[] = "Error during command answer decoding: error number high";
constexpr char badPackets[] = "Error during command answer decoding: packets count";

void expectNumbers(const ErrorNumAnswer &answer, int errors, int packets)
{
    EXPECT_EQ(answer.num_errors, errors);
    EXPECT_EQ(answer.packets_count, packets);
}

void expectTokensRefused(const char *tokens, const char *code, const char *text, const char *function)
{
    SCOPED_TRACE(tokens);
    expectRefusal(code, text, function, [&] { ErrorNumAnswer{tokensOf(tokens)}; });
}

ErrorNumAnswer answerOf(int errors, int packets)
{
    ErrorNumAnswer answer;
    answer.num_errors = errors;
    answer.packets_count = packets;
    return answer;
}

TEST(ErrorNumAnswer, startsCleared)
{
    expectNumbers(ErrorNumAnswer(), 0, 0);
    EXPECT_EQ(ErrorNumAnswer().protoType(), 1);
}

TEST(ErrorNumAnswer, isClearedAgain)
{
    ErrorNumAnswer answer = answerOf(3, 1);
    answer.clear();
    expectNumbers(answer, 0, 0);
}

TEST(ErrorNumAnswer, readsTheDigitsOfTheNumber)
{
    expectNumbers(ErrorNumAnswer(tokensOf("3 0 0 0")), 0, 0);
    expectNumbers(ErrorNumAnswer(tokensOf("3 5 0 2")), 5, 2);
    expectNumbers(ErrorNumAnswer(tokensOf("3 0 1 2")), 246, 2);
    expectNumbers(ErrorNumAnswer(tokensOf("3 36 01 f")), 300, 15); // 54 + 246
    expectNumbers(ErrorNumAnswer(tokensOf("3 F5 F5 F5")), 60515, 245);
    expectNumbers(ErrorNumAnswer(tokensOf("5 5 0 2 x y")), 5, 2); // whatever follows
    EXPECT_EQ(ErrorNumAnswer(tokensOf("3 5 0 2")).serialParameters(), QStringList({"5", "0", "2"}));
}

TEST(ErrorNumAnswer, refusesTokensThatAreCutShort)
{
    constexpr char serial[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", serial, [] { ErrorNumAnswer{QStringList()}; });
    expectTokensRefused("ZZ 5 0 2", "DE00070", "Invalid parameter length type found in answer", serial);
    for (const char *tokens : {"3", "3 5", "3 5 0"})
        expectTokensRefused(tokens, "DE00077", tooShort, serial);
    for (const char *tokens : {"0", "1 5", "2 5 0", "2 x y"})
        expectTokensRefused(tokens, "DE00088", tooShort, ofTokens);
}

TEST(ErrorNumAnswer, refusesWhatIsNoNumber)
{
    expectTokensRefused("3 x 0 2", "DE00131", badLow, ofTokens);
    expectTokensRefused("3 5 G 2", "DE00132", badHigh, ofTokens);
    expectTokensRefused("3 5 0 -1", "DE00133", badPackets, ofTokens);
    expectTokensRefused("3 x y z", "DE00131", badLow, ofTokens);
    expectTokensRefused("3 5 y z", "DE00132", badHigh, ofTokens);
    // beyond an int
    expectTokensRefused("3 80000000 0 2", "DE00131", badLow, ofTokens);
    expectTokensRefused("3 0 80000000 2", "DE00132", badHigh, ofTokens);
    expectTokensRefused("3 50 853408 2", "DE00132", badHigh, ofTokens); // 2^31 is 80 + 246 * 8729608
    expectTokensRefused("3 5 0 80000000", "DE00133", badPackets, ofTokens);
}

TEST(ErrorNumAnswer, holdsTheGreatestInt)
{
    expectNumbers(ErrorNumAnswer(tokensOf("3 4F 853408 7FFFFFFF")), 2147483647, 2147483647);
}

TEST(ErrorNumAnswer, travelsAsAStructOfTwoNumbers)
{
    const Value value = answerOf(300, 17).toXmlRpcValue();
    EXPECT_EQ(dumped(value), R"({"num_errors": 300, "packets_count": 17})");
    expectNumbers(ErrorNumAnswer(value), 300, 17);
    EXPECT_EQ(ErrorNumAnswer(value).protoType(), 1);
    expectNumbers(ErrorNumAnswer(structOf({{"num_errors", -1}, {"packets_count", 0}, {"more", "x"}})), -1, 0);
}

TEST(ErrorNumAnswer, refusesAValueWithoutItsMembers)
{
    constexpr char noErrors[] = "ErrorNumAnswer: expected num_errors value";
    constexpr char noPackets[] = "ErrorNumAnswer: expected packets_count value";
    for (const Value &value :
         {Value(), Value(5), arrayOf(1, 2), structOf({}), structOf({{"packets_count", 1}}),
          structOf({{"num_errors", "1"}, {"packets_count", 1}}), structOf({{"num_errors", 1.0}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00445", noErrors, ofValue, [&] { ErrorNumAnswer{value}; });
    }
    for (const Value &value :
         {structOf({{"num_errors", 1}}), structOf({{"num_errors", 1}, {"packets_count", true}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00446", noPackets, ofValue, [&] { ErrorNumAnswer{value}; });
    }
}

TEST(ErrorNumAnswer, isEqualByItsNumbers)
{
    const ErrorNumAnswer answer = answerOf(3, 1);
    const std::unique_ptr<const ErrorNumAnswer> copy(answer.clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_TRUE(answer == ErrorNumAnswer(answer));
    for (const ErrorNumAnswer &other : {answerOf(4, 1), answerOf(3, 2)}) {
        EXPECT_FALSE(answer.equalTo(&other));
        EXPECT_TRUE(answer != other);
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
