// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "jsonvalue.h"

#include "catalogue/commandfacts.h"

#include <QtCore/QString>

#include <optional>

namespace quv {

/// A call that can be tried as it stands.
struct CommandExample
{
    QString
        shell; ///< quvctl call GET_STATUS position=3; empty when quvctl would not send what the driver takes
    QString python; ///< driver.EXEC_B("GET_STATUS", 3)
};

/// What stands before the call in Python, with the driver's own address.
extern const char *const pythonPreparation;

/// Values that show what the arguments of a command look like; none when nothing is known of them.
std::optional<OrderedJson> sampleArguments(const CommandFacts &command);

/// None when nothing is known that the command would take: an example is one that the library has taken.
std::optional<CommandExample> exampleOf(const CommandFacts &command);

} // namespace quv
