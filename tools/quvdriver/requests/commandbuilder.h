// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/protocommand.h"

#include <memory>

namespace quv {

class DrivenMachine;

/**
 * The command that a client asks for, made for \a machine as it is now; null for none. On a machine with a turntable a tint
 * and a purge pour in the order in which the table reaches the circuits from where the firmware tells that it stands; TINT2 is a tint
 * under its other code.
 *
 * \throws FW_Exception as ProtoCommandList::getProtoCommand does, CallRefusal as requirePourableAmounts, and
 * with the canisters that hold too little behind the command's own error; what an exchange throws
 */
std::unique_ptr<ProtoCommand> buildCommand(const QString &name, const XmlRpc::XmlRpcValue &arguments,
                                           DrivenMachine *machine);

/// The command whose time a request asks for; its own one when it asks for none.
QString estimatedCommand(const QString &name, const XmlRpc::XmlRpcValue &arguments);

/// Milliseconds that the command should take on \a machine, a faster one taking less; 0 or less when nobody knows.
qint64 estimatedTime(const ProtoCommand &command, const DrivenMachine *machine);

} // namespace quv
