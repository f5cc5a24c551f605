// SPDX-License-Identifier: LGPL-3.0-or-later
#include "executed.h"
#include "machineerrors.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"

#include "status/clearerrorscmd.h"
#include "status/geterrorsanswer.h"

namespace quv {

namespace {

void clearErrors(const Driver &driver)
{
    ClearErrorsCmd command;
    requireDone(driver.execute(command));
}

/// One object tells both, so that it comes behind the clearing.
ExitStatus printAsJson(const Driver &driver, const FW_ErrorList &errors, bool clears)
{
    if (clears)
        clearErrors(driver);
    OrderedJson reply = success();
    reply["errors"] = errorsJson(errors);
    reply["cleared"] = clears;
    printJson(reply);
    return Done;
}

ExitStatus runErrors(const CommandLine &line)
{
    const Driver driver(line);
    const FW_ErrorList errors = answerTo<GetErrorsAnswer>(ProtoCommandList::GET_ERRORS, driver).errorList();
    const bool clears = line.isSet("clear");
    if (line.isSet("json"))
        return printAsJson(driver, errors, clears);
    printErrors(errors);
    if (errors.isEmpty() && !line.isQuiet())
        printLine(QStringLiteral("no errors"));
    if (!clears)
        return Done;
    if (!outputFailure().isEmpty())
        return Refused; // what nobody has seen stays
    clearErrors(driver);
    if (!errors.isEmpty() && !line.isQuiet())
        printLine(QStringLiteral("cleared"));
    return Done;
}

} // namespace

const Subcommand errorsSubcommand = {
    "errors",
    "",
    "the errors that a machine tells",
    "Shows the errors that wait in the machine, the oldest first, with their times. With --clear they are "
    "gone\n"
    "from the machine afterwards.",
    0,
    0,
    withDriverOptions({{"clear", nullptr, "have the machine forget them, when they have been shown"},
                       quietOption,
                       {"json", nullptr, "the errors as one JSON object"}}),
    runErrors};

} // namespace quv
