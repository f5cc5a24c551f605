// SPDX-License-Identifier: LGPL-3.0-or-later
#include "values.h"

#include <QuvFramework/fw_boardstat.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>

namespace {

using values::arrayOf;
using values::structOf;
using values::XmlRpcValue;

using Counts = QVector<BoardStat::BoardCount>;

/** Circuit 3 has counted 300, circuit 250 2^53. */
BoardStat strokes()
{
    return BoardStat(2, {{3, 300}, {250, 9007199254740992}});
}

XmlRpcValue countStruct(const XmlRpcValue &position, const XmlRpcValue &count)
{
    return structOf({{"position_id", position}, {"count", count}});
}

XmlRpcValue strokesStruct()
{
    return structOf({{"stats_type", 2},
                     {"counts", arrayOf({countStruct(3, 300), countStruct(250, 9007199254740992.0)})}});
}

QVariantMap countMap(const QVariant &position, const QVariant &count)
{
    return {{"position_id", position}, {"count", count}};
}

QVariantList strokesList()
{
    return {2, QVariantList{countMap(3, 300), countMap(250, 9007199254740992LL)}};
}

TEST(BoardStat, startsWithoutCounts)
{
    BoardStat stat;
    EXPECT_EQ(stat.type(), 0);
    EXPECT_EQ(stat.counts(), Counts());
    EXPECT_EQ(stat.positionsID(), QList<int>());
    EXPECT_EQ(stat.parameters(), (QVariantList{0, QVariantList()}));
    EXPECT_EQ(stat.serialParameters(1), (QList<int>{0, 0}));
    stat = strokes();
    stat.setDefaults();
    EXPECT_TRUE(stat == BoardStat());
}

TEST(BoardStat, knowsItsTypes)
{
    EXPECT_FALSE(BoardStat::checkBoardStatsType(-1));
    EXPECT_FALSE(BoardStat::isMasterBoardStatsType(-1));
    for (int type = 0; type <= 8; ++type) {
        EXPECT_TRUE(BoardStat::checkBoardStatsType(type)) << type;
        EXPECT_EQ(BoardStat::isMasterBoardStatsType(type), type > 5) << type;
    }
    EXPECT_FALSE(BoardStat::checkBoardStatsType(9));
    EXPECT_FALSE(BoardStat::isMasterBoardStatsType(9));
}

TEST(BoardStat, holdsWhatEachBoardHasCounted)
{
    EXPECT_EQ(strokes().type(), 2);
    EXPECT_EQ(strokes().positionsID(), (QList<int>{3, 250}));
    EXPECT_EQ(strokes().counts(), (Counts{{3, 300}, {250, 9007199254740992}}));
}

// 2^53 in digits of base 246, low digit first: 74, 139, 151, 59, 6, 158, 40
TEST(BoardStat, goesToTheFirmwareInDigits)
{
    EXPECT_EQ(strokes().serialParameters(1),
              (QList<int>{2, 2, 3, 0, 2, 54, 1, 4, 1, 7, 74, 139, 151, 59, 6, 158, 40}));
    EXPECT_EQ(BoardStat(6, {{0, 0}}).serialParameters(1), (QList<int>{6, 1, 0, 0, 1, 0}));
    EXPECT_EQ(BoardStat(6, {{60515, 245}}).serialParameters(1), (QList<int>{6, 1, 245, 245, 1, 245}));
    for (const int family : {0, 2, 3})
        EXPECT_EQ(strokes().serialParameters(family), QList<int>()) << family;
}

TEST(BoardStat, isReadOfTokens)
{
    EXPECT_TRUE(BoardStat(QStringList()) == BoardStat());
    EXPECT_TRUE(BoardStat(QStringList{"05", "00"}) == BoardStat(5, {}));
    const QStringList tokens = {"2", "02", "3",  "0",  "2",  "36", "1",  "4", "1",
                                "7", "4A", "8B", "97", "3b", "6",  "9e", "28"};
    EXPECT_TRUE(BoardStat(tokens) == strokes());
    EXPECT_TRUE(BoardStat(tokens + QStringList{"zz", "7"}) == strokes()) << "the rest is not read";
    EXPECT_TRUE(BoardStat(QStringList{"2", "1", "3", "0", "0"}) == BoardStat(2, {{3, 0}}))
        << "no digits are 0";
}

TEST(BoardStat, refusesTokensCutAnywhere)
{
    const QStringList tokens = {"2", "2", "3", "0", "2", "36", "1", "4", "1", "1", "5"};
    ASSERT_TRUE(BoardStat(tokens) == BoardStat(2, {{3, 300}, {250, 5}}));
    for (int count = 1; count < tokens.size(); ++count)
        EXPECT_THROW(BoardStat(tokens.mid(0, count)), std::invalid_argument) << count;
    for (int i = 0; i < tokens.size(); ++i) {
        for (const char *bad : {"zz", "", "-1"}) {
            QStringList other = tokens;
            other[i] = bad;
            EXPECT_THROW(BoardStat{other}, std::invalid_argument) << i << bad;
        }
    }
}

TEST(BoardStat, refusesTokensOutOfRange)
{
    const QStringList rows[] = {
        {"9", "0"},                                                              // type
        {"2", "1", "0", "F6", "1", "5"},                                         // position 60516
        {"2", "1", "F6", "F5", "1", "5"},                                        // the same
        {"2", "1", "3", "0", "7", "4B", "8B", "97", "3B", "6", "9E", "28"},      // 2^53 + 1
        {"2", "1", "3", "0", "9", "0", "0", "0", "0", "0", "0", "0", "0", "FF"}, // beyond 63 bits
        {"2", "7fffffff", "3", "0", "1", "5"},                                   // boards
        {"2", "1", "3", "0", "7fffffff", "5"},                                   // digits
    };
    for (const QStringList &tokens : rows)
        EXPECT_THROW(BoardStat{tokens}, std::invalid_argument) << tokens.join(' ').toStdString();
}

TEST(BoardStat, isAStructOverXmlRpc)
{
    bool ok = false;
    EXPECT_TRUE(SameXmlRpcValue(strokes().toXmlRpcValue(&ok), strokesStruct()));
    EXPECT_TRUE(ok);
    EXPECT_TRUE(BoardStat(strokesStruct()) == strokes());
    const XmlRpcValue empty = structOf({{"stats_type", 0}, {"counts", arrayOf({})}});
    EXPECT_TRUE(SameXmlRpcValue(BoardStat().toXmlRpcValue(), empty));
    EXPECT_TRUE(BoardStat(empty) == BoardStat());
}

TEST(BoardStat, isReadOfTheMembersAlone)
{
    const XmlRpcValue members = strokesStruct();
    EXPECT_TRUE(BoardStat(arrayOf({2, members["counts"]})) == strokes());
}

TEST(BoardStat, refusesOtherValues)
{
    const XmlRpcValue none = arrayOf({});
    const XmlRpcValue rows[] = {XmlRpcValue(),
                                2,
                                "2",
                                none,
                                arrayOf({2}),
                                arrayOf({2, 3}),
                                arrayOf({"2", none}),
                                arrayOf({2.0, none}),
                                arrayOf({9, none}),
                                arrayOf({-1, none}),
                                structOf({}),
                                structOf({{"stats_type", 2}}),
                                structOf({{"counts", none}}),
                                structOf({{"stats_type", true}, {"counts", none}}),
                                structOf({{"stats_type", 2}, {"counts", structOf({})}}),
                                arrayOf({2, arrayOf({3})}),
                                arrayOf({2, arrayOf({arrayOf({3, 300})})}),
                                arrayOf({2, arrayOf({structOf({{"count", 300}})})}),
                                arrayOf({2, arrayOf({structOf({{"position_id", 3}})})}),
                                arrayOf({2, arrayOf({countStruct("3", 300)})}),
                                arrayOf({2, arrayOf({countStruct(3, "300")})}),
                                arrayOf({2, arrayOf({countStruct(3, 0.5)})}),
                                arrayOf({2, arrayOf({countStruct(-1, 300)})}),
                                arrayOf({2, arrayOf({countStruct(60516, 300)})}),
                                arrayOf({2, arrayOf({countStruct(3, -1)})}),
                                arrayOf({2, arrayOf({countStruct(3, 9007199254740994.0)})}),
                                arrayOf({2, arrayOf({countStruct(3, 300), 4})})};
    for (const XmlRpcValue &value : rows)
        EXPECT_THROW(BoardStat{value}, std::invalid_argument) << (value.valid() ? value.toXml() : "nothing");
}

TEST(BoardStat, isReadOfItsParameters)
{
    EXPECT_EQ(strokes().parameters(), strokesList());
    EXPECT_TRUE(BoardStat(strokesList()) == strokes());
    EXPECT_TRUE(BoardStat(QVariantList{
                    2, QVariantList{countMap(3, 300U), countMap(250, 9007199254740992.0)}}) == strokes());
    const QVariantList none;
    const QVariantList rows[] = {none,
                                 {2},
                                 {2, 3},
                                 {2, QVariantMap()},
                                 {"2", none},
                                 {QVariant(), none},
                                 {9, none},
                                 {2, QVariantList{3}},
                                 {2, QVariantList{QVariantMap{{"count", 300}}}},
                                 {2, QVariantList{QVariantMap{{"position_id", 3}}}},
                                 {2, QVariantList{countMap("3", 300)}},
                                 {2, QVariantList{countMap(3, 300.0)}},
                                 {2, QVariantList{countMap(-1, 300)}},
                                 {2, QVariantList{countMap(60516, 300)}},
                                 {2, QVariantList{countMap(3, -1)}},
                                 {2, QVariantList{countMap(3, 9007199254740993LL)}}};
    for (const QVariantList &list : rows)
        EXPECT_THROW(BoardStat{list}, std::invalid_argument) << list.size();
}

TEST(BoardStat, isBuiltInRange)
{
    EXPECT_THROW(BoardStat(9, Counts()), std::invalid_argument);
    EXPECT_THROW(BoardStat(-1, Counts()), std::invalid_argument);
    EXPECT_THROW(BoardStat(2, {{-1, 3}}), std::invalid_argument);
    EXPECT_THROW(BoardStat(2, {{60516, 3}}), std::invalid_argument);
    EXPECT_THROW(BoardStat(2, {{3, -1}}), std::invalid_argument);
    EXPECT_THROW(BoardStat(2, {{3, 9007199254740993}}), std::invalid_argument);
}

TEST(BoardStat, comparesEachField)
{
    const BoardStat stat(2, {{3, 300}});
    EXPECT_TRUE(stat == BoardStat(2, {{3, 300}}));
    EXPECT_FALSE(stat != BoardStat(2, {{3, 300}}));
    for (const BoardStat &other :
         {BoardStat(3, {{3, 300}}), BoardStat(2, {{4, 300}}), BoardStat(2, {{3, 301}}), BoardStat(2, {}),
          BoardStat(2, {{3, 300}, {3, 300}})}) {
        EXPECT_TRUE(stat != other);
        EXPECT_FALSE(stat == other);
    }
}

} // namespace
