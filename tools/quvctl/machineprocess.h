// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "askedstatus.h"
#include "commandline.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

class ProtoCommand;

namespace quv {

using ProtoCommands = std::vector<std::unique_ptr<ProtoCommand>>;

using StatusCondition = std::function<bool(const MachineStatusAnswer &)>;

/// Whether one of the flags is set; false for a status of another kind of machine.
template <class Status>
StatusCondition anyOf(std::initializer_list<bool Status::*> flags)
{
    return [flags = std::vector<bool Status::*>(flags)](const MachineStatusAnswer &status) {
        const auto *told = dynamic_cast<const Status *>(&status);
        return told && std::any_of(flags.begin(), flags.end(), [told](auto flag) { return told->*flag; });
    };
}

/// What a machine does by itself once it has been told to: how it is called, and how its status tells that it lasts.
struct MachineProcess
{
    QString begun{}; ///< as in "stirring all circuits"
    QString ended{}; ///< as in "stirred"
    StatusCondition isAtWork{};
    QList<int> positions{0}; ///< whose status tells it, one for each command; 0 is the machine's
    long long expected = 0;  ///< milliseconds; 0 when nobody knows
    bool isLasting = true;   ///< false for what nobody waits for: no end, or nothing but an order to end
    bool goesOn = true;      ///< false for an order to end
    std::function<QString()>
        failure{}; ///< what the status does not tell of a bad end; empty after a good one
};

/// The options of a command that begins a process, behind its own.
std::vector<OptionText> withProcessOptions(std::vector<OptionText> options);

/**
 * Sends the commands, and waits until the machine has done what they began, with its progress. Of several as many go on at a time as
 * the machine takes. Ctrl-C ends the waiting, a second one stops the machine. Refused when something is wrong with the machine that
 * was not before. \throws RequestRefused, and as StatusQuestion::ask
 */
ExitStatus carryOutProcess(const Driver &driver, StatusQuestion &question, const ProtoCommands &commands,
                           const MachineProcess &process, const CommandLine &line);

/// Tells that what is asked for is so already.
ExitStatus tellNothingToDo(const QString &text, const CommandLine &line);

} // namespace quv
