// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/boardstatscmd.h"

#include "base/factlines.h"
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

constexpr char types[] = "stats_type (int): 0 all, 1 operating time, 2 pump strokes, 3 valve openings, 4 "
                         "stirring time, 5 recirculation "
                         "time, 6 cap movements, 7 shelf movements, 8 nozzle cleanings";

TEST(BoardStatsCmd, tellsItsArguments)
{
    for (const char *name : {"CLEAR_BOARD_STATS", "GET_LAST_BOARD_STATS", "GET_REAL_BOARD_STATS"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(argumentsOf(name),
                  (Lines{types, "  XML-RPC, another type: DE01550", "  list, another type: DE01553",
                         "  XML-RPC, out of range: DE01549",
                         "positions (array of ints) = []: circuits' positions; without any, all boards",
                         "  XML-RPC, another type: DE01551", "  list, another type: DE01556",
                         "  XML-RPC, an element of another type: DE01551",
                         "  list, an element of another type: DE01554"}));
    }
    EXPECT_EQ(
        argumentsOf("SET_BOARD_STATS"),
        (Lines{
            types, "  XML-RPC, another type: DE01566", "  list, another type: DE01567",
            "  XML-RPC, out of range: DE01566", "  list, out of range: DE01567",
            "counts (array of structs): of each board \"position_id\", 0 for the master board, and \"count\"",
            "  XML-RPC, another type: DE01566", "  list, another type: DE01567",
            "  XML-RPC, out of range: DE01566", "  list, out of range: DE01567"}));
}

TEST(BoardStatsCmd, tellsTheAnswer)
{
    const Lines refusals = {"  tokens, unreadable: DE01589", "  XML-RPC, missing or another type: DE01590",
                            "  list, missing or another type: DE01591"};
    Lines expected = {"BoardStatsAnswer", "stats_type (int): what was counted"};
    expected.insert(expected.end(), refusals.begin(), refusals.end());
    expected.push_back(
        "counts (array of structs): of each board \"position_id\", 0 for the master board, and \"count\"");
    expected.insert(expected.end(), refusals.begin(), refusals.end());
    for (const char *line : {"  tokens, : DE01565", "  XML-RPC, : DE01558", "  list, : DE01559"})
        expected.push_back(line);
    for (const char *name :
         {"CLEAR_BOARD_STATS", "GET_LAST_BOARD_STATS", "GET_REAL_BOARD_STATS", "SET_BOARD_STATS"})
        EXPECT_EQ(membersOf(name), expected) << name;
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
