// SPDX-License-Identifier: LGPL-3.0-or-later
#include "typedcommand.h"

#include "commandexample.h"
#include "commandline.h"
#include "commandreference.h"
#include "excerpt.h"
#include "operations.h"
#include "replies.h"
#include "words.h"

#include "base/protocommand.h"
#include "base/requestarguments_p.h"
#include "catalogue/commandfacts.h"

#include <QuvFramework/fw_machine.h>
#include <QuvFramework/fw_xmlrpc.h>

namespace quv {

namespace {

using XmlRpc::XmlRpcValue;

/// What a user typed, and all that comes of it, each made once.
struct Typed
{
    nlohmann::json request;
    std::unique_ptr<FW_Machine> machine;
    std::unique_ptr<ProtoCommand> command;
    XmlRpcValue sent;
    XmlRpcValue written; // the arguments in it
};

/// Whether the command takes notice of a part of the request: anything else in its place changes what is sent, or is refused.
bool isRead(const Typed &typed, const nlohmann::json::json_pointer &place)
{
    nlohmann::json request = typed.request;
    for (const nlohmann::json &other : {nlohmann::json::object(), nlohmann::json("?"), nlohmann::json(true),
                                        nlohmann::json(false), nlohmann::json(1), nlohmann::json(2)}) {
        request[place] = other;
        try {
            const auto command = makeCommand(Request(request), typed.machine.get());
            if (!SameXmlRpcValue(command->toXmlRpcValue(QString()), typed.sent))
                return true;
        } catch (...) { // what was refused was read
            return true;
        }
    }
    return false;
}

nlohmann::json::json_pointer placeOf(std::size_t argument)
{
    return nlohmann::json::json_pointer("/args") / argument;
}

bool isWritten(const nlohmann::json &argument, std::size_t place, const XmlRpcValue &written)
{
    const XmlRpcValue *element = FindXmlRpcElement(written, static_cast<int>(place));
    return element && SameXmlRpcValue(*element, toXmlRpcValue(argument));
}

/// The places of the arguments that are not sent.
std::vector<int> lostArguments(const Typed &typed)
{
    // What becomes of an argument is the command's own affair: several may travel as one struct, or one as several. So an
    // argument only counts as lost when it is neither read nor written, or when none is written at all.
    const bool writesNone = typed.written.size() == 0;
    const nlohmann::json &arguments = typed.request["args"];
    std::vector<int> lost;
    for (std::size_t i = 0; i < arguments.size(); ++i)
        if (writesNone || (!isWritten(arguments[i], i, typed.written) && !isRead(typed, placeOf(i))))
            lost.push_back(static_cast<int>(i));
    return lost;
}

/// The members that are known of the struct in an argument's place: those that are written, and those of the sample.
QStringList knownMembers(const CommandFacts &command, std::size_t place, const XmlRpcValue *written)
{
    QStringList members;
    if (written && written->getType() == XmlRpcValue::TypeStruct)
        for (const auto &[name, value] : *written)
            members.append(QString::fromStdString(name));
    const auto sample = sampleArguments(command);
    if (sample && place < sample->size() && (*sample)[place].is_object())
        for (const auto &[name, value] : (*sample)[place].items())
            if (!members.contains(QString::fromStdString(name)))
                members.append(QString::fromStdString(name));
    return members;
}

/// A struct may well hold more than the command reads, as the answer to another one does. What nobody reads and has nearly the
/// name of a member is misspelt.
void refuseMisspeltMembers(const CommandFacts &facts, const Typed &typed)
{
    const nlohmann::json &arguments = typed.request["args"];
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (!arguments[i].is_object())
            continue;
        const QStringList known =
            knownMembers(facts, i, FindXmlRpcElement(typed.written, static_cast<int>(i)));
        for (const auto &[name, value] : arguments[i].items()) {
            const QString member = QString::fromStdString(name);
            const QString meant = known.contains(member) ? QString() : didYouMean(member, known);
            if (!meant.isEmpty() && !isRead(typed, placeOf(i) / name))
                throw UsageError(
                    QStringLiteral("%1 takes no notice of \"%2\"%3").arg(facts.name, excerpt(member), meant));
        }
    }
}

/// What a command that was refused may lack: a member of the sample whose name is nearly that of one which nobody knows.
QString misspeltMember(const CommandFacts &facts, const nlohmann::json &arguments)
{
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (!arguments[i].is_object())
            continue;
        const QStringList known = knownMembers(facts, i, nullptr);
        for (const auto &[name, value] : arguments[i].items()) {
            const QString member = QString::fromStdString(name);
            const QString meant = known.contains(member) ? QString() : didYouMean(member, known);
            if (!meant.isEmpty())
                return QStringLiteral("; it has \"%1\"%2").arg(excerpt(member), meant);
        }
    }
    return {};
}

