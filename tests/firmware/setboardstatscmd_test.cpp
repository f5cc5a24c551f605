// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/setboardstatscmd.h"

#include "firmware/boardstatstesting.h"

namespace {

using namespace testing_firmware;

QVariant countMap(int position, qlonglong count)
{
    return QVariantMap{{"position_id", position}, {"count", count}};
}

CommandFacts facts()
{
    constexpr char notStat[] = "SetBoardStatsCmd decoding failed: expected BoardStat type";
    const ArgumentRefusal refusal = {"DE01566", "DE01567", notStat};
    CommandFacts facts(formsOf<SetBoardStatsCmd>());
    facts.catalogue = {"SET_BOARD_STATS", 44, "0078", 2};
    facts.protoType = 1;
    facts.valueFunction = "SetBoardStatsCmd::SetBoardStatsCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SetBoardStatsCmd::SetBoardStatsCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, refusal).outOfRange({-1, 9}, refusal).takes({0, 8}),
        required().refuses(
            {Value(7), Value("7"), structOf({}), arrayOf(7), arrayOf(structOf({})),
             arrayOf(structOf({{"position_id", -1}, {"count", 1}}))},
            {QVariant(), 7, QVariantMap(), List{7}, List{QVariantMap()}, List{countMap(-1, 1)}}, refusal)};
    facts.getters = {getter(&BoardStatsCmd::boardStatsType)};
    facts.defaults =
        Request().parameters({0, QVariant(List())}).written("[0, []]").holds({0}).sends({2, 0, 0}, {2});
    facts.requests = {
        Request({2, QVariant(List{countMap(3, 300), countMap(1, 0)})})
            .typed<SetBoardStatsCmd>(BoardStat(2, {{3, 300}, {1, 0}}))
            .value(arrayOf(2, arrayOf(countOf(3, 300), countOf(1, 0))))
            .written(R"([2, [{"count": 300, "position_id": 3}, {"count": 0, "position_id": 1}]])")
            .holds({2})
            .sends({2, 2, 2, 3, 0, 2, 54, 1, 1, 0, 1, 0}, {2}),
        Request({7, QVariant(List())})
            .typed<SetBoardStatsCmd>(BoardStat(7, {}))
            .value(arrayOf(7, arrayOf()))
            .written("[7, []]")
            .holds({7})
            .sends({2, 7, 0}, {2}),
    };
    facts.answers = boardStatsAnswers();
    return facts;
}

TEST(SetBoardStatsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(SetBoardStatsCmd, tellsWhatItSets)
{
    const BoardStat stat(2, {{3, 300}, {1, 0}});
    const SetBoardStatsCmd command(stat);
    EXPECT_TRUE(command.boardStat() == stat);
    EXPECT_TRUE(SetBoardStatsCmd(command.xmlrpc_parameters()).boardStat() == stat);
    EXPECT_TRUE(SetBoardStatsCmd(command.parameters()).boardStat() == stat);
    EXPECT_TRUE(SetBoardStatsCmd().boardStat() == BoardStat());
    EXPECT_EQ(command.boardStatsAction(), 2);
    EXPECT_EQ(command.positionsID(), (QList<int>{3, 1}));
    EXPECT_EQ(command.boardStatsParameters(), (List{2, QVariant(List{3, 1})}));
}

} // namespace
