// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "jsonvalue.h"
#include "suggestions.h"

#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_error.h>

#include <memory>

class FW_Machine;
class ProtoCommand;

namespace quv {

class CommandLine;

/// What \a work gives. When it fails because the catalogue has no command \a name, its error tells what may have been meant.
template <class Work>
auto withCommandName(const QString &name, Work work) -> decltype(work())
{
    try {
        return work();
    } catch (const FW_DriverError &error) {
        if (ProtoCommandList::existsCommand(name))
            throw;
        throw FW_DriverError(error.code(), error.text() + didYouMeanCommand(name));
    }
}

/// A command, and the machine that it is for, null for none.
struct TypedCommand
{
    std::unique_ptr<FW_Machine> machine;
    std::unique_ptr<ProtoCommand> command;
};

/**
 * What \a request makes of the words that a user typed.
 * \throws UsageError when its XML-RPC request would lack an argument that the user gave, and as makeCommand
 */
TypedCommand typedCommand(const CommandLine &line, nlohmann::json request);

/**
 * The command that a user typed, to be sent.
 * \throws UsageError when a driver would refuse what it sends, and as typedCommand
 */
std::unique_ptr<ProtoCommand> calledCommand(const CommandLine &line);

} // namespace quv
