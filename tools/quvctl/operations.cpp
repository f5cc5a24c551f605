// SPDX-License-Identifier: LGPL-3.0-or-later
#include "operations.h"

#include "commandarguments.h"
#include "commandclasses.h"
#include "commandlistoperation.h"
#include "queries.h"
#include "refusaloperation.h"
#include "replies.h"
#include "rowoperations.h"
#include "seriesoperation.h"
#include "settingsoperation.h"
#include "waterchangeoperation.h"

#include "base/cmdstatus.h"
#include "base/protoanswer.h"
#include "base/serialprotocommand.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"
#include "status/machinestatusanswer.h"

#include <QuvFramework/fw_error.h>
#include <QuvFramework/fw_machine.h>
#include <QuvFramework/fw_version.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>
#include <iterator>

namespace quv {

namespace {

/// Gives the command its newer name, as a driver does for a firmware that knows the newer form.
void rename(ProtoCommand &command, const QString &name)
{
    if (!command.setCommand(name))
        throw BadRequest("\"as\" names no command of the catalogue");
}

OrderedJson catalogue(const Request &)
{
    OrderedJson reply = success();
    reply["rows"] = allRows();
    return reply;
}

OrderedJson query(const Request &request)
{
    OrderedJson reply = success();
    reply["value"] = askCatalogue(request);
    return reply;
}

OrderedJson encode(const Request &request)
{
    const int family = request.number("family", 1);
    const auto machine = machineOf(request);
    const auto command = makeCommand(request, machine.get());
    if (request.has("as"))
        rename(*command, request.text("as"));
    return encodedReply(*command, machine.get(), family);
}

void addAnswer(OrderedJson &reply, const ProtoAnswer &answer)
{
    reply["class"] = className(answer);
    reply["value"] = toJson(answer.toXmlRpcValue());
}

OrderedJson decode(const Request &request)
{
    return answerReply(*decodedCommand(request));
}

OrderedJson answer(const Request &request)
{
    const XmlRpc::XmlRpcValue value = request.value("value");
    const auto command = makeCommand(request);
    FW_DriverError error;
    if (!command->buildProtoAnswer(value, &error))
        throw FW_DriverError(error);
    return answerReply(*command);
}

OrderedJson setAnswer(const Request &request)
{
    const XmlRpc::XmlRpcValue envelope = request.value("envelope");
    const bool async = request.flag("async", false);
    const auto command = makeCommand(request);
    FW_DriverError error;
    if (!command->setAnswer(envelope, async, &error))
        throw FW_DriverError(error);
    return envelopeReply(*command);
}

OrderedJson envelope(const Request &request)
{
    const int retCode = request.number("ret_code");
    const XmlRpc::XmlRpcValue value = request.has("value") ? request.value("value") : XmlRpc::XmlRpcValue(0);
    const XmlRpcAnswer answer(retCode, value, request.text("command", QString()),
                              request.longNumber("time", 0));
    OrderedJson reply = success();
    reply["value"] = toJson(answer.toXmlRpcValue());
    return reply;
}

OrderedJson supports(const Request &request)
{
    const FW_Version version{request.number("family"), request.number("revision")}; // braces: in this order
    OrderedJson reply = success();
    reply["supported"] = makeCommand(request)->isSupportedCommand(version);
    return reply;
}

CmdStatus commandStatusOf(const Request &request)
{
    CmdStatus status;
    status.setStatus(request.number("status"));
    status.setTimeLeft(request.longNumber("time_left", 0));
    status.setPercentage(request.number("percentage", 0));
    status.setInfo(request.text("info", QString()));
    status.setExtraInfo(request.text("extra_info", QString()));
    if (request.has("value"))
        status.setResultValue(request.value("value"));
    return status;
}

OrderedJson status(const Request &request)
{
    const bool verbose = request.flag("verbose", false);
    OrderedJson reply = success();
    reply["valid"] = CmdStatus::checkStatus(request.number("status"));
    reply.update(commandStatusReply(commandStatusOf(request), verbose));
    return reply;
}

struct Operation
{
    const char *name;
    OrderedJson (*run)(const Request &request);
};

constexpr Operation operations[] = {
    {"catalogue", catalogue},
    {"query", query},
    {"encode", encode},
    {"decode", decode},
    {"answer", answer},
    {"setanswer", setAnswer},
    {"envelope", envelope},
    {"supports", supports},
    {"status", status},
    {"row", rowOperation},
    {"apply", applyOperation},
    {"refusal", refusalOperation},
    {"series", seriesOperation},
    {"commands", commandListOperation},
    {"settings", settingsOperation},
    {"waterchange", waterChangeOperation},
};

} // namespace

OrderedJson runOperation(const Request &request)
{
    const std::string name = request.text("op").toStdString();
    const auto operation = std::find_if(std::begin(operations), std::end(operations),
                                        [&](const Operation &candidate) { return name == candidate.name; });
    if (operation == std::end(operations))
        throw BadRequest("\"op\" names no operation");
    return operation->run(request);
}

std::unique_ptr<ProtoCommand> makeCommand(const Request &request, const FW_Machine *machine)
{
    if (request.has("class"))
        return commandOfClass(request, machine);
    const QString name = request.text("name");
    return withArguments(request, [&](auto &arguments) {
        return std::unique_ptr<ProtoCommand>(ProtoCommandList::getProtoCommand(name, arguments, machine));
    });
}

std::unique_ptr<ProtoCommand> makeCommand(const Request &request)
{
    const auto machine = machineOf(request);
    return makeCommand(request, machine.get());
}

OrderedJson encodedReply(const ProtoCommand &command, const FW_Machine *machine, int family)
{
    OrderedJson reply = success();
    reply["class"] = className(command);
    reply["request"] = toJson(command.toXmlRpcValue(QString()));
    reply["parameters"] = toJson(QVariant(command.parameters()));
    if (const auto *serial = dynamic_cast<const SerialProtoCommand *>(&command)) {
        reply["code"] = toJson(ProtoCommandList::cmdCode(command.command(), family));
        reply["module"] = serial->moduleID();
        reply["serial"] = numbers(serial->serialParameters(family));
    }
    reply["estimated_ms"] = command.getCmdEstimatedExecutionTime(machine);
    reply["command"] = toJson(command.commandString());
    reply["action"] = toJson(command.actionString(false).m_translated);
    reply["action_detailed"] = toJson(command.actionString(true).m_translated);
    return reply;
}

std::unique_ptr<ProtoCommand> decodedCommand(const Request &request)
{
    const QStringList tokens = request.texts("tokens");
    auto command = makeCommand(request);
    auto *serial = dynamic_cast<SerialProtoCommand *>(command.get());
    if (!serial)
        throw BadRequest((request.has("class") ? "\"class\": " : "\"name\": ") +
                         command->command().toStdString() +
                         " is no serial command, so tokens are no answer to it");
    FW_DriverError error;
    if (!serial->setSerialAnswer(tokens, &error))
        throw FW_DriverError(error);
    return command;
}

OrderedJson answerReply(const ProtoCommand &command)
{
    OrderedJson reply = success();
    const ProtoAnswer *answer = command.getProtoAnswer();
    if (!answer)
        return reply;
    addAnswer(reply, *answer);
    if (const auto *status = dynamic_cast<const MachineStatusAnswer *>(answer)) {
        OrderedJson descriptions = OrderedJson::array();
        for (const auto &[text, bad] : status->getStatusDescriptions(nullptr))
            descriptions.push_back(OrderedJson::object({{"text", toJson(text)}, {"bad", bad}}));
        reply["descriptions"] = std::move(descriptions);
    }
    return reply;
}

OrderedJson envelopeReply(const ProtoCommand &command)
{
    OrderedJson reply = success();
    if (const XmlRpcAnswer *envelope = command.getXmlRpcAnswer())
        reply["envelope"] = envelopeJson(*envelope);
    if (const ProtoAnswer *answer = command.getProtoAnswer())
        addAnswer(reply, *answer);
    return reply;
}

OrderedJson envelopeJson(const XmlRpcAnswer &envelope)
{
    OrderedJson printable = OrderedJson::array();
    for (const QString &line : envelope.toPrintableString())
        printable.push_back(toJson(line));
    return OrderedJson::object({{"ret_code", envelope.retCode()},
                                {"info", toJson(envelope.infoMsg())},
                                {"printable", std::move(printable)}});
}

OrderedJson commandStatusReply(const CmdStatus &status, bool verbose)
{
    return OrderedJson::object({{"status", status.status()},
                                {"description", toJson(CmdStatus::getDescription(status.status()))},
                                {"info", toJson(status.info())},
                                {"extra_info", toJson(status.extraInfo())},
                                {"time_left", toJson(status.timeLeftStr(verbose))},
                                {"time_tracking", status.timeTrackingAvailable()},
                                {"percentage", status.percentage()},
                                {"value", toJson(status.toXmlRpcValue())}});
}

OrderedJson failureReply(const FW_DriverError &error)
{
    return OrderedJson::object({{"ok", false},
                                {"code", toJson(error.code())},
                                {"text", toJson(error.text())},
                                {"function", toJson(error.function())}});
}

OrderedJson failureReply(const std::string &text)
{
    return OrderedJson::object({{"ok", false}, {"code", ""}, {"text", text}, {"function", ""}});
}

} // namespace quv
