// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/protoanswer.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>

#include <xmlrpcpp/XmlRpcValue.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>

// What the tests of this folder share: values, refusals, and answers and machines that can be counted.

void PrintTo(const QString &text, std::ostream *out); // found by GoogleTest

namespace testing_base {

using Value = XmlRpc::XmlRpcValue;
using List = QList<QVariant>;

/** An XML-RPC array. */
template <class... T>
Value arrayOf(const T &...elements)
{
    Value array;
    array.setSize(static_cast<int>(sizeof...(elements)));
    [[maybe_unused]] int i = 0;
    ((array[i++] = Value(elements)), ...);
    return array;
}

/** An XML-RPC struct. */
Value structOf(std::initializer_list<std::pair<const char *, Value>> members);

/** What a list holds as it travels over XML-RPC: truth, numbers, texts, and lists and maps of these. */
Value valueOf(const QVariant &variant);
Value arrayOfList(const List &list);

/** A value as text: 7, 7.5, true, "text", <00ff> of bytes, [1, 2], {"a": 1}, and nothing for an empty value. */
std::string dumped(const Value &value);

/** A list as text, with the types of its elements. */
std::string shown(const List &list);

/** The class of an answer, or null. */
std::string className(const ProtoAnswer *answer);

void expectError(const FW_DriverError &error, const char *code, const char *text);

/** Expects that \a work throws this FW_Exception. */
template <class Work>
void expectRefusal(const char *code, const char *text, const char *function, Work work)
{
    SCOPED_TRACE(code);
    try {
        work();
        ADD_FAILURE() << "nothing was refused";
    } catch (const FW_Exception &refusal) {
        expectError(refusal, code, text);
        EXPECT_EQ(refusal.function(), QString(function));
    }
}

/** An answer whose living objects are counted. */
template <class Base>
class CountedAnswer : public Base
{
public:
    explicit CountedAnswer(int number) : m_number(number) { ++alive; }
    CountedAnswer(const CountedAnswer &other) : Base(other), m_number(other.m_number) { ++alive; }
    CountedAnswer &operator=(const CountedAnswer &) = delete;
    ~CountedAnswer() override { --alive; }

    CountedAnswer *clone() const override { return new CountedAnswer(*this); }
    Value toXmlRpcValue() const override { return Value(m_number); }

    inline static int alive = 0;
    int m_number = 0;
};

enum class Failure { OfFramework, OfStandard, OfNoClass };

/** An answer that cannot be copied. */
template <class Base>
class UncopyableAnswer : public Base
{
public:
    explicit UncopyableAnswer(Failure failure) : m_failure(failure) {}

    UncopyableAnswer *clone() const override
    {
        switch (m_failure) {
        case Failure::OfFramework:
            throw FW_Exception("DE09999", "Not to be copied", "UncopyableAnswer::clone()");
        case Failure::OfStandard:
            throw std::runtime_error("not to be copied");
        case Failure::OfNoClass:
            break;
        }
        throw 7;
    }

private:
    Failure m_failure = Failure::OfNoClass;
};

/** A dispenser whose living objects are counted. */
class CountedMachine : public FW_Dispenser
{
public:
    CountedMachine() { ++alive; }
    CountedMachine(const CountedMachine &other) : FW_Dispenser(other) { ++alive; }
    CountedMachine &operator=(const CountedMachine &) = delete;
    ~CountedMachine() override { --alive; }

    CountedMachine *clone() const override { return new CountedMachine(*this); }

    inline static int alive = 0;
};

} // namespace testing_base
