// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "configuration/confdata.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <array>
#include <cmath>
#include <functional>
#include <iterator>
#include <limits>

// Configuration rows. A structure is one table: what each field is called, the code of its refusal, how it is written from the
// structure's object and how it is read into it. Reading tokens, reading text and writing all walk that table.

namespace quv {

constexpr QLatin1String newDataLabel("NEW_DATA", 8); ///< of a field that no class knows

/** The number of digits of the field that begins at \a begin; 0 for none, and for more than there are tokens. */
int confFieldLength(const QStringList &tokens, int begin);

/** Reads the field that begins at \a begin: the number of its digits, 0 for a failure. */
int confField(const QStringList &tokens, int begin, int &value);

/** What is said of a field that is not there. */
QString confFieldNotFound(const QString &label);

/** The structure's name, a blank, the row as text; empty without a row. */
QString confDataStr(const ConfData *row);

/** A field is read when the firmware's field count exceeds its gate; mandatory ones always. */
constexpr int Mandatory = -1;

/** How a field and the structure's object exchange their value. */
template <class Object>
struct ConfAccess
{
    int (*write)(const Object &object) = nullptr;
    void (*read)(Object &object, int value) = nullptr;
};

/** A field that the object gives by \a get and takes by \a set. */
template <class Object, auto get, auto set>
constexpr ConfAccess<Object> byAccessors = {
    [](const Object &object) { return static_cast<int>(std::invoke(get, object)); },
    [](Object &object, int value) { std::invoke(set, object, value); }};

/** A field that is an int of the object. */
template <class Object, auto member>
constexpr ConfAccess<Object> byMember = {[](const Object &object) { return object.*member; },
                                         [](Object &object, int value) { object.*member = value; }};

/**
 * A time or value in the row's tenths or hundredths: cut off, but not by what a double lacks of the number. What is beyond an
 * int becomes the nearest one.
 */
inline int scaled(double value, int scale)
{
    constexpr double noise = 1e-6;
    const double product = value * scale;
    const double nearest = std::round(product);
    const double number = std::abs(product - nearest) < noise ? nearest : product;
    using Limits = std::numeric_limits<int>;
    return std::isnan(number) ? 0 : static_cast<int>(qBound<double>(Limits::min(), number, Limits::max()));
}

/** A field in tenths of what the object holds. */
template <class Object, auto get, auto set>
constexpr ConfAccess<Object> inTenths = {
    [](const Object &object) { return scaled(std::invoke(get, object), 10); },
    [](Object &object, int value) { std::invoke(set, object, value / 10.0); }};

/** A field that always goes out as \a number and is passed over when it comes in. */
template <class Object, int number>
constexpr ConfAccess<Object> always = {[](const Object &) { return number; }, [](Object &, int) {}};

/** One field of a structure. */
template <class Object>
struct ConfField
{
    const char *label = "";
    const char *code = "";
    ConfAccess<Object> access;
    int gate = Mandatory;
    /** What becomes of the object when an optional field is missing; null: nothing. */
    void (*missing)(Object &object) = nullptr;
    const char *localLabel = nullptr; ///< in updateLocalData; null: the same label
};

/** The table of a structure that has no fields of its own. */
struct NoObject
{};
constexpr std::array<ConfField<NoObject>, 0> noConfFields = {};

/** The codes with which a structure refuses what it cannot be made of. */
struct ConfCodes
{
    const char *nullMachine = "";
    const char *nullMachineText = "Invalid Dispenser data";
    const char *noDispenser = "";
    const char *noData = "";
    const char *newData = "";
    const char *tokensData = ""; ///< updateLocalData failed on a row of tokens
    const char *textData = "";   ///< updateLocalData failed on a row of text
};

/**
 * Appends the fields of a received row from the token \a index on to \a parameters: those of the table, then as many more
 * as the firmware counts.
 */
template <class Table>
void readConfFields(const Table &table, const char *newDataCode, const QStringList &tokens, int index,
                    int fieldCount, QList<int> &parameters, const char *function)
{
    const auto next = [&](const char *code, QLatin1String label) {
        int value = 0;
        const int digits = confField(tokens, index, value);
        if (digits == 0)
            throw FW_Exception(code, confFieldNotFound(label), function);
        parameters.append(value);
        index += digits + 1;
    };
    for (const auto &field : table) {
        if (field.gate != Mandatory && fieldCount <= field.gate)
            return;
        next(field.code, QLatin1String(field.label));
    }
    // one place is that of cmd_enabled
    for (int position = parameters.size() + 1; position < fieldCount; ++position)
        next(newDataCode, newDataLabel);
}

/** The same behind `cmd_enabled`, which took \a enabledLength digits. Throws when the row ends there. */
template <class Table>
void readConfTokens(const Table &table, const ConfCodes &codes, const QStringList &tokens, int enabledLength,
                    int fieldCount, QList<int> &parameters, const char *function)
{
    const int index = enabledLength + 1;
    if (index > tokens.size())
        throw FW_Exception(codes.noData, "No data found in answer", function);
    readConfFields(table, codes.newData, tokens, index, fieldCount, parameters, function);
}

/**
 * Moves the parameters into the object. False when a mandatory one is missing. \a error tells the last field that was looked for
 * in vain, which may be an optional one.
 */
template <class Object, class Table>
bool readConfParameters(const Table &table, const QList<int> &parameters, Object &object, QString *error)
{
    int position = 0;
    const char *lacking = nullptr;
    bool complete = true;
    for (const auto &field : table) {
        if (position < parameters.size()) {
            field.access.read(object, parameters.at(position++));
            continue;
        }
        lacking = field.localLabel ? field.localLabel : field.label;
        complete = field.gate != Mandatory;
        if (!complete)
            break;
        if (field.missing)
            field.missing(object);
    }
    if (lacking && error)
        *error = confFieldNotFound(QLatin1String(lacking));
    return complete;
}

template <class Object, class Table>
QList<int> writtenConfParameters(const Table &table, const Object &object)
{
    QList<int> parameters;
    parameters.reserve(static_cast<int>(std::size(table)));
    for (const auto &field : table)
        parameters.append(field.access.write(object));
    return parameters;
}

/** What the fields are called. */
template <class Table>
QStringList confLabels(const Table &table)
{
    QStringList labels;
    for (const auto &field : table)
        labels.append(QLatin1String(field.label));
    return labels;
}

/** The machine as a dispenser. Throws the structure's refusal when there is none. */
inline const FW_Dispenser &confDispenser(const FW_Machine *machine, const ConfCodes &codes,
                                         const char *function)
{
    if (!machine)
        throw FW_Exception(codes.nullMachine, codes.nullMachineText, function);
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    if (!dispenser)
        throw FW_Exception(codes.noDispenser, "Invalid data", function);
    return *dispenser;
}

/** updateLocalData at the end of a constructor: its failure is thrown with \a code and the text that it made. */
template <class Row>
void updateLocalDataOrThrow(Row &row, const char *code, const char *function)
{
    QString error;
    if (!row.Row::updateLocalData(&error)) // not a derived one's, which is not there yet
        throw FW_Exception(code, error, function);
}

} // namespace quv
