// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

#include <memory>

class FW_Machine;
class ProtoCommand;

namespace quv {

/**
 * The command of the class that "class" names, one of those that the factory does not make for a client: a driver makes them by itself.
 * \throws BadRequest when there is no such class, FW_DriverError when it refuses the arguments
 */
std::unique_ptr<ProtoCommand> commandOfClass(const Request &request, const FW_Machine *machine);

} // namespace quv
