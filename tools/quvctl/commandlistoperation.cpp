// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandlistoperation.h"

#include "replies.h"

#include "catalogue/protocommandlist.h"
#include "machine/commanddatalist.h"
#include "machine/firmwarecommandsanswer.h"
#include "masterdata/getcommandlistanswer.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_version.h>

namespace quv {

namespace {

OrderedJson commandJson(const CommandData &command)
{
    OrderedJson json = OrderedJson::object();
    json["id"] = command.id;
    json["name"] = toJson(command.name);
    json["code"] = toJson(command.m_code);
    json["minParams"] = command.minParams;
    json["maxParams"] = command.maxParams;
    json["type"] = command.type;
    json["multiple"] = command.multiple;
    json["useDispenser"] = command.useDispenser;
    json["schedulingPriorityLevel"] = command.schedulingPriorityLevel;
    json["workingPriorityLevel"] = command.workingPriorityLevel;
    json["checkBusy"] = command.checkBusy;
    json["trackExecutionTime"] = command.trackExecutionTime;
    json["busyTimeout"] = command.busyTimeout;
    json["busyCheckFrequency"] = command.busyCheckFrequency;
    json["recordInStats"] = command.recordInStats;
    json["machineObjUsage"] = command.machineObjUsage;
    json["privateCommand"] = command.privateCommand;
    json["erogationCommand"] = command.erogationCommand;
    json["available"] = command.available;
    json["version"] = command.version;
    return json;
}

/// What clients read of the list.
GetCommandListAnswer answerOf(const CommandDataList &list)
{
    QList<ProtocolCommandInfo> commands;
    for (int i = 0; i < list.size(); ++i)
        commands.append(ProtocolCommandInfo(list.at(i)));
    return GetCommandListAnswer(commands);
}

std::optional<FW_Version> firmwareOf(const Request &request)
{
    if (!request.has("firmware_family") && !request.has("revision"))
        return std::nullopt;
    return FW_Version{request.number("firmware_family"), request.number("revision")}; // braces: in this order
}

CommandDataList listOf(const Request &request)
{
    const auto device = static_cast<SerialDeviceType>(
        request.number("device", static_cast<int>(SerialDeviceType::Dispenser)));
    const int family = request.number("family", FW_Dispenser::CommandFamily1);
    CommandDataList list;
    if (request.flag("offline", false))
        ProtoCommandList::getOfflineCommandDataList(list, device, family);
    else
        ProtoCommandList::fillCommandDataList(list, device, family);
    return list;
}

void update(CommandDataList &list, const Request &request)
{
    const std::optional<FW_Version> firmware = firmwareOf(request);
    const auto machine = machineOf(request);
    const FirmwareCommandsAnswer told(request.texts("tokens"));
    list.updateCommandsList(0, told.fwCommandList(), firmware ? &*firmware : nullptr, machine.get());
}

OrderedJson replyTo(const GetCommandListAnswer &answer)
{
    OrderedJson lines = OrderedJson::array();
    for (const ProtocolCommandInfo &command : answer.commandList())
        lines.push_back(toJson(QString(command)));
    OrderedJson reply = success();
    reply["class"] = className(answer);
    reply["value"] = toJson(answer.toXmlRpcValue());
    reply["lines"] = std::move(lines);
    return reply;
}

} // namespace

OrderedJson commandListOperation(const Request &request)
{
    if (request.has("value"))
        return replyTo(GetCommandListAnswer(request.value("value")));
    CommandDataList list = listOf(request);
    if (request.has("tokens"))
        update(list, request);
    OrderedJson commands = OrderedJson::array();
    for (int i = 0; i < list.size(); ++i)
        commands.push_back(commandJson(list.at(i)));
    OrderedJson reply = success();
    reply["commands"] = std::move(commands);
    reply["value"] = toJson(answerOf(list).toXmlRpcValue());
    return reply;
}

} // namespace quv
