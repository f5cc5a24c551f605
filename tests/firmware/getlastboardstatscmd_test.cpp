// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/getlastboardstatscmd.h"

#include "firmware/boardstatstesting.h"

namespace {

using namespace testing_firmware;

TEST(GetLastBoardStatsCmd, keepsTheCommandContract)
{
    expectCommandContract(
        boardStatsFacts<GetLastBoardStatsCmd>("GetLastBoardStatsCmd", {"GET_LAST_BOARD_STATS", 42, "0078", 1},
                                              {4, 2, 2, 3, 0, 1, 0}, {4, 6, 1, 63, 0}, {4, 0, 1, 63, 0}));
}

TEST(GetLastBoardStatsCmd, hasAnActionOfItsOwn)
{
    EXPECT_EQ(GetLastBoardStatsCmd().boardStatsAction(), 4);
    EXPECT_EQ(GetLastBoardStatsCmd(arrayOf(2)).boardStatsAction(), 4);
    EXPECT_EQ(GetLastBoardStatsCmd(List{2}).boardStatsAction(), 4);
}

} // namespace
