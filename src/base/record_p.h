// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <xmlrpcpp/XmlRpcValue.h>

#include <algorithm>
#include <bitset>
#include <string>
#include <variant>
#include <vector>

namespace quv {

/** What a member of a record is used for; the values are bits. */
enum MemberUse : unsigned { Read = 1, Write = 2, Compare = 4, AllUses = Read | Write | Compare };

/**
 * One member of a struct that travels over XML-RPC. Without a code the member is optional: missing or of another type, it
 * leaves the field alone. In the text of a refusal %1 stands for the key. Without a field the member is false.
 */
template <class T>
struct Member
{
    using Field = std::variant<std::monostate, bool T::*, int T::*, long long T::*, double T::*, QString T::*,
                               QStringList T::*, QList<int> T::*>;

    std::string key;
    Field field;
    const char *code = nullptr;
    const char *text = nullptr;
    unsigned uses = AllUses;
};

/**
 * The members of a record, in the order in which refusals are told. Reading, writing and comparing all walk this one
 * table. A struct keeps its members sorted by name, so both reading and writing go through it once, side by side with
 * the sorted table, and never look a name up.
 */
template <class T>
class Record
{
public:
    using Row = Member<T>;

    static constexpr std::size_t maxMembers = 128;

    explicit Record(std::vector<Row> rows) : m_rows(std::move(rows))
    {
        Q_ASSERT(m_rows.size() <= maxMembers);
        m_read = sorted(Read);
        m_write = sorted(Write);
        for (std::size_t i : m_write)
            writeDefault(m_rows[i], m_prototype[m_rows[i].key]);
    }

    const std::vector<Row> &rows() const { return m_rows; }

    /**
     * Reads \a target from the struct \a value. Throws FW_Exception with the refusal of the first required member, in the
     * table's order, that is missing or of another type; \a target is then partly read and must not live on.
     */
    void decode(const XmlRpc::XmlRpcValue &value, T &target, const char *function) const
    {
        std::bitset<maxMembers> decoded;
        if (value.getType() == XmlRpc::XmlRpcValue::TypeStruct)
            decodeMembers(value, target, decoded);
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const Row &row = m_rows[i];
            if (row.code && (row.uses & Read) && !decoded[i])
                throw FW_Exception(row.code, refusalText(row), function);
        }
    }

    /** Gives every field that is read its empty value: false, 0 or nothing. */
    void reset(T &target) const
    {
        for (const Row &row : m_rows) {
            if (row.uses & Read)
                std::visit([&](auto field) { resetField(field, target); }, row.field);
        }
    }

    /** The record as a struct. */
    XmlRpc::XmlRpcValue encode(const T &source) const
    {
        // overwriting a copy of a ready struct costs half of building one
        XmlRpc::XmlRpcValue value(m_prototype);
        auto member = value.begin();
        for (std::size_t i : m_write)
            writeMember(m_rows[i], source, (member++)->second);
        return value;
    }

    /** Writes the members into \a value, which becomes a struct if it is none. */
    void encodeInto(const T &source, XmlRpc::XmlRpcValue &value) const
    {
        if (value.getType() != XmlRpc::XmlRpcValue::TypeStruct) {
            value = encode(source);
            return;
        }
        for (std::size_t i : m_write)
            writeMember(m_rows[i], source, value[m_rows[i].key]);
    }

