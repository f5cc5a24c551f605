// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/basetesting.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QDebug>

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <sstream>
#include <typeinfo>

void PrintTo(const QString &text, std::ostream *out)
{
    *out << (text.isNull() ? std::string("a null string") : '"' + text.toStdString() + '"');
}

namespace testing_base {

Value structOf(std::initializer_list<std::pair<const char *, Value>> members)
{
    Value value;
    value.begin(); // makes it a struct, were there no members
    for (const auto &[name, member] : members)
        value[name] = member;
    return value;
}

Value valueOf(const QVariant &variant)
{
    switch (variant.userType()) {
    case QMetaType::Bool:
        return Value(variant.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong: {
        const long long number = variant.toLongLong();
        const auto narrow = static_cast<int>(number);
        return narrow == number ? Value(narrow) : Value(static_cast<double>(number));
    }
    case QMetaType::Double:
        return Value(variant.toDouble());
    case QMetaType::QString:
        return Value(variant.toString().toStdString());
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return arrayOfList(variant.toList());
    case QMetaType::QVariantMap: {
        Value made = structOf({});
        const QVariantMap map = variant.toMap();
        for (auto member = map.begin(); member != map.end(); ++member)
            made[member.key().toStdString()] = valueOf(member.value());
        return made;
    }
    default:
        throw std::invalid_argument(std::string("tell how this travels over XML-RPC: ") + variant.typeName());
    }
}

Value arrayOfList(const List &list)
{
    Value array = arrayOf();
    for (const QVariant &element : list)
        array[array.size()] = valueOf(element);
    return array;
}

std::string dumped(const Value &value)
{
    std::ostringstream out;
    const char *separator = "";
    switch (value.getType()) {
    case Value::TypeInvalid:
        return "nothing";
    case Value::TypeBoolean:
        return static_cast<const bool &>(value) ? "true" : "false";
    case Value::TypeInt:
        out << static_cast<const int &>(value);
        break;
    case Value::TypeDouble:
        out << std::showpoint << static_cast<const double &>(value);
        break;
    case Value::TypeString:
        out << '"' << static_cast<const std::string &>(value) << '"';
        break;
    case Value::TypeArray:
        out << '[';
        for (int i = 0; i < value.size(); ++i, separator = ", ")
            out << separator << dumped(value[i]);
        out << ']';
        break;
    case Value::TypeStruct:
        out << '{';
        for (const auto &[name, member] : value) {
            out << separator << '"' << name << "\": " << dumped(member);
            separator = ", ";
        }
        out << '}';
        break;
    case Value::TypeBase64: {
        QByteArray bytes;
        DecodeXmlRpcValue(value, bytes);
        return '<' + bytes.toHex().toStdString() + '>';
    }
    case Value::TypeDateTime:
        return "unexpected type";
    }
    return out.str();
}

std::string shown(const List &list)
{
    QString text;
    QDebug(&text).nospace() << list;
    return text.toStdString();
}

std::string className(const ProtoAnswer *answer)
{
    if (!answer)
        return "null";
    const ProtoAnswer &object = *answer;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(object).name(), nullptr, nullptr, nullptr), &std::free);
    return name ? name.get() : "unnamed";
}

void expectError(const FW_DriverError &error, const char *code, const char *text)
{
    EXPECT_EQ(error.code(), QString(code));
    EXPECT_EQ(error.text(), QString(text));
}

} // namespace testing_base
