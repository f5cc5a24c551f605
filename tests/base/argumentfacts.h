// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"

#include <optional>
#include <string>
#include <vector>

// The facts of the positional arguments of a command.

namespace testing_base {

/** The refusal of an argument: its codes in the XML-RPC form and in the list form, and its text, or two texts. */
struct ArgumentRefusal
{
    std::string valueCode;
    std::string listCode;
    std::string text;
    std::string listText = {}; ///< where it is another
};

/** What an argument is, which tells of what other types it is refused. */
enum ArgumentType {
    Flag,
    Integer,          ///< an int; in a list a whole number of any width that an int holds
    ConvertedInteger, ///< an int; in a list whatever converts to one
    Unsigned,         ///< an int not below 0; in a list a whole number that 32 bits without a sign hold
    Whole,            ///< a whole number of 64 bits
    Number,           ///< a double, or a whole number
    Text,
};

/** What is no argument of the type. */
std::vector<Value> otherValues(ArgumentType type);
List otherVariants(ArgumentType type);
/** What an argument in a list may also be to be read as this literal. */
List sameVariants(ArgumentType type, const QVariant &literal);

/** One argument, by its place. */
struct Argument
{
    /** What is refused with one code in each form; a form that has none is not refused here. */
    struct Refused
    {
        std::vector<Value> values;
        List variants;
        ArgumentRefusal refusal;
    };

    /** That it is missing, for one that the catalogue does not count already. */
    Argument &absent(const ArgumentRefusal &refusal)
    {
        absence = refusal;
        return *this;
    }
    /** What has the type and is refused all the same, in both forms. */
    Argument &outOfRange(const List &literals, const ArgumentRefusal &refusal);
    /** What has the type and is taken: the limits of a range. */
    Argument &takes(const List &literals)
    {
        taken = literals;
        return *this;
    }
    /** What is refused otherwise. */
    Argument &refuses(std::vector<Value> values, List variants, const ArgumentRefusal &refusal)
    {
        refused.push_back({std::move(values), std::move(variants), refusal});
        return *this;
    }

    bool isOptional = false;
    std::optional<ArgumentType> type; ///< none when the test itself tells all that is refused
    ArgumentRefusal absence;
    std::vector<Refused> refused; ///< first of all what has another type
    List taken;
};

Argument required(ArgumentType type, const ArgumentRefusal &otherType);
Argument optional(ArgumentType type, const ArgumentRefusal &otherType);
/** An argument of a type of its own, to be followed by what it refuses. */
Argument required();
Argument optional();

} // namespace testing_base
