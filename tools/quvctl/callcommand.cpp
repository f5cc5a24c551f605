// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"
#include "hints.h"
#include "operations.h"
#include "subcommands.h"
#include "terminal.h"
#include "tickets.h"
#include "typedcommand.h"
#include "words.h"

#include "base/asyncanswer.h"
#include "base/protoanswer.h"
#include "base/protocommand.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"
#include "status/machinestatusanswer.h"

namespace quv {

namespace {

/// Longer than a client should hold its breath, or a connection.
bool takesLong(const QString &name)
{
    constexpr qint64 minute = 60000;
    return ProtoCommandList::erogationCommand(name) || ProtoCommandList::commandTimeout(name) > minute;
}

ExitStatus print(const ProtoCommand &command, const XmlRpcAnswer &envelope, bool isQuiet)
{
    const bool hasErrors = tellErrors(envelope);
    const auto *async = dynamic_cast<const AsyncAnswer *>(command.getProtoAnswer());
    if (async && !isQuiet)
        printLine(QStringLiteral("%1 has begun").arg(command.command()), Colour::Bold);
    else if (!hasErrors && !isQuiet)
        printLine(envelope.infoMsg(), Colour::Bold);
    if (async)
        printLine(QStringLiteral("Ticket %1").arg(async->ticketID()));
    else if (dynamic_cast<const MachineStatusAnswer *>(command.getProtoAnswer()))
        printAnswer(*command.getProtoAnswer());
    else if (command.getProtoAnswer())
        printValue(envelope.xmlrpcRetValue()); // not all answers keep what the driver told
    return hasErrors ? Refused : Done;
}

ExitStatus printAsJson(const ProtoCommand &command, const XmlRpcAnswer &envelope)
{
    OrderedJson told = envelopeReply(command);
    if (told.contains("value"))
        told["value"] = toJson(envelope.xmlrpcRetValue());
    told.erase("ok"); // errors may stand beside the answer
    OrderedJson reply = outcomeOf(envelope);
    const bool isGood = reply["ok"].get<bool>();
    reply.update(told);
    printJson(reply);
    return isGood ? Done : Refused;
}

/// Has a command that takes long carried out behind a ticket, and gives it the answer in the end.
const XmlRpcAnswer &carriedOut(const Driver &driver, ProtoCommand &command, const CommandLine &line)
{
    const XmlRpcAnswer &begun = startOnMachine(driver, command, line);
    if (begun.retCode() != 0)
        return begun;
    const Ticket ticket(driver, ticketIn(command), line);
    const bool isSilent = line.isSet("json");
    if (!isSilent)
        printLine(QStringLiteral("Ticket %1").arg(ticket.id()));
    behindTicket(ticket.id(), [&] {
        constexpr std::chrono::milliseconds interval(500);
        const CmdStatus ended = ticket.waitForEnd(interval, !isSilent);
        if (!ended.hasResultValue())
            throw std::runtime_error(ended.info().toStdString());
        FW_DriverError error;
        if (!command.setAnswer(ended.resultValue(), false, &error))
            throw FW_DriverError(error);
        if (command.getXmlRpcAnswer()->retCode() != 0)
            throw RequestRefused(*command.getXmlRpcAnswer());
    });
    return *command.getXmlRpcAnswer();
}

const XmlRpcAnswer &answered(const Driver &driver, ProtoCommand &command, const CommandLine &line)
{
    if (line.isSet("async"))
        return startOnMachine(driver, command, line);
    return takesLong(command.command()) ? carriedOut(driver, command, line) : driver.execute(command);
}

std::unique_ptr<ProtoCommand> commandOf(const CommandLine &line)
{
    try {
        return calledCommand(line);
    } catch (const FW_DriverError &error) {
        const QString hint = hintFor(error.code());
        if (hint.isEmpty())
            throw;
        throw FW_DriverError(error.code(), error.text() + QStringLiteral("; ") + hint);
    }
}

ExitStatus runCall(const CommandLine &line)
{
    const Driver driver(line);
    const auto command = commandOf(line);
    const XmlRpcAnswer &envelope = answered(driver, *command, line);
    if (envelope.retCode() != 0)
        throw RequestRefused(envelope);
    return line.isSet("json") ? printAsJson(*command, envelope) : print(*command, envelope, line.isQuiet());
}

} // namespace

const Subcommand callSubcommand = {
    "call",
    "NAME [ARGUMENT...]",
    "sends a command to a driver",
    "Sends a command to a driver, waits until it has been carried out, and shows the answer. What takes\n"
    "long gets a ticket, and how far it is is shown meanwhile; Ctrl-C ends the waiting only. An argument\n"
    "is a JSON value, such as 5, true or \"5\", which is a string; so is a word that is none, such as 05 or\n"
    "KX. What begins with a bracket, a brace or a quotation mark is to be JSON. quvctl show NAME tells the\n"
    "arguments' names, by which they can be given as well: position=3. With --async it shows a ticket and\n"
    "does not wait: quvctl ticket asks for the answer. The driver has the machine; a few commands read\n"
    "their formula by one here too, and --machine tells them which. Nothing is sent when a whole argument\n"
    "would be lost on the way, or when the driver would refuse what is left of the request.",
    1,
    -1,
    withDriverOptions({machineOption,
                       quietOption,
                       {"async", nullptr, "do not wait for the answer, show a ticket"},
                       {"json", nullptr, "envelope and answer as one JSON object"}}),
    runCall};

} // namespace quv
