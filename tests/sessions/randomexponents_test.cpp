// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/getkeycmd.h"

#include <gtest/gtest.h>

#include <climits>
#include <deque>
#include <utility>

// The framework's own random numbers are never negative, those of another one may be. So this program draws its own: it is found before
// the library's.

namespace {

std::deque<int> drawn;

} // namespace

Q_DECL_EXPORT int getThRandom()
{
    const int number = drawn.front();
    drawn.pop_front();
    return number;
}

namespace {

struct Exponent
{
    int drawn;
    int secret;
    const char *key;
};

} // namespace

TEST(RandomExponents, areTheRemainderByEightAndTwo)
{
    for (const auto &[number, exponent] : {std::pair(0, 2), std::pair(7, 9), std::pair(8, 2),
                                           std::pair(-1, 1), std::pair(-7, -5), std::pair(-8, 2)}) {
        SCOPED_TRACE(number);
        drawn = {number};
        EXPECT_EQ(GetKeyCmd::getRandomValue(), exponent);
    }
}

TEST(RandomExponents, ofOneAndLessGiveTheBaseItself)
{
    // 50 to the power of 2 is 2500, 22 beyond 42 times 59
    constexpr Exponent exponents[] = {{-1, 1, "50"}, {-7, -5, "50"},     {-2, 0, "50"},
                                      {-8, 2, "22"}, {INT_MIN, 2, "22"}, {0, 2, "22"}};
    for (const Exponent &exponent : exponents) {
        SCOPED_TRACE(exponent.drawn);
        drawn = {exponent.drawn};
        QString key;
        int secret = 99;
        EXPECT_TRUE(GetKeyCmd::createSharedKey(&key, &secret));
        EXPECT_EQ(secret, exponent.secret);
        EXPECT_EQ(key, exponent.key);
        EXPECT_TRUE(drawn.empty());
    }
}
