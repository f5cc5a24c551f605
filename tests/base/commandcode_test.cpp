// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandcode.h"

#include "base/basetesting.h"

#include <type_traits>

namespace {

void expectCode(const CommandCode &code, const char *whole, const char *hi, const char *lo)
{
    EXPECT_EQ(code.code, whole);
    EXPECT_EQ(code.hi, hi);
    EXPECT_EQ(code.lo, lo);
}

TEST(CommandCode, startsEmpty)
{
    expectCode(CommandCode(), "", "", "");
}

TEST(CommandCode, keepsTheBytesEmptyWhenItIsMadeOfACode)
{
    expectCode(CommandCode("0020"), "0020", "", "");
    static_assert(!std::is_convertible_v<QString, CommandCode>);
}

TEST(CommandCode, joinsTwoBytes)
{
    expectCode(CommandCode("00", "2C"), "002C", "00", "2C");
    expectCode(CommandCode("1", ""), "1", "1", "");
    CommandCode code("0020");
    code.setCommand_HI_LO("%1", "7F");
    expectCode(code, "%17F", "%1", "7F");
}

TEST(CommandCode, splitsACodeOfFourCharactersOnly)
{
    CommandCode code("01", "02");
    code.setCommandCode("0A2C");
    expectCode(code, "0A2C", "0A", "2C");
    for (const char *other : {"FR3", "FR", "", "00201"}) {
        code.setCommandCode(other);
        expectCode(code, other, "0A", "2C");
    }
    code.setCommandCode("GHIJ"); // whatever the characters are
    expectCode(code, "GHIJ", "GH", "IJ");

    code = CommandCode("ABCD", "12");
    code.setCommandCode(code.hi);
    expectCode(code, "ABCD", "AB", "CD");
}

TEST(CommandCode, readsTheBytesAsHexadecimalNumbers)
{
    bool ok = false;
    EXPECT_EQ(CommandCode("0A", "2c").command_HI(&ok), 10U);
    EXPECT_TRUE(ok);
    ok = false;
    EXPECT_EQ(CommandCode("0A", "2c").command_LO(&ok), 44U);
    EXPECT_TRUE(ok);
    EXPECT_EQ(CommandCode("FF", "F").command_HI(), 255U);
    EXPECT_EQ(CommandCode("FF", "F").command_LO(), 15U);
    for (const char *bad : {"", "FR", "-1", "1 2"}) {
        SCOPED_TRACE(bad);
        ok = true;
        EXPECT_EQ(CommandCode(bad, "1").command_HI(&ok), 0U);
        EXPECT_FALSE(ok);
        ok = true;
        EXPECT_EQ(CommandCode("1", bad).command_LO(&ok), 0U);
        EXPECT_FALSE(ok);
    }
    ok = true;
    EXPECT_EQ(CommandCode("002C").command_LO(&ok), 0U); // which has no bytes
    EXPECT_FALSE(ok);
}

} // namespace
