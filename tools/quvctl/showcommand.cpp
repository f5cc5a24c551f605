// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandreference.h"
#include "excerpt.h"
#include "subcommands.h"
#include "suggestions.h"
#include "terminal.h"

#include "catalogue/commandfacts.h"
#include "catalogue/protocommandlist.h"

#include <stdexcept>

namespace quv {

namespace {

void printNames(const QString &command)
{
    for (const ArgumentFacts &argument : commandFacts(command).arguments)
        printLine(argument.name);
}

ExitStatus runShow(const CommandLine &line)
{
    if (line.isSet("markdown")) {
        if (!line.words().isEmpty())
            throw UsageError(QStringLiteral("--markdown tells all commands, and takes no NAME"));
        printWhole(commandsMarkdown());
        return Done;
    }
    if (line.words().isEmpty())
        throw UsageError(QStringLiteral("show needs NAME"));
    const QString &name = line.words().first();
    const CMD_STRUCT *row = ProtoCommandList::row(name);
    if (!row)
        throw std::runtime_error(QStringLiteral("the catalogue has no command \"%1\"%2")
                                     .arg(excerpt(name), didYouMeanCommand(name))
                                     .toStdString());
    if (line.isSet("names"))
        printNames(name);
    else if (line.isSet("json"))
        printJson(referenceJson(referenceOf(*row)));
    else
        printReference(referenceOf(*row));
    return Done;
}

} // namespace

const Subcommand showSubcommand = {"show",
                                   "[NAME]",
                                   "one command in words",
                                   "Tells what a command is for, its arguments, the members of its answer,\n"
                                   "how it is refused, who carries it out, and how to call it from the\n"
                                   "shell and from Python.",
                                   0,
                                   1,
                                   {{"json", nullptr, "one JSON object"},
                                    {"names", nullptr, "the names of its arguments only, one a line"},
                                    {"markdown", nullptr, "without NAME: the reference of all commands"}},
                                   runShow};

} // namespace quv
