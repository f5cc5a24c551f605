// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_exception.h>

#include <QtCore/QString>

#include <gtest/gtest.h>
#include <xmlrpcpp/XmlRpcValue.h>

#include <ctime>
#include <initializer_list>
#include <ostream>
#include <string>
#include <utility>

// XML-RPC values written down in one expression, and readable failures.

inline void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace values {

using XmlRpc::XmlRpcValue;

inline XmlRpcValue structOf(std::initializer_list<std::pair<const char *, XmlRpcValue>> members)
{
    XmlRpcValue value;
    value.begin(); // a struct, even without members
    for (const auto &[name, member] : members)
        value[name] = member;
    return value;
}

inline XmlRpcValue arrayOf(std::initializer_list<XmlRpcValue> elements)
{
    XmlRpcValue value;
    value.setSize(static_cast<int>(elements.size()));
    int index = 0;
    for (const XmlRpcValue &element : elements)
        value[index++] = element;
    return value;
}

inline XmlRpcValue binary(std::string bytes)
{
    return XmlRpcValue(static_cast<void *>(bytes.data()), static_cast<int>(bytes.size()));
}

inline XmlRpcValue dateTime(int year, int month, int day, int hour, int minute, int second)
{
    std::tm time{};
    time.tm_year = year - 1900;
    time.tm_mon = month - 1;
    time.tm_mday = day;
    time.tm_hour = hour;
    time.tm_min = minute;
    time.tm_sec = second;
    return XmlRpcValue(&time);
}

/** The member as it is stored; read through const, so that a wrong type throws and nothing is made up. */
template <class T>
T stored(const XmlRpcValue &value)
{
    return static_cast<const T &>(value);
}

template <class Action>
void expectException(Action action, const char *code, const char *text, const char *function)
{
    try {
        action();
        ADD_FAILURE() << "no exception, expected " << code;
    } catch (const FW_Exception &exception) {
        EXPECT_EQ(exception.code(), code);
        EXPECT_EQ(exception.text(), text);
        EXPECT_EQ(exception.function(), function);
    }
}

} // namespace values
