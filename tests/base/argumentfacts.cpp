// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/argumentfacts.h"

#include <QtCore/QStringList>

namespace testing_base {

namespace {

Argument ofType(ArgumentType type, const ArgumentRefusal &otherType)
{
    Argument argument;
    argument.type = type;
    argument.refuses(otherValues(type), otherVariants(type), otherType);
    return argument;
}

} // namespace

std::vector<Value> otherValues(ArgumentType type)
{
    std::vector<Value> values = {arrayOf(), structOf({}), structOf({{"value", Value(7)}})};
    const auto add = [&values](std::initializer_list<Value> more) { values.insert(values.end(), more); };
    switch (type) {
    case Flag:
        add({Value(1), Value(0), Value(1.0), Value("true"), arrayOf(true)});
        break;
    case Integer:
    case ConvertedInteger:
        add({Value(true), Value(7.0), Value(7.5), Value("7"), Value(""), arrayOf(7)});
        break;
    case Unsigned:
        add({Value(true), Value(7.0), Value(7.5), Value("7"), Value(""), arrayOf(7), Value(-1)});
        break;
    case Whole:
        add({Value(true), Value(7.5), Value("7"), Value(""), arrayOf(7)});
        break;
    case Number:
        add({Value(true), Value("7.5"), Value(""), arrayOf(7.5)});
        break;
    case Text:
        add({Value(5), Value(true), Value(7.5), arrayOf("T")});
        break;
    }
    return values;
}

List otherVariants(ArgumentType type)
{
    List variants = {QVariant(), List(), QVariantMap{{"value", 7}}};
    switch (type) {
    case Flag:
        return variants + List{1, 0, 1.0, "true", List{true}};
    case Integer:
        return variants + List{true,
                               7.0,
                               7.5,
                               "7",
                               QString(),
                               List{7},
                               QStringList{"7"},
                               QByteArray("7"),
                               QVariant::fromValue(QList<int>{7}),
                               2147483648LL,
                               -2147483649LL,
                               4294967295U,
                               18446744073709551615ULL};
    case ConvertedInteger:
        return variants + List{"here", QString(), 1e10, List{7}, 4294967296LL};
    case Unsigned:
        return variants + List{true, 7.0, "7", List{7}, QByteArray("7"), -1, -1LL, 4294967296LL};
    case Whole:
        return variants + List{true, 7.5, "7", List{7}, QByteArray("7"), 18446744073709551615ULL};
    case Number:
        return variants + List{true, "7.5", List{7.5}, QByteArray("7.5")};
    case Text:
        return variants + List{5, true, 7.5, QStringList{"T"}, QByteArray("T")};
    }
    return variants;
}

List sameVariants(ArgumentType type, const QVariant &literal)
{
    const qlonglong number = literal.toLongLong();
    List same;
    switch (type) {
    case Flag:
    case Text:
        break;
    case Integer:
    case Unsigned:
    case Whole:
        same = {number};
        if (number >= 0)
            same += List{static_cast<uint>(number), static_cast<qulonglong>(number)};
        break;
    case ConvertedInteger:
        same = {number, static_cast<double>(number), QString::number(number)};
        if (number == 0 || number == 1)
            same.append(number == 1);
        break;
    case Number:
        if (static_cast<double>(number) == literal.toDouble())
            same = {number, static_cast<int>(number)};
        break;
    }
    return same;
}

Argument &Argument::outOfRange(const List &literals, const ArgumentRefusal &refusal)
{
    std::vector<Value> values;
    for (const QVariant &literal : literals)
        values.push_back(valueOf(literal));
    return refuses(std::move(values), literals, refusal);
}

Argument required(ArgumentType type, const ArgumentRefusal &otherType)
{
    return ofType(type, otherType);
}

Argument optional(ArgumentType type, const ArgumentRefusal &otherType)
{
    Argument argument = ofType(type, otherType);
    argument.isOptional = true;
    return argument;
}

Argument required()
{
    return Argument();
}

Argument optional()
{
    Argument argument;
    argument.isOptional = true;
    return argument;
}

} // namespace testing_base
