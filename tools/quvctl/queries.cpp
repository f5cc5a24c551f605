// SPDX-License-Identifier: LGPL-3.0-or-later
#include "queries.h"

#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_dispenser.h>

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace quv {

namespace {

template <class T>
OrderedJson jsonOf(const T &value)
{
    if constexpr (std::is_same_v<T, QString>)
        return toJson(value);
    else
        return value;
}

template <auto Ask>
OrderedJson byName(const Request &request)
{
    return jsonOf(Ask(request.text("name")));
}

template <auto Ask>
OrderedJson byNameAndStrictness(const Request &request)
{
    return jsonOf(Ask(request.text("name"), request.flag("strict", false)));
}

ProtoCommandList::CommandListValue rowNumber(const Request &request)
{
    return static_cast<ProtoCommandList::CommandListValue>(request.number("value"));
}

OrderedJson cmdStr(const Request &request)
{
    return jsonOf(ProtoCommandList::cmdStr(rowNumber(request)));
}

/// By row number or by name, as the request has it.
OrderedJson cmdParamNum(const Request &request)
{
    const bool mandatory = request.flag("mandatory", false);
    if (request.has("value"))
        return ProtoCommandList::cmdParamNum(rowNumber(request), mandatory);
    return ProtoCommandList::cmdParamNum(request.text("name"), mandatory);
}

OrderedJson cmdCode(const Request &request)
{
    return jsonOf(ProtoCommandList::cmdCode(request.text("name"),
                                            request.number("family", FW_Dispenser::CommandFamily1)));
}

OrderedJson functionCallStr(const Request &request)
{
    return jsonOf(ProtoCommandList::functionCallStr(request.number("mode", ProtoCommandList::BlockingCall)));
}

struct Query
{
    const char *name;
    OrderedJson (*ask)(const Request &request);
};

// clang-format off
constexpr Query queries[] = {
    {"existsCommand", byName<&ProtoCommandList::existsCommand>},
    {"cmdStr", cmdStr},
    {"cmdParamNum", cmdParamNum},
    {"cmdCode", cmdCode},
    {"functionCallStr", functionCallStr},
    {"targetIsDispenser", byName<&ProtoCommandList::targetIsDispenser>},
    {"targetIsMixer", byName<&ProtoCommandList::targetIsMixer>},
    {"targetIsMachine", byName<&ProtoCommandList::targetIsMachine>},
    {"isSerialCommand", byNameAndStrictness<&ProtoCommandList::isSerialCommand>},
    {"isConfigurationCommand", byNameAndStrictness<&ProtoCommandList::isConfigurationCommand>},
    {"isSerialAndConfigCommand", byNameAndStrictness<&ProtoCommandList::isSerialAndConfigCommand>},
    {"isConfigAndSerialCommand", byNameAndStrictness<&ProtoCommandList::isConfigAndSerialCommand>},
    {"isSpecialCommand", byNameAndStrictness<&ProtoCommandList::isSpecialCommand>},
    {"isSpecialAndSerialCommand", byNameAndStrictness<&ProtoCommandList::isSpecialAndSerialCommand>},
    {"isSpecialAndConfigCommand", byNameAndStrictness<&ProtoCommandList::isSpecialAndConfigCommand>},
    {"isScaleCommand", byNameAndStrictness<&ProtoCommandList::isScaleCommand>},
    {"isMultipleCommand", byName<&ProtoCommandList::isMultipleCommand>},
    {"addressMachine", byName<&ProtoCommandList::addressMachine>},
    {"hasHighSchedulingPriority", byName<&ProtoCommandList::hasHighSchedulingPriority>},
    {"checkBusyFlag", byName<&ProtoCommandList::checkBusyFlag>},
    {"busyTimeout", byName<&ProtoCommandList::busyTimeout>},
    {"commandTimeout", byName<&ProtoCommandList::commandTimeout>},
    {"trackExecutionTime", byName<&ProtoCommandList::trackExecutionTime>},
    {"recordInStats", byName<&ProtoCommandList::recordInStats>},
    {"machineObjUsage", byName<&ProtoCommandList::machineObjUsage>},
    {"privateCommand", byName<&ProtoCommandList::privateCommand>},
    {"erogationCommand", byName<&ProtoCommandList::erogationCommand>},
};
// clang-format on

} // namespace

OrderedJson catalogueRow(const CMD_STRUCT &row)
{
    OrderedJson json = OrderedJson::object();
    json["id"] = row.id;
    json["name"] = toJson(row.name);
    json["code"] = toJson(row.code);
    json["altCode"] = toJson(row.altCode);
    json["maxParams"] = row.maxParams;
    json["minParams"] = row.minParams;
    json["type"] = row.type;
    json["target"] = row.target;
    json["multiple"] = row.multiple;
    json["addressMachine"] = row.addressMachine;
    json["workingPriorityLevel"] = row.workingPriorityLevel;
    json["schedulingPriorityLevel"] = row.schedulingPriorityLevel;
    json["checkBusy"] = row.checkBusy;
    json["busyTimeout"] = row.busyTimeout;
    json["trackExecutionTime"] = row.trackExecutionTime;
    json["recordInStats"] = row.recordInStats;
    json["machineObjUsage"] = row.machineObjUsage;
    json["privateCommand"] = row.privateCommand;
    json["erogationCommand"] = row.erogationCommand;
    json["familyMask"] = row.familyMask;
    return json;
}

OrderedJson allRows()
{
    OrderedJson rows = OrderedJson::array();
    for (int id = 0; id < ProtoCommandList::rowCount; ++id)
        rows.push_back(catalogueRow(*ProtoCommandList::row(id)));
    return rows;
}

OrderedJson askCatalogue(const Request &request)
{
    const std::string what = request.text("what").toStdString();
    const auto query = std::find_if(std::begin(queries), std::end(queries),
                                    [&](const Query &candidate) { return what == candidate.name; });
    if (query == std::end(queries))
        throw BadRequest("\"what\" names no query of the catalogue");
    return query->ask(request);
}

} // namespace quv
