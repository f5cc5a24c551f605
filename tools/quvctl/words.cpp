// SPDX-License-Identifier: LGPL-3.0-or-later
#include "words.h"

#include "argumentwords.h"
#include "commandline.h"
#include "terminal.h"

#include "base/protoanswer.h"
#include "catalogue/commandfacts.h"
#include "status/dispenserstatusanswer.h"
#include "status/mixerstatusanswer.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>
#include <iterator>

namespace quv {

namespace {

bool told(const QList<StatusLine> &lines, const QString &text)
{
    return std::any_of(lines.begin(), lines.end(), [&](const StatusLine &line) { return line.text == text; });
}

/// A cleared status but for one member.
template <class Status>
Status statusOfMember(const std::string &name, const XmlRpc::XmlRpcValue &member)
{
    XmlRpc::XmlRpcValue value = Status().toXmlRpcValue();
    value[name] = member;
    return Status(value);
}

struct FlagWords
{
    const char *flag;
    const char *text;
};

/// What a capping station tells, which neither list of descriptions knows.
constexpr FlagWords stationWords[] = {{"m_zdr_mixingInProgress", "Capping station: mixing in progress"},
                                      {"m_zdr_openingPlatesInProgress", "Capping station: plates opening"},
                                      {"m_zdr_closingPlatesInProgress", "Capping station: plates closing"},
                                      {"m_zdr_pluggingInProgress", "Capping station: plugging in progress"},
                                      {"m_zdr_canCentered", "Capping station: can centred"},
                                      {"m_zdr_plasticPlugReserve", "Capping station: few plugs left"},
                                      {"m_zdr_plasticPlugNotMounted", "Capping station: no plug mounted"},
                                      {"m_zdr_homePosition", "Capping station: at its home position"}};

/// The name, when nobody has put it into words.
QString wordsOfFlag(const std::string &flag)
{
    const auto words = std::find_if(std::begin(stationWords), std::end(stationWords),
                                    [&flag](const FlagWords &each) { return flag == each.flag; });
    return words == std::end(stationWords) ? DecodeXmlRpcText(flag) : QString::fromLatin1(words->text);
}

/// Flags that neither list of descriptions knows.
QStringList undescribedFlags(const DispenserStatusAnswer &status)
{
    const DispenserStatusAnswer cleared;
    QStringList flags;
    const XmlRpc::XmlRpcValue value = status.toXmlRpcValue();
    for (const auto &[name, member] : value) {
        bool set = false;
        if (!DecodeXmlRpcValue(member, set) || !set || name == "normal_wm")
            continue;
        const auto alone = statusOfMember<DispenserStatusAnswer>(name, member);
        if (alone.getStatusDescriptions(nullptr).isEmpty() &&
            DispenserStatusAnswer::getNewStatesDescriptions(&cleared, &alone).isEmpty())
            flags.append(wordsOfFlag(name));
    }
    return flags;
}

void addDispenserOnly(const DispenserStatusAnswer &status, QList<StatusLine> &lines)
{
    const DispenserStatusAnswer cleared;
    for (const QString &text : DispenserStatusAnswer::getNewStatesDescriptions(&cleared, &status))
        if (!told(lines, text))
            lines.append({text, false});
    for (const QString &flag : undescribedFlags(status))
        lines.append({flag, false});
    if (status.current_position_id != 0)
        lines.append({QStringLiteral("Position %1").arg(status.current_position_id), false});
    if (status.current_position_id_zone != 0)
        lines.append({QStringLiteral("Zone %1").arg(status.current_position_id_zone), false});
}

QStringList textsOf(const MachineStatusAnswer &status)
{
    QStringList texts;
    for (const StatusLine &line : statusInWords(status))
        texts.append(line.text);
    return texts;
}

/// In the library's words where it has some, otherwise by what holds at first.
template <class Status>
QStringList changesBetween(const Status &before, const Status &after)
{
    QStringList changes = Status::getNewStatesDescriptions(&before, &after);
    const XmlRpc::XmlRpcValue was = before.toXmlRpcValue();
    const XmlRpc::XmlRpcValue is = after.toXmlRpcValue();
    for (const auto &[name, member] : is) {
        const XmlRpc::XmlRpcValue *memberBefore = FindXmlRpcMember(was, name);
        if (!memberBefore || *memberBefore == member)
            continue;
        const auto aloneBefore = statusOfMember<Status>(name, *memberBefore);
        const auto alone = statusOfMember<Status>(name, member);
        if (!Status::getNewStatesDescriptions(&aloneBefore, &alone).isEmpty())
            continue;
        const QStringList texts = textsOf(alone);
        changes.append(texts);
        if (texts.isEmpty())
            for (const QString &text : textsOf(aloneBefore))
                changes.append(QStringLiteral("No longer: ") + text);
    }
    return changes;
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

QStringList changesInWords(const MachineStatusAnswer &before, const MachineStatusAnswer &after)
{
    if (const auto *mixer = dynamic_cast<const MixerStatusAnswer *>(&after))
        return changesBetween(dynamic_cast<const MixerStatusAnswer &>(before), *mixer);
    return changesBetween(dynamic_cast<const DispenserStatusAnswer &>(before),
                          dynamic_cast<const DispenserStatusAnswer &>(after));
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
