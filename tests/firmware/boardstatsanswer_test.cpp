// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/boardstatsanswer.h"

#include "firmware/boardstatstesting.h"

#include <memory>

namespace {

using namespace testing_firmware;

const BoardStat strokes(2, {{3, 300}, {250, 5}});

constexpr char written[] =
    R"({"counts": [{"count": 300, "position_id": 3}, {"count": 5, "position_id": 250}], "stats_type": 2})";

TEST(BoardStatsAnswer, holdsStatistics)
{
    EXPECT_TRUE(BoardStatsAnswer().boardStat() == BoardStat());
    EXPECT_EQ(dumped(BoardStatsAnswer().toXmlRpcValue()), R"({"counts": [], "stats_type": 0})");
    const BoardStatsAnswer answer(strokes);
    EXPECT_TRUE(answer.boardStat() == strokes);
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), written);
    EXPECT_TRUE(BoardStatsAnswer(answer.toXmlRpcValue()) == answer);
    List list = strokes.parameters();
    EXPECT_TRUE(BoardStatsAnswer(list) == answer);
}

TEST(BoardStatsAnswer, isReadOfTokens)
{
    const QStringList tokens = {"0B", "2", "2", "3", "0", "2", "36", "1", "4", "1", "1", "5"};
    const BoardStatsAnswer answer(tokens);
    EXPECT_TRUE(answer.boardStat() == strokes);
    EXPECT_EQ(answer.serialParameters(), tokens.mid(1));
    EXPECT_TRUE(BoardStatsAnswer(QStringList{"0"}).boardStat() == BoardStat())
        << "that of a board that confirms";
}

TEST(BoardStatsAnswer, refusesTokensCutAnywhere)
{
    const QStringList tokens = {"0B", "2", "2", "3", "0", "2", "36", "1", "4", "1", "1", "5"};
    for (int count = 2; count < tokens.size(); ++count) {
        SCOPED_TRACE(count);
        QStringList cut = tokens.mid(0, count);
        expectRefusal("DE00077", "Error during command answer decoding: bad length",
                      "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                      [&] { const BoardStatsAnswer answer(cut); });
        cut[0] = QString::number(count - 1, 16);
        expectRefusal("DE01589", notStats, "BoardStatsAnswer::BoardStatsAnswer(QStringList)",
                      [&] { const BoardStatsAnswer answer(cut); });
    }
    expectRefusal("DE00076", "Empty answer received", "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                  [] { const BoardStatsAnswer answer((QStringList())); });
}

TEST(BoardStatsAnswer, refusesWhatAreNoStatistics)
{
    for (const Value &value : {Value(2), Value("2"), structOf({}), structOf({{"stats_type", 2}}),
                               structOf({{"stats_type", 9}, {"counts", arrayOf()}}), arrayOf()}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01590", notStats, "BoardStatsAnswer::BoardStatsAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { const BoardStatsAnswer answer(value); });
    }
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { const BoardStatsAnswer answer((Value())); });
    for (List list : {List(), List{2}, List{"2", QVariant(List())}, List{2, 3}, List{9, QVariant(List())}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE01591", notStats, "BoardStatsAnswer::BoardStatsAnswer(QList<QVariant>&)",
                      [&] { const BoardStatsAnswer answer(list); });
    }
}

TEST(BoardStatsAnswer, comparesItsStatistics)
{
    const BoardStatsAnswer answer(strokes);
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(clone.get()), "BoardStatsAnswer");
    EXPECT_TRUE(answer.equalTo(clone.get()));
    const BoardStatsAnswer other(BoardStat(2, {{3, 301}, {250, 5}}));
    EXPECT_TRUE(answer != other);
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
}

} // namespace
