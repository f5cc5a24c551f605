// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "base/refusal_p.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QList>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {

// Positional arguments. A command describes its arguments once, in the order in which they travel, in a function
//
//     template <class Self, class Archive> static void arguments(Self &self, Archive &archive)
//
// that is run with a reader in its two decoding constructors, with a writer in its two writing operations, and with a teller
// for the documents. An archive has
//
//     required(name, field, absent, otherType)       must be given; not in a form in which its absence has no code
//     requiredIf(condition, name, field, absent, otherType)
//                                                    must be given when the condition holds
//     optional(name, field, otherType)               leaves its field alone when it is not given
//     convertible(name, field, refusal)              an int; in a list whatever converts to one
//     object(name, field, refusal, unreadable)       a struct; in a list the object itself or the map that stands for it
//     unread(name, field)                            is sent, and never read
//     refuseUnless(condition, refusal)               a check between two arguments, for readers only, and not in a form in
//                                                    which the refusal has no code
//     whenRead(check)                                the same by a function that gets the signature for its refusals

/** An argument's name, and its unit and range where the name does not say it. */
struct ArgumentName
{
    constexpr ArgumentName(const char *argumentName, const char *itsMeaning = "")
        : name(argumentName),
          meaning(itsMeaning)
    {}

    const char *name;
    const char *meaning;
};

/** A refusal of one argument: what it is called in the XML-RPC form and in the list form. One without a code is not told. */
struct ArgumentRefusal
{
    constexpr ArgumentRefusal() = default;
    constexpr ArgumentRefusal(const char *valueCode, const char *listCode, const char *text)
        : value{valueCode, text},
          list{listCode, text}
    {}
    constexpr ArgumentRefusal(const Refusal &ofValue, const Refusal &ofList) : value(ofValue), list(ofList) {}

    Refusal value;
    Refusal list;
};

/** What the two readers share; Source tells how many arguments there are and decodes one. */
template <class Source>
class ArgumentReader
{
public:
    /** \a function is the signature that refusals name. */
    ArgumentReader(const Source &source, const char *function) : m_source(source), m_function(function) {}

    template <class T>
    void required(const ArgumentName &name, T &field, const ArgumentRefusal &absent,
                  const ArgumentRefusal &otherType)
    {
        requiredIf(true, name, field, absent, otherType);
    }

    template <class T>
    void requiredIf(bool condition, const ArgumentName &name, T &field, const ArgumentRefusal &absent,
                    const ArgumentRefusal &otherType)
    {
        refuseUnless(!condition || m_index < m_source.size(), absent);
        optional(name, field, otherType);
    }

    template <class T>
    void optional(const ArgumentName &, T &field, const ArgumentRefusal &otherType)
    {
        if (m_index < m_source.size() && !m_source.decode(m_index++, field))
            refuse(otherType);
    }

    void convertible(const ArgumentName &, int &field, const ArgumentRefusal &refusal)
    {
        if (m_index >= m_source.size() || !m_source.convert(m_index++, field))
            refuse(refusal);
    }

    template <class T>
    void object(const ArgumentName &, T &field, const ArgumentRefusal &refusal, const Refusal &unreadable)
    {
        field = m_source.template object<T>(m_index++, Source::of(refusal), unreadable, m_function);
    }

    template <class T>
    void unread(const ArgumentName &, T &)
    {
        ++m_index;
    }

    void refuseUnless(bool good, const ArgumentRefusal &refusal) const
    {
        if (!good && isGiven(Source::of(refusal)))
            refuse(refusal);
    }

    template <class Check>
    void whenRead(Check check) const
    {
        check(m_function);
    }

private:
    [[noreturn]] void refuse(const ArgumentRefusal &refusal) const
    {
        throwRefusal(Source::of(refusal), m_function);
    }

    Source m_source;
    const char *m_function = "";
    int m_index = 0;
};

/** Arguments as the elements of an XML-RPC array. */
class ValueSource
{
public:
    explicit ValueSource(const XmlRpc::XmlRpcValue &value)
        : m_value(value),
          m_size(value.getType() == XmlRpc::XmlRpcValue::TypeArray ? value.size() : 0)
    {}

    int size() const { return m_size; }

    template <class T>
    bool decode(int index, T &out) const
    {
        return DecodeXmlRpcValue(m_value[index], out);
    }

    bool convert(int index, int &out) const { return decode(index, out); }

    template <class T>
    T object(int index, const Refusal &refusal, const Refusal &, const char *function) const
    {
        return decodedValue<T>(FindXmlRpcElement(m_value, index), refusal, function);
    }

    static const Refusal &of(const ArgumentRefusal &refusal) { return refusal.value; }

private:
    const XmlRpc::XmlRpcValue &m_value;
    int m_size = 0;
};

