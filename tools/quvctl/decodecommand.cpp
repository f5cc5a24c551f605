// SPDX-License-Identifier: LGPL-3.0-or-later
#include "operations.h"
#include "subcommands.h"
#include "terminal.h"
#include "typedcommand.h"
#include "words.h"

#include "base/protoanswer.h"
#include "base/serialprotocommand.h"

#include <QuvFramework/fw_error.h>

namespace quv {

namespace {

nlohmann::json requestOf(const CommandLine &line)
{
    nlohmann::json request;
    request["op"] = "decode";
    request["name"] = line.words().first().toStdString();
    request["args"] = nlohmann::json::array();
    request["tokens"] = nlohmann::json::array();
    for (const QString &token : line.words().mid(1))
        request["tokens"].push_back(token.toStdString());
    try {
        if (line.isSet("args"))
            request["args"] = parseJson(line.value("args", QString()).toStdString());
    } catch (const JsonError &error) {
        throw UsageError(QStringLiteral("--args: ") + QString::fromUtf8(error.what()));
    }
    request["machine"] = line.value("machine", QStringLiteral("none")).toStdString();
    return request;
}

ExitStatus runDecode(const CommandLine &line)
{
    const Request request(requestOf(line));
    withCommandName(line.words().first(), [&] {
        if (line.isSet("json"))
            printJson(runOperation(request));
        else
            printAnswer(*decodedCommand(request)->getProtoAnswer());
    });
    return Done;
}

} // namespace

const Subcommand decodeSubcommand = {
    "decode",
    "NAME TOKEN...",
    "the firmware's answer in words",
    "Reads the hexadecimal tokens of a firmware answer, the length token first. A status is shown in words,\n"
    "bad conditions first, any other answer as its value.",
    2,
    -1,
    {{"args", "JSON", "the command's arguments, a JSON array"},
     machineOption,
     {"json", nullptr, "one JSON object, as from quvctl batch"}},
    runDecode};

} // namespace quv
