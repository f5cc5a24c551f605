// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "argumentwords.h"
#include "jsonvalue.h"

#include <QtCore/QList>
#include <QtCore/QString>

class MachineStatusAnswer;
class ProtoAnswer;

namespace quv {

class CommandLine;

/// The arguments behind the command's name, which is the first word. \throws UsageError
TypedArguments typedArguments(const CommandLine &line);

/// The batch request for a command that a user typed, by its name, arguments and machine. \throws UsageError
nlohmann::json commandRequest(const CommandLine &line);

struct StatusLine
{
    QString text;
    bool bad;
};

/// All that a status tells, bad conditions first: those that have a description, the other flags that are set by the words
/// of their change, and those without any words by their names.
QList<StatusLine> statusInWords(const MachineStatusAnswer &status);

/// What a status tells that the one before of the same machine did not, and what it tells no more.
QStringList changesInWords(const MachineStatusAnswer &before, const MachineStatusAnswer &after);

/// An answer for people: a status in words, anything else as its value.
void printAnswer(const ProtoAnswer &answer);
/// The same for the value of an answer whose command nobody told.
void printValue(const XmlRpc::XmlRpcValue &value);

} // namespace quv
