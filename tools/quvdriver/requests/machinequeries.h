// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/protoanswer.h"

#include <memory>

class ProtoCommand;

namespace quv {

struct DriverKnowledge;

// What the driver answers of its machines and of the sessions of its clients. \throws CallRefusal

std::unique_ptr<ProtoAnswer> logIn(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> exchangeKeys(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> certifySession(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> logOut(const ProtoCommand &command, const DriverKnowledge &knowledge);

std::unique_ptr<ProtoAnswer> listMachines(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> listDispensers(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> listMixers(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> activateDispenser(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> activateMachine(const ProtoCommand &command, const DriverKnowledge &knowledge);

// With the status that the machine tells now; without one when its firmware refuses to.
std::unique_ptr<ProtoAnswer> dispenserStatus(const ProtoCommand &command, const DriverKnowledge &knowledge);
std::unique_ptr<ProtoAnswer> mixerStatus(const ProtoCommand &command, const DriverKnowledge &knowledge);

} // namespace quv
