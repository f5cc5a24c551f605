// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/commandrows_p.h"

#include <gtest/gtest.h>

#include <cctype>
#include <limits>
#include <set>
#include <string>

namespace {

using Cmd = ProtoCommandList;

TEST(CommandPurpose, isOneSentenceForEachCommand)
{
    std::set<std::string> purposes;
    for (int row = 0; row < 167; ++row) {
        SCOPED_TRACE(Cmd::row(row)->name.toStdString());
        const char *told = quv::commandPurpose(row);
        ASSERT_TRUE(told);
        const std::string purpose = told;
        ASSERT_GE(purpose.size(), 10U);
        EXPECT_LE(purpose.size(), 100U);
        EXPECT_TRUE(std::isupper(static_cast<unsigned char>(purpose.front())));
        EXPECT_TRUE(std::isalpha(static_cast<unsigned char>(purpose.back())));
        EXPECT_EQ(purpose.find(". "), std::string::npos);
        EXPECT_EQ(purpose.find("  "), std::string::npos);
        EXPECT_EQ(purpose.find('_'), std::string::npos) << "a word of the wire and not of people";
        EXPECT_TRUE(purposes.insert(purpose).second) << "the purpose of two commands: " << purpose;
    }
}

TEST(CommandPurpose, tellsWhatTheCommandDoes)
{
    EXPECT_STREQ(quv::commandPurpose(Cmd::GET_STATUS), "Tells what the dispenser is doing");
    EXPECT_STREQ(quv::commandPurpose(Cmd::MIXER_STATUS), "Tells what the mixer is doing");
    EXPECT_STREQ(quv::commandPurpose(Cmd::TINT), "Pours a formula into the can");
    EXPECT_STREQ(quv::commandPurpose(Cmd::CHECK_FORMULA_LEVELS),
                 "Tells which canisters a formula would bring below their critical or warning level");
    EXPECT_STREQ(quv::commandPurpose(Cmd::TARE), "Tares the scale");
    EXPECT_STREQ(quv::commandPurpose(Cmd::PAUSE), "Makes the driver wait for a time");
}

TEST(CommandPurpose, isToldOfRowsOnly)
{
    for (int row : {-1, 167, 168, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_FALSE(quv::commandPurpose(row)) << row;
    EXPECT_TRUE(quv::commandPurpose(0));
    EXPECT_TRUE(quv::commandPurpose(166));
}

} // namespace
