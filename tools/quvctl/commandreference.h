// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "commandexample.h"
#include "jsonvalue.h"
#include "refusallines.h"

#include "catalogue/commandfacts.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

struct CMD_STRUCT;

namespace quv {

/// What people are told of a command.
struct CommandReference
{
    const CMD_STRUCT *row = nullptr;
    CommandFacts facts;
    QList<RefusalFacts> requestRefusals; ///< of the request as a whole
    std::optional<CommandExample> example;
};

CommandReference referenceOf(const CMD_STRUCT &row);

/// Whether it is a command without a class of its own, so that it has no arguments either.
bool isPlain(const CommandFacts &command);

// In words.
QString classInWords(const CommandFacts &command);
QString argumentsNote(
    const CommandReference &command); ///< in place of the arguments; empty when there are some to tell
QString answerNote(
    const CommandReference &command); ///< above the members, or in place of them; empty when nothing is known
QString defaultInWords(const ArgumentFacts &argument); ///< or that it is required
QString codesInWords(const MemberFacts &member);       ///< those of its refusals
QList<RefusalLine> refusalsInWords(const CommandReference &command);

// The forms in which it is told.
void printReference(const CommandReference &command);
OrderedJson referenceJson(const CommandReference &command); ///< all of it, beside the row's own members
QString commandsMarkdown();                                 ///< of all commands, with a table of contents

} // namespace quv
