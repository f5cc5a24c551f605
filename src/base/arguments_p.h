// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

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
// and runs it with a reader in its two decoding constructors and with a writer in its two writing operations.

/** A refusal of one argument: its code in the XML-RPC form and in the list form, and the text of both. */
struct ArgumentRefusal
{
    const char *valueCode = "";
    const char *listCode = "";
    const char *text = "";
};

// An argument in a variant list: the stored type decides, nothing is converted but whole numbers in range.
bool decodeVariant(const QVariant &variant, bool &out);
bool decodeVariant(const QVariant &variant, int &out);
bool decodeVariant(const QVariant &variant, long long &out);
bool decodeVariant(const QVariant &variant, double &out); ///< takes whole numbers as well
bool decodeVariant(const QVariant &variant, QString &out);
bool decodeVariant(const QVariant &variant, QStringList &out);
bool decodeVariant(const QVariant &variant, QList<int> &out);

/** Whatever converts to an int that holds it: also a fraction, which is rounded, a bool, and the digits of a text. */
bool convertVariant(const QVariant &variant, int &out);

/** What the two readers share; Source tells how many arguments there are and decodes one. */
template <class Source>
class ArgumentReader
{
public:
    /** \a function is the signature that refusals name. */
    ArgumentReader(const Source &source, const char *function) : m_source(source), m_function(function) {}

    template <class T>
    void required(T &field, const ArgumentRefusal &absent, const ArgumentRefusal &otherType)
    {
        if (m_index >= m_source.size())
            refuse(absent);
        optional(field, otherType);
    }

    /** Leaves the field alone when the argument is not given. */
    template <class T>
    void optional(T &field, const ArgumentRefusal &otherType)
    {
        if (m_index < m_source.size() && !m_source.decode(m_index++, field))
            refuse(otherType);
    }

private:
    [[noreturn]] void refuse(const ArgumentRefusal &refusal) const
    {
        throw FW_Exception(Source::code(refusal), refusal.text, m_function);
    }

    Source m_source;
    const char *m_function = "";
    int m_index = 0;
};

/** Arguments as the elements of an XML-RPC array. */
class ValueSource
{
public:
    explicit ValueSource(const XmlRpc::XmlRpcValue &value) : m_value(value) {}

    int size() const { return m_value.getType() == XmlRpc::XmlRpcValue::TypeArray ? m_value.size() : 0; }

    template <class T>
    bool decode(int index, T &out) const
    {
        return DecodeXmlRpcValue(m_value[index], out);
    }

    static const char *code(const ArgumentRefusal &refusal) { return refusal.valueCode; }

private:
    const XmlRpc::XmlRpcValue &m_value;
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

    static const char *code(const ArgumentRefusal &refusal) { return refusal.listCode; }

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

/** What the two writers share: every argument is written, given or not. Writer appends one. */
template <class Writer>
class ArgumentWriter
{
public:
    template <class T>
    void required(const T &field, const ArgumentRefusal &, const ArgumentRefusal &)
    {
        static_cast<Writer *>(this)->append(field);
    }

    template <class T>
    void optional(const T &field, const ArgumentRefusal &)
    {
        static_cast<Writer *>(this)->append(field);
    }
};

/** Writes the arguments as a variant list. */
class ListWriter : public ArgumentWriter<ListWriter>
{
public:
    QList<QVariant> result() const { return m_list; }

private:
    friend ArgumentWriter<ListWriter>;

    template <class T>
    void append(const T &field)
    {
        m_list.append(QVariant::fromValue(field));
    }

    QList<QVariant> m_list;
};

/** Writes the arguments as an XML-RPC array. */
class ValueWriter : public ArgumentWriter<ValueWriter>
{
public:
    ValueWriter() { m_array.setSize(0); }

    /** The array; \a ok, when given, becomes true. */
    XmlRpc::XmlRpcValue result(bool *ok) const
    {
        if (ok)
            *ok = true;
        return m_array;
    }

private:
    friend ArgumentWriter<ValueWriter>;

    void append(bool field) { next() = field; }
    void append(int field) { next() = field; }
    void append(double field) { next() = field; }
    template <class T>
    void append(const T &field)
    {
        next() = EncodeXmlRpcVariant(QVariant::fromValue(field));
    }

    XmlRpc::XmlRpcValue &next() { return m_array[m_array.size()]; }

    XmlRpc::XmlRpcValue m_array;
};

} // namespace quv
