// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/record_p.h"

#include <QuvFramework/fw_exception.h>

#include <algorithm>
#include <array>

namespace quv {

namespace {

using XmlRpc::XmlRpcValue;

constexpr std::size_t maxMembers = 128;

void *fieldOf(const MemberRow &row, void *object)
{
    return static_cast<char *>(object) + row.offset;
}

const void *fieldOf(const MemberRow &row, const void *object)
{
    return static_cast<const char *>(object) + row.offset;
}

Decoded readMember(const MemberRow &row, const XmlRpcValue &value, void *target)
{
    if (!row.type)
        return Decoded::Good;
    void *field = fieldOf(row, target);
    if (row.type->speed == FieldType::Flag)
        return DecodeXmlRpcValue(value, *static_cast<bool *>(field)) ? Decoded::Good : Decoded::OtherType;
    return row.type->read(value, field);
}

void writeFlag(bool flag, XmlRpcValue &value)
{
    if (value.getType() == XmlRpcValue::TypeBoolean)
        static_cast<bool &>(value) = flag; // an assignment would build a second value first
    else
        value = flag;
}

void writeInt(int number, XmlRpcValue &value)
{
    if (value.getType() == XmlRpcValue::TypeInt)
        static_cast<int &>(value) = number;
    else
        value = number;
}

void writeMember(const MemberRow &row, const void *source, XmlRpcValue &value)
{
    if (!row.type) {
        writeFlag(false, value);
        return;
    }
    const void *field = fieldOf(row, source);
    switch (row.type->speed) {
    case FieldType::Flag:
        writeFlag(*static_cast<const bool *>(field), value);
        break;
    case FieldType::Int:
        writeInt(*static_cast<const int *>(field), value);
        break;
    case FieldType::Other:
        row.type->write(field, value);
        break;
    }
}

bool equalMember(const MemberRow &row, const void *left, const void *right)
{
    return !row.type || row.type->equal(fieldOf(row, left), fieldOf(row, right));
}

[[noreturn]] void refuse(const MemberRow &row, const Refusal &refusal, const char *function)
{
    throw FW_Exception(
        QString::fromLatin1(refusal.code),
        QString::fromUtf8(refusal.text).replace(QLatin1String("%1"), QString::fromUtf8(row.key)),
        QString::fromUtf8(function));
}

} // namespace

RecordTable::RecordTable(std::vector<MemberRow> rows) : m_rows(std::move(rows))
{
    Q_ASSERT(m_rows.size() <= maxMembers);
    m_read = sorted(Read);
    m_write = sorted(Write);
    const auto filled = std::stable_partition(m_write.begin(), m_write.end(), [this](const SortedRow &place) {
        return !m_rows[place.index].isFilled;
    });
    m_writeFilled.assign(filled, m_write.end());
    m_write.erase(filled, m_write.end());
    for (const SortedRow &place : m_write) {
        const MemberRow &row = m_rows[place.index];
        if (row.type && row.type->speed == FieldType::Int)
            m_prototype[place.key] = 0;
        else
            m_prototype[place.key] = false;
    }
}

void RecordTable::decode(const XmlRpcValue &value, void *target, const char *function) const
{
    std::array<Decoded, maxMembers> decoded{}; // good
    std::array<bool, maxMembers> found{};
    if (value.getType() == XmlRpcValue::TypeStruct)
        decodeMembers(value, target, decoded.data(), found.data());
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const MemberRow &row = m_rows[i];
        if (!(row.uses & Read) || (found[i] && decoded[i] == Decoded::Good))
            continue;
        const Refusal &refusal = !found[i]                           ? row.missing
                                 : decoded[i] == Decoded::BadElement ? row.element
                                                                     : row.otherType;
        if (isGiven(refusal))
            refuse(row, refusal, function);
    }
}

void RecordTable::decode(const QList<QVariant> &list, void *target, const char *function) const
{
    int index = 0;
    for (const MemberRow &row : m_rows) {
        if (!(row.uses & Read) || !row.type)
            continue;
        const bool decoded =
            index < list.size() && row.type->readVariant(list.at(index), fieldOf(row, target));
        if (!decoded && isGiven(row.inList))
            refuse(row, row.inList, function);
        ++index;
    }
}

void RecordTable::decodeMembers(const XmlRpcValue &value, void *target, Decoded *decoded, bool *found) const
{
    auto member = value.begin();
    const auto end = value.end();
    for (const SortedRow &place : m_read) {
        int order = -1;
        while (member != end && (order = member->first.compare(place.key)) < 0)
            ++member;
        if (member == end)
            return;
        if (order == 0) {
            found[place.index] = true;
            decoded[place.index] = readMember(m_rows[place.index], member->second, target);
            ++member;
        }
    }
}

XmlRpcValue RecordTable::encode(const void *source) const
{
    // overwriting a copy of a ready struct costs half of building one
    XmlRpcValue value(m_prototype);
    auto member = value.begin();
    for (const SortedRow &place : m_write)
        writeMember(m_rows[place.index], source, (member++)->second);
    encodeFilled(source, value);
    return value;
}

void RecordTable::encodeInto(const void *source, XmlRpcValue &value) const
{
    if (value.getType() != XmlRpcValue::TypeStruct) {
        value = encode(source);
        return;
    }
    for (const SortedRow &place : m_write)
        writeMember(m_rows[place.index], source, value[place.key]);
    encodeFilled(source, value);
}

void RecordTable::encodeFilled(const void *source, XmlRpcValue &value) const
{
    for (const SortedRow &place : m_writeFilled) {
        const MemberRow &row = m_rows[place.index];
        if (row.isFilled(fieldOf(row, source)))
            writeMember(row, source, value[place.key]);
    }
}

bool RecordTable::equal(const void *left, const void *right) const
{
    return std::all_of(m_rows.begin(), m_rows.end(), [&](const MemberRow &row) {
        return !(row.uses & Compare) || equalMember(row, left, right);
    });
}

void RecordTable::reset(void *target) const
{
    for (const MemberRow &row : m_rows) {
        if ((row.uses & Read) && row.type)
            row.type->reset(fieldOf(row, target));
    }
}

/** The rows of one use, sorted as a struct sorts its members; of two rows with one key the later holds. */
std::vector<RecordTable::SortedRow> RecordTable::sorted(unsigned use) const
{
    std::vector<SortedRow> order;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].uses & use)
            order.push_back({m_rows[i].key, i});
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const SortedRow &a, const SortedRow &b) { return a.key < b.key; });
    const auto last = std::unique(order.rbegin(), order.rend(),
                                  [](const SortedRow &a, const SortedRow &b) { return a.key == b.key; });
    order.erase(order.begin(), last.base());
    return order;
}

} // namespace quv
