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
    if (const XmlRpcAnswer &envelope = driver.execute(command); envelope.retCode() != 0)
        throw RequestRefused(envelope);
}

ExitStatus run(const CommandLine &line)
{
    const Driver driver(line);
    const FW_ErrorList errors = answerTo<GetErrorsAnswer>(ProtoCommandList::GET_ERRORS, driver).errorList();
    const bool clears = line.isSet("clear");
    if (clears)
        clearErrors(driver);
    if (line.isSet("json")) {
        OrderedJson reply = success();
        reply["errors"] = errorsJson(errors);
        reply["cleared"] = clears;
        printJson(reply);
        return Done;
    }
    printErrors(errors);
    if (line.isQuiet())
        return Done;
    if (errors.isEmpty())
        printLine(QStringLiteral("no errors"));
    else if (clears)
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
    run};

} // namespace quv
