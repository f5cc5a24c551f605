// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_errorlist.h>

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {

class DrivenMachine;

/// DE03144 for each canister that holds too little for the formula among the arguments, when that asks for its levels to be
/// checked: what the refusal of the command does not tell.
FW_ErrorList lowLevels(const XmlRpc::XmlRpcValue &arguments, const DrivenMachine *machine);

} // namespace quv
