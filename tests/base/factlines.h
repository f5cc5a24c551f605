// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"
#include "catalogue/commandfacts.h"

#include <string>
#include <vector>

// What commands tell of themselves to those who explain them, as lines to compare.

namespace testing_base {

using Lines = std::vector<std::string>;

inline void appendRefusals(Lines &lines, const QList<quv::RefusalFacts> &refusals)
{
    for (const quv::RefusalFacts &refusal : refusals)
        lines.push_back(
            QStringLiteral("  %1, %2: %3").arg(refusal.form, refusal.when, refusal.code).toStdString());
}

/** The arguments of a command, each with its default and its meaning, and below it what refuses it. */
inline Lines argumentsOf(const char *command)
{
    const quv::CommandFacts facts = quv::commandFacts(command);
    EXPECT_TRUE(facts.tellsArguments);
    Lines lines;
    for (const quv::ArgumentFacts &argument : facts.arguments) {
        std::string line = QStringLiteral("%1 (%2)").arg(argument.name, argument.type).toStdString();
        if (argument.optional)
            line += " = " + dumped(argument.defaultValue);
        if (!argument.meaning.isEmpty())
            line += ": " + argument.meaning.toStdString();
        lines.push_back(line);
        appendRefusals(lines, argument.refusals);
    }
    return lines;
}

/** The class of a command's answer, its members in the same way, and what a failure to make the answer is called. */
inline Lines membersOf(const char *command)
{
    const quv::CommandFacts facts = quv::commandFacts(command);
    EXPECT_TRUE(facts.tellsMembers);
    Lines lines = {facts.answerClass.toStdString()};
    for (const quv::MemberFacts &member : facts.members) {
        EXPECT_TRUE(member.required);
        lines.push_back(
            QStringLiteral("%1 (%2): %3").arg(member.key, member.type, member.meaning).toStdString());
        appendRefusals(lines, member.refusals);
    }
    appendRefusals(lines, facts.answerRefusals);
    return lines;
}

} // namespace testing_base
