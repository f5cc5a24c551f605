// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/translation_p.h"
#include "base/tstring.h"

#include <algorithm>
#include <iterator>

namespace quv {

/** What a command is called for one value of the argument that decides: of a movement, the kind of movement. */
struct Words
{
    int number = 0;
    const char *commandText = "";             ///< for logs
    const char *actionText = "";              ///< for people, marked with QT_TRANSLATE_NOOP
    const char *detailedActionText = nullptr; ///< likewise; without one the other is told in both cases
};

/** The words of \a number in a table of them, or \a others when it has none. */
template <class Table>
const Words &wordsOf(const Table &table, int number, const Words &others)
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [number](const Words &words) { return words.number == number; });
    return found == std::end(table) ? others : *found;
}

inline TString actionOf(const Words &words, bool detailed)
{
    return {detailed && words.detailedActionText ? words.detailedActionText : words.actionText,
            translationContext};
}

} // namespace quv
