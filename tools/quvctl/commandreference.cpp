// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandreference.h"

#include "catalogwords.h"
#include "requestrefusals.h"

#include "catalogue/protocommandlist.h"

#include <algorithm>
#include <iterator>

namespace quv {

namespace {

/// A class of commands that have none of their own, and that of the answers to which nobody has given one.
struct PlainClass
{
    const char *command;
    const char *answer;
};

constexpr PlainClass plainClasses[] = {
    {"SerialProtoCommand", "SerialProtoAnswer"},
    {"ConfProtoCommand", "ConfProtoAnswer"},
};

/// Null for a command with a class of its own.
const PlainClass *plainClassOf(const CommandFacts &command)
{
    const auto *found =
        std::find_if(std::begin(plainClasses), std::end(plainClasses), [&](const PlainClass &plain) {
            return command.className == QLatin1String(plain.command);
        });
    return found == std::end(plainClasses) ? nullptr : found;
}

} // namespace

CommandReference referenceOf(const CMD_STRUCT &row)
{
    CommandReference command;
    command.row = &row;
    command.facts = commandFacts(row.name);
    if (!command.facts.className.isEmpty()) {
        command.requestRefusals = requestRefusals(command.facts);
        command.example = exampleOf(command.facts);
    }
    return command;
}

bool isPlain(const CommandFacts &command)
{
    return plainClassOf(command) != nullptr;
}

QString classInWords(const CommandFacts &command)
{
    if (isPlain(command))
        return QStringLiteral("%1, the plain one of its kind").arg(command.className);
    return command.className;
}

QString argumentsNote(const CommandReference &command)
{
    if (!command.facts.arguments.isEmpty())
        return {};
    if (isPlain(command.facts)) {
        const QString counted =
            command.row->maxParams == 0
                ? QString()
                : QStringLiteral("the catalogue tells %1, and ").arg(parametersInWords(*command.row));
        return QStringLiteral("none of its own; %1any that are given are dropped").arg(counted);
    }
    return QStringLiteral("none");
}

QString answerNote(const CommandReference &command)
{
    const CommandFacts &facts = command.facts;
    if (!facts.answerClass.isEmpty())
        return facts.tellsMembers
                   ? facts.answerClass
                   : QStringLiteral("%1, without members that are told beforehand").arg(facts.answerClass);
    if (const PlainClass *plain = plainClassOf(facts))
        return QStringLiteral("a plain %1, without members").arg(QLatin1String(plain->answer));
    return facts.tellsArguments ? QStringLiteral("a plain one, without members") : QString();
}

QString defaultInWords(const ArgumentFacts &argument)
{
    return argument.optional ? QString::fromStdString(writeJson(toJson(argument.defaultValue)))
                             : QStringLiteral("required");
}

QString codesInWords(const MemberFacts &member)
{
    QStringList codes;
    for (const RefusalFacts &refusal : member.refusals)
        codes.append(refusal.code);
    codes.removeDuplicates();
    return codes.join(QStringLiteral(", "));
}

QList<RefusalLine> refusalsInWords(const CommandReference &command)
{
    return refusalLines(command.requestRefusals, command.facts);
}

} // namespace quv
