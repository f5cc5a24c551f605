// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/fieldtype_p.h"
#include "base/refusal_p.h"

#include <xmlrpcpp/XmlRpcValue.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace quv {

/** What a member of a record is used for; the values are bits. */
enum MemberUse : unsigned { Read = 1, Write = 2, Compare = 4, AllUses = Read | Write | Compare };

/** One member of a struct, whatever class it belongs to: its field is a place in the object. */
struct MemberRow
{
    const char *key = "";
    const FieldType *type = nullptr; ///< null: no field, the member is false
    std::ptrdiff_t offset = 0;
    Refusal missing;   ///< without a code the member may be missing, and then leaves its field alone
    Refusal otherType; ///< likewise when it is of another type
    Refusal element;   ///< of an array with an element of another type
    Refusal inList;    ///< when the list's element of the same place is missing or of another type
    unsigned uses = AllUses;
    const char *meaning = "";
    bool (*isFilled)(const void *field) =
        nullptr; ///< given where the member is written only when its field is filled
    const char *otherWhen = "another type";                 ///< when otherType refuses, in words
    const char *elementWhen = "an element of another type"; ///< when element refuses, in words
    Refusal alsoInList = {}; ///< another of the list, which its class raises by itself
    const char *alsoInListWhen = "";
};

/** Where a field lies in its object: what a pointer to a data member holds, with the compilers for Linux. */
template <class T, class V>
std::ptrdiff_t offsetOf(V T::*field)
{
    std::ptrdiff_t offset = 0;
    static_assert(sizeof(field) == sizeof(offset));
    std::memcpy(&offset, &field, sizeof(offset));
    return offset;
}

/**
 * One line of the table of a T's members: key, field, what refuses a struct and what refuses a list. In the text of a refusal %1
 * stands for the key.
 */
template <class T>
class Member
{
public:
    template <class C, class V>
    Member(const char *key, V C::*field, const Refusal &refusal = {}, const Refusal &inList = {})
    {
        V T::*ownField = field; // which may be one of a base class
        m_row = {key, &fieldType<V>(), offsetOf(ownField), refusal, refusal, refusal, inList};
    }

    /** A list or a text that is written only when something is in it; read it may be missing, unless told otherwise. */
    template <class C, class V>
    static Member writtenWhenFilled(const char *key, V C::*field, const Refusal &refusal = {},
                                    const Refusal &inList = {})
    {
        Member member(key, field, refusal, inList);
        member.m_row.missing = {};
        member.m_row.isFilled = [](const void *place) { return !static_cast<const V *>(place)->isEmpty(); };
        return member;
    }

    /** A member that clients ask for and nothing stands behind: it is written as false, and never read. */
    static Member alwaysFalse(const char *key)
    {
        Member member;
        member.m_row.key = key;
        member.m_row.uses = Write;
        return member;
    }

    Member &uses(unsigned uses)
    {
        m_row.uses = uses;
        return *this;
    }
    /** A refusal of its own for a member of another type; without a code it may be of any. */
    Member &otherType(const Refusal &refusal)
    {
        m_row.otherType = m_row.element = refusal;
        return *this;
    }
    Member &element(const Refusal &refusal)
    {
        m_row.element = refusal;
        return *this;
    }
    /** Of an object that has refusals of its own: when it fails without any, as from want of memory. */
    Member &unmade(const Refusal &refusal)
    {
        m_row.otherWhen = "cannot be made";
        return otherType(refusal);
    }
    /** Of a list of objects that have refusals of their own: for one that fails without any, as from want of memory. */
    Member &unmadeElement(const Refusal &refusal)
    {
        m_row.elementWhen = "an element that cannot be made";
        return element(refusal);
    }
    /** Another refusal of the list form, which the class raises by itself, and when, in words. */
    Member &alsoInList(const char *when, const Refusal &refusal)
    {
        m_row.alsoInListWhen = when;
        m_row.alsoInList = refusal;
        return *this;
    }
    Member &as(const FieldType &type)
    {
        m_row.type = &type;
        return *this;
    }
    /** What it is, with its unit and range, where the key does not say it. */
    Member &meaning(const char *text)
    {
        m_row.meaning = text;
        return *this;
    }

