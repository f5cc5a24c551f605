// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * What boards have counted of one thing. The board of a circuit goes by the circuit's position, the master board, which drives
 * all that is no circuit's, by 0.
 *
 * Over XML-RPC a struct of "stats_type" (int) and "counts", an array of structs of "position_id" (int) and "count" (int, beyond
 * 32 bits a double); in the arguments of a command the two members stand one behind the other.
 */
class QUVFRAMEWORK_EXPORT BoardStat
{
public:
    static constexpr char STATS_TYPE[] = "stats_type";
    static constexpr char COUNTS[] = "counts";
    static constexpr char POSITION_ID[] = "position_id";
    static constexpr char COUNT[] = "count";

    /** Times are in seconds. */
    enum Type {
        AnyType = 0, ///< no type in particular: all that a board counts
        OperatingTime = 1,
        PumpStrokes = 2,
        ValveOpenings = 3,
        StirringTime = 4,
        RecirculationTime = 5,
        CapMovements = 6,
        ShelfMovements = 7,
        NozzleCleanings = 8
    };

    /** What one board has counted. */
    struct QUVFRAMEWORK_EXPORT BoardCount
    {
        int positionID = 0;  ///< 0 to 60515; 0 is the master board
        long long count = 0; ///< 0 to 2^53

        bool operator==(const BoardCount &other) const;
        bool operator!=(const BoardCount &other) const { return !(*this == other); }
    };

    /** No counts of no type in particular. */
    BoardStat() = default;
    // The others throw std::invalid_argument for anything else than they say, and for a type, a position or a count that there
    // is not. There is no code to it: whoever expected statistics says so in words of his own.
    BoardStat(int type, const QVector<BoardCount> &counts);
    /**
     * The parameters of a firmware answer, without their number: the type, the number of boards, and of each the position in two
     * digits of base 246, the number of the count's digits, and these. Without a parameter, with which a board confirms, there
     * are no counts of no type in particular; what follows is not read.
     */
    explicit BoardStat(QStringList tokens);
    /** What parameters() gives. */
    explicit BoardStat(const QList<QVariant> &parameters);
    /** The struct, or an array of its two members. */
    explicit BoardStat(const XmlRpc::XmlRpcValue &value);
    explicit BoardStat(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit BoardStat(int) = delete;
    explicit BoardStat(double) = delete;
    explicit BoardStat(const char *) = delete;

    void setDefaults() { *this = BoardStat(); }

    int type() const { return m_type; } ///< Type
    const QVector<BoardCount> &counts() const { return m_counts; }
    QList<int> positionsID() const; ///< of the boards, in the counts' order

    static bool checkBoardStatsType(int type); ///< 0 to 8
    /** True for a type that the master board counts, so that no circuit has it. */
    static bool isMasterBoardStatsType(int type);

    /** The type (int), and a list of maps of the members that a count has as a struct. */
    QList<QVariant> parameters() const;
    /** What the firmware answers, as integers; none for another command family than 1, whose boards count nothing. */
    QList<int> serialParameters(int family) const;
    XmlRpc::XmlRpcValue toXmlRpcValue(bool *ok = nullptr) const;

    bool operator==(const BoardStat &other) const;
    bool operator!=(const BoardStat &other) const { return !(*this == other); }

private:
    void addCount(long long positionID, long long count);
    void checkType() const;

    int m_type = AnyType;
    QVector<BoardCount> m_counts;
};
