// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_utils.h>

#include "values.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <thread>
#include <vector>

namespace {

TEST(createListStr, joinsTheNumbers)
{
    EXPECT_EQ(createListStr({1, -2, 30}, ','), "1,-2,30");
    EXPECT_EQ(createListStr({7}, ';'), "7");
    EXPECT_EQ(createListStr({}, ','), "");
    EXPECT_EQ(createListStr({0, 0}, ' '), "0 0");
}

TEST(roundD, roundsToSoManyDecimals)
{
    EXPECT_DOUBLE_EQ(roundD(3.14159, 2), 3.14);
    EXPECT_DOUBLE_EQ(roundD(3.14159, 4), 3.1416);
    EXPECT_DOUBLE_EQ(roundD(-3.14159, 2), -3.14);
    EXPECT_EQ(roundD(2.4, 0), 2.0);
    EXPECT_EQ(roundD(1234.0, 3), 1234.0);
    EXPECT_EQ(roundD(0.0, 2), 0.0);
}

TEST(roundD, roundsHalvesAwayFromZero)
{
    EXPECT_EQ(roundD(2.5, 0), 3.0);
    EXPECT_EQ(roundD(-2.5, 0), -3.0);
    EXPECT_EQ(roundD(0.125, 2), 0.13);
    EXPECT_EQ(roundD(-0.125, 2), -0.13);
}

TEST(roundD, leavesAloneWhatHasNoSuchDecimals)
{
    EXPECT_EQ(roundD(123456789012345678.0, 2), 123456789012345678.0);
    EXPECT_EQ(roundD(1e300, 2), 1e300);
    EXPECT_EQ(roundD(1.0 / 3.0, 17), 1.0 / 3.0);
    EXPECT_EQ(roundD(0.1, 400), 0.1);
    EXPECT_EQ(roundD(0.0, 400), 0.0);
    EXPECT_EQ(roundD(std::numeric_limits<double>::max(), 3), std::numeric_limits<double>::max());
    EXPECT_EQ(roundD(-std::numeric_limits<double>::infinity(), 3), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(roundD(std::numeric_limits<double>::quiet_NaN(), 3)));
}

TEST(maxValue, isTheGreatestElement)
{
    EXPECT_EQ(maxValue({3, 9, 4}), 9);
    EXPECT_EQ(maxValue({-3, -9}), -3);
    EXPECT_EQ(maxValue({9}), 9);
    EXPECT_EQ(maxValue({}), 0);
}

TEST(isValidAsciiValue, isAPrintableCharacter)
{
    for (int code = 32; code <= 126; ++code)
        EXPECT_TRUE(isValidAsciiValue(code)) << code;
    for (int code : {-1, 0, 9, 10, 31, 127, 128, 233, 256 + 'A', std::numeric_limits<int>::min()})
        EXPECT_FALSE(isValidAsciiValue(code)) << code;
}

TEST(getFirstAlphanumericPattern, isTheFirstRunOfLettersAndDigits)
{
    EXPECT_EQ(getFirstAlphanumericPattern("AB12 CD"), "AB12");
    EXPECT_EQ(getFirstAlphanumericPattern("--z9Z0_x"), "z9Z0");
    EXPECT_EQ(getFirstAlphanumericPattern("abc"), "abc");
    EXPECT_EQ(getFirstAlphanumericPattern("@[`{/:"), "");
    EXPECT_EQ(getFirstAlphanumericPattern(""), "");
    EXPECT_EQ(getFirstAlphanumericPattern(QString()), "");
    EXPECT_EQ(getFirstAlphanumericPattern(QString::fromUtf8("\u00e9caf\u00e9")), "caf");
}

TEST(getRandomNumber, reachesBothLimitsAndNothingElse)
{
    std::set<int> seen;
    for (int i = 0; i < 2000; ++i)
        seen.insert(getRandomNumber(-1, 2));
    EXPECT_EQ(seen, (std::set<int>{-1, 0, 1, 2}));
}

TEST(getRandomNumber, takesItsLimitsInEitherOrder)
{
    std::set<int> seen;
    for (int i = 0; i < 2000; ++i)
        seen.insert(getRandomNumber(2, -1));
    EXPECT_EQ(seen, (std::set<int>{-1, 0, 1, 2}));
    for (int i = 0; i < 2000; ++i) {
        const double number = getRandomNumber(2.5, -1.5);
        ASSERT_GE(number, -1.5);
        ASSERT_LE(number, 2.5);
    }
}

TEST(getRandomNumber, hasNoChoiceBetweenEqualLimits)
{
    EXPECT_EQ(getRandomNumber(5, 5), 5);
    EXPECT_EQ(getRandomNumber(2.5, 2.5), 2.5);
}

TEST(getRandomNumber, coversTheWholeRangeOfAnInt)
{
    const int least = std::numeric_limits<int>::min();
    const int greatest = std::numeric_limits<int>::max();
    bool negative = false;
    bool positive = false;
    for (int i = 0; i < 1000; ++i)
        (getRandomNumber(least, greatest) < 0 ? negative : positive) = true;
    EXPECT_TRUE(negative && positive);
}

TEST(getRandomNumber, spreadsDoublesOverTheRange)
{
    double least = 2.0;
    double greatest = 1.0;
    for (int i = 0; i < 5000; ++i) {
        const double number = getRandomNumber(1.0, 2.0);
        ASSERT_GE(number, 1.0);
        ASSERT_LE(number, 2.0);
        least = std::min(least, number);
        greatest = std::max(greatest, number);
    }
    EXPECT_LT(least, 1.05);
    EXPECT_GT(greatest, 1.95);
}

TEST(getRandomNumber, staysBetweenLimitsThatAreNeighboursOrFarApart)
{
    const double next = std::nextafter(1.0, 2.0);
    const double far = std::numeric_limits<double>::max();
    for (int i = 0; i < 2000; ++i) {
        const double number = getRandomNumber(1.0, next);
        ASSERT_TRUE(number == 1.0 || number == next);
        const double anywhere = getRandomNumber(-far, far);
        ASSERT_TRUE(std::isfinite(anywhere));
    }
}

TEST(getThRandom, givesEveryThreadASequenceOfItsOwn)
{
    constexpr std::size_t threadCount = 4;
    std::vector<std::vector<int>> sequences(threadCount);
    std::vector<std::thread> threads;
    for (std::vector<int> &sequence : sequences) {
        threads.emplace_back([&sequence] {
            for (int i = 0; i < 1000; ++i)
                sequence.push_back(getThRandom());
        });
    }
    for (std::thread &thread : threads)
        thread.join();

    std::set<std::vector<int>> different;
    for (const std::vector<int> &sequence : sequences) {
        EXPECT_GE(*std::min_element(sequence.begin(), sequence.end()), 0);
        EXPECT_GT(std::set<int>(sequence.begin(), sequence.end()).size(), 900u);
        different.insert(sequence);
    }
    EXPECT_EQ(different.size(), threadCount);
}

TEST(stringVariableToStringProperty, isTheVariablesName)
{
    EXPECT_EQ(stringVariableToStringProperty("m_zdr_homePosition"), "m_zdr_homePosition");
    EXPECT_EQ(stringVariableToStringProperty("tinting"), "tinting");
    EXPECT_EQ(stringVariableToStringProperty(""), "");
    EXPECT_EQ(stringVariableToStringProperty(nullptr), "");
}

} // namespace