    const MemberRow &row() const { return m_row; }

private:
    Member() = default;

    MemberRow m_row;
};

/**
 * The members of a record, in the order in which refusals are told and in which they stand in a list. Reading, writing and
 * comparing all walk this one table, by one code for all classes. A struct keeps its members sorted by name, so both reading
 * and writing go through it once, side by side with the sorted table, and never look a name up.
 */
class RecordTable
{
public:
    explicit RecordTable(std::vector<MemberRow> rows);

    const std::vector<MemberRow> &rows() const { return m_rows; }

    void decode(const XmlRpc::XmlRpcValue &value, void *target, const char *function) const;
    void decode(const QList<QVariant> &list, void *target, const char *function) const;
    void encodeInto(const void *source, XmlRpc::XmlRpcValue &value) const;
    XmlRpc::XmlRpcValue encode(const void *source) const;
    bool equal(const void *left, const void *right) const;
    void reset(void *target) const;

private:
    struct SortedRow
    {
        std::string key;
        std::size_t index = 0;
    };

    std::vector<SortedRow> sorted(unsigned use) const;
    void encodeFilled(const void *source, XmlRpc::XmlRpcValue &value) const;
    void decodeMembers(const XmlRpc::XmlRpcValue &value, void *target, Decoded *decoded, bool *found) const;

    std::vector<MemberRow> m_rows;
    std::vector<SortedRow> m_read;
    std::vector<SortedRow> m_write;
    std::vector<SortedRow> m_writeFilled; ///< of the members that are written only when filled
    XmlRpc::XmlRpcValue m_prototype;
};

/** The members of a T. */
template <class T>
class Record
{
public:
    explicit Record(const std::vector<Member<T>> &members) : m_table(rowsOf(members)) {}
    /** The members of a base class's record, and then those of the class's own. */
    template <class Base>
    Record(const Record<Base> &base, const std::vector<Member<T>> &members) : m_table(joined(base, members))
    {}

    const std::vector<MemberRow> &rows() const { return m_table.rows(); }

    /**
     * Reads \a target from the struct \a value. Throws FW_Exception with the refusal of the first member, in the table's order,
     * that is missing or of another type and must not be; \a target is then partly read and must not live on.
     */
    void decode(const XmlRpc::XmlRpcValue &value, T &target, const char *function) const
    {
        m_table.decode(value, &target, function);
    }
    /** The same from a list that has the members in the table's order. */
    void decode(const QList<QVariant> &list, T &target, const char *function) const
    {
        m_table.decode(list, &target, function);
    }

    /** Gives every field that is read its empty value: false, 0 or nothing. */
    void reset(T &target) const { m_table.reset(&target); }

    /** The record as a struct. */
    XmlRpc::XmlRpcValue encode(const T &source) const { return m_table.encode(&source); }

    /** Writes the members into \a value, which becomes a struct if it is none. */
    void encodeInto(const T &source, XmlRpc::XmlRpcValue &value) const { m_table.encodeInto(&source, value); }

    bool equal(const T &left, const T &right) const { return m_table.equal(&left, &right); }

private:
    static std::vector<MemberRow> rowsOf(const std::vector<Member<T>> &members)
    {
        std::vector<MemberRow> rows;
        rows.reserve(members.size());
        for (const Member<T> &member : members)
            rows.push_back(member.row());
        return rows;
    }

    template <class Base>
    static std::vector<MemberRow> joined(const Record<Base> &base, const std::vector<Member<T>> &members)
    {
        std::vector<MemberRow> rows = base.rows();
        for (MemberRow &row : rows)
            row.offset += offsetOfBase<Base>();
        const std::vector<MemberRow> own = rowsOf(members);
        rows.insert(rows.end(), own.begin(), own.end());
        return rows;
    }

    /** Where a T has its Base. */
    template <class Base>
    static std::ptrdiff_t offsetOfBase()
    {
        char Base::*first = nullptr;
        const std::ptrdiff_t none = 0;
        std::memcpy(&first, &none, sizeof(first));
        char T::*inDerived = first;
        return offsetOf(inDerived);
    }

    RecordTable m_table;
};

} // namespace quv
