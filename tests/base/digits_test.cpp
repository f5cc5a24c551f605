// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/digits_p.h"

#include <gtest/gtest.h>

namespace {

using Append = void (*)(QList<int> &parameters, long long number);

/** What stands behind a 7 after \a number was appended. */
QList<int> appended(Append append, long long number)
{
    QList<int> parameters = {7};
    append(parameters, number);
    return parameters;
}

} // namespace

TEST(Digits, areCounted)
{
    constexpr Append counted = quv::appendCountedDigits;
    EXPECT_EQ(appended(counted, 0), (QList<int>{7, 1, 0}));
    EXPECT_EQ(appended(counted, 245), (QList<int>{7, 1, 245}));
    EXPECT_EQ(appended(counted, 246), (QList<int>{7, 2, 0, 1}));
    EXPECT_EQ(appended(counted, 60515), (QList<int>{7, 2, 245, 245}));
    EXPECT_EQ(appended(counted, 60516), (QList<int>{7, 3, 0, 0, 1}));
    EXPECT_EQ(appended(counted, 9223372036854775807), (QList<int>{7, 8, 7, 210, 223, 38, 242, 195, 43, 169}));
    EXPECT_EQ(appended(counted, -1), (QList<int>{7, 0}));
}

TEST(Digits, areAppendedAsTheyCome)
{
    constexpr Append plain = quv::appendDigits;
    EXPECT_EQ(appended(plain, 0), (QList<int>{7, 0}));
    EXPECT_EQ(appended(plain, 245), (QList<int>{7, 245}));
    EXPECT_EQ(appended(plain, 300), (QList<int>{7, 54, 1}));
    EXPECT_EQ(appended(plain, 60516), (QList<int>{7, 0, 0, 1}));
    EXPECT_EQ(appended(plain, -1), QList<int>{7});
}

TEST(Digits, areTwoAtLeastWhereTheFirmwareReadsTwo)
{
    constexpr Append two = quv::appendTwoDigits;
    EXPECT_EQ(appended(two, 0), (QList<int>{7, 0, 0}));
    EXPECT_EQ(appended(two, 10), (QList<int>{7, 10, 0}));
    EXPECT_EQ(appended(two, 300), (QList<int>{7, 54, 1}));
    EXPECT_EQ(appended(two, 60515), (QList<int>{7, 245, 245}));
    EXPECT_EQ(appended(two, 60516), (QList<int>{7, 0, 0, 1}));
    EXPECT_EQ(appended(two, -1), QList<int>{7});
}

TEST(Digits, ofAListAreCountedToo)
{
    QList<int> parameters = {7};
    quv::appendCounted(parameters, {5, 6});
    quv::appendCounted(parameters, {});
    EXPECT_EQ(parameters, (QList<int>{7, 2, 5, 6, 0}));
}
