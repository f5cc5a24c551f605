// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/getrealboardstatscmd.h"

#include "catalogue/protocommandlist.h"
#include "firmware/boardstatsanswer.h"
#include "firmware/boardstatstesting.h"
#include "firmware/clearboardstatscmd.h"
#include "firmware/getlastboardstatscmd.h"

namespace {

using namespace testing_firmware;

TEST(GetRealBoardStatsCmd, keepsTheCommandContract)
{
    CommandFacts facts = boardStatsFacts<GetRealBoardStatsCmd>(
        "GetRealBoardStatsCmd", {"GET_REAL_BOARD_STATS", 43, "0078", 1}, {3}, {3}, {3});
    facts.answers.gathersReadyAnswers = true;
    expectCommandContract(facts);
}

TEST(GetRealBoardStatsCmd, isAnsweredInTwoSteps)
{
    EXPECT_TRUE(ProtoCommandList::isMultipleCommand("GET_REAL_BOARD_STATS"));
    EXPECT_EQ(ProtoCommandList::row("GET_REAL_BOARD_STATS")->busyTimeout, 240000);

    GetRealBoardStatsCmd command(2, {3});
    GetLastBoardStatsCmd last(2, {3});
    BoardStatsAnswer answer(BoardStat(2, {{3, 300}}));
    FW_DriverError error;
    EXPECT_TRUE(command.setAnswer(&answer, &last, &error));
    EXPECT_EQ(error.code(), "");
    const auto *taken = dynamic_cast<const BoardStatsAnswer *>(command.getProtoAnswer());
    ASSERT_TRUE(taken);
    EXPECT_NE(taken, &answer) << "a clone";
    EXPECT_TRUE(*taken == answer);
}

TEST(GetRealBoardStatsCmd, passesOverAnswersToOthers)
{
    GetRealBoardStatsCmd command(2, {3});
    const BoardStat held(2, {{3, 300}});
    BoardStatsAnswer first(held);
    BoardStatsAnswer other(BoardStat(2, {{3, 301}}));
    command.setProtoAnswer(&first);
    ClearBoardStatsCmd clear;
    GetRealBoardStatsCmd real;
    FW_DriverError error;
    for (ProtoCommand *asked : {static_cast<ProtoCommand *>(&clear), static_cast<ProtoCommand *>(&real),
                                static_cast<ProtoCommand *>(nullptr)}) {
        EXPECT_TRUE(command.setAnswer(&other, asked, &error));
        EXPECT_TRUE(command.setAnswer(nullptr, asked, nullptr));
        EXPECT_EQ(error.code(), "");
        const auto *answer = dynamic_cast<const BoardStatsAnswer *>(command.getProtoAnswer());
        ASSERT_TRUE(answer);
        EXPECT_TRUE(answer->boardStat() == held);
    }
}

TEST(GetRealBoardStatsCmd, tellsWhyItCouldNotTakeAnAnswer)
{
    GetLastBoardStatsCmd last;
    const auto expectFailed = [&](ProtoAnswer *answer, const char *code) {
        GetRealBoardStatsCmd command;
        BoardStatsAnswer before;
        command.setProtoAnswer(&before);
        FW_DriverError error;
        EXPECT_FALSE(command.setAnswer(answer, &last, &error));
        expectError(error, code, "Failed to create answer");
        EXPECT_FALSE(command.setAnswer(answer, &last, nullptr));
        EXPECT_EQ(command.getProtoAnswer(), nullptr);
    };
    expectFailed(nullptr, "DE01150");
    UncopyableAnswer<ProtoAnswer> uncopyable(Failure::OfStandard);
    expectFailed(&uncopyable, "DE01151");
}

TEST(GetRealBoardStatsCmd, knowsWhichFirmwareCountsCleanings)
{
    struct Row
    {
        int family;
        int revision;
        bool counts;
    };
    for (const Row &row : {Row{63, 37, false}, Row{63, 38, false}, Row{63, 39, true}, Row{70, 0, false},
                           Row{70, 1, false}, Row{70, 2, true}, Row{72, 99, false}, Row{62, 99, false},
                           Row{64, 99, false}, Row{69, 99, false}, Row{71, 99, false}, Row{0, 99, false}})
        EXPECT_EQ(GetRealBoardStatsCmd::isCleaningStatSupported(FW_Version(row.family, row.revision)),
                  row.counts)
            << row.family << '.' << row.revision;
    EXPECT_FALSE(GetRealBoardStatsCmd::isCleaningStatSupported(FW_Version()));
}

} // namespace
