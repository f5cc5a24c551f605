// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/describedcommand_p.h"
#include "firmware/boardstatsanswer.h"
#include "firmware/boardstatscmd.h"

namespace quv {

/** What the types of statistics are, for those who are told of an argument. */
constexpr char boardStatsTypes[] =
    "0 all, 1 operating time, 2 pump strokes, 3 valve openings, 4 stirring time, 5 recirculation "
    "time, 6 cap movements, 7 shelf movements, 8 nozzle cleanings";

} // namespace quv

/** What the descriptions of the commands have in common. */
struct BoardStatsCmd::Description : quv::Description
{
    static constexpr char answerFailed[] = "Failed to create BoardStatsAnswer";
    static constexpr quv::AnsweredBy<BoardStatsAnswer> answer = {
        {"DE01565", answerFailed}, {"DE01558", answerFailed}, {"DE01559", answerFailed}, {}};

    /** The type; positions are read by hand, as a refusal of theirs depends on the form. */
    template <class Archive>
    static void arguments(int &type, Archive &archive)
    {
        archive.required({"stats_type", quv::boardStatsTypes}, type,
                         {"DE01548", "DE01552", "Too few parameters received"},
                         {"DE01550", "DE01553", "Board stats type: expected INT parameter"});
        archive.refuseUnless(BoardStat::checkBoardStatsType(type),
                             {{"DE01549", "Board stats type: invalid parameter"}, {}});
    }
    static void tellArguments(quv::ArgumentTeller &teller); ///< type and positions
};
