// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_boardstat.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_serial.h>
#include <QuvFramework/fw_utils.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>

namespace {

using XmlRpc::XmlRpcValue;

constexpr int base = 246;
constexpr int positionDigits = 2;
constexpr long long maxPosition = 60515; // of two digits

[[noreturn]] void refuse(const char *text)
{
    throw std::invalid_argument(text);
}

/** The next tokens of a firmware answer. */
class Tokens
{
public:
    explicit Tokens(const QStringList &tokens) : m_tokens(tokens) {}

    int number()
    {
        bool ok = false;
        const int number = parseSerialAnswer(m_tokens, m_index, &ok);
        if (!ok)
            refuse("a number of the statistics is missing");
        return number;
    }

    long long number(int digits)
    {
        const int first = static_cast<int>(m_index);
        if (digits > m_tokens.size() - first)
            refuse("digits of the statistics are missing");
        m_index += static_cast<unsigned int>(digits);
        bool ok = false;
        const long long number = joinValues(m_tokens.mid(first, digits), base, true, &ok);
        if (!ok)
            refuse("a number of the statistics is too great or has bad digits");
        return number;
    }

private:
    const QStringList &m_tokens;
    unsigned int m_index = 0;
};

/** The member of the statistics' struct, or what stands for it in an array. */
const XmlRpcValue &memberOf(const XmlRpcValue &value, const char *key, int index)
{
    const XmlRpcValue *member = FindXmlRpcMember(value, key);
    if (!member)
        member = FindXmlRpcElement(value, index);
    if (!member)
        refuse("a member of the statistics is missing");
    return *member;
}

int decodedNumber(const QVariant &variant)
{
    int number = 0;
    if (!DecodeVariantList({variant}, 0, number))
        refuse("a number of the statistics is of another type");
    return number;
}

/** What came over XML-RPC has a number beyond 32 bits as a double. */
long long decodedCount(const QVariant &variant)
{
    long long count = 0;
    if (variant.userType() == QMetaType::Double ? !DecodeXmlRpcValue(XmlRpcValue(variant.toDouble()), count)
                                                : !DecodeVariantList({variant}, 0, count))
        refuse("a count of the statistics is of another type");
    return count;
}

} // namespace

bool BoardStat::BoardCount::operator==(const BoardCount &other) const
{
    return positionID == other.positionID && count == other.count;
}

BoardStat::BoardStat(int type, const QVector<BoardCount> &counts) : m_type(type)
{
    checkType();
    for (const BoardCount &board : counts)
        addCount(board.positionID, board.count);
}

BoardStat::BoardStat(QStringList tokens)
{
    if (tokens.isEmpty())
        return;
    Tokens reader(tokens);
    m_type = reader.number();
    checkType();
    const int boards = reader.number();
    for (int i = 0; i < boards; ++i) {
        const long long position = reader.number(positionDigits);
        const int digits = reader.number();
        addCount(position, reader.number(digits));
    }
}

BoardStat::BoardStat(const QList<QVariant> &parameters)
{
    const QVariant counts = parameters.value(1);
    if (counts.userType() != QMetaType::QVariantList)
        refuse("the counts of the statistics are missing");
    m_type = decodedNumber(parameters.constFirst());
    checkType();
    for (const QVariant &board : counts.toList()) {
        if (board.userType() != QMetaType::QVariantMap)
            refuse("a count of the statistics is of another type");
        const QVariantMap members = board.toMap();
        addCount(decodedNumber(members.value(QLatin1String(POSITION_ID))),
                 decodedCount(members.value(QLatin1String(COUNT))));
    }
}

BoardStat::BoardStat(const XmlRpcValue &value)
{
    const XmlRpcValue &counts = memberOf(value, COUNTS, 1);
    if (counts.getType() != XmlRpcValue::TypeArray ||
        !DecodeXmlRpcValue(memberOf(value, STATS_TYPE, 0), m_type))
        refuse("a member of the statistics is of another type");
    checkType();
    for (int i = 0; i < counts.size(); ++i) {
        int position = 0;
        long long count = 0;
        if (!DecodeXmlRpcValue(counts[i], POSITION_ID, position) ||
            !DecodeXmlRpcValue(counts[i], COUNT, count))
            refuse("a count of the statistics is missing or of another type");
        addCount(position, count);
    }
}

void BoardStat::addCount(long long positionID, long long count)
{
    if (positionID < 0 || positionID > maxPosition)
        refuse("there is no board at such a position");
    if (count < 0 || count > MaxWholeNumber)
        refuse("a board cannot have counted that");
    m_counts.append({static_cast<int>(positionID), count});
}

void BoardStat::checkType() const
{
    if (!checkBoardStatsType(m_type))
        refuse("there is no such type of statistics");
}

QList<int> BoardStat::positionsID() const
{
    QList<int> positions;
    for (const BoardCount &board : m_counts)
        positions.append(board.positionID);
    return positions;
}

bool BoardStat::checkBoardStatsType(int type)
{
    return type >= AnyType && type <= NozzleCleanings;
}

bool BoardStat::isMasterBoardStatsType(int type)
{
    return type >= CapMovements && type <= NozzleCleanings;
}

QList<QVariant> BoardStat::parameters() const
{
    QVariantList counts;
    for (const BoardCount &board : m_counts)
        counts.append(
            QVariantMap{{QLatin1String(POSITION_ID), board.positionID}, {QLatin1String(COUNT), board.count}});
    return {m_type, counts};
}

QList<int> BoardStat::serialParameters(int family) const
{
    if (family != FW_Dispenser::CommandFamily1)
        return {};
    QList<int> parameters = {m_type, m_counts.size()};
    for (const BoardCount &board : m_counts) {
        const QList<int> digits = splitValue(board.count, base);
        parameters << board.positionID % base << board.positionID / base << digits.size() << digits;
    }
    return parameters;
}

XmlRpcValue BoardStat::toXmlRpcValue(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue value;
    value[STATS_TYPE] = m_type;
    value[COUNTS] = EncodeXmlRpcVariant(parameters().at(1));
    return value;
}

bool BoardStat::operator==(const BoardStat &other) const
{
    return m_type == other.m_type && m_counts == other.m_counts;
}