/** Arguments as the elements of a variant list. */
class ListSource
{
public:
    explicit ListSource(const QList<QVariant> &list) : m_list(list) {}

    int size() const { return m_list.size(); }

    template <class T>
    bool decode(int index, T &out) const
    {
        return decodeVariant(m_list.at(index), out);
    }

    bool convert(int index, int &out) const { return convertVariant(m_list.at(index), out); }

    template <class T>
    T object(int index, const Refusal &refusal, const Refusal &unreadable, const char *function) const
    {
        return decodedVariant<T>(m_list.value(index), refusal, unreadable, function);
    }

    static const Refusal &of(const ArgumentRefusal &refusal) { return refusal.list; }

private:
    const QList<QVariant> &m_list;
};

class ValueReader : public ArgumentReader<ValueSource>
{
public:
    ValueReader(const XmlRpc::XmlRpcValue &value, const char *function)
        : ArgumentReader(ValueSource(value), function)
    {}
};

class ListReader : public ArgumentReader<ListSource>
{
public:
    ListReader(const QList<QVariant> &list, const char *function) : ArgumentReader(ListSource(list), function)
    {}
};

/** What the archives share that come to every argument, given or not; Visitor takes one. */
template <class Visitor>
class ArgumentVisitor
{
public:
    template <class T>
    void required(const ArgumentName &, T &field, const ArgumentRefusal &, const ArgumentRefusal &)
    {
        visitor().visit(field);
    }

    template <class T>
    void requiredIf(bool, const ArgumentName &, T &field, const ArgumentRefusal &, const ArgumentRefusal &)
    {
        visitor().visit(field);
    }

    template <class T>
    void optional(const ArgumentName &, T &field, const ArgumentRefusal &)
    {
        visitor().visit(field);
    }

    template <class T>
    void convertible(const ArgumentName &, T &field, const ArgumentRefusal &)
    {
        visitor().visit(field);
    }

    template <class T>
    void object(const ArgumentName &, T &field, const ArgumentRefusal &, const Refusal &)
    {
        visitor().visitObject(field);
    }

    template <class T>
    void unread(const ArgumentName &, T &field)
    {
        visitor().visit(field);
    }

    void refuseUnless(bool, const ArgumentRefusal &) const {}

    template <class Check>
    void whenRead(Check) const
    {}

private:
    Visitor &visitor() { return *static_cast<Visitor *>(this); }
};

/** Writes the arguments as a variant list. */
class ListWriter : public ArgumentVisitor<ListWriter>
{
public:
    QList<QVariant> result() const { return m_list; }

private:
    friend ArgumentVisitor<ListWriter>;

    template <class T>
    void visit(const T &field)
    {
        m_list.append(QVariant::fromValue(field));
    }
    template <class T>
    void visitObject(const T &field)
    {
        visit(field);
    }

    QList<QVariant> m_list;
};

class ArgumentCounter : public ArgumentVisitor<ArgumentCounter>
{
public:
    int count() const { return m_count; }

private:
    friend ArgumentVisitor<ArgumentCounter>;

    template <class T>
    void visit(const T &)
    {
        ++m_count;
    }
    template <class T>
    void visitObject(const T &)
    {
        ++m_count;
    }

    int m_count = 0;
};

/**
 * Writes the arguments as an XML-RPC array, in place and into the size that it will have: such a value cannot be moved, and
 * an array that grows copies all that is in it.
 */
class ValueWriter : public ArgumentVisitor<ValueWriter>
{
public:
    ValueWriter(XmlRpc::XmlRpcValue &array, int count) : m_array(array) { m_array.setSize(count); }

private:
    friend ArgumentVisitor<ValueWriter>;

    void visit(bool field) { next() = field; }
    void visit(int field) { next() = field; }
    void visit(unsigned int field) { visit(static_cast<int>(field)); } // which has no other type there
    void visit(double field) { next() = field; }
    template <class T>
    void visit(const T &field)
    {
        next() = EncodeXmlRpcVariant(QVariant::fromValue(field));
    }
    template <class T>
    void visitObject(const T &field)
    {
        next() = field.toXmlRpcValue();
    }

    XmlRpc::XmlRpcValue &next() { return m_array[m_index++]; }

    XmlRpc::XmlRpcValue &m_array;
    int m_index = 0;
};

/** The arguments that \a describe, a function that takes an archive, comes to, as an XML-RPC array. */
template <class Describe>
XmlRpc::XmlRpcValue writtenArguments(Describe describe)
{
    ArgumentCounter counter;
    describe(counter);
    XmlRpc::XmlRpcValue array;
    ValueWriter writer(array, counter.count());
    describe(writer);
    return array;
}

} // namespace quv