    bool equal(const T &left, const T &right) const
    {
        return std::all_of(m_rows.begin(), m_rows.end(), [&](const Row &row) {
            return !(row.uses & Compare) ||
                   std::visit([&](auto field) { return equalField(field, left, right); }, row.field);
        });
    }

private:
    /** The rows of one use, sorted as a struct sorts its members; of two rows with one key the later holds. */
    std::vector<std::size_t> sorted(unsigned use) const
    {
        std::vector<std::size_t> order;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            if (m_rows[i].uses & use)
                order.push_back(i);
        }
        const auto key = [this](std::size_t i) -> const std::string & { return m_rows[i].key; };
        std::stable_sort(order.begin(), order.end(),
                         [&](std::size_t a, std::size_t b) { return key(a) < key(b); });
        const auto last = std::unique(order.rbegin(), order.rend(),
                                      [&](std::size_t a, std::size_t b) { return key(a) == key(b); });
        order.erase(order.begin(), last.base());
        return order;
    }

    void decodeMembers(const XmlRpc::XmlRpcValue &value, T &target, std::bitset<maxMembers> &decoded) const
    {
        auto member = value.begin();
        const auto end = value.end();
        for (std::size_t i : m_read) {
            const std::string &key = m_rows[i].key;
            int order = -1;
            while (member != end && (order = member->first.compare(key)) < 0)
                ++member;
            if (member == end)
                return;
            if (order == 0) {
                decoded[i] = readMember(m_rows[i], member->second, target);
                ++member;
            }
        }
    }

    static bool readMember(const Row &row, const XmlRpc::XmlRpcValue &value, T &target)
    {
        if (const auto *flag = std::get_if<bool T::*>(&row.field)) // most members of most records
            return DecodeXmlRpcValue(value, target.**flag);
        return std::visit([&](auto field) { return readField(field, value, target); }, row.field);
    }

    template <class Field>
    static bool readField(Field T::*field, const XmlRpc::XmlRpcValue &value, T &target)
    {
        return DecodeXmlRpcValue(value, target.*field);
    }
    static bool readField(std::monostate, const XmlRpc::XmlRpcValue &, T &) { return true; }

    static void writeMember(const Row &row, const T &source, XmlRpc::XmlRpcValue &value)
    {
        if (const auto *flag = std::get_if<bool T::*>(&row.field))
            writeField(*flag, source, value);
        else
            std::visit([&](auto field) { writeField(field, source, value); }, row.field);
    }

    static void writeField(bool T::*field, const T &source, XmlRpc::XmlRpcValue &value)
    {
        writeFlag(source.*field, value);
    }
    static void writeField(int T::*field, const T &source, XmlRpc::XmlRpcValue &value)
    {
        value = source.*field;
    }
    static void writeField(double T::*field, const T &source, XmlRpc::XmlRpcValue &value)
    {
        value = source.*field;
    }
    template <class Field>
    static void writeField(Field T::*field, const T &source, XmlRpc::XmlRpcValue &value)
    {
        value = EncodeXmlRpcVariant(QVariant::fromValue(source.*field));
    }
    static void writeField(std::monostate, const T &, XmlRpc::XmlRpcValue &value) { writeFlag(false, value); }

    static void writeFlag(bool flag, XmlRpc::XmlRpcValue &value)
    {
        if (value.getType() == XmlRpc::XmlRpcValue::TypeBoolean)
            static_cast<bool &>(value) = flag; // an assignment would build a second value first
        else
            value = flag;
    }

    template <class Field>
    static void resetField(Field T::*field, T &target)
    {
        target.*field = Field();
    }
    static void resetField(std::monostate, T &) {}

    static QString refusalText(const Row &row)
    {
        return QString::fromUtf8(row.text).replace(QLatin1String("%1"), QString::fromStdString(row.key));
    }

    /** A value of the member's type, for the ready struct. */
    static void writeDefault(const Row &row, XmlRpc::XmlRpcValue &value)
    {
        if (std::holds_alternative<int T::*>(row.field))
            value = 0;
        else
            value = false;
    }

    template <class Field>
    static bool equalField(Field T::*field, const T &left, const T &right)
    {
        return left.*field == right.*field;
    }
    static bool equalField(std::monostate, const T &, const T &) { return true; }

    std::vector<Row> m_rows;
    std::vector<std::size_t> m_read;
    std::vector<std::size_t> m_write;
    XmlRpc::XmlRpcValue m_prototype;
};

/** The rows of a base class's record and then those of a derived class's own, as one table of the derived class. */
template <class Base, class Derived>
std::vector<Member<Derived>> joinedRows(const Record<Base> &base, const Record<Derived> &own)
{
    std::vector<Member<Derived>> rows;
    for (const Member<Base> &row : base.rows()) {
        const auto field = std::visit([](auto f) { return typename Member<Derived>::Field(f); }, row.field);
        rows.push_back({row.key, field, row.code, row.text, row.uses});
    }
    rows.insert(rows.end(), own.rows().begin(), own.rows().end());
    return rows;
}

} // namespace quv
