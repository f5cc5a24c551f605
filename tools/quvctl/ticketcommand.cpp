// SPDX-License-Identifier: LGPL-3.0-or-later
#include "hints.h"
#include "operations.h"
#include "progress.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"
#include "tickets.h"
#include "words.h"

#include "base/xmlrpcanswer.h"

namespace quv {

namespace {

/// \throws nothing: how the command ended badly is a part of what is told
OrderedJson endOf(const CmdStatus &status)
{
    try {
        if (status.status() <= 0)
            return outcomeOf(resultOf(status));
    } catch (const RequestRefused &refusal) {
        return refusal.json();
    } catch (const std::runtime_error &error) {
        return failureReply(error.what());
    }
    return success();
}

ExitStatus printAsJson(const Ticket &ticket, const CmdStatus &status)
{
    OrderedJson reply = endOf(status);
    const bool isGood = reply["ok"].get<bool>();
    reply["ticket"] = toJson(ticket.id());
    reply["status"] = commandStatusReply(status, false);
    bool ok = false;
    if (const XmlRpcAnswer envelope = status.getXmlRpcAnswer(&ok); status.status() <= 0 && ok) {
        reply["envelope"] = envelopeJson(envelope);
        reply["value"] = toJson(envelope.xmlrpcRetValue());
    }
    printJson(reply);
    return isGood ? Done : Refused;
}

ExitStatus runTicket(const CommandLine &line)
{
    const Driver driver(line);
    const std::chrono::milliseconds interval = intervalOf(line);
    const Ticket ticket(driver, line.words().first(), line);
    const bool json = line.isSet("json");
    const CmdStatus status = behindTicket(ticket.id(), [&] {
        return line.isSet("wait") ? ticket.waitForEnd(interval, !json && !line.isQuiet()) : ticket.status();
    });
    if (json)
        return printAsJson(ticket, status);
    if (status.status() > 0) {
        Progress().tell(status);
        return Done;
    }
    const XmlRpcAnswer envelope = resultOf(status);
    const bool hasErrors = tellErrors(envelope);
    if (!hasErrors && !line.isQuiet())
        printLine(envelope.infoMsg(), Colour::Bold);
    printValue(envelope.xmlrpcRetValue());
    return hasErrors ? Refused : Done;
}

} // namespace

const Subcommand ticketSubcommand = {
    "ticket",
    "ID",
    "a command that was started without waiting",
    "Asks a driver how far the command behind a ticket is (quvctl call --async, quvctl tint), and shows its\n"
    "answer when it has ended. With --wait it asks until then. Exit status: 0 while the command goes on and\n"
    "when it has ended well, 1 when it was refused, failed or ended with errors, 130 after Ctrl-C, which\n"
    "ends the waiting only.",
    1,
    1,
    withDriverOptions({{"wait", nullptr, "ask until the command has ended"},
                       intervalOption,
                       quietOption,
                       {"json", nullptr, "status, envelope and answer as one JSON object"}}),
    runTicket};

} // namespace quv
