// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandcontract.h"
#include "firmware/boardstatscmd.h"

#include <string>

// What the tests of the commands about statistics of boards share.

namespace testing_firmware {

using namespace testing_base;

constexpr char notStats[] = "BoardStatsAnswer decoding failed: expected BoardStat type";

inline Value countOf(int position, int count)
{
    return structOf({{"position_id", position}, {"count", count}});
}

/** The answers of all of them: 300 pump strokes of circuit 3. */
inline AnswerFacts boardStatsAnswers()
{
    constexpr char notCreated[] = "Failed to create BoardStatsAnswer";
    constexpr char written[] = R"({"counts": [{"count": 300, "position_id": 3}], "stats_type": 2})";
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens("BoardStatsAnswer", {"7", "2", "1", "3", "0", "2", "36", "1"}, written)
            .failsWith("DE01565", notCreated)
            .refuses({"1", "2"}, "DE01589", notStats, "BoardStatsAnswer::BoardStatsAnswer(QStringList)");
    answers.value =
        AnswerOfValue("BoardStatsAnswer", structOf({{"stats_type", 2}, {"counts", arrayOf(countOf(3, 300))}}),
                      written)
            .failsWith("DE01558", notCreated)
            .refuses(Value(0), "DE01590", notStats,
                     "BoardStatsAnswer::BoardStatsAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("BoardStatsAnswer", {2, QVariant(List{QVariantMap{{"position_id", 3}, {"count", 300}}})},
                     written)
            .failsWith("DE01559", notCreated)
            .refuses({2}, "DE01591", notStats, "BoardStatsAnswer::BoardStatsAnswer(QList<QVariant>&)");
    return answers;
}

/** Facts of a command with a type and positions; \a sends are the integers for type 2 of circuits 3 and 1, and for type 6 of all. */
template <class Command>
CommandFacts boardStatsFacts(const std::string &className, const CatalogueFacts &row, const QList<int> &ofTwo,
                             const QList<int> &ofAll, const QList<int> &byDefault)
{
    constexpr char noType[] = "Board stats type: expected INT parameter";
    constexpr char noPositions[] = "Board stats type: expected positions ID list parameter";
    CommandFacts facts(formsOf<Command>());
    facts.catalogue = row;
    facts.protoType = 1;
    facts.valueFunction = className + "::" + className + "(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = className + "::" + className + "(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE01550", "DE01553", noType})
            .refuses({Value(-1), Value(9)}, {}, {"DE01549", "", "Board stats type: invalid parameter"})
            .takes({0, 8}),
        optional()
            .refuses({Value(7), Value("7"), Value(true), structOf({}), arrayOf(7, "8"), arrayOf(7.0)},
                     {QVariant(), 7, "7", QVariantMap(), QStringList{"7"}},
                     {"DE01551", "DE01556", noPositions})
            .refuses({}, {List{7, "8"}, List{7.0}, List{QVariant()}},
                     {"", "DE01554", "Position ID: expected INT parameter"})};
    facts.getters = {getter(&BoardStatsCmd::boardStatsType)};
    facts.defaults = Request().parameters({0}).written("[0]").holds({0}).sends(byDefault);
    facts.requests = {
        Request({2, QVariant(List{3, 1})})
            .template typed<Command>(2, QList<int>{3, 1})
            .value(arrayOf(2, arrayOf(3, 1)))
            .written("[2, [3, 1]]")
            .holds({2})
            .sends(ofTwo),
        Request({6}).template typed<Command>(6, QList<int>()).written("[6]").holds({6}).sends(ofAll)};
    facts.requests.push_back(facts.requests.front().alsoFromList({2, QVariant::fromValue(QList<int>{3, 1})}));
    facts.requests.push_back(Request({6, QVariant(List())})
                                 .value(arrayOf(6, arrayOf()))
                                 .parameters({6})
                                 .written("[6]")
                                 .holds({6})
                                 .sends(ofAll));
    facts.answers = boardStatsAnswers();
    return facts;
}

} // namespace testing_firmware
