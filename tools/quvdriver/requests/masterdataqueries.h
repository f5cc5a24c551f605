// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/protoanswer.h"

#include <memory>

class ProtoCommand;

namespace quv {

struct DriverKnowledge;

// The lists of what the driver's dispenser has, as it is now. With the command's option they hold what is enabled.

std::unique_ptr<ProtoAnswer> canisterList(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> circuitList(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> colorantList(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> deviceList(const ProtoCommand &command, const DriverKnowledge &knowledge);

} // namespace quv
