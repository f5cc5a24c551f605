// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ending.h"

#include <gtest/gtest.h>

#include <future>

namespace {

using namespace quv;
using namespace std::chrono_literals;

TEST(Ending, waitsItsTimeUntilItBegins)
{
    Ending ending;
    const auto since = std::chrono::steady_clock::now();
    EXPECT_TRUE(ending.wait(50ms));
    EXPECT_GE(std::chrono::steady_clock::now() - since, 50ms);
    auto waiting = std::async(std::launch::async, [&] { return ending.wait(10s); });
    EXPECT_EQ(waiting.wait_for(20ms), std::future_status::timeout);
    EXPECT_FALSE(ending.hasBegun());
    ending.begin();
    ASSERT_EQ(waiting.wait_for(5s), std::future_status::ready);
    EXPECT_FALSE(waiting.get());
    EXPECT_TRUE(ending.hasBegun());
    EXPECT_FALSE(ending.wait(10s));
}

TEST(Ending, beginsWithAnyOfOthers)
{
    for (const bool isFirst : {true, false}) {
        Ending first;
        Ending second;
        Ending either{&first, &second};
        EXPECT_FALSE(either.hasBegun());
        (isFirst ? first : second).begin();
        EXPECT_TRUE(either.hasBegun());
        EXPECT_FALSE((isFirst ? second : first).hasBegun());
    }
    Ending begun;
    begun.begin();
    EXPECT_TRUE(Ending{&begun}.hasBegun());
}

TEST(Ending, doesNotReachThoseAboveIt)
{
    Ending whole;
    {
        Ending part{&whole};
        part.begin();
        EXPECT_FALSE(whole.hasBegun());
    }
    whole.begin(); // whom it does not know any more
    EXPECT_TRUE(whole.hasBegun());
}

} // namespace
