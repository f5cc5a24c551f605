// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/boardstatscmd.h"

#include "firmware/boardstatstesting.h"
#include "firmware/clearboardstatscmd.h"
#include "firmware/getlastboardstatscmd.h"
#include "firmware/getrealboardstatscmd.h"
#include "firmware/setboardstatscmd.h"

#include <type_traits>

namespace {

using namespace testing_firmware;

TEST(BoardStatsCmd, hasFourActions)
{
    for (const int action : {1, 2, 3, 4})
        EXPECT_TRUE(BoardStatsCmd::checkBoardStatsAction(action)) << action;
    for (const int action : {-1, 0, 5, 63})
        EXPECT_FALSE(BoardStatsCmd::checkBoardStatsAction(action)) << action;
}

TEST(BoardStatsCmd, tellsItsPositions)
{
    EXPECT_EQ(GetLastBoardStatsCmd(2, {3, 1}).positionsID(), (QList<int>{3, 1}));
    EXPECT_EQ(GetLastBoardStatsCmd(arrayOf(2, arrayOf(3, 1))).positionsID(), (QList<int>{3, 1}));
    EXPECT_EQ(GetLastBoardStatsCmd(List{2, QVariant(List{3, 1})}).positionsID(), (QList<int>{3, 1}));
    EXPECT_EQ(GetLastBoardStatsCmd().positionsID(), QList<int>());
}

TEST(BoardStatsCmd, goesBackToItsDefaults)
{
    GetRealBoardStatsCmd command(2, {3, 1});
    EXPECT_EQ(command.serialBoardStatsParameters(1), (QList<int>{3, 2, 2, 3, 0, 1, 0}));
    EXPECT_EQ(command.boardStatsParameters(), (List{2, QVariant(List{3, 1})}));
    command.setBoardStatsDefaults();
    EXPECT_EQ(command.boardStatsAction(), 0);
    EXPECT_EQ(command.boardStatsType(), 0);
    EXPECT_EQ(command.positionsID(), QList<int>());
    EXPECT_EQ(command.boardStatsParameters(), List{0});
    EXPECT_EQ(command.serialBoardStatsParameters(1), (QList<int>{0, 0, 1, 63, 0}));
}

template <class Command>
constexpr bool mistakesOtherArguments()
{
    return std::is_constructible_v<Command, int> || std::is_constructible_v<Command, bool> ||
           std::is_constructible_v<Command, double> || std::is_constructible_v<Command, const char *>;
}

TEST(BoardStatsCmd, doesNotMistakeOtherArguments)
{
    static_assert(!mistakesOtherArguments<ClearBoardStatsCmd>());
    static_assert(!mistakesOtherArguments<GetLastBoardStatsCmd>());
    static_assert(!mistakesOtherArguments<GetRealBoardStatsCmd>());
    static_assert(!mistakesOtherArguments<SetBoardStatsCmd>());
}

} // namespace
