// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandclasses.h"

#include "commandarguments.h"

#include "dispensing/getdispensedformulacmd.h"
#include "dispensing/getdispensedformulaconfcmd.h"
#include "dispensing/purgecmd.h"
#include "dispensing/purgequantitycmd.h"
#include "dispensing/turntablepurgeformulacmd.h"
#include "dispensing/turntabletintcmd.h"
#include "firmware/firmwarescanreadcmd.h"
#include "firmware/firmwarescanstartcmd.h"
#include "machine/commandidcmd.h"
#include "processes/stopconfcmd.h"
#include "scale/scaleresetcmd.h"
#include "settings/getconnectionstatuscmd.h"
#include "setup/setconfserialcmd.h"
#include "status/errornumcmd.h"

#include <QuvFramework/fw_dispenser.h>

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace quv {

namespace {

using Made = std::unique_ptr<ProtoCommand>;

// What a class's constructor takes.

template <class Class>
Made fromNothing(const Request &request, const FW_Machine *)
{
    return withArguments(request, [](auto &) -> Made { return std::make_unique<Class>(); });
}

template <class Class>
Made fromArguments(const Request &request, const FW_Machine *)
{
    return withArguments(request, [](auto &arguments) -> Made { return std::make_unique<Class>(arguments); });
}

/// Of a class without a list form, in which it is made of nothing: its arguments are not read anyhow.
template <class Class>
Made fromValue(const Request &request, const FW_Machine *)
{
    return withArguments(request, [](auto &arguments) -> Made {
        if constexpr (std::is_same_v<decltype(arguments), XmlRpc::XmlRpcValue &>)
            return std::make_unique<Class>(arguments);
        else
            return std::make_unique<Class>();
    });
}

template <class Class>
Made fromArgumentsAndDispenser(const Request &request, const FW_Machine *machine)
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    return withArguments(request, [dispenser](auto &arguments) -> Made {
        return std::make_unique<Class>(arguments, dispenser);
    });
}

template <class Class>
Made fromArgumentsAndMachine(const Request &request, const FW_Machine *machine)
{
    return withArguments(
        request, [machine](auto &arguments) -> Made { return std::make_unique<Class>(arguments, machine); });
}

/// Of a turntable: where it stands is the last element of a list, and apart from a value, which has no place for it.
template <class Class>
Made fromArgumentsAndPosition(const Request &request, const FW_Machine *machine)
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    return withArguments(request, [&](auto &arguments) -> Made {
        if constexpr (std::is_same_v<decltype(arguments), XmlRpc::XmlRpcValue &>)
            return std::make_unique<Class>(arguments, request.number("position", 0), dispenser);
        else
            return std::make_unique<Class>(arguments, dispenser);
    });
}

struct CommandClass
{
    const char *name;
    Made (*make)(const Request &request, const FW_Machine *machine);
};

constexpr CommandClass commandClasses[] = {
    {"CommandIDCmd", fromArguments<CommandIDCmd>},
    {"ErrorNumCmd", fromNothing<ErrorNumCmd>},
    {"FirmwareScanCmd", fromArguments<FirmwareScanCmd>},
    {"FirmwareScanReadCmd", fromValue<FirmwareScanReadCmd>},
    {"FirmwareScanStartCmd", fromValue<FirmwareScanStartCmd>},
    {"GetConnectionStatusCmd", fromArguments<GetConnectionStatusCmd>},
    {"GetDispensedFormulaCmd", fromArguments<GetDispensedFormulaCmd>},
    {"GetDispensedFormulaConfCmd", fromArguments<GetDispensedFormulaConfCmd>},
    {"PurgeCmd", fromArgumentsAndDispenser<PurgeCmd>},
    {"PurgeQuantityCmd", fromArguments<PurgeQuantityCmd>},
    {"ScaleResetCmd", fromArguments<ScaleResetCmd>},
    {"SetConfSerialCmd", fromArgumentsAndMachine<SetConfSerialCmd>},
    {"StopConfCmd", fromArguments<StopConfCmd>},
    {"TurntablePurgeFormulaCmd", fromArgumentsAndPosition<TurntablePurgeFormulaCmd>},
    {"TurntableTintCmd", fromArgumentsAndPosition<TurntableTintCmd>},
};

} // namespace

std::unique_ptr<ProtoCommand> commandOfClass(const Request &request, const FW_Machine *machine)
{
    const std::string name = request.text("class").toStdString();
    const auto found =
        std::find_if(std::begin(commandClasses), std::end(commandClasses),
                     [&](const CommandClass &commandClass) { return name == commandClass.name; });
    if (found == std::end(commandClasses))
        throw BadRequest(
            "\"class\" names no class of commands that only a driver makes; others go by \"name\"");
    return found->make(request, machine);
}

} // namespace quv
