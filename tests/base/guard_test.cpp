// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/guard_p.h"

#include "base/basetesting.h"

using namespace testing_base;

namespace {

[[noreturn]] void throwOwn()
{
    throw FW_Exception("DE1", "Own text", "Maker::Maker(int)");
}

[[noreturn]] void throwStandard()
{
    throw std::runtime_error("standard");
}

[[noreturn]] void throwNumber()
{
    throw 7;
}

void rethrown(void (*work)())
{
    try {
        work();
    } catch (...) {
        quv::rethrowCurrentException("DE9", "Went wrong", "Factory::make()");
    }
}

} // namespace

TEST(Guard, letsWorkDoItsWork)
{
    FW_DriverError error("DE0", "untouched");
    int done = 0;
    EXPECT_TRUE(quv::guarded("DE9", "Went wrong", &error, [&] { ++done; }));
    EXPECT_TRUE(quv::guarded("DE9", "Went wrong", nullptr, [&] { ++done; }));
    EXPECT_EQ(done, 2);
    expectError(error, "DE0", "untouched");
}

TEST(Guard, keepsTheFrameworksCodeAndText)
{
    FW_DriverError error;
    EXPECT_FALSE(quv::guarded("DE9", "Went wrong", &error, throwOwn));
    expectError(error, "DE1", "Own text");
    EXPECT_EQ(error.function(), "Maker::Maker(int)");
}

TEST(Guard, givesAnythingElseTheCodeAndTextAtHand)
{
    for (void (*work)() : {&throwStandard, &throwNumber}) {
        SCOPED_TRACE(work == &throwNumber ? "a number" : "a standard exception");
        FW_DriverError error;
        EXPECT_FALSE(quv::guarded("DE9", "Went wrong", &error, work));
        expectError(error, "DE9", "Went wrong");
        EXPECT_EQ(error.function(), QString());
    }
}

TEST(Guard, needsNoError)
{
    EXPECT_FALSE(quv::guarded("DE9", "Went wrong", nullptr, throwOwn));
    EXPECT_FALSE(quv::guarded("DE9", "Went wrong", nullptr, throwStandard));
    EXPECT_FALSE(quv::guarded("DE9", "Went wrong", nullptr, throwNumber));
}

TEST(Guard, rethrowsTheFrameworksException)
{
    expectRefusal("DE1", "Own text", "Maker::Maker(int)", [] { rethrown(throwOwn); });
}

TEST(Guard, rethrowsAnythingElseUnderTheCodeAtHand)
{
    expectRefusal("DE9", "Went wrong", "Factory::make()", [] { rethrown(throwStandard); });
    expectRefusal("DE9", "Went wrong", "Factory::make()", [] { rethrown(throwNumber); });
}
