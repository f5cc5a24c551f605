// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"
#include "operations.h"
#include "subcommands.h"
#include "terminal.h"
#include "words.h"

#include "base/protoanswer.h"
#include "base/protocommand.h"
#include "base/xmlrpcanswer.h"

namespace quv {

namespace {

std::unique_ptr<ProtoCommand> commandOf(const CommandLine &line)
{
    QStringList words = line.words();
    nlohmann::json request;
    request["name"] = words.takeFirst().toStdString();
    request["args"] = argumentsFromWords(words);
    return makeCommand(Request(request));
}

void printRefusal(const XmlRpcAnswer &envelope)
{
    for (const QString &line : envelope.toPrintableString())
        printError(line);
}

void print(const ProtoCommand &command, const XmlRpcAnswer &envelope)
{
    printLine(envelope.infoMsg(), Colour::Bold);
    if (const ProtoAnswer *answer = command.getProtoAnswer())
        printAnswer(*answer);
}

ExitStatus run(const CommandLine &line)
{
    const Driver driver(line);
    const auto command = commandOf(line);
    const XmlRpcAnswer &envelope = driver.execute(*command);
    if (line.isSet("json"))
        printLine(QString::fromStdString(writeJson(envelopeReply(*command))));
    if (envelope.retCode() != 0) {
        printRefusal(envelope);
        return Refused;
    }
    if (!line.isSet("json"))
        print(*command, envelope);
    return Done;
}

} // namespace

const Subcommand callSubcommand = {
    "call",
    "NAME [ARGUMENT...]",
    "sends a command to a driver",
    "Sends a command to a driver, waits until it has been carried out, and shows the answer. An argument is "
    "a\n"
    "JSON value; a word that is none is a string.",
    1,
    -1,
    withDriverOptions({{"json", nullptr, "envelope and answer as one JSON object"}}),
    run};

} // namespace quv
