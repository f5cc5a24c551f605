// SPDX-License-Identifier: LGPL-3.0-or-later
#include "operations.h"
#include "subcommands.h"
#include "terminal.h"
#include "typedcommand.h"
#include "words.h"

#include "base/protocommand.h"

#include <QuvFramework/fw_machine.h>

namespace quv {

namespace {

/// A text as it is, anything else as JSON.
QString cell(const OrderedJson &value)
{
    return QString::fromStdString(value.is_string() ? value.get<std::string>() : writeJson(value));
}

void print(const OrderedJson &reply)
{
    struct Field
    {
        const char *member;
        const char *title;
    };
    constexpr Field fields[] = {{"class", "Class"},           {"request", "Request"},
                                {"parameters", "Parameters"}, {"code", "Code"},
                                {"module", "Module"},         {"serial", "Serial"},
                                {"estimated_ms", "Time, ms"}, {"command", "Command"},
                                {"action", "Action"},         {"action_detailed", "Detailed"}};
    Columns columns;
    for (const Field &field : fields)
        if (reply.contains(field.member))
            columns.add({QLatin1String(field.title), cell(reply[field.member])});
    columns.print(false);
}

ExitStatus runEncode(const CommandLine &line)
{
    nlohmann::json request = commandRequest(line);
    const int family = line.number("family", 1, 1, 2);
    request["form"] =
        line.choice("form", QStringLiteral("value"), {QStringLiteral("value"), QStringLiteral("list")})
            .toStdString();
    const TypedCommand typed = typedCommand(line, std::move(request)); // refuses what would be lost
    const OrderedJson reply = encodedReply(*typed.command, typed.machine.get(), family);
    if (line.isSet("json"))
        printJson(reply);
    else
        print(reply);
    return Done;
}

} // namespace

const Subcommand encodeSubcommand = {
    "encode",
    "NAME [ARGUMENT...]",
    "a command as it travels",
    "Makes a command and shows its XML-RPC request and, when the firmware carries it out, its code and\n"
    "integers. An argument is a JSON value, or a string as in quvctl call; one that would not travel is\n"
    "refused. quvctl show NAME tells the arguments' names, by which they can be given as well: position=3.",
    1,
    -1,
    {{"family", "FAMILY", "the machine's command family, 1 (default) or 2"},
     machineOption,
     {"form", "FORM", "the arguments are given as a value (default) or a list"},
     {"json", nullptr, "one JSON object, as from quvctl batch"}},
    runEncode};

} // namespace quv
