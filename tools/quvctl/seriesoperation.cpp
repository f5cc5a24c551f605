// SPDX-License-Identifier: LGPL-3.0-or-later
#include "seriesoperation.h"

#include "operations.h"
#include "replies.h"

#include "catalogue/protocommandlist.h"
#include "machine/autotestcmd.h"
#include "processes/stirallcmd.h"

#include <QuvFramework/fw_dispenser.h>

namespace quv {

namespace {

OrderedJson commandJson(const SerialProtoCommand &command, int family)
{
    return OrderedJson::object({{"request", toJson(command.toXmlRpcValue(QString()))},
                                {"code", toJson(ProtoCommandList::cmdCode(command.command(), family))},
                                {"module", command.moduleID()},
                                {"serial", numbers(command.serialParameters(family))}});
}

OrderedJson seriesOf(const ProtoCommand &command, const FW_Dispenser &dispenser)
{
    OrderedJson series = OrderedJson::array();
    const int family = dispenser.commandFamily();
    if (const auto *autotest = dynamic_cast<const AutotestCmd *>(&command)) {
        for (const auto &single : autotest->buildCommandList(dispenser))
            series.push_back(commandJson(*single, family));
    } else if (const auto *stirring = dynamic_cast<const StirAllCmd *>(&command)) {
        for (const StirringCmd &single : stirring->getSingleStirringCommands())
            series.push_back(commandJson(single, family));
    } else {
        throw BadRequest("\"name\": " + command.command().toStdString() + " is no series of commands");
    }
    return series;
}

} // namespace

OrderedJson seriesOperation(const Request &request)
{
    const auto machine = machineOf(request);
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine.get());
    if (!dispenser)
        throw BadRequest("\"machine\" must be a dispenser");
    OrderedJson reply = success();
    reply["commands"] = seriesOf(*makeCommand(request), *dispenser);
    return reply;
}

} // namespace quv
