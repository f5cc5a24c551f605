// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machines/machineregistry.h"
#include "requests/sessions.h"
#include "requests/tickets.h"

#include "base/protoanswer.h"

#include <memory>

class ProtoCommand;

namespace quv {

/// What the driver knows when it answers a command by itself.
struct DriverKnowledge
{
    const Tickets &tickets;
    Sessions &sessions;
    MachineRegistry &machines;
    DrivenMachine *machine; ///< null when the driver has none that the command is for
};

/// \throws CallRefusal DE03107 for a command that the driver does not carry out without the firmware, DE03104 when it lacks the
/// machine
void checkDriverQuery(const QString &name, const DrivenMachine *machine);

/// Carries out a command that was checked. \throws CallRefusal, with an error of the driver's own or of the formula that does
/// not fit the machine
std::unique_ptr<ProtoAnswer> answerDriverQuery(const ProtoCommand &command, const DriverKnowledge &knowledge);

} // namespace quv
