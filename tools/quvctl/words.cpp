// SPDX-License-Identifier: LGPL-3.0-or-later
#include "words.h"

#include "argumentwords.h"
#include "commandline.h"
#include "terminal.h"

#include "base/protoanswer.h"
#include "catalogue/commandfacts.h"
#include "status/dispenserstatusanswer.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>

namespace quv {

namespace {

bool told(const QList<StatusLine> &lines, const QString &text)
{
    return std::any_of(lines.begin(), lines.end(), [&](const StatusLine &line) { return line.text == text; });
}

/// A cleared status but for one flag.
DispenserStatusAnswer statusOfFlag(const std::string &flag)
{
    XmlRpc::XmlRpcValue value = DispenserStatusAnswer().toXmlRpcValue();
    value[flag] = true;
    return DispenserStatusAnswer(value);
}

/// Flags that neither list of descriptions knows.
QStringList flagsWithoutWords(const DispenserStatusAnswer &status)
{
    const DispenserStatusAnswer cleared;
    QStringList flags;
    const XmlRpc::XmlRpcValue value = status.toXmlRpcValue();
    for (const auto &[name, member] : value) {
        bool set = false;
        if (!DecodeXmlRpcValue(member, set) || !set || name == "normal_wm")
            continue;
        const DispenserStatusAnswer alone = statusOfFlag(name);
        if (alone.getStatusDescriptions(nullptr).isEmpty() &&
            DispenserStatusAnswer::getNewStatesDescriptions(&cleared, &alone).isEmpty())
            flags.append(DecodeXmlRpcText(name));
    }
    return flags;
}

void addDispenserOnly(const DispenserStatusAnswer &status, QList<StatusLine> &lines)
{
    const DispenserStatusAnswer cleared;
    for (const QString &text : DispenserStatusAnswer::getNewStatesDescriptions(&cleared, &status))
        if (!told(lines, text))
            lines.append({text, false});
    for (const QString &flag : flagsWithoutWords(status))
        lines.append({flag, false});
    if (status.current_position_id != 0)
        lines.append({QStringLiteral("Position %1").arg(status.current_position_id), false});
    if (status.current_position_id_zone != 0)
        lines.append({QStringLiteral("Zone %1").arg(status.current_position_id_zone), false});
}

} // namespace

TypedArguments typedArguments(const CommandLine &line)
{
    return argumentsFromWords(commandFacts(line.words().first()), line.words().mid(1));
}

nlohmann::json commandRequest(const CommandLine &line)
{
    nlohmann::json request;
    request["name"] = line.words().first().toStdString();
    request["args"] = typedArguments(line).values;
    request["machine"] = line.value("machine", QStringLiteral("none")).toStdString();
    return request;
}

QList<StatusLine> statusInWords(const MachineStatusAnswer &status)
{
    QList<StatusLine> lines;
    for (const auto &[text, bad] : status.getStatusDescriptions(nullptr))
        lines.append({text, bad});
    if (const auto *dispenser = dynamic_cast<const DispenserStatusAnswer *>(&status))
        addDispenserOnly(*dispenser, lines);
    std::stable_partition(lines.begin(), lines.end(), [](const StatusLine &line) { return line.bad; });
    return lines;
}

void printAnswer(const ProtoAnswer &answer)
{
    const auto *status = dynamic_cast<const MachineStatusAnswer *>(&answer);
    if (!status) {
        printJson(toJson(answer.toXmlRpcValue()));
        return;
    }
    printLine(QStringLiteral("Machine status %1").arg(status->status()), Colour::Bold);
    for (const StatusLine &line : statusInWords(*status))
        printLine(line.text, line.bad ? Colour::Red : Colour::Plain);
}

void printValue(const XmlRpc::XmlRpcValue &value)
{
    if (FindXmlRpcMember(value, "disp_status"))
        printAnswer(DispenserStatusAnswer(value));
    else
        printJson(toJson(value));
}

} // namespace quv
