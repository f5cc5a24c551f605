// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "jsonvalue.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace quv {

struct CommandFacts;

/// The value of a word: JSON, and a word that is none is a string. \throws UsageError
nlohmann::json argumentFromWord(const QString &word);

/// What a user typed for a command.
struct TypedArguments
{
    nlohmann::json values = nlohmann::json::array();
    QStringList words; ///< of each value the word that gave it; empty for a default
};

/**
 * The arguments of a command that a user typed, one a word: first by their places, then as name=value by the names that the
 * command tells. Those that are left out before the last one given get their defaults.
 * \throws UsageError
 */
TypedArguments argumentsFromWords(const CommandFacts &command, const QStringList &words);

} // namespace quv
