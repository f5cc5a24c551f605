// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/record_p.h"
#include "base/translation_p.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>

#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace quv {

// Bit words. Three tables tell all that there is to tell of a status word: which bit of which word is which flag, which
// flag is worth a line when it is set, and which when it changes.

/** One bit of a firmware word. An inverted flag is true while the bit is clear. */
template <class Status>
struct MaskBit
{
    int word = 0;
    int bit = 0;
    bool Status::*flag = nullptr;
    bool inverted = false;
};

/** The property name of a variable, as bytes that stay. */
const char *propertyKey(const char *variable);

/** What there is to tell of a flag; the values are bits. */
enum FlagTrait : unsigned {
    Plain = 0,
    Required = 1,   ///< a struct without it is refused
    Uncompared = 2, ///< comes and goes too fast to make two statuses differ
    Lasting = 4,    ///< worth a line while it lasts
    Bad = 8,        ///< the line is a reason not to work
    Property = 16   ///< its name in the struct is the property name of a variable of this name
};

/** A flag of a status word, with all that there is to tell of it, in the order in which it is told. */
template <class Status>
struct StatusFlag
{
    const char *key = ""; ///< its name in the struct
    bool Status::*flag = nullptr;
    int word = 0;
    int bit = 0;
    unsigned traits = Plain;
    const char *on = nullptr; ///< the line for it, marked with QT_TRANSLATE_NOOP where it stands
    const char *off =
        nullptr; ///< the line for its end, as it stands; without one a change is not worth a line

    constexpr bool has(FlagTrait trait) const { return (traits & trait) != 0; }
};

/** The flags as members of the struct; those that are required are refused with \a missing. */
template <class Status, std::size_t count>
std::vector<Member<Status>> membersOf(const StatusFlag<Status> (&flags)[count], const Refusal &missing)
{
    std::vector<Member<Status>> members;
    for (const StatusFlag<Status> &row : flags) {
        const char *key = row.has(Property) ? propertyKey(row.key) : row.key;
        members.emplace_back(key, row.flag, row.has(Required) ? missing : Refusal());
        if (row.has(Uncompared))
            members.back().uses(Read | Write);
    }
    return members;
}

/** The lines for flags that have changed. */
template <class Status, std::size_t count>
void describeChanges(const StatusFlag<Status> (&flags)[count], const Status &before, const Status &after,
                     QList<QString> &changes)
{
    for (const StatusFlag<Status> &row : flags) {
        if (row.off && before.*row.flag != after.*row.flag)
            changes.append(after.*row.flag ? translated(row.on) : QString::fromUtf8(row.off));
    }
}

template <class Status>
constexpr bool isInverted(const MaskBit<Status> &bit)
{
    return bit.inverted;
}

template <class Status>
constexpr bool isInverted(const StatusFlag<Status> &)
{
    return false;
}

template <const auto &table, class Status, std::size_t... row>
void applyRows(const unsigned *masks, int lastWord, Status &status, std::index_sequence<row...>)
{
    const auto apply = [&](const auto &bit) {
        if (bit.word <= lastWord)
            status.*bit.flag = ((masks[bit.word] >> bit.bit & 1U) != 0) != isInverted(bit);
    };
    (apply(table[row]), ...);
}

/**
 * Sets the flags of all words from the first to \a lastWord; \a masks is indexed by the word's number. The table is a
 * constant that the compiler unrolls: the status is asked for all day long.
 */
template <const auto &table, class Status>
void applyWords(const unsigned *masks, int lastWord, Status &status)
{
    applyRows<table>(masks, lastWord, status, std::make_index_sequence<std::size(table)>());
}

/** A text that may differ between a dispenser and a mixer; marked with QT_TRANSLATE_NOOP where it stands. */
struct DeviceText
{
    const char *dispenser = nullptr;
    const char *mixer = nullptr; ///< null: the same as on a dispenser

    constexpr DeviceText() = default;
    constexpr DeviceText(const char *both) : dispenser(both) {}
    constexpr DeviceText(const char *onDispenser, const char *onMixer)
        : dispenser(onDispenser),
          mixer(onMixer)
    {}

    const char *of(bool isDispenser) const { return isDispenser || !mixer ? dispenser : mixer; }
};

/** A condition worth a line while it lasts; a bad one is a reason not to work. */
template <class Status>
struct Condition
{
    bool Status::*flag = nullptr;
    DeviceText text;
    bool bad = false;
};

template <class Status, class Table>
void describeConditions(const Table &table, const Status &status, bool isDispenser,
                        QList<QPair<QString, bool>> &descriptions)
{
    for (const auto &row : table) {
        if (status.*row.flag)
            descriptions.append({translated(row.text.of(isDispenser)), row.bad});
    }
}

/** The lines for a flag that went on, translated, and off, which stands as written; without a text no line. */
template <class Status>
struct Change
{
    bool Status::*flag = nullptr;
    DeviceText on;
    DeviceText off;
};

template <class Status, class Table>
void describeChanges(const Table &table, const Status &before, const Status &after, bool isDispenser,
                     QList<QString> &changes)
{
    for (const auto &row : table) {
        if (before.*row.flag == after.*row.flag)
            continue;
        const bool isOn = after.*row.flag;
        if (const char *text = (isOn ? row.on : row.off).of(isDispenser))
            changes.append(isOn ? translated(text) : QString::fromUtf8(text));
    }
}

} // namespace quv
