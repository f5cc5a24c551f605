// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"
#include "operations.h"
#include "subcommands.h"
#include "terminal.h"
#include "typedcommand.h"
#include "words.h"

#include "base/asyncanswer.h"
#include "base/protoanswer.h"
#include "base/protocommand.h"
#include "base/xmlrpcanswer.h"
#include "status/machinestatusanswer.h"

namespace quv {

namespace {

void print(const ProtoCommand &command, const XmlRpcAnswer &envelope, bool isQuiet)
{
    if (!isQuiet)
        printLine(envelope.infoMsg(), Colour::Bold);
    if (const auto *async = dynamic_cast<const AsyncAnswer *>(command.getProtoAnswer()))
        printLine(QStringLiteral("Ticket %1").arg(async->ticketID()));
    else if (dynamic_cast<const MachineStatusAnswer *>(command.getProtoAnswer()))
        printAnswer(*command.getProtoAnswer());
    else if (command.getProtoAnswer())
        printValue(envelope.xmlrpcRetValue()); // not all answers keep what the driver told
}

void printAsJson(const ProtoCommand &command, const XmlRpcAnswer &envelope)
{
    OrderedJson reply = envelopeReply(command);
    if (reply.contains("value"))
        reply["value"] = toJson(envelope.xmlrpcRetValue());
    printLine(QString::fromStdString(writeJson(reply)));
}

ExitStatus run(const CommandLine &line)
{
    const Driver driver(line);
    const auto command = typedCommand(line, commandRequest(line));
    const XmlRpcAnswer &envelope = line.isSet("async") ? driver.start(*command) : driver.execute(*command);
    if (envelope.retCode() != 0)
        throw RequestRefused(envelope);
    if (line.isSet("json"))
        printAsJson(*command, envelope);
    else
        print(*command, envelope, line.isQuiet());
    return Done;
}

} // namespace

const Subcommand callSubcommand = {
    "call",
    "NAME [ARGUMENT...]",
    "sends a command to a driver",
    "Sends a command to a driver, waits until it has been carried out, and shows the answer. An argument\n"
    "is a JSON value; a word that is none is a string. quvctl show NAME tells the arguments' names, by\n"
    "which they can be given as well: position=3. With --async it shows a ticket and does not wait:\n"
    "quvctl ticket asks for the answer. The driver has the machine; a few commands read their formula\n"
    "by one here too, and --machine tells them which. Nothing is sent when a whole argument would\n"
    "be lost on the way.",
    1,
    -1,
    withDriverOptions({machineOption,
                       quietOption,
                       {"async", nullptr, "do not wait for the answer, show a ticket"},
                       {"json", nullptr, "envelope and answer as one JSON object"}}),
    run};

} // namespace quv
