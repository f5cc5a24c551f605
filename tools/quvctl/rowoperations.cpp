// SPDX-License-Identifier: LGPL-3.0-or-later
#include "rowoperations.h"

#include "configurationrows.h"
#include "replies.h"

#include "configuration/readconfigurationparamanswer.h"
#include "configuration/writeconfigurationparamcmd.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace quv {

namespace {

OrderedJson replyTo(const ReadConfigurationParamAnswer &answer)
{
    OrderedJson reply = success();
    reply["class"] = className(*answer.confData());
    reply["text"] = toJson(answer.configurationDataStr());
    reply["value"] = toJson(answer.toXmlRpcValue());
    reply["serial"] = numbers(answer.confData()->serialParams());
    return reply;
}

OrderedJson replyTo(const WriteConfigurationParamCmd &command)
{
    constexpr int family = 1;
    OrderedJson reply = success();
    if (const ConfData *row = command.confData())
        reply["class"] = className(*row);
    reply["text"] = toJson(command.configurationDataStr());
    reply["serial"] = numbers(command.serialParameters(family));
    return reply;
}

/// The members of the struct that a client sends, of whichever types.
WriteConfigurationParamCmd commandOfStruct(const Request &request)
{
    XmlRpc::XmlRpcValue members;
    for (const char *name : {"cmd_value", "cmd_parameters"})
        if (request.has(name))
            members[name] = request.value(name);
    return WriteConfigurationParamCmd(members);
}

WriteConfigurationParamCmd commandOfMachine(const Request &request)
{
    constexpr int noId = -1;
    const auto machine = machineOf(request);
    return {request.number("code"), machine.get(), request.number("id", noId)};
}

WriteConfigurationParamCmd commandOfText(const Request &row)
{
    XmlRpc::XmlRpcValue members;
    members["cmd_value"] = row.number("code");
    EncodeXmlRpcValue(members, QStringLiteral("cmd_parameters"), row.text("text"));
    return WriteConfigurationParamCmd(members);
}

std::vector<WriteConfigurationParamCmd> rowsOf(const Request &request)
{
    const nlohmann::json &array = request.member("rows");
    if (!array.is_array())
        throw BadRequest("\"rows\" must be an array of objects");
    std::vector<WriteConfigurationParamCmd> rows;
    for (const nlohmann::json &element : array) {
        if (!element.is_object())
            throw BadRequest("\"rows\" must be an array of objects");
        rows.push_back(commandOfText(Request(element)));
    }
    return rows;
}

OrderedJson apply(const std::vector<WriteConfigurationParamCmd> &rows, FW_Machine *machine)
{
    QList<int> extra; // what "@GMC" leaves for "@CPT"
    OrderedJson applied = OrderedJson::array();
    for (const WriteConfigurationParamCmd &row : rows)
        applied.push_back(row.confData() && row.confData()->updateConfiguration(machine, nullptr, &extra));
    return applied;
}

OrderedJson rowsOf(const FW_Machine &machine)
{
    OrderedJson rows = OrderedJson::array();
    for (const auto &[code, id] : configurationInstances(machine)) {
        const WriteConfigurationParamCmd command(code, &machine, id);
        OrderedJson row =
            OrderedJson::object({{"code", code}, {"name", toJson(ConfData::confCommandToString(code))}});
        if (ConfData::isMultipleInstance(code))
            row["id"] = id;
        row["text"] = toJson(command.confData()->configurationParamsStr());
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

OrderedJson rowOperation(const Request &request)
{
    if (request.has("tokens"))
        return replyTo(ReadConfigurationParamAnswer(request.texts("tokens")));
    if (request.has("code"))
        return replyTo(commandOfMachine(request));
    if (request.has("cmd_value") || request.has("cmd_parameters"))
        return replyTo(commandOfStruct(request));
    throw BadRequest("a row needs \"tokens\", \"code\" or \"cmd_value\"");
}

OrderedJson applyOperation(const Request &request)
{
    const auto machine = machineOf(request);
    const std::vector<WriteConfigurationParamCmd> rows = rowsOf(request);
    OrderedJson reply = success();
    reply["applied"] = apply(rows, machine.get());
    reply["rows"] = machine ? rowsOf(*machine) : OrderedJson::array();
    return reply;
}

} // namespace quv
