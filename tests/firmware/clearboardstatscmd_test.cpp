// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/clearboardstatscmd.h"

#include "firmware/boardstatstesting.h"

namespace {

using namespace testing_firmware;

TEST(ClearBoardStatsCmd, keepsTheCommandContract)
{
    expectCommandContract(
        boardStatsFacts<ClearBoardStatsCmd>("ClearBoardStatsCmd", {"CLEAR_BOARD_STATS", 45, "0078", 1},
                                            {1, 2, 2, 3, 0, 1, 0}, {1, 6, 1, 63, 0}, {1, 0, 1, 63, 0}));
}

TEST(ClearBoardStatsCmd, hasAnActionOfItsOwn)
{
    EXPECT_EQ(ClearBoardStatsCmd().boardStatsAction(), 1);
    EXPECT_EQ(ClearBoardStatsCmd(arrayOf(2)).boardStatsAction(), 1);
    EXPECT_EQ(ClearBoardStatsCmd(List{2}).boardStatsAction(), 1);
}

// a list is built by who knows what the boards count
TEST(ClearBoardStatsCmd, takesAnyTypeInAList)
{
    EXPECT_EQ(ClearBoardStatsCmd(List{9}).boardStatsType(), 9);
    EXPECT_EQ(ClearBoardStatsCmd(-1, {}).boardStatsType(), -1);
}

} // namespace