std::unique_ptr<ProtoCommand> madeCommand(const CommandFacts &facts, const nlohmann::json &request,
                                          const FW_Machine *machine)
{
    try {
        return makeCommand(Request(request), machine);
    } catch (const FW_DriverError &error) {
        const QString misspelt = misspeltMember(facts, request["args"]);
        if (misspelt.isEmpty())
            throw;
        throw FW_DriverError(error.code(), error.text() + misspelt);
    }
}

QString argumentsInWords(int count)
{
    return count == 1 ? QStringLiteral("1 argument") : QStringLiteral("%1 arguments").arg(count);
}

QString whyLost(const CommandFacts &command, int given, int lost)
{
    if (!isPlain(command) && lost == given)
        return QStringLiteral("would be sent without arguments");
    return lost == given ? QStringLiteral("carries no arguments")
                         : QStringLiteral("takes %1").arg(argumentsInWords(given - lost));
}

/// A plain command sends no arguments, so one that needs some cannot do what it is for.
void requireCallable(const CommandFacts &command)
{
    const int needed = ProtoCommandList::cmdParamNum(command.name, true);
    const bool sendsNone =
        command.className.isEmpty() || (command.tellsArguments && command.arguments.isEmpty());
    if (sendsNone && needed > 0)
        throw UsageError(QStringLiteral("%1 cannot be called: it needs %2, and quvctl cannot send any")
                             .arg(command.name, argumentsInWords(needed)));
}

/// A driver makes the command by the same library. Some write less than they read.
void requireTaken(const Typed &typed)
{
    const QString name = typed.command->command();
    XmlRpcValue arguments = typed.written;
    try {
        const std::unique_ptr<ProtoCommand> taken(
            ProtoCommandList::getProtoCommand(name, arguments, typed.machine.get()));
    } catch (const FW_DriverError &error) {
        throw UsageError(
            QStringLiteral("%1 cannot be called: the driver would refuse what quvctl sends (%2: %3)")
                .arg(name, error.code(), error.text()));
    }
}

Typed readTyped(const CommandLine &line, nlohmann::json request)
{
    const QString &name = line.words().first();
    const CommandFacts facts = commandFacts(name);
    requireCallable(facts);
    Typed typed;
    typed.request = std::move(request);
    typed.machine = machineOf(Request(typed.request));
    typed.command =
        withCommandName(name, [&] { return madeCommand(facts, typed.request, typed.machine.get()); });
    typed.sent = typed.command->toXmlRpcValue(QString());
    typed.written = argumentsIn(typed.sent);
    const QStringList words = typedArguments(line).words;
    QStringList lost;
    for (const int place : lostArguments(typed))
        if (!words.at(place).isEmpty()) // a default is nobody's loss
            lost.append(words.at(place));
    if (lost.isEmpty()) {
        refuseMisspeltMembers(facts, typed);
        return typed;
    }
    if (facts.tellsArguments && lost.size() < words.size() && words.size() <= facts.arguments.size())
        throw UsageError(QStringLiteral("%1 would not send \"%2\" as it is given")
                             .arg(name, excerpt(lost.join(QLatin1Char(' ')))));
    const QString why = whyLost(facts, words.size(), lost.size());
    throw UsageError(
        QStringLiteral("%1 %2; \"%3\" would be lost").arg(name, why, excerpt(lost.join(QLatin1Char(' ')))));
}

} // namespace

std::unique_ptr<ProtoCommand> calledCommand(const CommandLine &line)
{
    Typed typed = readTyped(line, commandRequest(line));
    requireTaken(typed);
    return std::move(typed.command);
}

TypedCommand typedCommand(const CommandLine &line, nlohmann::json request)
{
    Typed typed = readTyped(line, std::move(request));
    return {std::move(typed.machine), std::move(typed.command)};
}

} // namespace quv
