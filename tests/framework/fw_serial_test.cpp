// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_serial.h>

#include "values.h"

#include <limits>
#include <random>
#include <utility>

namespace {

constexpr long long greatest = std::numeric_limits<long long>::max();

QStringList hexadecimal(const QList<int> &digits)
{
    QStringList tokens;
    for (int digit : digits)
        tokens.append(QString::number(digit, 16).toUpper());
    return tokens;
}

/** What a number that cannot be joined gives. */
void expectNoNumber(const QStringList &tokens, int base, bool hex)
{
    bool ok = true;
    EXPECT_EQ(joinValues(tokens, base, hex, &ok), 0);
    EXPECT_FALSE(ok) << tokens.join(' ').toStdString();
    EXPECT_EQ(joinValues(tokens, base, hex), 0);
}

void expectNoNumber(const QList<int> &digits, int base)
{
    bool ok = true;
    EXPECT_EQ(joinValues(digits, base, &ok), 0);
    EXPECT_FALSE(ok);
    EXPECT_EQ(joinValues(digits, base), 0);
}

TEST(splitValue, givesTheLowDigitFirst)
{
    EXPECT_EQ(splitValue(300, 246), (QList<int>{54, 1}));
    EXPECT_EQ(splitValue(60515, 246), (QList<int>{245, 245}));
    EXPECT_EQ(splitValue(182041, 246), (QList<int>{1, 2, 3}));
    EXPECT_EQ(splitValue(245, 246), (QList<int>{245}));
    EXPECT_EQ(splitValue(246, 246), (QList<int>{0, 1}));
    EXPECT_EQ(splitValue(6, 2), (QList<int>{0, 1, 1}));
}

TEST(splitValue, splitsResourceDataInBase244)
{
    EXPECT_EQ(splitValue(243, 244), (QList<int>{243}));
    EXPECT_EQ(splitValue(244, 244), (QList<int>{0, 1}));
    EXPECT_EQ(splitValue(59535, 244), (QList<int>{243, 243}));
    EXPECT_EQ(splitValue(1000000, 244), (QList<int>{88, 194, 16}));
}

TEST(splitValue, splitsNumbersBeyond32Bits)
{
    EXPECT_EQ(splitValue(greatest, 246), (QList<int>{7, 210, 223, 38, 242, 195, 43, 169}));
    EXPECT_EQ(splitValue(greatest, 244), (QList<int>{7, 194, 37, 141, 90, 238, 30, 179}));
}

TEST(splitValue, zeroIsOneDigit)
{
    EXPECT_EQ(splitValue(0, 246), (QList<int>{0}));
    EXPECT_EQ(splitValue(0, 244), (QList<int>{0}));
}

TEST(splitValue, hasNoDigitsForANegativeNumberOrNoBase)
{
    EXPECT_TRUE(splitValue(-1, 246).isEmpty());
    EXPECT_TRUE(splitValue(std::numeric_limits<long long>::min(), 246).isEmpty());
    EXPECT_TRUE(splitValue(5, 1).isEmpty());
    EXPECT_TRUE(splitValue(5, 0).isEmpty());
    EXPECT_TRUE(splitValue(5, -246).isEmpty());
}

TEST(joinValues, takesTheLowDigitFirst)
{
    bool ok = false;
    EXPECT_EQ(joinValues(QList<int>{54, 1}, 246, &ok), 300);
    EXPECT_TRUE(ok);
    EXPECT_EQ(joinValues(QList<int>{245, 245}, 246), 60515);
    EXPECT_EQ(joinValues(QList<int>{1, 2, 3}, 246), 182041);
    EXPECT_EQ(joinValues(QList<int>{88, 194, 16}, 244), 1000000);
    EXPECT_EQ(joinValues(QList<int>{5, 0, 0}, 246), 5);
}

TEST(joinValues, readsHexadecimalTokens)
{
    bool ok = false;
    EXPECT_EQ(joinValues(QStringList{"36", "1"}, 246, true, &ok), 300);
    EXPECT_TRUE(ok);
    EXPECT_EQ(joinValues(QStringList{"F5", "f5"}, 246, true), 60515);
    EXPECT_EQ(joinValues(QStringList{"0001", "0002", "0003"}, 246, true), 182041);
    EXPECT_EQ(joinValues(QStringList{"10", "0"}, 246, true), 16);
}

TEST(joinValues, readsDecimalTokensWhenToldSo)
{
    bool ok = false;
    EXPECT_EQ(joinValues(QStringList{"54", "1"}, 246, false, &ok), 300);
    EXPECT_TRUE(ok);
    expectNoNumber(QStringList{"F5"}, 246, false);
}

TEST(joinValues, noDigitsAreZero)
{
    bool ok = false;
    EXPECT_EQ(joinValues(QStringList(), 246, true, &ok), 0);
    EXPECT_TRUE(ok);
    ok = false;
    EXPECT_EQ(joinValues(QList<int>(), 246, &ok), 0);
    EXPECT_TRUE(ok);
}

TEST(joinValues, refusesABadTokenWhereverItStands)
{
    for (const char *bad : {"", " ", "G", "1G", "-1", "1.5", "1 2", "100000000"}) {
        expectNoNumber(QStringList{bad}, 246, true);
        expectNoNumber(QStringList{bad, "1", "1"}, 246, true);
        expectNoNumber(QStringList{"1", bad, "1"}, 246, true);
        expectNoNumber(QStringList{"1", "1", bad}, 246, true);
    }
    expectNoNumber(QList<int>{-1}, 246);
    expectNoNumber(QList<int>{1, -1}, 246);
}

TEST(joinValues, refusesNoBase)
{
    for (int base : {1, 0, -1, -246}) {
        expectNoNumber(QStringList{"1"}, base, true);
        expectNoNumber(QList<int>{1}, base);
        expectNoNumber(QList<int>(), base);
    }
}

TEST(joinValues, refusesANumberBeyond63Bits)
{
    bool ok = false;
    EXPECT_EQ(joinValues(QList<int>{7, 210, 223, 38, 242, 195, 43, 169}, 246, &ok), greatest);
    EXPECT_TRUE(ok);
    EXPECT_EQ(joinValues(QStringList{"7", "D2", "DF", "26", "F2", "C3", "2B", "A9"}, 246, true, &ok),
              greatest);
    EXPECT_TRUE(ok);
    expectNoNumber(QList<int>{8, 210, 223, 38, 242, 195, 43, 169}, 246);
    expectNoNumber(QStringList{"8", "D2", "DF", "26", "F2", "C3", "2B", "A9"}, 246, true);
    expectNoNumber(QList<int>{0, 0, 0, 0, 0, 0, 0, 170}, 246);
    expectNoNumber(QList<int>{0, 0, 0, 0, 0, 0, 0, 0, 1}, 246);
    // high digits of no weight overflow nothing
    EXPECT_EQ(joinValues(QList<int>{3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 246, &ok), 3);
    EXPECT_TRUE(ok);
}

TEST(joinValues, isTheInverseOfSplitValue)
{
    std::mt19937_64 generator(246); // a fixed seed: each run tests the same numbers
    std::uniform_int_distribution<int> bits(0, 62);
    for (int base : {2, 244, 246}) {
        for (int i = 0; i < 5000; ++i) {
            const long long number =
                i == 0 ? greatest : static_cast<long long>((generator() >> 1) >> bits(generator));
            const QList<int> digits = splitValue(number, base);

            ASSERT_FALSE(digits.isEmpty());
            ASSERT_TRUE(digits.size() == 1 || digits.last() != 0) << number << " in base " << base;
            __extension__ __int128 sum = 0;
            for (int k = digits.size() - 1; k >= 0; --k) {
                ASSERT_TRUE(digits.at(k) >= 0 && digits.at(k) < base) << number << " in base " << base;
                sum = sum * base + digits.at(k);
            }
            ASSERT_TRUE(sum == number) << number << " in base " << base;

            bool ok = false;
            ASSERT_EQ(joinValues(digits, base, &ok), number) << "base " << base;
            ASSERT_TRUE(ok);
            ok = false;
            ASSERT_EQ(joinValues(hexadecimal(digits), base, true, &ok), number) << "base " << base;
            ASSERT_TRUE(ok);
        }
    }
}

template <class Tokens, class Third, class = void>
struct Joins : std::false_type
{};

template <class Tokens, class Third>
struct Joins<Tokens, Third,
             std::void_t<decltype(joinValues(std::declval<Tokens>(), 246, std::declval<Third>()))>>
    : std::true_type
{};

TEST(joinValues, takesNoPointerForTheKindOfTokens)
{
    EXPECT_TRUE((Joins<QStringList, bool>::value));
    EXPECT_TRUE((Joins<QList<int>, bool *>::value));
    EXPECT_FALSE((Joins<QStringList, bool *>::value));
    EXPECT_FALSE((Joins<QList<int>, bool>::value));
}

TEST(parseSerialAnswer, readsOneTokenAfterTheOther)
{
    const QStringList tokens{"0", "1f", "F5", "7FFFFFFF"};
    unsigned int index = 0;
    for (const int expected : {0, 31, 245, 2147483647}) {
        bool ok = false;
        EXPECT_EQ(parseSerialAnswer(tokens, index, &ok), expected);
        EXPECT_TRUE(ok);
    }
    EXPECT_EQ(index, 4u);
}

TEST(parseSerialAnswer, failsPastTheEnd)
{
    for (const unsigned int start : {1u, 2u, std::numeric_limits<unsigned int>::max()}) {
        unsigned int index = start;
        bool ok = true;
        EXPECT_EQ(parseSerialAnswer(QStringList{"5"}, index, &ok), 0);
        EXPECT_FALSE(ok);
        EXPECT_EQ(index, start);
    }
    unsigned int index = 0;
    bool ok = true;
    EXPECT_EQ(parseSerialAnswer(QStringList(), index, &ok), 0);
    EXPECT_FALSE(ok);
}

TEST(parseSerialAnswer, failsOnABadTokenAndStaysThere)
{
    for (const char *bad : {"", "G", "1 2", "-1", "80000000", "FFFFFFFF", "1FFFFFFFF"}) {
        const QStringList tokens{"1", bad, "2"};
        unsigned int index = 1;
        bool ok = true;
        EXPECT_EQ(parseSerialAnswer(tokens, index, &ok), 0) << bad;
        EXPECT_FALSE(ok) << bad;
        EXPECT_EQ(index, 1u) << bad;
    }
}

TEST(parseSerialAnswer, needsNobodyToAskHowItWent)
{
    unsigned int index = 0;
    EXPECT_EQ(parseSerialAnswer(QStringList{"A"}, index, nullptr), 10);
    EXPECT_EQ(index, 1u);
    EXPECT_EQ(parseSerialAnswer(QStringList{"A"}, index, nullptr), 0);
    EXPECT_EQ(index, 1u);
}

TEST(isNullAnswer, isAnAnswerWithoutParameters)
{
    EXPECT_TRUE(isNullAnswer(QStringList()));
    EXPECT_TRUE(isNullAnswer(QStringList{"0"}));
    EXPECT_FALSE(isNullAnswer(QStringList{"1", "0"}));
    EXPECT_FALSE(isNullAnswer(QStringList{"2", "A", "B"}));
}

} // namespace
